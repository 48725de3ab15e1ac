#include "card/PlanLabels.h"
#include "card/PlanRowTexts.h"
#include "support/TestProgram.h"

#include "service/ScheduleRecords.h"

#include <QtTest>

using namespace trel::mediadispatch;

/// The words of a plan row. Without a language every text is its own key.
class tst_PlanLabels : public QObject
{
    Q_OBJECT

private slots:
    void modes();
    void endActions();
    void days_data();
    void days();
    void daysOfNoLabel();
    void labelsOfWeeks_data();
    void labelsOfWeeks();
    void weeksOfLabels();
    void titles();
};

void tst_PlanLabels::modes()
{
    QCOMPARE(modeText(TimeMode), QStringLiteral("zhTimeStr"));
    QCOMPARE(modeText(FrequencyMode), QStringLiteral("zhfrequencyStr"));
    QCOMPARE(modeText(-1), QStringLiteral("zhfrequencyStr"));
    QCOMPARE(modeText(2), QStringLiteral("zhfrequencyStr"));
}

void tst_PlanLabels::endActions()
{
    QCOMPARE(endActionLabel(BlackScreen), QStringLiteral("zhBlackScreen"));
    QCOMPARE(endActionLabel(FreezeCurrentFrame), QStringLiteral("zhFreezeCurrentFrame"));
    QCOMPARE(endActionLabel(2), QStringLiteral("zhFreezeCurrentFrame"));
}

void tst_PlanLabels::days_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("label");
    QTest::newRow("every day") << 0 << "szEveryDayStr";
    QTest::newRow("Monday") << 1 << "szMondayStr";
    QTest::newRow("Tuesday") << 2 << "szTuesdayStr";
    QTest::newRow("Wednesday") << 3 << "szWednesdayStr";
    QTest::newRow("Thursday") << 4 << "szThursdayStr";
    QTest::newRow("Friday") << 5 << "szFridayStr";
    QTest::newRow("Saturday") << 6 << "szSaturdayStr";
    QTest::newRow("Sunday") << 7 << "szSundayStr";
}

void tst_PlanLabels::days()
{
    QFETCH(int, number);
    QFETCH(QString, label);
    QCOMPARE(weekdayText(number), label);
    QCOMPARE(weekdayNumber(label), number);
}

void tst_PlanLabels::daysOfNoLabel()
{
    QCOMPARE(weekdayText(8), QStringLiteral("szEveryDayStr"));
    QCOMPARE(weekdayText(-1), QStringLiteral("szEveryDayStr"));
    QCOMPARE(weekdayNumber(QStringLiteral("Montag")), 0);
    QCOMPARE(weekdayNumber(QStringLiteral("SZMONDAYSTR")), 0);
    QCOMPARE(weekdayNumber(QString()), 0);
}

void tst_PlanLabels::labelsOfWeeks_data()
{
    QTest::addColumn<QString>("weeks");
    QTest::addColumn<QString>("labels");
    QTest::newRow("empty") << ""
                           << "szEveryDayStr";
    QTest::newRow("in their order") << "5,1"
                                    << "szFridayStr,szMondayStr";
    QTest::newRow("odd") << "abc,8,-1,2"
                         << "szEveryDayStr,szEveryDayStr,szEveryDayStr,szTuesdayStr";
}

void tst_PlanLabels::labelsOfWeeks()
{
    QFETCH(QString, weeks);
    QTEST(PlanRowTexts(PlanRowTexts::NewRows).days(weeks.toStdString()), "labels");
}

void tst_PlanLabels::weeksOfLabels()
{
    QCOMPARE(weeksFromLabels({}), std::string("0"));
    QCOMPARE(weeksFromLabels({QString()}), std::string("0"));
    QCOMPARE(weeksFromLabels({QStringLiteral("szFridayStr"), QStringLiteral("szMondayStr")}),
             std::string("5,1"));
    QCOMPARE(weeksFromLabels({QStringLiteral("szSundayStr"), QStringLiteral("?")}),
             std::string("7,0"));
}

void tst_PlanLabels::titles()
{
    QCOMPARE(PlanRowTexts(PlanRowTexts::NewRows).title(12), QStringLiteral("  zhPlanTimeStr12:"));
    QCOMPARE(PlanRowTexts(PlanRowTexts::RowsOnShow).title(12),
             QStringLiteral("   zhPlanTimeStr12:"));
}

TREL_TEST(tst_PlanLabels, trel::tests::NoApplication)
#include "tst_PlanLabels.moc"
