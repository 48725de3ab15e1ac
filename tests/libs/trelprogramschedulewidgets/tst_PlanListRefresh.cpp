#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "initProcess.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QBoxLayout>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

const QDateTime kNow(QDate(2024, 3, 10), QTime(12, 0));

RecordingService& service()
{
    return RecordingService::instance();
}

void note(const QString& text)
{
    service().log.append(text);
}

/// Writes every signal of the list into the log of the service.
void noteSignals(PlanList& list)
{
    QObject::connect(&list, &PlanList::sigShowProcess, [] { note(QStringLiteral("show")); });
    QObject::connect(&list, &PlanList::sigCloseProcess, [] { note(QStringLiteral("close")); });
    QObject::connect(&list, &PlanList::sigGetMapCount,
                     [](int count) { note(QStringLiteral("count %1").arg(count)); });
}

void store(std::initializer_list<int> ids)
{
    for (const int id : ids) {
        const std::string day = "2024.01.0" + std::to_string(id);
        service().stored[id] = makeTask(id, day, day);
    }
}

QString title(const QWidget* card)
{
    const auto* button = card->findChild<QPushButton*>(QStringLiteral("title"));
    return button->text().trimmed();
}

/// The titles of the cards from top to bottom.
QStringList titles(const PlanList& list)
{
    QStringList texts;
    for (int i = 0; i < list.layout()->count(); ++i) {
        if (const QWidget* card = list.layout()->itemAt(i)->widget()) {
            texts.append(title(card));
        }
    }
    return texts;
}

QStringList tasks(std::initializer_list<int> ids)
{
    QStringList texts;
    for (const int id : ids) {
        texts.append(QStringLiteral("zhPlayTaskStr%1").arg(id));
    }
    return texts;
}

} // namespace

/// The rebuild of the whole list, its emptying and its end.
class tst_PlanListRefresh : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void layoutBeforeTheFirstCard();
    void ownsAHiddenBusyIndicator();
    void anEmptyScheduleGivesAnEmptyList();
    void stepsOfARefresh();
    void cardsStandFoldedInOrderOfTheirIds();
    void everyCardIsBuiltAnew();
    void paintingIsOffWhileCardsAreBuilt();
    void aVisibleListLaysItsCardsOutOnce();
    void eventsAreHandledBeforeAndAfterTheClearingOnly();
    void aRefreshFromWithinShowsEveryTaskOnce_data();
    void aRefreshFromWithinShowsEveryTaskOnce();
    void theLockStartsAtTheEnd();
    void aCardIsConnectedOnce();
    void clearingLeavesTheServiceAlone();
    void clearingWorksInAnyOrderOfCards();
    void theEndTellsTheCountAndLeavesTheServiceAlone();
};

void tst_PlanListRefresh::init()
{
    service().reset();
}

void tst_PlanListRefresh::layoutBeforeTheFirstCard()
{
    const PlanList list;
    const auto* layout = qobject_cast<const QVBoxLayout*>(list.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->spacing(), 2);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->stretch(0), 0);
    QVERIFY(layout->itemAt(0)->spacerItem() != nullptr);
    QCOMPARE(layout->itemAt(0)->spacerItem()->sizePolicy().verticalPolicy(),
             QSizePolicy::Expanding);
    const QSpacerItem* spacer = layout->itemAt(1)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(1100, 480));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
}

void tst_PlanListRefresh::ownsAHiddenBusyIndicator()
{
    PlanList list;
    list.show();
    const auto indicators = list.findChildren<initProcess*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(indicators.size(), 1);
    list.refreshPlanList();
    QVERIFY(!indicators.at(0)->isVisible());
}

void tst_PlanListRefresh::anEmptyScheduleGivesAnEmptyList()
{
    PlanList list;
    QSignalSpy counts(&list, &PlanList::sigGetMapCount);
    QVERIFY(counts.isValid());
    list.refreshPlanList();
    QCOMPARE(counts, QList<QList<QVariant>>({{0}}));
    QCOMPARE(titles(list), QStringList());
}

void tst_PlanListRefresh::stepsOfARefresh()
{
    store({2, 5});
    PlanList list;
    noteSignals(list);
    list.refreshPlanList();
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("show"), QStringLiteral("count 0"),
                          QStringLiteral("getgTaskMap()"), QStringLiteral("updateUItask()"),
                          QStringLiteral("count 1"), QStringLiteral("count 2"),
                          QStringLiteral("close")}));
    QCOMPARE(service().working.size(), std::size_t{2});
}

