#include "ScheduleWriting.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/ScreenPlan.h"

#include <QtTest>

using namespace trel::mediadispatch;

class tst_ScreenPlan : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhenAListIsOver_data();
    void tellsWhenAListIsOver();
};

void tst_ScreenPlan::tellsWhenAListIsOver_data()
{
    QTest::addColumn<QString>("plan");
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("second"); // -1 for never before the plan ends
    constexpr int eight = 8 * 3600;
    QTest::newRow("a second before the end") << "08:00:00 x1 A"
                                             << "08:00:11" << eight + 10;
    QTest::newRow("in the last second") << "08:00:00 x1 A"
                                        << "08:00:10" << -1;
    QTest::newRow("long before") << "08:00:00 x2 A B"
                                 << "12:00:00" << eight + 28;
    QTest::newRow("within a second") << "08:00:00 x1 C"
                                     << "12:00:00" << eight + 2;
    QTest::newRow("no list") << "08:00:00 x1 N"
                             << "12:00:00" << -1;
    QTest::newRow("no runs") << "08:00:00 x0 A"
                             << "12:00:00" << -1;
    QTest::newRow("repeats") << "08:00:00-12:00:00 A"
                             << "12:00:00" << -1;
    QTest::newRow("holds the screen") << "08:00:00 x1 A I"
                                      << "12:00:00" << -1;
    QTest::newRow("no time") << "08:00:00 x1 A"
                             << "noon" << -1;
}

void tst_ScreenPlan::tellsWhenAListIsOver()
{
    QFETCH(QString, plan);
    QFETCH(QString, end);
    QFETCH(int, second);
    QCOMPARE(listOverAt(planFromText(plan), end.toStdString(), lettersCatalogue()).value_or(-1),
             second);
}

TREL_TEST(tst_ScreenPlan, trel::tests::NoApplication)
#include "tst_ScreenPlan.moc"
