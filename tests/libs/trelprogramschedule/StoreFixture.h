#pragma once

#include "ScheduleHost.h"
#include "libs/trelprogramschedule/StorePlaces.h"
#include "service/scheduleManage.h"
#include "support/SampleSchedule.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QTemporaryDir>
#include <QtTest>

/// A fresh store in a folder of its own, or on the server that the environment names, open in the
/// process's one service until the end of the test function.
class StoreFixture
{
public:
    StoreFixture()
        : host(trel::mediadispatch::ScheduleHost::instance())
        , manager(trel::mediadispatch::scheduleManage::getInstance())
        , path(newPlace(folder))
    {
        open();
    }
    ~StoreFixture() { host.close(); }
    Q_DISABLE_COPY(StoreFixture)

    void open()
    {
        const trel::mediadispatch::StoreResult result = host.open(path);
        QVERIFY2(result, qPrintable(englishText(result)));
    }

    /// Closes the store and opens it again, as a host that is started a second time.
    void restart()
    {
        host.close();
        open();
    }

    /// Puts tasks into the working set and saves.
    void save(const std::map<int, trel::mediadispatch::PlayTask>& tasks)
    {
        for (const auto& [id, task] : tasks) {
            manager.addTask(task);
        }
        const trel::mediadispatch::StoreResult result = host.trySave();
        QVERIFY2(result, qPrintable(englishText(result)));
    }

    QTemporaryDir folder;
    trel::mediadispatch::ScheduleHost& host;
    trel::mediadispatch::scheduleManage& manager;
    QString path;
};