void tst_PlanListRefresh::cardsStandFoldedInOrderOfTheirIds()
{
    store({7, 3, 5});
    PlanList list;
    list.refreshPlanList();
    QCOMPARE(titles(list), tasks({3, 5, 7}));
    QCOMPARE(list.layout()->count(), 5);
    QVERIFY(list.layout()->itemAt(4)->spacerItem() != nullptr);
    const auto cards = list.findChildren<PlanTaskWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(cards.size(), 3);
    for (const PlanTaskWidget* card : cards) {
        QVERIFY(card->isFolded());
    }
}

void tst_PlanListRefresh::everyCardIsBuiltAnew()
{
    store({1, 2, 3});
    PlanList list;
    list.refreshPlanList();
    const auto former = list.findChildren<PlanTaskWidget*>();
    for (const PlanTaskWidget* card : former) {
        QObject::connect(card, &QObject::destroyed,
                         [text = title(card)] { note(QStringLiteral("gone ") + text); });
    }
    noteSignals(list);
    service().clearLog();
    service().stored.erase(2);
    list.refreshPlanList();
    QCOMPARE(service().log.mid(0, 5),
             QStringList({QStringLiteral("show"), QStringLiteral("gone zhPlayTaskStr1"),
                          QStringLiteral("gone zhPlayTaskStr2"),
                          QStringLiteral("gone zhPlayTaskStr3"), QStringLiteral("count 0")}));
    QCOMPARE(titles(list), tasks({1, 3}));
}

void tst_PlanListRefresh::paintingIsOffWhileCardsAreBuilt()
{
    store({1});
    QStringList painting;
    PlanList list;
    const auto notePainting = [&](const char* when) {
        painting.append(QStringLiteral("%1 %2").arg(
            QLatin1String(when), QLatin1String(list.updatesEnabled() ? "on" : "off")));
    };
    // The list tells its last count when it ends, behind what notes it.
    const QObject notes;
    QObject::connect(&list, &PlanList::sigShowProcess, &notes, [&] { notePainting("show"); });
    QObject::connect(&list, &PlanList::sigGetMapCount, &notes,
                     [&](int count) { notePainting(count == 0 ? "clear" : "card"); });
    QObject::connect(&list, &PlanList::sigCloseProcess, &notes, [&] { notePainting("close"); });
    list.refreshPlanList();
    QCOMPARE(painting, QStringList({QStringLiteral("show on"), QStringLiteral("clear on"),
                                    QStringLiteral("card off"), QStringLiteral("close on")}));
}

void tst_PlanListRefresh::aVisibleListLaysItsCardsOutOnce()
{
    for (int id = 1; id <= 40; ++id) {
        service().stored[id] = makeTask(id, "2024.01.01", "2024.01.01");
    }
    QWidget window;
    auto* list = new PlanList(&window);
    window.show();
    list->refreshPlanList();
    // Every card is in its place already; nothing is left for the event loop to do card by card.
    QVERIFY(list->isVisible());
    const auto cards = list->findChildren<PlanTaskWidget*>();
    QStringList places;
    for (const PlanTaskWidget* card : cards) {
        QVERIFY(card->isVisible());
        places.append(QString::number(card->y()));
    }
    places.removeDuplicates();
    QCOMPARE(places.size(), cards.size());
}

void tst_PlanListRefresh::eventsAreHandledBeforeAndAfterTheClearingOnly()
{
    store({1});
    PlanList list;
    const auto post = [&list](const char* text) {
        QMetaObject::invokeMethod(
            &list, [text] { note(QLatin1String(text)); }, Qt::QueuedConnection);
    };
    noteSignals(list);
    const QObject notes;
    QObject::connect(&list, &PlanList::sigShowProcess, &notes, [&] { post("event of show"); });
    QObject::connect(&list, &PlanList::sigGetMapCount, &notes,
                     [&](int count) { post(count == 0 ? "event of clear" : "event of card"); });
    QObject::connect(&list, &PlanList::sigCloseProcess, &notes, [&] { post("event of close"); });
    list.refreshPlanList();
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("show"), QStringLiteral("event of show"),
                          QStringLiteral("count 0"), QStringLiteral("event of clear"),
                          QStringLiteral("getgTaskMap()"), QStringLiteral("updateUItask()"),
                          QStringLiteral("count 1"), QStringLiteral("close")}));
}

void tst_PlanListRefresh::aRefreshFromWithinShowsEveryTaskOnce_data()
{
    QTest::addColumn<bool>("afterClearing");
    QTest::newRow("before the clearing") << false;
    QTest::newRow("after the clearing") << true;
}

