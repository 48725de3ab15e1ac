#include "CardLines.h"
#include "KeptTasks.h"

#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QtTest>

using namespace trel::mediadispatch;

/// Copying of single tasks.
class tst_PlanListCopy : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void copyFollowsItsSource_data();
    void copyFollowsItsSource();
    void copyKeepsThePlansWhole();
    void copyOfAnUnknownTaskIsStillAdded();
    void copyIsLockedAsAddIs();
    void copyGetsTheOnlyOpenCard();
};

void tst_PlanListCopy::init()
{
    service().reset();
}

void tst_PlanListCopy::copyFollowsItsSource_data()
{
    QTest::addColumn<QString>("endDate");
    QTest::addColumn<QString>("dates");
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    QTest::newRow("turn of the year") << text("2024.12.31") << text("2025.01.01-2025.01.01");
    QTest::newRow("runs into another task") << text("2024.05.10") << text("2024.05.11-2024.05.11");
    QTest::newRow("empty") << QString() << text("-");
    QTest::newRow("no such day") << text("2024.02.30") << text("-");
}

void tst_PlanListCopy::copyFollowsItsSource()
{
    QFETCH(const QString, endDate);
    QFETCH(const QString, dates);
    const TestClock clock(kNow);
    keep(makeTask(4, "2024.05.01", endDate.toStdString()));
    keep(makeTask(6, "2024.05.11", "2026.01.01"));
    PlanList list;
    list.slotCopyTask(4);
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("getTask(4)"), QStringLiteral("getAllTask()"),
                          QStringLiteral("addTask(7 %1 [])").arg(dates)}));
    QCOMPARE(cardsInOrder(list).size(), 1);
}

void tst_PlanListCopy::copyKeepsThePlansWhole()
{
    const TestClock clock(kNow);
    PlayTask source = makeTask(1, "2024.05.01", "2024.05.10");
    PlayPlan plan;
    plan.id = 5;
    plan.startTime = "08:00:00";
    plan.endTime = "09:00:00";
    plan.weeks = "3,1";
    plan.serviceCount = 77;
    plan.serviceList = {1, 1LL << 40};
    plan.serviceTime = "10:11:12";
    plan.serviceFlagA = true;
    plan.serviceFlagB = true;
    source.plans = {plan, plan};
    source.plans.at(1).id = 2;
    keep(source);

    PlanList list;
    list.slotCopyTask(1);
    const auto& copies = service().addedTasks.at(0).plans;
    QCOMPARE(copies.size(), std::size_t{2});
    QCOMPARE(line(copies.at(0)), line(source.plans.at(0)));
    QCOMPARE(line(copies.at(1)), line(source.plans.at(1)));
    QCOMPARE(copies.at(0).serviceCount, 77);
    QVERIFY(copies.at(0).serviceList == plan.serviceList);
    QVERIFY(copies.at(0).serviceTime == plan.serviceTime);
    QVERIFY(copies.at(0).serviceFlagA && copies.at(0).serviceFlagB);
}

void tst_PlanListCopy::copyOfAnUnknownTaskIsStillAdded()
{
    const TestClock clock(kNow);
    PlanList list;
    list.slotCopyTask(42);
    QCOMPARE(line(service().addedTasks.at(0)), QStringLiteral("1 - []"));
}

void tst_PlanListCopy::copyIsLockedAsAddIs()
{
    TestClock clock(kNow);
    PlanList list;
    list.slotCloseProcess();
    clock.advance(999);
    list.slotCopyTask(1);
    QCOMPARE(service().log, QStringList());
    clock.advance(1);
    list.slotCopyTask(1);
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
}

void tst_PlanListCopy::copyGetsTheOnlyOpenCard()
{
    const TestClock clock(kNow);
    PlanList list;
    list.slotAddOutput();
    list.slotAddOutput();
    list.slotCopyTask(1);
    QCOMPARE(foldLine(list), QStringLiteral("folded folded open"));
    QCOMPARE(line(service().addedTasks.at(2)), QStringLiteral("3 2024.03.11-2024.03.11 []"));
}

TREL_TEST(tst_PlanListCopy, QApplication)

#include "tst_PlanListCopy.moc"
