#include "CardLines.h"
#include "KeptTasks.h"

#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDateEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace trel::mediadispatch;

namespace {

PlayTask taskOf(int id)
{
    return makeTask(id, "2024.01.01", "2024.01.02");
}

void store(int tasks)
{
    for (int id = 1; id <= tasks; ++id) {
        service().stored[id] = taskOf(id);
    }
}

int idOf(const QWidget& card)
{
    const auto* const title = card.findChild<QPushButton*>(QStringLiteral("title"));
    return title->text().trimmed().remove(QStringLiteral("zhPlayTaskStr")).toInt();
}

QVector<int> ids(const PlanList& list)
{
    QVector<int> found;
    for (const PlanTaskWidget* card : cardsInOrder(list)) {
        found.append(idOf(*card));
    }
    return found;
}

/// Calls back when a card of the list is destroyed, with its id.
void onDestroyed(const PlanList& list, const std::function<void(int)>& tell)
{
    for (const PlanTaskWidget* card : cardsInOrder(list)) {
        QObject::connect(card, &QObject::destroyed, [tell, id = idOf(*card)] { tell(id); });
    }
}

/// An item that takes no room and counts how often somebody looks at it.
class CountingItem : public QSpacerItem
{
public:
    CountingItem()
        : QSpacerItem(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed)
    {}

    QWidget* widget() override // NOLINT(readability-make-member-function-const)
    {
        ++looks;
        return nullptr;
    }

    int looks = 0;
};

} // namespace

/// How cards end, and what others may do meanwhile.
class tst_PlanListEnds : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cardsStandUnderTheIdsOfTheirTasks();
    void theLaterTaskOfAnIdHasTheCard();
    void clearingTakesEachCardOutBeforeItEnds();
    void clearingLooksAtNoOtherCard();
    void theEndOfTheListLeavesItsCardsInTheLayout();
    void cardsMayEndWhileTheListIsCleared_data();
    void cardsMayEndWhileTheListIsCleared();
    void aTaskMayBeAddedWhileTheListIsCleared();
    void theListMayBeRefreshedWhileItIsCleared();
    void aCardMayBeDestroyedFromOutside();
    void theListMayEndInsideARefresh_data();
    void theListMayEndInsideARefresh();
};

void tst_PlanListEnds::init()
{
    service().reset();
}

void tst_PlanListEnds::cardsStandUnderTheIdsOfTheirTasks()
{
    service().stored[1] = taskOf(5);
    service().stored[7] = taskOf(3);
    PlanList list;
    list.refreshPlanList();
    QCOMPARE(ids(list), QVector<int>({5, 3}));
    list.slotDeleteTask(1);
    QCOMPARE(ids(list), QVector<int>({5, 3}));
    list.slotDeleteTask(5);
    QCOMPARE(ids(list), QVector<int>{3});
    list.refreshPlanList();
    QCOMPARE(ids(list), QVector<int>({5, 3}));
}

