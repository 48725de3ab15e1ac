#include "OpenCard.h"

#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDateEdit>
#include <QTimeEdit>
#include <QTimer>

using namespace trel::mediadispatch;

namespace {

constexpr int kConfirm = 1;

RecordingService& service()
{
    return RecordingService::instance();
}

QDateEdit& firstDay(const OpenCard& open)
{
    return named<QDateEdit>(open.card, "dateEditVaildStartTime");
}

QDateEdit& lastDay(const OpenCard& open)
{
    return named<QDateEdit>(open.card, "dateEditVaildEndTime");
}

/// The period that is shown and the one that is stored, such as "2024.03.01-2024.03.31".
QString shownPeriod(const OpenCard& open)
{
    return firstDay(open).text() + QLatin1Char('-') + lastDay(open).text();
}

QString storedPeriod(int taskId = 1)
{
    const PlayTask& task = service().working[taskId];
    return QString::fromStdString(task.startDate + '-' + task.endDate);
}

QString storedSpan()
{
    const PlayPlan& plan = service().working[1].plans.front();
    return QString::fromStdString(plan.startTime + '-' + plan.endTime);
}

QString shownSpan(const OpenCard& open)
{
    return open.rows.startTime(0).text() + QLatin1Char('-') + open.rows.endTime(0).text();
}

} // namespace

/// Starts may not lie behind their ends: days of a task, times of a plan.
class tst_PlanTaskWidgetChecks : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void takenDays_data();
    void takenDays();
    void refusedFirstDay();
    void refusedLastDay();
    void refusedDayThatCannotBePutBack();
    void refusedDayWhoseStoredDayIsRefusedToo();
    void typedDay();
    void takenTimes_data();
    void takenTimes();
    void refusedStart();
    void refusedEnd();
    void refusedStartInFrequencyMode();
    void theSameTimeDoesNothing();
    void refusedValueShowsUntilTheAnswer();
    void unknownRowDoesNothing();
    void unknownColumnOnlyStores();
    void invertedPlanRefusesAgain();
    void cardMayGoDuringARefusal();
    void taskMayBeReadAnewDuringARefusal();
    void storedTextsAreNotValidated();
};

void tst_PlanTaskWidgetChecks::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
}

void tst_PlanTaskWidgetChecks::takenDays_data()
{
    QTest::addColumn<bool>("isFirst");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QString>("period");
    QTest::newRow("first day") << true << QDate(2024, 3, 15) << "2024.03.15-2024.03.31";
    QTest::newRow("first day on the last") << true << QDate(2024, 3, 31) << "2024.03.31-2024.03.31";
    QTest::newRow("earlier first day") << true << QDate(2023, 12, 31) << "2023.12.31-2024.03.31";
    QTest::newRow("last day") << false << QDate(2025, 1, 1) << "2024.03.01-2025.01.01";
    QTest::newRow("last day on the first") << false << QDate(2024, 3, 1) << "2024.03.01-2024.03.01";
}

