#include "SaveRescue.h"

#include "HostPrompts.h"
#include "service/scheduleManage.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QWidget>

using namespace trel::mediadispatch;

SaveRescue::SaveRescue(ScheduleHost& host, QWidget* window)
    : QObject(window)
    , m_host(host)
    , m_window(window)
{
    connect(&m_host, &ScheduleHost::saveFailed, this, &SaveRescue::rescue, Qt::DirectConnection);
}

SaveRescue::Answer SaveRescue::ask(const QString& reason)
{
    const int button = prompts::confirm(
        tr("The schedule was not saved. %1\n\nWhat do you want to do with your changes?")
            .arg(reason),
        tr("Try again"), tr("Write to a file"), tr("Discard changes"));
    switch (button) {
    case 1:
        return Answer::TryAgain;
    case 2:
        return Answer::WriteFile;
    case 3:
        return Answer::GiveUp;
    default:
        return Answer::None;
    }
}

bool SaveRescue::writeFile()
{
    const QString file = prompts::saveFileName(m_window, tr("Write the schedule to a file"),
                                               tr("Schedules (*.json)"), QStringLiteral("json"));
    if (file.isEmpty()) {
        return false;
    }
    const QString error = writeScheduleFile(file, scheduleManage::getInstance().getAllTask());
    if (!error.isEmpty()) {
        prompts::notice(error);
        return false;
    }
    emit written(file);
    return true;
}

void SaveRescue::rescue(const StoreResult& reason)
{
    QString sentence = reason.message;
    for (;;) {
        switch (ask(sentence)) {
        case Answer::TryAgain: {
            const StoreResult again = m_host.trySave();
            if (again) {
                return;
            }
            sentence = again.message;
            break;
        }
        case Answer::WriteFile:
            if (writeFile()) {
                return;
            }
            break;
        case Answer::GiveUp:
            emit givenUp();
            return;
        case Answer::None:
            break;
        }
    }
}