void tst_PlanListEnds::theLaterTaskOfAnIdHasTheCard()
{
    service().stored[1] = makeTask(4, "2024.01.01", "2024.01.02");
    service().stored[2] = taskOf(9);
    service().stored[3] = makeTask(4, "2024.07.01", "2024.07.02");
    PlanList list;
    QSignalSpy counts(&list, &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    list.refreshPlanList();
    QCOMPARE(ids(list), QVector<int>({9, 4}));
    QCOMPARE(counts, QList<QList<QVariant>>({{0}, {1}, {2}, {2}}));
    QCOMPARE(list.findChildren<PlanTaskWidget*>().size(), 2);
    const auto* const day = cardsInOrder(list).at(1)->findChild<QDateTimeEdit*>();
    QCOMPARE(day->date(), QDate(2024, 7, 1));
    list.slotclearPlanList();
    QCOMPARE(list.layout()->count(), 2);
}

void tst_PlanListEnds::clearingTakesEachCardOutBeforeItEnds()
{
    const TestClock clock(kNow);
    store(3);
    PlanList list;
    list.refreshPlanList();
    list.slotCloseProcess();
    QStringList seen;
    onDestroyed(list, [&](int id) {
        seen.append(QStringLiteral("%1: %2 items").arg(id).arg(list.layout()->count()));
    });
    list.slotclearPlanList();
    QCOMPARE(seen, QStringList({QStringLiteral("1: 4 items"), QStringLiteral("2: 3 items"),
                                QStringLiteral("3: 2 items")}));
    seen.clear();
    list.refreshPlanList();
    onDestroyed(list, [&](int id) {
        seen.append(QStringLiteral("%1: %2 items").arg(id).arg(list.layout()->count()));
    });
    list.refreshPlanList();
    QCOMPARE(seen, QStringList({QStringLiteral("1: 4 items"), QStringLiteral("2: 3 items"),
                                QStringLiteral("3: 2 items")}));
}

void tst_PlanListEnds::clearingLooksAtNoOtherCard()
{
    const auto looksOfClearing = [](int tasks) {
        store(tasks);
        PlanList list;
        list.refreshPlanList();
        auto* const behind = new CountingItem;
        qobject_cast<QBoxLayout*>(list.layout())->insertItem(list.layout()->count() - 1, behind);
        int looks = 0;
        onDestroyed(list, [&](int) { looks = behind->looks; });
        behind->looks = 0;
        list.slotclearPlanList();
        return looks;
    };
    // Each search for a card would come by the item behind all of them.
    QCOMPARE(looksOfClearing(4), looksOfClearing(40));
    // It does count.
    PlanList list;
    auto* const item = new CountingItem;
    qobject_cast<QBoxLayout*>(list.layout())->insertItem(1, item);
    list.layout()->removeWidget(&list);
    QVERIFY(item->looks > 0);
}

void tst_PlanListEnds::theEndOfTheListLeavesItsCardsInTheLayout()
{
    store(3);
    auto list = std::make_unique<PlanList>();
    list->refreshPlanList();
    QStringList seen;
    QLayout* const layout = list->layout();
    onDestroyed(*list, [&](int id) {
        seen.append(QStringLiteral("%1: %2 items").arg(id).arg(layout->count()));
    });
    list.reset();
    // A card leaves the layout as every child does, behind its end.
    QCOMPARE(seen, QStringList({QStringLiteral("1: 5 items"), QStringLiteral("2: 4 items"),
                                QStringLiteral("3: 3 items")}));
}

void tst_PlanListEnds::cardsMayEndWhileTheListIsCleared_data()
{
    QTest::addColumn<QString>("how");
    for (const char* how : {"task", "same task", "object", "clear"}) {
        QTest::newRow(how) << QString::fromLatin1(how);
    }
}

void tst_PlanListEnds::cardsMayEndWhileTheListIsCleared()
{
    QFETCH(const QString, how);
    store(4);
    PlanList list;
    list.refreshPlanList();
    const QList<PlanTaskWidget*> cards = cardsInOrder(list);
    QVector<int> ended;
    onDestroyed(list, [&](int id) {
        ended.append(id);
        if (id != 2) {
            return;
        }
        if (how == QLatin1String("task")) {
            list.slotDeleteTask(3);
        } else if (how == QLatin1String("same task")) {
            list.slotDeleteTask(2);
        } else if (how == QLatin1String("object")) {
            delete cards.at(2);
        } else {
            list.slotclearPlanList();
        }
    });
    QSignalSpy counts(&list, &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    list.slotclearPlanList();
    QCOMPARE(ended, QVector<int>({1, 2, 3, 4}));
    QCOMPARE(counts.last(), QList<QVariant>{0});
    QCOMPARE(list.layout()->count(), 2);
    QVERIFY(list.findChildren<PlanTaskWidget*>().isEmpty());
}

void tst_PlanListEnds::aTaskMayBeAddedWhileTheListIsCleared()
{
    TestClock clock(kNow);
    store(3);
    PlanList list;
    list.refreshPlanList();
    clock.advance(2000);
    onDestroyed(list, [&](int id) {
        if (id == 2) {
            list.slotAddOutput();
        }
    });
    QSignalSpy counts(&list, &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    list.slotclearPlanList();
    QCOMPARE(ids(list), QVector<int>{4});
    QCOMPARE(list.layout()->count(), 3);
    QCOMPARE(counts.last(), QList<QVariant>{1});
    list.slotclearPlanList();
    QCOMPARE(list.layout()->count(), 2);
}

void tst_PlanListEnds::theListMayBeRefreshedWhileItIsCleared()
{
    store(3);
    PlanList list;
    list.refreshPlanList();
    onDestroyed(list, [&](int id) {
        if (id == 2) {
            list.refreshPlanList();
        }
    });
    list.slotclearPlanList();
    QCOMPARE(ids(list), QVector<int>({1, 2, 3}));
    list.slotclearPlanList();
    QCOMPARE(list.layout()->count(), 2);
}

void tst_PlanListEnds::aCardMayBeDestroyedFromOutside()
{
    store(3);
    PlanList list;
    list.refreshPlanList();
    QSignalSpy counts(&list, &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    service().clearLog();
    delete cardsInOrder(list).at(1);
    QCOMPARE(ids(list), QVector<int>({1, 3}));
    QCOMPARE(list.layout()->count(), 4);
    QCOMPARE(counts, QList<QList<QVariant>>({{2}}));
    QCOMPARE(service().log, QStringList());
    list.slotDeleteTask(2);
    list.refreshPlanList();
    QCOMPARE(ids(list), QVector<int>({1, 2, 3}));
}

void tst_PlanListEnds::theListMayEndInsideARefresh_data()
{
    QTest::addColumn<int>("step");
    // Show, an event, the clear, an event, each card, close.
    for (int step = 1; step <= 7; ++step) {
        QTest::addRow("step %d", step) << step;
    }
}

void tst_PlanListEnds::theListMayEndInsideARefresh()
{
    QFETCH(const int, step);
    store(2);
    const QPointer<PlanList> list(new PlanList);
    int steps = 0;
    const auto take = [&] {
        if (++steps == step) {
            list->disconnect();
            delete list;
        }
    };
    const auto takeTwo = [&] {
        QTimer::singleShot(0, list, take);
        take();
    };
    QObject::connect(list, &PlanList::sigShowProcess, list, takeTwo);
    QObject::connect(list, &PlanList::sigGetMapCount, list,
                     [&](int count) { count == 0 ? takeTwo() : take(); });
    QObject::connect(list, &PlanList::sigCloseProcess, list, take);
    list->refreshPlanList();
    QVERIFY(list.isNull());
    QCOMPARE(steps, step);
}

TREL_TEST(tst_PlanListEnds, QApplication)

#include "tst_PlanListEnds.moc"
