#include "../dispatch/ScheduleWriting.h"
#include "LiteralProblems.h"
#include "ProblemLines.h"
#include "RandomTasks.h"
#include "support/TestProgram.h"

#include "service/TimeText.h"
#include "support/Growth.h"
#include "trelprogramschedule/problems/TaskProblems.h"

#include <QTest>
#include <QTimeZone>

#include <algorithm>

using namespace trel::mediadispatch;

namespace {

PlayTask taskFrom(const QString& text)
{
    return scheduleFromText(text).begin()->second;
}

QStringList found(const PlayTask& task, const ProblemScope& scope = {})
{
    return linesOf(taskProblems(task, lettersCatalogue(), scope));
}

} // namespace

/// A task by itself. March 2027 begins on a Monday.
class tst_TaskProblems : public QObject
{
    Q_OBJECT

private slots:
    void rules_data();
    void rules();
    void fromADayOn_data();
    void fromADayOn();
    void changesOfTheClocks();
    void whatTheRecordTells();
    void followsTheLiteralRule();
    void aFullPlanOfADayHasNoProblem();
    void growsWithThePlans();
};

void tst_TaskProblems::rules_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* plans, const char* expected) {
        QTest::newRow(name) << QLatin1String("1 2027.03.01-2027.03.31 / ") + QLatin1String(plans)
                            << QString::fromLatin1(expected);
    };
    const char* const day = "00:00:00-23:59:59 A";
    row("a whole day", day, "");
    row("collides", "00:00:00-23:59:59 A / 08:00:00-09:00:00 A",
        "never seen 1/2 for 1/1, 2027.03.01-2027.03.31");
    row("collides in part", "00:00:00-12:00:00 A / 11:00:00-23:59:59 A on=2,3",
        "collides 1/2 with 1/1, 2027.03.02-2027.03.31 on 2,3;"
        "black 1 12:00-24:00 on 1,4,5,6,7, 2027.03.01-2027.03.31");
    row("collides on no day of the week",
        "00:00:00-23:59:59 A / 08:00:00-09:00:00 A on=8 / 08:00:00-09:00:00 A on=8",
        "never plays 1/2, fault 1;never plays 1/3, fault 1");
    row("the row below is the one that collides",
        "08:00:00-09:00:00 A freeze / 00:00:00-23:59:59 A",
        "collides 1/2 with 1/1, 2027.03.01-2027.03.31 on 1,2,3,4,5,6,7");
    row("gone bad", "00:00:00-23:59:59 A !B !A", "invalid 1/1, entry 1, 2 of them");
    row("in no catalogue", "00:00:00-23:59:59 Q A", "invalid 1/1, entry 0, 1 of them");
    row("gone", "00:00:00-23:59:59 A N", "missing 1/1, entry 1, 1 of them");
    row("takes no time", "00:00:00-23:59:59 A U Z A*0", "no time 1/1, entry 1, 3 of them");
    row("nothing at all", "00:00:00-23:59:59",
        "nothing 1/1;black 1 00:00-24:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31");
    row("longer than its span", "00:00:00-01:30:00 H*2 freeze",
        "cut off 1/1, entry 0 at 01:30, 2027.03.01-2027.03.31");
    row("cut off further down", "00:00:00-01:30:00 H A*359 A freeze on=5",
        "cut off 1/1, entry 1 at 01:30, 2027.03.05-2027.03.31");
    row("cut off by the end of the day", "23:00:00-23:59:59 A H freeze",
        "cut off 1/1, entry 1 at 23:59:59, 2027.03.01-2027.03.31");
    row("through in time", "22:30:00-23:30:00 H freeze", "");
    row("through with the day", "22:00:00-23:59:59 H*2 freeze", "");
    row("less than a second over", "23:00:00-23:30:00 A*180 E freeze", "");
    row("hidden by a picture without an end", "00:00:00-23:59:59 A I B",
        "never reached 1/1, entry 2 behind 1");
    row("a picture without an end comes last", "00:00:00-23:59:59 A I !B",
        "invalid 1/1, entry 2, 1 of them");
    row("a picture that is not reached", "00:00:00-02:00:00 H*2 I freeze",
        "cut off 1/1, entry 1 at 02:00, 2027.03.01-2027.03.31");
    row("runs over midnight", "22:00:00 x2 H*2 freeze",
        "midnight 1/1 until 02:00 splits, 2027.03.01-2027.03.31");
    row("one play runs over midnight", "23:30:00 x1 H freeze",
        "midnight 1/1 until 00:30, 2027.03.01-2027.03.31");
    row("runs over the midnight after", "22:00:00 x99 H freeze",
        "midnight 1/1 until 97:00, 2027.03.01-2027.03.31");
    row("runs up to midnight", "22:00:00 x2 H freeze", "");
    row("ends on the next day", "22:00:00-02:00:00 A freeze",
        "midnight 1/1 until 02:00 splits, 2027.03.01-2027.03.31;"
        "black 1 00:00-24:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31");
    row("a mode that is none is no plan over midnight", "22:00:00-02:00:00 A mode=2 times=1 freeze",
        "never plays 1/1, fault 7;black 1 00:00-24:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31");
    row("its runs are cut off", "22:00:00-22:30:00 H mode=2 times=1 freeze",
        "cut off 1/1, entry 0 at 22:30, 2027.03.01-2027.03.31");
    row("runs less than once", "00:00:00-23:59:59 I mode=2 times=0",
        "never plays 1/1, fault 5;black 1 00:00-24:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31");
    row("black at night", "08:00:00-20:00:00 A",
        "black 1 00:00-08:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31;"
        "black 1 20:00-24:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31");
    row("a last frame at night", "08:00:00-20:00:00 A freeze", "");
    row("a last frame over the weekend", "08:00:00-20:00:00 A freeze on=1,2,3,4,5", "");
    row("black over the weekend",
        "00:00:00-20:00:00 A freeze on=1,2,3,4 / 00:00:00-23:59:59 A on=5",
        "black 1 00:00-24:00 on 6,7, 2027.03.06-2027.03.31");
    row("a cut between two plans", "00:00:00-11:59:30 A / 12:00:00-23:59:59 A", "");
    row("black for a minute", "00:00:00-11:59:00 A / 12:00:00-23:59:59 A",
        "black 1 11:59-12:00 on 1,2,3,4,5,6,7, 2027.03.01-2027.03.31");
    row("black behind a list without a picture", "00:00:00-12:00:00 U freeze / 12:00:00-23:59:59 A",
        "no time 1/1, entry 0, 1 of them;black 1 00:00-12:00 on 1,2,3,4,5,6,7, "
        "2027.03.01-2027.03.31");
    QTest::newRow("no plans") << QStringLiteral("1 2027.03.01-2027.03.02")
                              << QStringLiteral(
                                     "black 1 00:00-24:00 on 1,2, 2027.03.01-2027.03.02");
    QTest::newRow("no date") << QStringLiteral("1 2027.03.01-2027.03.03 / 00:00:00-23:59:59 A / "
                                               "08:00:00-09:00:00 A on=6,7")
                             << QStringLiteral("no date 1/2");
    QTest::newRow("collides, but on no date")
        << QStringLiteral("1 2027.03.01-2027.03.02 / 00:00:00-12:00:00 A freeze on=1,7 / "
                          "08:00:00-09:00:00 A freeze on=2,7")
        << QStringLiteral("collides 1/2 with 1/1, --- on ");
    QTest::newRow("ends before it starts")
        << QStringLiteral("1 2027.03.02-2027.03.01 / 08:00:00-09:00:00 !A")
        << QStringLiteral("never valid 1");
}

