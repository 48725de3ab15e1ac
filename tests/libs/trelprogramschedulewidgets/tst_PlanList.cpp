#include "CardLines.h"
#include "KeptTasks.h"

#include "support/MetaMethods.h"
#include "support/PromptAnswer.h"
#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

/// Adding and deleting of single tasks, and what a list that is full refuses.
class tst_PlanList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void declaresItsMethodsInOrder();
    void firstTaskOfAnEmptySchedule();
    void newTaskFollowsTheLastDay_data();
    void newTaskFollowsTheLastDay();
    void newTaskTakesTheNextId_data();
    void newTaskTakesTheNextId();
    void newTaskGetsTheOnlyOpenCardInFrontOfTheSpacer();
    void addTellsTheServiceBeforeTheCount();
    void addIsLockedForASecondAfterARefresh();
    void addIsLockedWhileTheClockStandsBeforeTheRefresh();
    void addsDoNotLockEachOther();
    void aFullListTakesNoMore_data();
    void aFullListTakesNoMore();
    void noTaskBehindTheLargestId_data();
    void noTaskBehindTheLargestId();
    void cardsReachTheList();
    void theDeleteButtonOfACardTakesTheCardAway();
    void deleteTakesTheCardThenTheTask();
    void deleteWithoutACardReachesTheService();
};

void tst_PlanList::init()
{
    service().reset();
}

void tst_PlanList::declaresItsMethodsInOrder()
{
    QCOMPARE(ownMethods(PlanList::staticMetaObject, QMetaMethod::Signal).join(QLatin1Char(' ')),
             QStringLiteral("sigShowProcess() sigCloseProcess() sigTranslation() "
                            "sigGetMapCount(int)"));
    QCOMPARE(ownMethods(PlanList::staticMetaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral("slotAddOutput() slotDeleteTask(int) slotCopyTask(int) "
                            "slotShowProcess() slotCloseProcess() refreshPlanList() "
                            "slotclearPlanList() slotShowTask(int) "
                            "slotShowPlan(int,int)"));
}

void tst_PlanList::firstTaskOfAnEmptySchedule()
{
    const TestClock clock(kNow);
    PlanList list;
    list.slotAddOutput();
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("getAllTask()"),
                          QStringLiteral("addTask(1 2024.03.10-2024.03.10 [])")}));
}

void tst_PlanList::newTaskFollowsTheLastDay_data()
{
    QTest::addColumn<QStringList>("endDates");
    QTest::addColumn<QString>("dates");
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    QTest::newRow("the last of two")
        << QStringList{text("2024.05.10"), text("2024.05.20")} << text("2024.05.21-2024.05.21");
    QTest::newRow("the last stands first")
        << QStringList{text("2024.05.20"), text("2024.05.10")} << text("2024.05.21-2024.05.21");
    QTest::newRow("long over") << QStringList{text("2019.12.31")} << text("2020.01.01-2020.01.01");
    QTest::newRow("leap day") << QStringList{text("2024.02.28")} << text("2024.02.29-2024.02.29");
    QTest::newRow("empty") << QStringList{QString()} << text("2024.03.10-2024.03.10");
    QTest::newRow("one readable") << QStringList{QString(), text("2024.05.10")}
                                  << text("2024.05.11-2024.05.11");
    QTest::newRow("no date comes last as bytes")
        << QStringList{text("2024.05.10"), text("soon")} << text("2024.03.10-2024.03.10");
    QTest::newRow("no such day") << QStringList{text("2024.02.30")}
                                 << text("2024.03.10-2024.03.10");
}

void tst_PlanList::newTaskFollowsTheLastDay()
{
    QFETCH(const QStringList, endDates);
    QFETCH(const QString, dates);
    const TestClock clock(kNow);
    int id = 0;
    for (const QString& endDate : endDates) {
        keep(makeTask(++id, "2018.01.01", endDate.toStdString()));
    }
    PlanList list;
    list.slotAddOutput();
    QCOMPARE(line(service().addedTasks.at(0)),
             QStringLiteral("%1 %2 []").arg(QString::number(id + 1), dates));
}