void tst_PlanTaskWidgetChecks::takenDays()
{
    QFETCH(bool, isFirst);
    QFETCH(QDate, day);
    const PromptAnswer noPrompt;
    const OpenCard open(taskWithPlans({}));
    (isFirst ? firstDay(open) : lastDay(open)).setDate(day);
    QTEST(storedPeriod(), "period");
    QTEST(shownPeriod(open), "period");
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::refusedFirstDay()
{
    const PlayTask task = taskWithPlans({});
    const OpenCard open(task);
    const PromptAnswer prompt(kConfirm);
    firstDay(open).setDate(QDate(2024, 4, 1));
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("zhStartVaildTimeError")));
    QCOMPARE(prompt.buttons(), QStringList(QStringLiteral("zhFixAct")));
    QCOMPARE(prompt.types(), QVector<int>{0});
    QCOMPARE(shownPeriod(open), QStringLiteral("2024.03.01-2024.03.31"));
    QCOMPARE(open.rows.task(), task);
    // Putting the day back stores the task once.
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::refusedLastDay()
{
    const PlayTask task = taskWithPlans({});
    const OpenCard open(task);
    const PromptAnswer prompt(PromptAnswer::Escape);
    lastDay(open).setDate(QDate(2024, 2, 29));
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("zhStartVaildTimeError")));
    QCOMPARE(shownPeriod(open), QStringLiteral("2024.03.01-2024.03.31"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::refusedDayThatCannotBePutBack()
{
    PlayTask task = taskWithPlans({});
    task.endDate = "never";
    const OpenCard open(task);
    const PromptAnswer prompt(kConfirm);
    lastDay(open).setDate(QDate(2010, 1, 1));
    // The editor stays at what was refused, and nothing comes back through it.
    QCOMPARE(prompt.count(), 1);
    QCOMPARE(lastDay(open).date(), QDate(2010, 1, 1));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetChecks::refusedDayWhoseStoredDayIsRefusedToo()
{
    PlayTask task = taskWithPlans({});
    task.startDate = "soon";
    const OpenCard open(task);
    const PromptAnswer prompt({kConfirm, kConfirm});
    lastDay(open).setDate(QDate(2024, 2, 29));
    QCOMPARE(prompt.count(), 2);
    QCOMPARE(lastDay(open).date(), QDate(2024, 3, 31));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetChecks::typedDay()
{
    const OpenCard open(taskWithPlans({}));
    const PromptAnswer noPrompt;
    firstDay(open).setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClicks(&firstDay(open), QStringLiteral("20"));
    QCOMPARE(storedPeriod(), QStringLiteral("2024.03.20-2024.03.31"));
}

void tst_PlanTaskWidgetChecks::takenTimes_data()
{
    QTest::addColumn<bool>("isStart");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("span");
    QTest::newRow("start") << true << QTime(7, 0) << "07:00:00-09:00:00";
    QTest::newRow("start on the end") << true << QTime(9, 0) << "09:00:00-09:00:00";
    QTest::newRow("end") << false << QTime(23, 59, 59) << "08:00:00-23:59:59";
    QTest::newRow("end on the start") << false << QTime(8, 0) << "08:00:00-08:00:00";
}

void tst_PlanTaskWidgetChecks::takenTimes()
{
    QFETCH(bool, isStart);
    QFETCH(QTime, time);
    const PromptAnswer noPrompt;
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    (isStart ? open.rows.startTime(0) : open.rows.endTime(0)).setTime(time);
    QTEST(storedSpan(), "span");
    QTEST(shownSpan(open), "span");
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::refusedStart()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    const OpenCard open(task);
    const PromptAnswer prompt(kConfirm);
    open.rows.startTime(0).setTime(QTime(9, 0, 1));
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("zhStartVaildTimeError")));
    QCOMPARE(prompt.buttons(), QStringList(QStringLiteral("zhFixAct")));
    QCOMPARE(prompt.types(), QVector<int>{0});
    QCOMPARE(shownSpan(open), QStringLiteral("08:00:00-09:00:00"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::refusedEnd()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    const OpenCard open(task);
    const PromptAnswer prompt(PromptAnswer::Close);
    open.rows.endTime(0).setTime(QTime(7, 59, 59));
    QCOMPARE(prompt.texts(), QStringList(QStringLiteral("zhStartVaildTimeError")));
    QCOMPARE(shownSpan(open), QStringLiteral("08:00:00-09:00:00"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::refusedStartInFrequencyMode()
{
    // Runs below nothing take the end back before the start, so that every new start is refused.
    PlayPlan plan = frequencyPlan(1, "08:00:00", -5, {entry(1)});
    plan.endTime = "07:55:00";
    const PlayTask task = taskWithPlans({plan});
    const OpenCard open(task);
    const PromptAnswer prompt(kConfirm);
    open.rows.startTime(0).setTime(QTime(10, 0));
    QCOMPARE(prompt.count(), 1);
    QCOMPARE(shownSpan(open), QStringLiteral("08:00:00-07:55:00"));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::theSameTimeDoesNothing()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "07:00:00")});
    OpenCard open(task);
    const PromptAnswer noPrompt;
    open.card.slotUpdateTime(0, StartTimeColumn, QTime(8, 0));
    open.card.slotUpdateTime(0, EndTimeColumn, QTime(7, 0));
    // Milliseconds do not count.
    open.card.slotUpdateTime(0, EndTimeColumn, QTime(7, 0, 0, 500));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetChecks::refusedValueShowsUntilTheAnswer()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    const PromptAnswer prompt(kConfirm);
    QString shown;
    QTimer::singleShot(0, &open.card, [&] {
        shown = shownSpan(open);
        QCOMPARE(open.stores(), 0);
    });
    open.rows.startTime(0).setTime(QTime(12, 0));
    QCOMPARE(shown, QStringLiteral("12:00:00-09:00:00"));
    QCOMPARE(shownSpan(open), QStringLiteral("08:00:00-09:00:00"));
}

void tst_PlanTaskWidgetChecks::unknownRowDoesNothing()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    OpenCard open(task);
    const PromptAnswer noPrompt;
    for (const int row : {-1, 1, 77}) {
        for (const int column : {5, 7, 9}) {
            open.card.slotUpdateTime(row, column, QTime(1, 0));
        }
    }
    open.rows.planIdByRow()[0] = 77;
    open.card.slotUpdateTime(0, EndTimeColumn, QTime(1, 0));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanTaskWidgetChecks::unknownColumnOnlyStores()
{
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    OpenCard open(task);
    open.card.slotUpdateTime(0, TimesColumn, QTime(1, 0));
    QCOMPARE(open.rows.task(), task);
    QCOMPARE(open.stores(), 1);
}

void tst_PlanTaskWidgetChecks::invertedPlanRefusesAgain()
{
    const OpenCard open(taskWithPlans({timePlan(1, "20:00:00", "02:00:00")}));
    const PromptAnswer prompt({kConfirm, kConfirm});
    open.rows.startTime(0).setTime(QTime(19, 0));
    open.rows.endTime(0).setTime(QTime(3, 0));
    QCOMPARE(prompt.count(), 2);
    QCOMPARE(shownSpan(open), QStringLiteral("20:00:00-02:00:00"));
    // Either way out is open.
    open.rows.startTime(0).setTime(QTime(1, 0));
    QCOMPARE(storedSpan(), QStringLiteral("01:00:00-02:00:00"));
}

void tst_PlanTaskWidgetChecks::cardMayGoDuringARefusal()
{
    const PromptAnswer prompt({kConfirm, kConfirm});
    const PlayTask task = taskWithPlans({timePlan(1, "08:00:00", "09:00:00")});
    service().working[1] = task;
    auto* const timed = new PlanTaskWidget(task, nullptr);
    QTimer::singleShot(0, timed, [timed] { delete timed; });
    timed->slotUpdateTime(0, StartTimeColumn, QTime(12, 0));
    auto* const dated = new PlanTaskWidget(task, nullptr);
    QTimer::singleShot(0, dated, [dated] { delete dated; });
    dated->slotUpdateStartTimeDate(QDate(2025, 1, 1));
    QCOMPARE(prompt.count(), 2);
}

void tst_PlanTaskWidgetChecks::taskMayBeReadAnewDuringARefusal()
{
    const OpenCard open(taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}));
    const PromptAnswer prompt(kConfirm);
    QTimer::singleShot(0, &open.card, [] {
        service().working[1].plans.front().startTime = "06:00:00";
        emit RecordingService::manager().signalReflushConflict(0);
    });
    open.rows.startTime(0).setTime(QTime(12, 0));
    QCOMPARE(shownSpan(open), QStringLiteral("06:00:00-09:00:00"));
    QCOMPARE(storedSpan(), QStringLiteral("06:00:00-09:00:00"));
}

void tst_PlanTaskWidgetChecks::storedTextsAreNotValidated()
{
    const OpenCard open(taskWithPlans({timePlan(1, "8:00", "9:00")}));
    const PromptAnswer noPrompt;
    // "12:00:00" lies before "9:00" as bytes have it.
    open.rows.startTime(0).setTime(QTime(12, 0));
    QCOMPARE(storedSpan(), QStringLiteral("12:00:00-9:00"));
}

TREL_TEST(tst_PlanTaskWidgetChecks, QApplication)
#include "tst_PlanTaskWidgetChecks.moc"
