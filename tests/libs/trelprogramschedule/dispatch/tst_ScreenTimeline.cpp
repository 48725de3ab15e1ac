#include "ScheduleWriting.h"
#include "StateWriting.h"

#include <QtTest>

using namespace trel::mediadispatch;

/// What a schedule shows at a moment, without insertions, one case a row.
class tst_ScreenTimeline : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheRulesSay_data();
    void showsWhatTheRulesSay();
};

void tst_ScreenTimeline::showsWhatTheRulesSay_data()
{
    QTest::addColumn<QString>("schedule");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("line");

    // 2024.03.04 is a Monday.
    const auto row = [](const char* name, const char* schedule, const char* moment,
                        const char* line) {
        QTest::newRow(name) << QString::fromLatin1(schedule) << QString::fromLatin1(moment)
                            << QString::fromLatin1(line);
    };
    const char* week = "1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A B*2 freeze";
    row("before the first plan", week, "2024.03.04 07:00:00",
        "black, no plan yet, ever - 08:00:00");
    row("first second", week, "2024.03.04 08:00:00",
        "plays A entry 0 play 0 run 0 at 0 1.1 row 0, plan, 08:00:00 - 08:00:10 - 09:00:00");
    row("second play of the second entry in a later run", week, "2024.03.04 08:00:34.500",
        "plays B entry 1 play 1 run 1 at 2500 1.1 row 0, plan, 08:00:32 - 08:00:36 - 09:00:00");
    row("last millisecond", week, "2024.03.04 08:59:59.999",
        "plays B entry 1 play 1 run 199 at 3999 1.1 row 0, plan, 08:59:56 - 09:00:00");
    row("frozen over night", week, "2024.03.04 09:00:00",
        "frozen B entry 1 play 1 run 199 at 4000 1.1 row 0, plan ended, 09:00:00 - 03.05 08:00:00");
    row("frozen for good", week, "2024.12.04 09:00:00",
        "frozen B entry 1 play 1 run 199 at 4000 1.1 row 0, plan ended, 03.10 09:00:00 - never");
}

void tst_ScreenTimeline::showsWhatTheRulesSay()
{
    QFETCH(QString, schedule);
    QFETCH(QString, moment);
    QFETCH(QString, line);

    const QTimeZone zone("Europe/Berlin");
    const ScreenTimeline timeline(scheduleFromText(schedule), lettersCatalogue(), zone);
    const Instant asked = momentFromText(moment, zone);
    QCOMPARE(lineOf(timeline.at(asked), timeline, asked), line);
}

QTEST_APPLESS_MAIN(tst_ScreenTimeline)
#include "tst_ScreenTimeline.moc"
