#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "WidgetPlaces.h"
#include "support/Growth.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"
#include "toolkit/NewWidgets.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QtTest>

#include <functional>
#include <utility>

using namespace trel::mediadispatch;

namespace {

/// What the growth of a linear cost stays under. Memory that is spread wide is slower, so that it
/// is more than 1; without the shortcuts for new widgets it is 2.5 with the numbers here.
constexpr double kHardlyMore = 2;

/// Every other task has plans, from the first.
constexpr int kPlans = 2;

/// Whether a widget, or one in it, is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(const QWidget& widget)
        : m_widget(widget)
    {
        qApp->installEventFilter(this);
    }

    bool isPainted = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        isPainted = isPainted || (event->type() == QEvent::Paint && watched->isWidgetType() &&
                                  m_widget.isAncestorOf(static_cast<QWidget*>(watched)));
        return false;
    }

private:
    const QWidget& m_widget;
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

/// What a refresh of so many cards on show takes, and what the event loop has to do afterwards.
struct RefreshTime
{
    explicit RefreshTime(int tasks)
    {
        store(tasks);
        ListWindow window;
        const double start = processorTime();
        window.list().refreshPlanList();
        const double end = processorTime();
        QCoreApplication::processEvents();
        refresh = end - start;
        afterwards = processorTime() - end;
    }

    double refresh = 0;
    double afterwards = 0;
};

/// What it takes until an open card with so many rows, which was folded, is on screen again.
double unfoldTime(int rows)
{
    RecordingService::instance().reset();
    RecordingService::instance().stored[1] = taskOf(1, rows);
    ListWindow window;
    window.list().refreshPlanList();
    PlanTaskWidget* const card = window.cards().first();
    for (const bool isFolded : {false, true}) {
        card->setFolded(isFolded);
        QCoreApplication::processEvents();
    }
    const double start = processorTime();
    card->setFolded(false);
    QCoreApplication::processEvents();
    return processorTime() - start;
}

/// Where everything in a card is that can be seen.
QStringList places(const PlanTaskWidget& card)
{
    return visiblePlaces(card, card);
}

} // namespace

/// What a refresh costs. The toolkit searches all that waits for the event loop over and over, so
/// that whatever is left there for each card makes the time grow with the square of the number of
/// cards, and what each row of an open card leaves there with that of the rows.
class tst_PlanListCosts : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aRefreshGrowsWithItsCards();
    void littleIsLeftForTheEventLoop();
    void unfoldingManyRowsIsQuick();
    void whatIsInSightIsPainted_data();
    void whatIsInSightIsPainted();
    void othersAreShownMeanwhile();
    void updatesAreOnBeforeTheListIsShown();
    void cardsComeIntoSightInTheirPlaces();
    void anUnfoldedCardLiesAsOneThatWasNeverFolded();
};

void tst_PlanListCosts::init()
{
    RecordingService::instance().reset();
    setShortcutsOn(true);
}

void tst_PlanListCosts::aRefreshGrowsWithItsCards()
{
    const auto time = [](int tasks) {
        const RefreshTime took(tasks);
        return took.refresh + took.afterwards;
    };
    QVERIFY(growth(300, 3000, time) < kHardlyMore);
}

void tst_PlanListCosts::littleIsLeftForTheEventLoop()
{
    const RefreshTime took(1000);
    QVERIFY2(took.afterwards < took.refresh / 20,
             qPrintable(QStringLiteral("%1 of %2 s").arg(took.afterwards).arg(took.refresh)));
}

void tst_PlanListCosts::unfoldingManyRowsIsQuick()
{
    // By itself the toolkit takes time with their square.
    const double time = unfoldTime(600);
    setShortcutsOn(false);
    QVERIFY(time < unfoldTime(600) / 2);
}

void tst_PlanListCosts::whatIsInSightIsPainted_data()
{
    QTest::addColumn<bool>("isShownFirst");
    QTest::newRow("refreshed on show") << true;
    QTest::newRow("shown after the refresh") << false;
}

void tst_PlanListCosts::whatIsInSightIsPainted()
{
    QFETCH(const bool, isShownFirst);
    store(20);
    ListWindow window(isShownFirst);
    window.list().refreshPlanList();
    const PaintWatch painting(window.list());
    window.show();
    QTRY_VERIFY(painting.isPainted);
    // To the last label, and nothing else.
    const QList<PlanTaskWidget*> cards = window.cards();
    QCOMPARE(cards.size(), 20);
    for (PlanTaskWidget* card : cards) {
        const bool isInSight = !card->visibleRegion().isEmpty();
        QCOMPARE(card->findChild<QWidget*>(QStringLiteral("arrow"))->visibleRegion().isEmpty(),
                 !isInSight);
    }
    QVERIFY(!cards.first()->visibleRegion().isEmpty());
    QVERIFY(cards.last()->visibleRegion().isEmpty());
    // What comes later is painted by itself.
    const PaintWatch later(*cards.first());
    cards.first()->hide();
    cards.first()->show();
    QTRY_VERIFY(later.isPainted);
}

void tst_PlanListCosts::othersAreShownMeanwhile()
{
    store(3);
    QWidget other;
    QWidget part(&other);
    part.setGeometry(0, 0, 20, 20);
    const PaintWatch painting(other);
    ListWindow window;
    QObject::connect(&window.list(), &PlanList::sigGetMapCount, [&](int count) {
        if (count == 3) {
            other.show();
        }
    });
    window.list().refreshPlanList();
    QVERIFY(other.isVisible());
    QTRY_VERIFY(painting.isPainted);
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