void tst_TaskProblems::rules()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(found(taskFrom(text)).join(QLatin1Char(';')), expected);
}

void tst_TaskProblems::fromADayOn_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QDate& from, const char* expected) {
        QTest::newRow(name) << from << QString::fromLatin1(expected);
    };
    row("all", {}, "collides 1/2 with 1/1, 2027.03.01-2027.03.10 on 1");
    row("the first day", QDate(2027, 3, 1), "collides 1/2 with 1/1, 2027.03.01-2027.03.10 on 1");
    row("the day behind", QDate(2027, 3, 2), "collides 1/2 with 1/1, 2027.03.08-2027.03.10 on 1");
    row("no Monday is left", QDate(2027, 3, 9), "no date 1/2");
    row("over", QDate(2027, 3, 11), "");
}

void tst_TaskProblems::fromADayOn()
{
    QFETCH(QDate, from);
    QFETCH(QString, expected);
    const PlayTask task = taskFrom(QStringLiteral(
        "1 2027.03.01-2027.03.10 / 00:00:00-12:00:00 A freeze / 11:00:00-13:00:00 A freeze on=1"));
    QCOMPARE(found(task, {from, {}}).join(QLatin1Char(';')), expected);
}

// In Berlin the hour behind 02:00 is left out on 2027-03-28.
void tst_TaskProblems::changesOfTheClocks()
{
    const auto changes =
        clockChanges(QDate(2027, 1, 1), QDate(2028, 1, 1), QTimeZone("Europe/Berlin"));
    const QString plans = QStringLiteral(" / 00:00:00-02:30:00 A / 02:30:00-23:59:59 A");
    const PlayTask march = taskFrom(QStringLiteral("1 2027.03.01-2027.03.31") + plans);
    QCOMPARE(found(march, {{}, changes}),
             QStringList({QStringLiteral("clock 1/1, 2027.03.28-2027.03.28, effect 2"),
                          QStringLiteral("clock 1/2, 2027.03.28-2027.03.28, effect 1")}));
    QCOMPARE(found(march, {QDate(2027, 3, 28), changes}).size(), 2);
    QCOMPARE(found(march, {QDate(2027, 3, 29), changes}), QStringList());
    const PlayTask april = taskFrom(QStringLiteral("1 2027.03.29-2027.04.30") + plans);
    QCOMPARE(found(april, {{}, changes}), QStringList());
}

