#include "EventCount.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "WidgetPlaces.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"
#include "toolkit/NewWidgets.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QtTest>

#include <functional>
#include <map>
#include <utility>

using namespace trel::mediadispatch;

namespace {

/// Every other task has plans, from the first.
constexpr int kPlans = 2;

/// What is sent to the widgets in one, by type of event.
class EventsIn : public QObject
{
public:
    explicit EventsIn(const QWidget& widget)
        : m_widget(widget)
    {
        qApp->installEventFilter(this);
    }

    int count(QEvent::Type type) const
    {
        const auto found = m_counts.find(type);
        return found == m_counts.end() ? 0 : found->second;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A widget counts as its own ancestor.
        if (watched != &m_widget && watched->isWidgetType() &&
            m_widget.isAncestorOf(static_cast<QWidget*>(watched))) {
            ++m_counts[event->type()];
        }
        return false;
    }

private:
    const QWidget& m_widget;
    std::map<QEvent::Type, int> m_counts;
};

/// Counts the requests to be painted that get through to the widgets in some.
class PaintRequests : public QObject
{
public:
    void follow(QWidget& widget)
    {
        widget.installEventFilter(this);
        for (QWidget* const part : widget.findChildren<QWidget*>()) {
            part->installEventFilter(this);
        }
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::UpdateLater ? 1 : 0;
        return false;
    }
};

/// Is told whenever a widget is shown.
class ShowListener : public QObject
{
public:
    ShowListener(QWidget& widget, std::function<void()> tell)
        : m_tell(std::move(tell))
    {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show) {
            m_tell();
        }
        return false;
    }

private:
    std::function<void()> m_tell;
};

/// The list in a window, as the panel shows it.
class ListWindow
{
public:
    explicit ListWindow(bool isShown = true)
        : m_list(new PlanList)
    {
        m_area.setWidgetResizable(true);
        m_area.setWidget(m_list);
        m_area.resize(1140, 300);
        if (isShown) {
            show();
        }
    }

    void show()
    {
        m_area.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_area));
        QCoreApplication::processEvents();
    }

    PlanList& list() { return *m_list; }
    QScrollArea& area() { return m_area; }
    /// Not that of the busy indicator in it.
    QList<PlanTaskWidget*> cards() const
    {
        return m_list->findChildren<PlanTaskWidget*>(QString(), Qt::FindDirectChildrenOnly);
    }

private:
    QScrollArea m_area;
    PlanList* m_list;
};

PlayTask taskOf(int id, int plans)
{
    PlayTask task = makeTask(id, "2024.01.01", "2024.01.02");
    for (int planId = 1; planId <= plans; ++planId) {
        PlayPlan plan;
        plan.id = planId;
        plan.startTime = "08:00:00";
        plan.endTime = "08:30:00";
        plan.weeks = std::to_string(planId);
        task.plans.push_back(plan);
    }
    return task;
}

void store(int tasks)
{
    RecordingService::instance().reset();
    for (int id = 1; id <= tasks; ++id) {
        RecordingService::instance().stored[id] = taskOf(id, id % 2 == 0 ? 0 : kPlans);
    }
}

int dueTimersIn(const QWidget& widget)
{
    int timers = 0;
    for (QWidget* part : widget.findChildren<QWidget*>()) {
        for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(part)) {
            timers += timer.interval == 0 ? 1 : 0;
        }
    }
    return timers;
}

/// What waits for the event loop at the moment when the last of so many cards is announced.
struct Waiting
{
    explicit Waiting(int tasks)
    {
        store(tasks);
        ListWindow window;
        QObject::connect(&window.list(), &PlanList::sigGetMapCount, [&](int count) {
            if (count == tasks) {
                polishes = takeWaiting(QEvent::PolishRequest);
                layouts = takeWaiting(QEvent::LayoutRequest);
                calls = takeWaiting(QEvent::MetaCall);
                timers = dueTimersIn(window.list());
            }
        });
        window.list().refreshPlanList();
    }

    int polishes = 0;
    int layouts = 0;
    int calls = 0;
    int timers = 0;
};

/// Where everything in a card is that can be seen.
QStringList places(const PlanTaskWidget& card)
{
    return visiblePlaces(card, card);
}

} // namespace

/// What a refresh leaves to the event loop, counted. The toolkit searches all that waits over and
/// over, so that whatever is left there for each card makes the time grow with the square of the
/// number of cards.
class tst_PlanListCosts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void noCardWaitsWhileTheNextIsMade();
    void nothingIsLeftForTheEventLoop();
    void theListIsPaintedAsAWhole_data();
    void theListIsPaintedAsAWhole();
    void paintRequestsOfOthersAreHeard();
    void updatesAreOnBeforeTheListIsShown();
    void cardsComeIntoSightInTheirPlaces();
    void anUnfoldedCardLiesAsOneThatWasNeverFolded();
};

void tst_PlanListCosts::init()
{
    RecordingService::instance().reset();
    setShortcutsOn(true);
}

void tst_PlanListCosts::noCardWaitsWhileTheNextIsMade()
{
    const Waiting few(4);
    const Waiting many(32);
    QCOMPARE(many.polishes, few.polishes);
    QCOMPARE(many.layouts, few.layouts);
    QCOMPARE(many.calls, few.calls);
    QCOMPARE(many.timers, few.timers);
    // What is counted is there where the toolkit is left to itself.
    setShortcutsOn(false);
    const Waiting withoutShortcuts(4);
    QVERIFY(withoutShortcuts.polishes > few.polishes);
    QVERIFY(withoutShortcuts.layouts > few.layouts);
    QVERIFY(withoutShortcuts.calls > few.calls);
    QVERIFY(withoutShortcuts.timers > few.timers);
}

