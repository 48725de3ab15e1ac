#include "ScheduleWriting.h"
#include "StateWriting.h"
#include "TimelineComparison.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// Hours in which the local time is worth a look, and how many schedules are held against them.
struct Case
{
    const char* name;
    const char* zone;
    const char* begin; ///< Before midnight of the first day on which a task may be valid.
    Drawing drawing;
    int minutes;
    int schedules;
};

#ifdef LONG_WINDOWS
const Case kCases[] = {
    {"leap day",
     "Europe/Berlin",
     "2028.02.28 23:50:00",
     {{"2028.02.29", "2028.02.29", "2028.03.01", "2028.02.30", ""}, 0, 23},
     24 * 60 + 40,
     150},
    {"no leap day",
     "America/New_York",
     "2100.02.28 00:00:00",
     {{"2100.02.28", "2100.02.29", "2100.03.01", "2100.03.02"}, 0, 23},
     24 * 60 + 60,
     60},
    {"day of the change",
     "Europe/Berlin",
     "2024.10.26 23:59:00",
     {{"2024.10.27", "2024.10.28", "2024.10.29"}, 0, 23},
     60 * 60,
     40},
};
#else
const Case kCases[] = {
    {"Berlin, hour left out",
     "Europe/Berlin",
     "2024.03.30 23:58:00",
     {{"2024.03.31", "2024.03.31", "2024.04.01", "2024.3.1"}, 0, 4},
     240,
     360},
    {"Berlin, hour doubled",
     "Europe/Berlin",
     "2024.10.26 23:58:00",
     {{"2024.10.27", "2024.10.27", "2024.10.28", "2024.13.01"}, 0, 3},
     270,
     360},
    {"New York, hour left out",
     "America/New_York",
     "2040.03.10 23:58:00",
     {{"2040.03.11", "2040.03.11", "2040.03.12", ""}, 0, 4},
     200,
     360},
    {"New York, hour doubled",
     "America/New_York",
     "2040.11.03 23:58:00",
     {{"2040.11.04", "2040.11.04", "2040.11.05", "x"}, 0, 3},
     240,
     360},
    {"Lord Howe, half an hour left out",
     "Australia/Lord_Howe",
     "2024.10.05 23:58:00",
     {{"2024.10.06", "2024.10.06", "2024.10.07"}, 0, 3},
     200,
     360},
    {"Lord Howe, half an hour doubled",
     "Australia/Lord_Howe",
     "2024.04.06 23:58:00",
     {{"2024.04.07", "2024.04.07", "2024.04.08"}, 0, 3},
     220,
     360},
};
#endif

} // namespace

/// The timeline of random schedules, held against a walk second by second.
class tst_ScreenSecondBySecond : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheWalk_data();
    void agreesWithTheWalk();
};

void tst_ScreenSecondBySecond::agreesWithTheWalk_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Case& window : kCases) {
        QTest::newRow(window.name) << index++;
    }
}

void tst_ScreenSecondBySecond::agreesWithTheWalk()
{
    QFETCH(int, index);
    const Case& tested = kCases[index];
    const QTimeZone zone(tested.zone);
    QVERIFY(zone.isValid());
    const secondbysecond::Window window = secondbysecond::windowOf(
        tested.zone, momentFromText(QString::fromLatin1(tested.begin), zone), tested.minutes * 60);

    for (int i = 0; i < tested.schedules; ++i) {
        const auto seed = static_cast<std::uint32_t>(index * 100'000 + i);
        const RandomSchedule schedule = randomSchedule(seed, tested.drawing, window);
        const QString difference = firstDifference(schedule, window, zone);
        if (!difference.isEmpty()) {
            QFAIL(qPrintable(QStringLiteral("%1, seed %2: %3\n%4")
                                 .arg(QLatin1String(tested.name))
                                 .arg(seed)
                                 .arg(difference, textOf(schedule, zone))));
        }
    }
}

QTEST_APPLESS_MAIN(tst_ScreenSecondBySecond)
#include "tst_ScreenSecondBySecond.moc"