void tst_PlanListRefresh::aRefreshFromWithinShowsEveryTaskOnce()
{
    QFETCH(const bool, afterClearing);
    store({1, 2});
    PlanList list;
    const auto refreshLater = [&list] {
        service().stored[3] = makeTask(3, "2024.01.03", "2024.01.03");
        QMetaObject::invokeMethod(&list, &PlanList::refreshPlanList, Qt::QueuedConnection);
    };
    const QSignalSpy shows(&list, &PlanList::sigShowProcess);
    const QSignalSpy closes(&list, &PlanList::sigCloseProcess);
    QVERIFY(shows.isValid() && closes.isValid());
    if (afterClearing) {
        QObject::connect(&list, &PlanList::sigGetMapCount, &list, [&](int count) {
            if (count == 0) {
                refreshLater();
            }
        });
    } else {
        QObject::connect(&list, &PlanList::sigShowProcess, &list, refreshLater);
    }
    list.refreshPlanList();
    QCOMPARE(titles(list), tasks({1, 2, 3}));
    QCOMPARE(list.findChildren<PlanTaskWidget*>().size(), 3);
    QCOMPARE(shows.count(), 1);
    QCOMPARE(closes.count(), 1);
    list.disconnect();
    list.refreshPlanList();
    QCOMPARE(shows.count(), 1);
    QCOMPARE(titles(list), tasks({1, 2, 3}));
}

void tst_PlanListRefresh::theLockStartsAtTheEnd()
{
    TestClock clock(kNow);
    store({1});
    PlanList list;
    // Building the cards takes five seconds, and telling of the end one more.
    QObject::connect(&list, &PlanList::sigGetMapCount, &list, [&](int) { clock.advance(5000); });
    QObject::connect(&list, &PlanList::sigCloseProcess, &list, [&] { clock.advance(1000); });
    list.refreshPlanList();
    list.slotAddOutput();
    QCOMPARE(service().count(QStringLiteral("addTask")), 0);
    clock.advance(1000);
    list.slotAddOutput();
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
}

void tst_PlanListRefresh::aCardIsConnectedOnce()
{
    TestClock clock(kNow);
    store({1, 2});
    PlanList list;
    list.refreshPlanList();
    list.refreshPlanList();
    clock.advance(1000);
    service().clearLog();
    auto* card = list.findChildren<PlanTaskWidget*>().at(0);
    emit card->signalCopyTask(1);
    QCOMPARE(service().count(QStringLiteral("addTask")), 1);
    emit card->signalDeleteTask(1);
    QCOMPARE(service().calls({QStringLiteral("deleteTask")}),
             QStringList({QStringLiteral("deleteTask(1)")}));
    QCOMPARE(titles(list), tasks({2, 3}));
}

void tst_PlanListRefresh::clearingLeavesTheServiceAlone()
{
    store({1, 2});
    PlanList list;
    list.refreshPlanList();
    service().clearLog();
    noteSignals(list);
    list.slotclearPlanList();
    QCOMPARE(service().log, QStringList({QStringLiteral("count 0")}));
    QCOMPARE(list.layout()->count(), 2);
    QVERIFY(list.findChildren<PlanTaskWidget*>().isEmpty());
    QCOMPARE(service().working.size(), std::size_t{2});
}

void tst_PlanListRefresh::clearingWorksInAnyOrderOfCards()
{
    const TestClock clock(kNow);
    PlanList list;
    // The second card takes the lower id.
    service().working[5] = makeTask(5, "2024.01.05", "2024.01.05");
    list.slotAddOutput();
    service().working.clear();
    list.slotAddOutput();
    QCOMPARE(titles(list), tasks({6, 1}));
    list.slotclearPlanList();
    QCOMPARE(list.layout()->count(), 2);
    QVERIFY(list.findChildren<PlanTaskWidget*>().isEmpty());
}

void tst_PlanListRefresh::theEndTellsTheCountAndLeavesTheServiceAlone()
{
    store({1, 2, 3});
    auto list = std::make_unique<PlanList>();
    list->refreshPlanList();
    for (const PlanTaskWidget* card : list->findChildren<PlanTaskWidget*>()) {
        QObject::connect(card, &QObject::destroyed,
                         [text = title(card)] { note(QStringLiteral("gone ") + text); });
    }
    QObject::connect(list.get(), &QObject::destroyed, [] { note(QStringLiteral("list gone")); });
    noteSignals(*list);
    service().clearLog();
    list.reset();
    QCOMPARE(service().log, QStringList({QStringLiteral("gone zhPlayTaskStr1"),
                                         QStringLiteral("gone zhPlayTaskStr2"),
                                         QStringLiteral("gone zhPlayTaskStr3"),
                                         QStringLiteral("count 0"), QStringLiteral("list gone")}));
}

TREL_TEST(tst_PlanListRefresh, QApplication)

#include "tst_PlanListRefresh.moc"