void tst_PlanListCosts::nothingIsLeftForTheEventLoop()
{
    store(20);
    ListWindow window;
    window.list().refreshPlanList();
    QCOMPARE(dueTimersIn(window.list()), 0);
    const EventsIn events(window.list());
    QCoreApplication::processEvents();
    for (const QEvent::Type type : {QEvent::PolishRequest, QEvent::LayoutRequest, QEvent::MetaCall,
                                    QEvent::Timer, QEvent::Move, QEvent::Resize}) {
        QVERIFY2(events.count(type) == 0, qPrintable(QStringLiteral("event %1").arg(type)));
    }
    QVERIFY(events.count(QEvent::Paint) > 0);
}

void tst_PlanListCosts::theListIsPaintedAsAWhole_data()
{
    QTest::addColumn<bool>("isShownFirst");
    QTest::newRow("refreshed on show") << true;
    QTest::newRow("shown after the refresh") << false;
}

void tst_PlanListCosts::theListIsPaintedAsAWhole()
{
    QFETCH(const bool, isShownFirst);
    store(20);
    ListWindow window(isShownFirst);
    PaintRequests requests;
    QObject::connect(&window.list(), &PlanList::sigGetMapCount, &requests, [&](int count) {
        if (count > 0) {
            requests.follow(*window.cards().at(count - 1));
        }
    });
    const EventsIn events(window.list());
    window.list().refreshPlanList();
    window.show();
    QTRY_VERIFY(events.count(QEvent::Paint) > 0);
    // They come, and are answered by the painting of the list.
    QVERIFY(events.count(QEvent::UpdateLater) > 0);
    QCOMPARE(requests.count, 0);
    // Later ones are heard.
    window.cards().at(0)->hide();
    window.cards().at(0)->show();
    QTRY_VERIFY(requests.count > 0);
    // What is in sight is painted all the same, to the last label.
    const QList<PlanTaskWidget*> cards = window.cards();
    QCOMPARE(cards.size(), 20);
    for (PlanTaskWidget* card : cards) {
        const bool isInSight = !card->visibleRegion().isEmpty();
        QCOMPARE(card->findChild<QWidget*>(QStringLiteral("arrow"))->visibleRegion().isEmpty(),
                 !isInSight);
    }
    QVERIFY(!cards.first()->visibleRegion().isEmpty());
    QVERIFY(cards.last()->visibleRegion().isEmpty());
}

void tst_PlanListCosts::paintRequestsOfOthersAreHeard()
{
    store(3);
    QWidget other;
    const EventsIn paints(other);
    QWidget part(&other);
    part.setGeometry(0, 0, 20, 20);
    ListWindow window;
    QObject::connect(&window.list(), &PlanList::sigGetMapCount, [&](int count) {
        if (count == 3) {
            other.show();
        }
    });
    window.list().refreshPlanList();
    QVERIFY(other.isVisible());
    QTRY_VERIFY(paints.count(QEvent::Paint) > 0);
    QVERIFY(paints.count(QEvent::UpdateLater) > 0);
}

void tst_PlanListCosts::updatesAreOnBeforeTheListIsShown()
{
    // Coming on in sight, they would have every widget in sight or out of it painted by itself.
    store(3);
    ListWindow window;
    QStringList updates;
    const ShowListener listener(window.list(), [&] {
        updates.append(window.list().updatesEnabled() ? QStringLiteral("on")
                                                      : QStringLiteral("off"));
    });
    window.list().refreshPlanList();
    QCOMPARE(updates, QStringList({QStringLiteral("on")}));
}

void tst_PlanListCosts::cardsComeIntoSightInTheirPlaces()
{
    store(20);
    ListWindow window;
    window.list().refreshPlanList();
    const auto positions = [&window] {
        QStringList lines;
        for (const PlanTaskWidget* card : window.cards()) {
            lines.append(QStringLiteral("%1,%2 %3x%4")
                             .arg(card->x())
                             .arg(card->y())
                             .arg(card->width())
                             .arg(card->height()));
        }
        return lines;
    };
    const QStringList atOnce = positions();
    const QSize size = window.list().size();
    QVERIFY(window.area().verticalScrollBar()->maximum() > 0);
    QCoreApplication::processEvents();
    QCOMPARE(positions(), atOnce);
    QCOMPARE(window.list().size(), size);
}

void tst_PlanListCosts::anUnfoldedCardLiesAsOneThatWasNeverFolded()
{
    store(3);
    ListWindow window;
    window.list().refreshPlanList();
    PlanTaskWidget* const unfolded = window.cards().first();
    unfolded->setFolded(false);
    auto* const card = new PlanTaskWidget(taskOf(1, kPlans), nullptr);
    QScrollArea area;
    area.setWidget(card);
    card->adjustSize();
    area.resize(1140, 500);
    area.show();
    QTRY_COMPARE(places(*unfolded), places(*card));
    QVERIFY(places(*card).size() > 30);
    QVERIFY(unfolded->findChild<QTableView*>()->isVisible());
}

TREL_TEST(tst_PlanListCosts, QApplication)

#include "tst_PlanListCosts.moc"
