#include "DeskWorker.h"

#include "Dice.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "scheduleControlUI.h"
#include "service/scheduleManage.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/TestClock.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelwidgets/ComboBox.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeEdit>

#include <cstdio>

using namespace trel::mediadispatch;

namespace {

/// The lock after a refresh has to be over before a task is added.
constexpr qint64 kBetweenMSecs = 1500;
constexpr int kMostTasks = 6;

class Worker
{
public:
    Worker()
    {
        m_editor.show();
        refresh();
    }

    QString handle(const QString& request)
    {
        m_clock.advance(kBetweenMSecs);
        const QString word = request.section(QLatin1Char(' '), 0, 0);
        if (word == QLatin1String("refresh")) {
            refresh();
        } else if (word == QLatin1String("edit")) {
            edit(request.section(QLatin1Char(' '), 1).toULongLong());
        } else if (word == QLatin1String("save")) {
            const StoreResult result = ScheduleHost::instance().trySave();
            return result ? QStringLiteral("saved") : englishText(result);
        } else {
            return QStringLiteral("not understood");
        }
        return QStringLiteral("done");
    }

private:
    void refresh() { m_editor.clearAndInitialize(); }

    PlanList& list() { return *m_editor.findChild<PlanList*>(); }

    void edit(std::uint64_t number)
    {
        Dice dice(number, 0);
        const QList<PlanTaskWidget*> cards = list().cards();
        if (cards.isEmpty() || (cards.size() < kMostTasks && dice.oneIn(4))) {
            list().slotAddOutput();
            return;
        }
        PlanTaskWidget& card = *dice.of(cards);
        const PlanTaskWidgetInspector rows(card);
        if (dice.oneIn(8)) {
            list().slotDeleteTask(rows.task().id);
        } else if (cards.size() < kMostTasks && dice.oneIn(6)) {
            list().slotCopyTask(rows.task().id);
        } else if (rows.rowCount() > 0) {
            editRow(dice, rows, dice.below(rows.rowCount()));
        }
    }

    static void editRow(Dice& dice, const PlanTaskWidgetInspector& rows, int row)
    {
        switch (dice.below(4)) {
        case 0:
            rows.times(row).setValue(dice.between(1, 99));
            break;
        case 1:
            rows.endAction(row).setCurrentIndex(dice.below(2));
            break;
        case 2:
            // Earlier than it is, so that it is not refused.
            rows.startTime(row).setTime(QTime(0, 0).addSecs(
                dice.below(QTime(0, 0).secsTo(rows.startTime(row).time()) + 1)));
            break;
        default:
            rows.copyButton(row).click();
            break;
        }
    }

    TestClock m_clock{QDateTime(QDate(2024, 3, 10), QTime(12, 0))};
    scheduleControlUI m_editor;
};

} // namespace

int runDeskWorker(const QString& database)
{
    ScheduleHost& host = ScheduleHost::instance();
    if (const StoreResult opened = host.open(database); !opened) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(englishText(opened)));
        return 1;
    }
    {
        Worker worker;
        QFile in;
        QFile out;
        if (!in.open(stdin, QIODevice::ReadOnly) || !out.open(stdout, QIODevice::WriteOnly)) {
            return 1;
        }
        for (QByteArray line = in.readLine(); !line.isEmpty(); line = in.readLine()) {
            const QString result = worker.handle(QString::fromUtf8(line).trimmed());
            QCoreApplication::processEvents();
            const QJsonObject answer = {
                {QStringLiteral("result"), result},
                {QStringLiteral("tasks"), QString::fromUtf8(scheduleToJson(host.workingSet()))}};
            out.write(QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n');
            out.flush();
        }
    }
    host.close();
    return 0;
}
