#include "SecondBySecondCase.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

const secondbysecond::Case kCases[] = {
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

} // namespace

/// The timeline of random schedules in nights in which the clocks change, second by second.
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
    for (const secondbysecond::Case& window : kCases) {
        QTest::newRow(window.name) << index++;
    }
}

void tst_ScreenSecondBySecond::agreesWithTheWalk()
{
    QFETCH(int, index);
    const QString difference = secondbysecond::differenceIn(kCases[index], index);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

TREL_TEST(tst_ScreenSecondBySecond, trel::tests::NoApplication)
#include "tst_ScreenSecondBySecond.moc"
