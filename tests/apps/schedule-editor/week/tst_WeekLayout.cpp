#include "week/WeekLayout.h"

#include "support/PlanRecords.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;

/// What stands on which day of a week, and in what state.
class tst_WeekLayout : public QObject
{
    Q_OBJECT

private slots:
    void weekOfDay_data();
    void weekOfDay();
    void times_data();
    void times();
    void blocks_data();
    void blocks();
    void tasksOfDays_data();
    void tasksOfDays();
    void onlyPlansOfTheTaskInEffectStand();
    void endsOfRunsAreWorkedOut();
    void collisions();
    void programs();
    void stretches();
    void stretchesOfTheDoubledHour();
    void plansWithNothing();
    void insertions();
    void holders();
};

namespace {

const QDate kMonday(2024, 3, 4);

using Tasks = std::map<int, PlayTask>;
using Catalogue = std::map<int, ProgramIten>;

QTimeZone berlin()
{
    return QTimeZone("Europe/Berlin");
}

ProgramIten program(int index, const char* name, double msecs, ProgramKind kind)
{
    ProgramIten item;
    item.progIndex = index;
    item.progName = name;
    item.durationMs = msecs;
    item.kind = kind;
    return item;
}

const Catalogue& catalogue()
{
    static const Catalogue programs{{1, program(1, "News", 90000, ProgramKind::Video)},
                                    {2, program(2, "Logo", -1, ProgramKind::Image)}};
    return programs;
}

WeekLayout layoutOf(const Tasks& tasks, const QDate& first = kMonday,
                    std::vector<ScreenState> spans = {})
{
    return layoutWeek({first, berlin(), tasks, catalogue(), std::move(spans)});
}

QString lineOf(const WeekBlock& block)
{
    const char* const reasons[] = {
        "",       " without a day", " unreadable", " unreadable", " unreadable", " without runs",
        " empty", " inverted"};
    return QStringLiteral("%1 %2-%3%4%5")
        .arg(block.row)
        .arg(shortTime(block.from), shortTime(block.to),
             QLatin1String(reasons[static_cast<int>(block.never)]),
             block.collides ? QStringLiteral(" collides") : QString());
}

/// One line a day that has blocks: "Mon: 0 08:00-10:00, ...".
QString linesOf(const WeekLayout& week)
{
    QStringList lines;
    for (const WeekColumn& day : week.days) {
        QStringList blocks;
        for (const WeekBlock& block : day.blocks) {
            blocks.append(lineOf(block));
        }
        if (!blocks.isEmpty()) {
            lines.append(QLocale::c().dayName(day.date.dayOfWeek(), QLocale::ShortFormat) +
                         QStringLiteral(": ") + blocks.join(QStringLiteral(", ")));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QString stretchesOf(const WeekColumn& day)
{
    const char* const kinds[] = {"black", "frozen", "inserted"};
    const char* const passes[] = {"", " first", " second"};
    QStringList lines;
    for (const WeekStretch& stretch : day.stretches) {
        lines.append(QStringLiteral("%1-%2 %3 %4%5")
                         .arg(shortTime(stretch.from), shortTime(stretch.to),
                              QLatin1String(kinds[stretch.kind]), stretch.program,
                              QLatin1String(passes[static_cast<int>(stretch.pass)]))
                         .simplified());
    }
    return lines.join(QLatin1Char('\n'));
}

Instant at(const QDate& day, const QTime& time)
{
    return QDateTime(day, time, berlin()).toMSecsSinceEpoch();
}

ScreenState span(ScreenReason reason, ScreenPicture picture, Instant since, Instant until,
                 int progIndex = -1)
{
    ScreenState state;
    state.reason = reason;
    state.picture = picture;
    state.since = since;
    state.until = until;
    state.spanUntil = until;
    state.progIndex = progIndex;
    state.taskId = 1;
    state.planRow = 0;
    return state;
}

} // namespace

void tst_WeekLayout::weekOfDay_data()
{
    QTest::addColumn<QDate>("day");
    QTest::addColumn<int>("firstDay");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("in the middle") << QDate(2024, 3, 6) << 1 << kMonday;
    QTest::newRow("its first day") << kMonday << 1 << kMonday;
    QTest::newRow("its last day") << QDate(2024, 3, 10) << 1 << kMonday;
    QTest::newRow("from Sunday") << QDate(2024, 3, 6) << 7 << QDate(2024, 3, 3);
    QTest::newRow("a Sunday from Sunday") << QDate(2024, 3, 10) << 7 << QDate(2024, 3, 10);
    QTest::newRow("from Saturday") << QDate(2024, 3, 8) << 6 << QDate(2024, 3, 2);
    QTest::newRow("over the turn of the year") << QDate(2025, 1, 1) << 1 << QDate(2024, 12, 30);
}

void tst_WeekLayout::weekOfDay()
{
    QFETCH(QDate, day);
    QFETCH(int, firstDay);
    QTEST(weekOf(day, static_cast<Qt::DayOfWeek>(firstDay)), "expected");
}

void tst_WeekLayout::times_data()
{
    QTest::addColumn<int>("second");
    QTest::addColumn<QString>("expected");
    QTest::newRow("midnight") << 0 << QStringLiteral("00:00");
    QTest::newRow("a full minute") << 8 * 3600 + 300 << QStringLiteral("08:05");
    QTest::newRow("with seconds") << 86399 << QStringLiteral("23:59:59");
    QTest::newRow("the end of the day") << 86400 << QStringLiteral("24:00");
}

void tst_WeekLayout::times()
{
    QFETCH(int, second);
    QTEST(shortTime(second), "expected");
}

void tst_WeekLayout::blocks_data()
{
    QTest::addColumn<PlayPlan>("plan");
    QTest::addColumn<QString>("expected");
    const auto week = [](const char* line) {
        QStringList lines;
        for (int day = 1; day <= kDays; ++day) {
            lines.append(QLocale::c().dayName(day, QLocale::ShortFormat) + QStringLiteral(": ") +
                         QString::fromLatin1(line));
        }
        return lines.join(QLatin1Char('\n'));
    };
    const auto row = [](const char* name, const char* start, const char* end, const char* weeks,
                        const QString& expected) {
        QTest::newRow(name) << timePlan(1, start, end, weeks) << expected;
    };
    row("every day", "08:00:00", "10:00:00", "0", week("0 08:00-10:00"));
    row("no text of days is every day", "08:00:00", "10:00:00", "", week("0 08:00-10:00"));
    row("a word for a day is every day", "08:00:00", "10:00:00", "Mon", week("0 08:00-10:00"));
    row("one day", "08:00:00", "10:00:00", "3", QStringLiteral("Wed: 0 08:00-10:00"));
    row("a day that is named twice", "08:00:00", "10:00:00", "3,3",
        QStringLiteral("Wed: 0 08:00-10:00"));
    row("Sunday", "08:00:00", "10:00:00", "7", QStringLiteral("Sun: 0 08:00-10:00"));
    row("no such day", "08:00:00", "10:00:00", "8", QString());
    row("to the last second", "23:00:00", "23:59:59", "1", QStringLiteral("Mon: 0 23:00-23:59:59"));
    row("an empty span", "08:00:00", "08:00:00", "1", QStringLiteral("Mon: 0 08:00-08:00 empty"));
    row("an inverted span", "22:00:00", "02:00:00", "1",
        QStringLiteral("Mon: 0 22:00-22:00 inverted"));
    row("an end that is no time", "22:00:00", "24:00:00", "1",
        QStringLiteral("Mon: 0 22:00-22:00 unreadable"));
    row("a start that is no time", "morning", "10:00:00", "1",
        QStringLiteral("Mon: 0 00:00-00:00 unreadable"));
}

void tst_WeekLayout::blocks()
{
    QFETCH(PlayPlan, plan);
    const Tasks tasks{{1, taskWithPlans({plan})}};
    QTEST(linesOf(layoutOf(tasks)), "expected");
}

void tst_WeekLayout::tasksOfDays_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("expected"); // The task of each day, task 5 holding all of them.
    const auto row = [](const char* name, const char* first, const char* last,
                        const char* expected) {
        QTest::newRow(name) << QString::fromLatin1(first) << QString::fromLatin1(last)
                            << QString::fromLatin1(expected);
    };
    row("the lower id wins", "2024.03.05", "2024.03.07", "5222555");
    row("one day", "2024.03.10", "2024.03.10", "5555552");
    row("before and after", "2024.01.01", "2024.12.31", "2222222");
    row("ends before it begins", "2024.03.07", "2024.03.05", "5555555");
    row("a date that is none", "2024.02.30", "2024.03.31", "5555555");
    row("no date", "", "2024.03.31", "5555555");
}

void tst_WeekLayout::tasksOfDays()
{
    QFETCH(QString, first);
    QFETCH(QString, last);
    Tasks tasks{{2, taskWithPlans({}, 2)}, {5, taskWithPlans({}, 5)}};
    tasks[2].startDate = first.toStdString();
    tasks[2].endDate = last.toStdString();
    QString line;
    for (const WeekColumn& day : layoutOf(tasks).days) {
        line += day.task ? QString::number(*day.task) : QStringLiteral("-");
    }
    QTEST(line, "expected");
}

void tst_WeekLayout::onlyPlansOfTheTaskInEffectStand()
{
    Tasks tasks{{1, taskWithPlans({timePlan(1, "08:00:00", "09:00:00")}, 1)},
                {2, taskWithPlans({timePlan(1, "10:00:00", "11:00:00")}, 2)}};
    tasks[1].startDate = "2024.03.05";
    tasks[1].endDate = "2024.03.05";
    tasks[2].endDate = "2024.03.06";
    const WeekLayout week = layoutOf(tasks);
    QCOMPARE(linesOf(week), QStringLiteral("Mon: 0 10:00-11:00\nTue: 0 08:00-09:00\n"
                                           "Wed: 0 10:00-11:00"));
    QVERIFY(!week.days[3].task.has_value());
    QCOMPARE(week.first(), kMonday);
    QCOMPARE(week.days.back().date, QDate(2024, 3, 10));
}

void tst_WeekLayout::endsOfRunsAreWorkedOut()
{
    const Tasks tasks{{1, taskWithPlans({frequencyPlan(1, "08:00:00", 2, {entry(1, 2)}, "1"),
                                         frequencyPlan(2, "09:00:00", 1, {entry(2)}, "1"),
                                         frequencyPlan(3, "10:00:00", 0, {entry(1)}, "1")})}};
    const WeekLayout week = layoutOf(tasks);
    QCOMPARE(linesOf(week), QStringLiteral("Mon: 0 08:00-08:06, 1 09:00-23:59:59, "
                                           "2 10:00-10:00 without runs collides"));
    QCOMPARE(week.days[0].blocks[0].start, QStringLiteral("08:00:00"));
    QCOMPARE(week.days[0].blocks[0].end, QStringLiteral("08:06:00"));
}

void tst_WeekLayout::collisions()
{
    const Tasks tasks{{1, taskWithPlans({timePlan(1, "09:00:00", "11:00:00", "1"),
                                         timePlan(2, "08:00:00", "10:00:00", "1,2"),
                                         timePlan(3, "11:00:00", "12:00:00", "1")})}};
    // The row below is the one that collides, also on a day that the other does not play.
    QCOMPARE(linesOf(layoutOf(tasks)),
             QStringLiteral("Mon: 1 08:00-10:00 collides, 0 09:00-11:00, 2 11:00-12:00\n"
                            "Tue: 1 08:00-10:00 collides"));
}

void tst_WeekLayout::programs()
{
    struProgInfo bad = entry(1);
    bad.isInvalid = true;
    bad.progName = "Old film";
    struProgInfo gone = entry(77);
    gone.progName = "Gone";
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "1");
    plan.programs = {entry(1), entry(2), bad, gone};
    PlayPlan longPlan = timePlan(2, "09:00:00", "10:00:00", "1");
    longPlan.programs.assign(100, entry(1));
    const WeekLayout week = layoutOf({{1, taskWithPlans({plan, longPlan})}});
    QCOMPARE(week.days[0].blocks[0].programs.join(QLatin1Char('|')),
             QStringLiteral("News|Logo|Old film|Gone"));
    QVERIFY(!week.days[0].blocks[0].hasMorePrograms);
    QVERIFY(week.days[0].blocks[1].programs.size() < 100);
    QVERIFY(week.days[0].blocks[1].hasMorePrograms);
}

void tst_WeekLayout::stretches()
{
    const QDate tuesday = kMonday.addDays(1);
    const WeekLayout week = layoutOf(
        {}, kMonday,
        {span(ScreenReason::NoPlanYet, ScreenPicture::Black, 0, at(kMonday, {8, 0})),
         span(ScreenReason::PlanPlays, ScreenPicture::Playing, at(kMonday, {8, 0}),
              at(kMonday, {10, 0}), 1),
         span(ScreenReason::PlanEnded, ScreenPicture::Frozen, at(kMonday, {10, 0}),
              at(tuesday, {6, 0}), 1),
         span(ScreenReason::PlanEnded, ScreenPicture::Black, at(tuesday, {7, 0}), kNever)});
    QCOMPARE(stretchesOf(week.days[0]),
             QStringLiteral("00:00-08:00 black\n10:00-24:00 frozen News"));
    QCOMPARE(stretchesOf(week.days[1]),
             QStringLiteral("00:00-06:00 frozen News\n07:00-24:00 black"));
    QCOMPARE(stretchesOf(week.days[6]), QStringLiteral("00:00-24:00 black"));
}

void tst_WeekLayout::stretchesOfTheDoubledHour()
{
    const QDate sunday(2024, 10, 27);
    const Instant second = at(sunday, {0, 0}) + 3 * 3600 * 1000; // Two o'clock again.
    const WeekLayout week =
        layoutOf({}, sunday,
                 {span(ScreenReason::NoPlanYet, ScreenPicture::Black, 0, second),
                  span(ScreenReason::PlanEnded, ScreenPicture::Frozen, second, kNever, 1)});
    QCOMPARE(stretchesOf(week.days[0]),
             QStringLiteral("00:00-02:00 black\n02:00-03:00 black first\n"
                            "02:00-03:00 frozen News second\n03:00-24:00 frozen News"));
    QCOMPARE(week.days[0].changes.size(), std::size_t{1});
    QVERIFY(week.days[1].changes.empty());
}

void tst_WeekLayout::plansWithNothing()
{
    const Tasks tasks{{1, taskWithPlans({timePlan(1, "08:00:00", "09:00:00"),
                                         timePlan(2, "10:00:00", "11:00:00")})}};
    const WeekLayout week = layoutOf(tasks, kMonday,
                                     {span(ScreenReason::PlanHasNothing, ScreenPicture::Black,
                                           at(kMonday, {8, 0}), at(kMonday, {9, 0}))});
    QVERIFY(week.days[0].blocks[0].hasNothing);
    QVERIFY(!week.days[0].blocks[1].hasNothing);
    QCOMPARE(stretchesOf(week.days[0]), QString());
}

void tst_WeekLayout::insertions()
{
    ScreenState state = span(ScreenReason::InsertionPlays, ScreenPicture::Playing,
                             at(kMonday, {8, 30}), at(kMonday, {8, 31}), 1);
    state.spanUntil = at(kMonday, {9, 0});
    const WeekLayout week = layoutOf({}, kMonday, {state});
    QCOMPARE(stretchesOf(week.days[0]), QStringLiteral("08:30-09:00 inserted News"));
    QCOMPARE(week.days[0].stretches[0].row, 0);
}

void tst_WeekLayout::holders()
{
    const Tasks tasks{{1, taskWithPlans({timePlan(1, "09:00:00", "10:00:00", "7"),
                                         timePlan(2, "01:00:00", "12:00:00", "7")})}};
    const WeekLayout week = layoutOf(tasks, QDate(2024, 3, 25));
    const WeekColumn& sunday = week.days[6]; // The clocks go forward at two.
    const auto rowAt = [&sunday](int hour) {
        const WeekBlock* block = sunday.holderAt(hour * 3600);
        return block == nullptr ? -1 : block->row;
    };
    QCOMPARE(rowAt(0), -1);
    QCOMPARE(rowAt(1), 1);
    QCOMPARE(rowAt(2), -1);
    QCOMPARE(rowAt(3), 1);
    QCOMPARE(rowAt(9), 0);
    QCOMPARE(rowAt(10), 1);
    QCOMPARE(rowAt(12), -1);
    QCOMPARE(sunday.blockOf(1)->planId, 2);
    QVERIFY(sunday.blockOf(2) == nullptr);
}

TREL_TEST(tst_WeekLayout, trel::tests::NoApplication)
#include "tst_WeekLayout.moc"
