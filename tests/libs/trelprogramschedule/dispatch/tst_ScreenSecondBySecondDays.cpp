#include "SecondBySecondCase.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

const secondbysecond::Case kCases[] = {
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

} // namespace

/// The same over whole days.
class tst_ScreenSecondBySecondDays : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithTheWalk_data();
    void agreesWithTheWalk();
};

void tst_ScreenSecondBySecondDays::agreesWithTheWalk_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const secondbysecond::Case& window : kCases) {
        QTest::newRow(window.name) << index++;
    }
}

void tst_ScreenSecondBySecondDays::agreesWithTheWalk()
{
    QFETCH(int, index);
    const QString difference = secondbysecond::differenceIn(kCases[index], index);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

TREL_TEST(tst_ScreenSecondBySecondDays, trel::tests::NoApplication)
#include "tst_ScreenSecondBySecondDays.moc"
