#include "service/PlanFaults.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

class tst_PlanFaults : public QObject
{
    Q_OBJECT

private slots:
    void faults_data();
    void faults();
    void runs_data();
    void runs();
    void days_data();
    void days();
};

void tst_PlanFaults::faults_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("times");
    QTest::addColumn<QString>("weeks");
    QTest::addColumn<int>("fault");
    const auto row = [](const char* name, const char* start, const char* end, int mode, int times,
                        const char* weeks, PlanFault fault) {
        QTest::newRow(name) << QString::fromLatin1(start) << QString::fromLatin1(end) << mode
                            << times << QString::fromLatin1(weeks) << static_cast<int>(fault);
    };
    row("none", "08:00:00", "09:00:00", 0, 0, "", PlanFault::None);
    row("runs", "08:00:00", "08:00:10", 1, 1, "", PlanFault::None);
    row("runs of a mode that is none", "08:00:00", "09:00:00", 7, 0, "", PlanFault::None);
    row("no day", "noon", "09:00:00", 0, 0, "8", PlanFault::NoDay);
    row("start", "noon", "09:00:00", 0, 0, "", PlanFault::UnreadableStart);
    row("start that an end follows from", "noon", "", 1, 1, "", PlanFault::UnreadableStart);
    row("end", "08:00:00", "", 0, 0, "", PlanFault::UnreadableEnd);
    row("both", "noon", "one", 0, 0, "", PlanFault::UnreadableTimes);
    row("no runs", "08:00:00", "08:00:00", 1, 0, "", PlanFault::RunsLessThanOnce);
    row("fewer runs", "08:00:00", "07:59:50", 1, -1, "", PlanFault::RunsLessThanOnce);
    row("empty", "08:00:00", "08:00:00", 0, 0, "", PlanFault::EmptySpan);
    row("empty with runs", "08:00:00", "08:00:00", 1, 1, "", PlanFault::EmptySpan);
    row("inverted", "08:00:00", "07:00:00", 0, 0, "", PlanFault::InvertedSpan);
}

void tst_PlanFaults::faults()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(int, mode);
    QFETCH(int, times);
    QFETCH(QString, weeks);
    PlayPlan plan;
    plan.startTime = start.toStdString();
    plan.mode = mode;
    plan.times = times;
    plan.weeks = weeks.toStdString();
    QTEST(static_cast<int>(planFault(plan, end.toStdString())), "fault");
}

void tst_PlanFaults::runs_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("times");
    QTest::addColumn<bool>("counts");
    QTest::addColumn<bool>("isNone");
    QTest::newRow("time") << 0 << 0 << false << false;
    QTest::newRow("frequency") << 1 << 1 << true << false;
    QTest::newRow("no runs") << 1 << 0 << true << true;
    QTest::newRow("no mode") << 7 << 2 << true << false;
    QTest::newRow("no mode either, no runs") << -1 << -3 << true << true;
}

void tst_PlanFaults::runs()
{
    QFETCH(int, mode);
    QFETCH(int, times);
    PlayPlan plan;
    plan.mode = mode;
    plan.times = times;
    QTEST(countsRuns(plan), "counts");
    QTEST(runsLessThanOnce(plan), "isNone");
}

void tst_PlanFaults::days_data()
{
    QTest::addColumn<bool>("expected");
    for (const char* weeks : {"", "0", "7", "8,1", "abc", "1;2", "3x"}) {
        QTest::newRow(weeks) << true;
    }
    for (const char* weeks : {"8", "-1", "8,9", "70"}) {
        QTest::newRow(weeks) << false;
    }
}

void tst_PlanFaults::days()
{
    QTEST(namesAnyDay(QTest::currentDataTag()), "expected");
}

TREL_TEST(tst_PlanFaults, trel::tests::NoApplication)
#include "tst_PlanFaults.moc"