void tst_PlanList::newTaskTakesTheNextId_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<int>("expected");
    QTest::newRow("gap") << QVector<int>{3, 7} << 8;
    QTest::newRow("one") << QVector<int>{1} << 2;
    QTest::newRow("negative ids count for nothing") << QVector<int>{-5, -2} << 1;
}

void tst_PlanList::newTaskTakesTheNextId()
{
    QFETCH(const QVector<int>, ids);
    QFETCH(const int, expected);
    const TestClock clock(kNow);
    for (const int id : ids) {
        keep(makeTask(id, "2024.01.01", "2024.01.02"));
    }
    PlanList list;
    list.slotAddOutput();
    QCOMPARE(service().addedTasks.at(0).id, expected);
}

void tst_PlanList::newTaskGetsTheOnlyOpenCardInFrontOfTheSpacer()
{
    const TestClock clock(kNow);
    PlanList list;
    for (int i = 0; i < 3; ++i) {
        list.slotAddOutput();
    }
    QCOMPARE(foldLine(list), QStringLiteral("folded folded open"));
    QCOMPARE(list.layout()->count(), 5);
    QVERIFY(list.layout()->itemAt(0)->spacerItem() != nullptr);
    QVERIFY(list.layout()->itemAt(4)->spacerItem() != nullptr);
    QCOMPARE(list.layout()->itemAt(3)->alignment(), Qt::Alignment());
    // The operator may have opened more than one in the meantime.
    cardsInOrder(list).at(0)->setFolded(false);
    list.slotAddOutput();
    QCOMPARE(foldLine(list), QStringLiteral("folded folded folded open"));
}

void tst_PlanList::addTellsTheServiceBeforeTheCount()
{
    const TestClock clock(kNow);
    PlanList list;
    QObject::connect(&list, &PlanList::sigGetMapCount, &list, [&list](int count) {
        service().log.append(
            QStringLiteral("count %1, cards %2").arg(count).arg(cardsInOrder(list).size()));
    });
    const QSignalSpy show(&list, &PlanList::sigShowProcess);
    const QSignalSpy close(&list, &PlanList::sigCloseProcess);
    QVERIFY(show.isValid() && close.isValid());
    list.slotAddOutput();
    QCOMPARE(service().log, QStringList({QStringLiteral("getAllTask()"),
                                         QStringLiteral("addTask(1 2024.03.10-2024.03.10 [])"),
                                         QStringLiteral("count 1, cards 1")}));
    QCOMPARE(show.count() + close.count(), 0);
}

void tst_PlanList::addIsLockedForASecondAfterARefresh()
{
    TestClock clock(kNow);
    PlanList list;
    list.slotCloseProcess();
    service().clearLog();
    clock.advance(999);
    list.slotAddOutput();
    QCOMPARE(service().log, QStringList());
    QCOMPARE(cardsInOrder(list).size(), 0);
    clock.advance(1);
    list.slotAddOutput();
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
}

void tst_PlanList::addIsLockedWhileTheClockStandsBeforeTheRefresh()
{
    TestClock clock(kNow);
    PlanList list;
    list.slotCloseProcess();
    clock.set(kNow.addDays(-100));
    list.slotAddOutput();
    QCOMPARE(service().log, QStringList());
    clock.set(kNow.addDays(100));
    list.slotAddOutput();
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
}

void tst_PlanList::addsDoNotLockEachOther()
{
    TestClock clock(kNow);
    PlanList list;
    list.slotCloseProcess();
    clock.advance(2000);
    list.slotAddOutput();
    list.slotAddOutput();
    QCOMPARE(service().count(QStringLiteral("addTask")), 2);
    QCOMPARE(line(service().addedTasks.at(1)), QStringLiteral("2 2024.03.11-2024.03.11 []"));
}

void tst_PlanList::aFullListTakesNoMore_data()
{
    QTest::addColumn<bool>("copy");
    QTest::newRow("add") << false;
    QTest::newRow("copy") << true;
}