void tst_TaskProblems::whatTheRecordTells()
{
    const PlayTask task = taskFrom(QStringLiteral(
        "7 2027.03.01-2027.03.31 / 00:00:00-01:00:00 N freeze id=4 / 00:30:00 x1 H freeze id=9"));
    const auto problems = taskProblems(task, lettersCatalogue(), {});
    QCOMPARE(problems.size(), std::size_t(3));
    const auto named = [&problems](ProblemKind kind) {
        return *std::find_if(problems.begin(), problems.end(),
                             [kind](const ScheduleProblem& each) { return each.kind == kind; });
    };
    const ScheduleProblem missing = named(ProblemKind::MissingFile);
    QCOMPARE(missing.taskId, 7);
    QCOMPARE(missing.planId, 4);
    QCOMPARE(missing.planRow, 0);
    QCOMPARE(missing.progIndex, programOf(QLatin1Char('N')));
    QCOMPARE(missing.name, lettersCatalogue().at(missing.progIndex).progName);
    QVERIFY(gravityOf(missing) == ProblemGravity::Error);
    const ScheduleProblem collides = named(ProblemKind::PlansCollide);
    QCOMPARE(collides.planId, 9);
    QCOMPARE(collides.planRow, 1);
    QCOMPARE(collides.otherPlanId, 4);
    QCOMPARE(collides.otherRow, 0);
    QCOMPARE(collides.startText, std::string("00:30:00"));
    QCOMPARE(collides.endText, std::string("01:30:00"));
    QCOMPARE(collides.begin, 1800);
    QCOMPARE(collides.end, 5400);
}

void tst_TaskProblems::followsTheLiteralRule()
{
    std::mt19937 random(2210);
    auto catalogue = lettersCatalogue();
    catalogue[programOf(QLatin1Char('N'))].durationMs = 3'600'000;
    int lines = 0;
    for (int i = 0; i < 250; ++i) {
        const PlayTask task = randomTask(random, 1 + i % 3);
        const QDate from =
            i % 3 == 0 ? QDate(2027, 3, 1 + static_cast<int>(random() % 31)) : QDate();
        const auto problems = taskProblems(task, catalogue, {from, {}});
        QVERIFY(std::is_sorted(problems.begin(), problems.end(), comesBefore));
        QStringList own = linesOf(problems);
        own.sort();
        const QStringList expected = literal::taskProblems(task, catalogue, from);
        lines += expected.size();
        if (own != expected) {
            const QString message =
                QStringLiteral("%1\nfrom %2\nfound:\n  %3\nexpected:\n  %4")
                    .arg(textOf({{task.id, task}}), from.toString(Qt::ISODate),
                         own.join(QStringLiteral("\n  ")), expected.join(QStringLiteral("\n  ")));
            QFAIL(message.toUtf8().constData());
        }
    }
    QVERIFY(lines > 700);
}

void tst_TaskProblems::aFullPlanOfADayHasNoProblem()
{
    PlayTask task = taskFrom(QStringLiteral("1 2027.03.01-2027.03.31"));
    for (int hour = 0; hour < 24; ++hour) {
        PlayPlan plan = planFromText(QStringLiteral("00:00:00-00:00:00 A B C"));
        plan.id = hour;
        plan.startTime = timeToText(QTime(hour, 0));
        plan.endTime = hour == 23 ? kDayEnd : timeToText(QTime(hour + 1, 0));
        task.plans.push_back(plan);
    }
    QCOMPARE(found(task), QStringList());
}

void tst_TaskProblems::growsWithThePlans()
{
    const auto catalogue = lettersCatalogue();
    const auto work = [&catalogue](int count) {
        PlayTask task = taskFrom(QStringLiteral("1 2027.03.01-2027.03.31"));
        PlayPlan plan = planFromText(QStringLiteral("00:00:00-00:00:00 A N !B H"));
        for (int i = 0; i < count; ++i) {
            plan.id = i;
            plan.startTime = timeToText(QTime(0, 0).addSecs(i * 3));
            plan.endTime = timeToText(QTime(0, 0).addSecs(i * 3 + (i % 7 == 0 ? 4 : 2)));
            task.plans.push_back(plan);
        }
        const double start = processorTime();
        taskProblems(task, catalogue, {});
        return processorTime() - start;
    };
    QVERIFY2(growth(1000, 10000, work) < 4.0, "grows with the square");
}

TREL_TEST(tst_TaskProblems, trel::tests::NoApplication)
#include "tst_TaskProblems.moc"
