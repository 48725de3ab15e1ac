#include "ScheduleWriting.h"
#include "StateWriting.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/PlainScreen.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QtTest>

#include <thread>

using namespace trel::mediadispatch;

/// Tasks that several timelines share.
class tst_ScreenTask : public QObject
{
    Q_OBJECT

private slots:
    void timelinesShareWhatTheyKnow();
    void otherDaysAreToldApart_data();
    void otherDaysAreToldApart();
    void threadsAskAtTheSameTime();
};

namespace {

const char kWeeks[] =
    "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A B*2 freeze / 08:30:00-10:00:00 C"
    " | 2 2024.03.11-2024.03.17 / 12:00:00-13:00:00 A on=1,3"
    " | 3 2024.03.01-2024.04.30 / 20:00:00-21:00:00 B";

QTimeZone berlin()
{
    return QTimeZone("Europe/Berlin");
}

ScreenTasks tasksOf(const QString& schedule)
{
    return screenTasks(scheduleFromText(schedule), lettersCatalogue());
}

Instant at(const char* moment)
{
    return momentFromText(QString::fromLatin1(moment), berlin());
}

/// What is on screen in the course of two weeks, a line for each time in which one has it.
QStringList linesOf(const ScreenTimeline& timeline)
{
    QStringList lines;
    const Instant begin = at("2024.03.03 00:00:00");
    timeline.visitSpans(begin, at("2024.03.20 00:00:00"), {}, [&](const ScreenState& state) {
        lines.append(lineOf(state, timeline, begin));
        return true;
    });
    return lines;
}

} // namespace

void tst_ScreenTask::timelinesShareWhatTheyKnow()
{
    ScreenTasks tasks = tasksOf(QString::fromLatin1(kWeeks));
    const PlainScreen screen = PlainScreen({}, lettersCatalogue(), berlin()).withTasks(tasks);
    screen.at(at("2024.03.04 08:00:00"));
    screen.at(at("2024.03.13 12:00:00"));
    QCOMPARE(tasks.at(1)->knownDays(), std::size_t{1});
    QCOMPARE(tasks.at(2)->knownDays(), std::size_t{1});
    const std::size_t known = screen.calendar().knownDays();
    const std::size_t pieces = screen.offsets().knownPeriods();
    QVERIFY(pieces > 0);

    const auto edited =
        scheduleFromText(QStringLiteral("1 2024.03.04-2024.03.10 / 08:10:00-09:00:00 A"));
    tasks[1] = std::make_shared<const ScreenTask>(edited.at(1), lettersCatalogue());
    const PlainScreen next = screen.withTasks(tasks);
    QCOMPARE(next.calendar().knownDays(), known - 1);
    QCOMPARE(next.offsets().knownPeriods(), pieces);
    next.at(at("2024.03.13 12:30:00"));
    QCOMPARE(next.calendar().knownDays(), known - 1);
    // The former one stays what it was.
    QCOMPARE(screen.at(at("2024.03.04 08:05:00")).state.planRow, 0);
    QCOMPARE(next.at(at("2024.03.04 08:05:00")).state.planRow, 0);
    QCOMPARE(next.at(at("2024.03.04 08:05:00")).state.taskId, 3);
}

void tst_ScreenTask::otherDaysAreToldApart_data()
{
    QTest::addColumn<QString>("edited");
    const auto row = [](const char* name, const char* edited) {
        QTest::newRow(name) << QString::fromLatin1(edited);
    };
    row("the same", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A");
    row("a later plan", "1 2024.03.04-2024.03.10 / 18:00:00-19:00:00 A");
    row("other days of the week", "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A on=2");
    row("no plan", "1 2024.03.04-2024.03.10");
    row("a day more", "1 2024.03.04-2024.03.11 / 08:00:00-09:00:00 A");
    row("a day later", "1 2024.03.05-2024.03.10 / 08:00:00-09:00:00 A");
}

void tst_ScreenTask::otherDaysAreToldApart()
{
    QFETCH(QString, edited);
    std::map<int, PlayTask> tasks = scheduleFromText(QString::fromLatin1(kWeeks));
    const ScreenTimeline former(tasks, lettersCatalogue(), berlin());
    const QStringList before = linesOf(former);
    tasks[1] = scheduleFromText(edited).at(1);
    const ScreenTimeline next = former.withTasks(screenTasks(tasks, lettersCatalogue()));
    QCOMPARE(linesOf(next), linesOf(ScreenTimeline(tasks, lettersCatalogue(), berlin())));
    tasks.erase(1);
    QCOMPARE(linesOf(next.withTasks(screenTasks(tasks, lettersCatalogue()))),
             linesOf(ScreenTimeline(tasks, lettersCatalogue(), berlin())));
    QCOMPARE(linesOf(former), before);
}

void tst_ScreenTask::threadsAskAtTheSameTime()
{
    const QString weeks = QString::fromLatin1(kWeeks);
    const QStringList expected =
        linesOf(ScreenTimeline(scheduleFromText(weeks), lettersCatalogue(), berlin()));
    for (int round = 0; round < 20; ++round) {
        const ScreenTimeline timeline(scheduleFromText(weeks), lettersCatalogue(), berlin());
        std::array<QStringList, 4> lines;
        std::vector<std::thread> threads;
        for (QStringList& found : lines) {
            threads.emplace_back([&timeline, &found] { found = linesOf(timeline); });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        for (const QStringList& found : lines) {
            QCOMPARE(found, expected);
        }
    }
}

TREL_TEST(tst_ScreenTask, trel::tests::NoApplication)
#include "tst_ScreenTask.moc"