void tst_PlanList::aFullListTakesNoMore()
{
    QFETCH(const bool, copy);
    const TestClock clock(kNow);
    PlanList list;
    list.slotAddOutput();
    auto* layout = qobject_cast<QBoxLayout*>(list.layout());
    QVERIFY(layout != nullptr);
    // The lock counts items; gaps stand for cards here.
    while (layout->count() < 10000) {
        layout->insertSpacing(1, 0);
    }
    const auto addOne = [&] { copy ? list.slotCopyTask(1) : list.slotAddOutput(); };
    addOne();
    QCOMPARE(layout->count(), 10001);
    service().clearLog();
    addOne();
    QCOMPARE(layout->count(), 10001);
    QCOMPARE(service().log, QStringList());
    QCOMPARE(foldLine(list), QStringLiteral("folded open"));
}

void tst_PlanList::noTaskBehindTheLargestId_data()
{
    aFullListTakesNoMore_data();
}

void tst_PlanList::noTaskBehindTheLargestId()
{
    QFETCH(const bool, copy);
    const TestClock clock(kNow);
    const int largest = std::numeric_limits<int>::max();
    keep(makeTask(largest - 1, "2024.01.01", "2024.01.02"));
    PlanList list;
    const auto addOne = [&] { copy ? list.slotCopyTask(largest - 1) : list.slotAddOutput(); };
    addOne();
    QCOMPARE(service().addedTasks.at(0).id, largest);
    service().clearLog();
    addOne();
    QCOMPARE(service().count(QStringLiteral("addTask")), 0);
    QCOMPARE(foldLine(list), QStringLiteral("open"));
}

void tst_PlanList::cardsReachTheList()
{
    const TestClock clock(kNow);
    PlanList list;
    list.slotAddOutput();
    auto* copyButton =
        cardsInOrder(list).at(0)->findChild<QPushButton*>(QStringLiteral("pbtCreatCopy"));
    QVERIFY(copyButton != nullptr);
    QTest::mouseClick(copyButton, Qt::LeftButton);
    QCOMPARE(cardsInOrder(list).size(), 2);
    emit cardsInOrder(list).at(0)->signalDeleteTask(1);
    QCOMPARE(cardsInOrder(list).size(), 1);
    QCOMPARE(service().working.count(2), std::size_t{1});
    QCOMPARE(service().working.size(), std::size_t{1});
}

void tst_PlanList::theDeleteButtonOfACardTakesTheCardAway()
{
    const TestClock clock(kNow);
    PlanList list;
    list.slotAddOutput();
    list.slotAddOutput();
    const QPointer<QPushButton> button =
        cardsInOrder(list).at(0)->findChild<QPushButton*>(QStringLiteral("pushButtonDelete"));
    const PromptAnswer answers({2, 1});
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!button.isNull());
    QCOMPARE(service().count(QStringLiteral("deleteTask")), 0);
    // The card goes while its own button is still being clicked.
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(button.isNull());
    QCOMPARE(service().calls({QStringLiteral("deleteTask")}),
             QStringList{QStringLiteral("deleteTask(1)")});
    QCOMPARE(foldLine(list), QStringLiteral("open"));
}

void tst_PlanList::deleteTakesTheCardThenTheTask()
{
    const TestClock clock(kNow);
    PlanList list;
    list.slotAddOutput();
    list.slotAddOutput();
    service().clearLog();
    QObject::connect(&list, &PlanList::sigGetMapCount, &list, [&list](int count) {
        service().log.append(
            QStringLiteral("count %1, cards %2").arg(count).arg(cardsInOrder(list).size()));
    });
    QObject::connect(cardsInOrder(list).at(0), &QObject::destroyed, &list,
                     [] { service().log.append(QStringLiteral("card gone")); });
    list.slotDeleteTask(1);
    QCOMPARE(service().log,
             QStringList({QStringLiteral("card gone"), QStringLiteral("count 1, cards 1"),
                          QStringLiteral("deleteTask(1)")}));
    QCOMPARE(foldLine(list), QStringLiteral("open"));
}

void tst_PlanList::deleteWithoutACardReachesTheService()
{
    PlanList list;
    QSignalSpy counts(&list, &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    list.slotDeleteTask(9);
    list.slotDeleteTask(9);
    QCOMPARE(service().log,
             QStringList({QStringLiteral("deleteTask(9)"), QStringLiteral("deleteTask(9)")}));
    QCOMPARE(counts, QList<QList<QVariant>>({{0}, {0}}));
}

TREL_TEST(tst_PlanList, QApplication)

#include "tst_PlanList.moc"
