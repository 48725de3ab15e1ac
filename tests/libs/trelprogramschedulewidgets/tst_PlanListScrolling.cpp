#include "CardLines.h"
#include "KeptTasks.h"

#include "centerWidget.h"
#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

constexpr int kTasks = 60;

void store(int first, int last)
{
    for (int id = first; id <= last; ++id) {
        service().stored[id] = makeTask(id, "2024.01.01", "2024.01.02");
    }
}

/// The panel with more cards than it has room for.
class Panel
{
public:
    Panel()
    {
        m_panel.setFixedSize(1140, 600);
        m_panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_panel));
        refresh();
    }

    void refresh()
    {
        list().refreshPlanList();
        clock.advance(2000);
    }
    void scroll(int value)
    {
        bar().setValue(value);
        QCoreApplication::processEvents();
    }

    centerWidget& widget() { return m_panel; }
    PlanList& list() const { return *m_panel.planList(); }
    QScrollArea& area() const { return *m_panel.findChild<QScrollArea*>(); }
    QScrollBar& bar() const { return *area().verticalScrollBar(); }
    PlanTaskWidget& card(int taskId) const
    {
        const QString title = QStringLiteral("zhPlayTaskStr%1").arg(taskId);
        for (PlanTaskWidget* card : cardsInOrder(list())) {
            if (card->findChild<QPushButton*>(QStringLiteral("title"))->text().trimmed() == title) {
                return *card;
            }
        }
        qFatal("no card of task %d", taskId);
    }
    /// How far below the upper edge of what is in sight the card begins.
    int offset(int taskId) const { return card(taskId).mapTo(area().viewport(), QPoint()).y(); }
    bool isWholeInSight(int taskId) const
    {
        const QWidget& shown = card(taskId);
        return shown.isVisible() && offset(taskId) >= 0 &&
               offset(taskId) + shown.height() <= area().viewport()->height();
    }

    TestClock clock{kNow};

private:
    centerWidget m_panel;
};

} // namespace

/// What of a long list is in sight after tasks were added, and after a refresh.
class tst_PlanListScrolling : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anAddedCardScrollsIntoSight();
    void aCopiedCardScrollsIntoSight();
    void aCardAddedOutOfSightScrollsIntoSightWithTheList();
    void aRefreshKeepsTheTopCardInItsPlace_data();
    void aRefreshKeepsTheTopCardInItsPlace();
    void aRefreshWithoutTheTopCardKeepsTheNext();
    void aRefreshWithOtherTasksKeepsTheScrolling();
    void anOpenCardIsKeptInSightByItsTitle();
    void aRefreshOutOfSightKeepsThePlace();
    void anAddedCardCountsMoreThanAnOldPlace();
    void anOldPlaceOutlastsAnAddedCardThatWent();
};

void tst_PlanListScrolling::init()
{
    service().reset();
    store(1, kTasks);
}

void tst_PlanListScrolling::anAddedCardScrollsIntoSight()
{
    Panel panel;
    QTest::mouseClick(panel.widget().findChild<QPushButton*>(QStringLiteral("pushButtonAddTask")),
                      Qt::LeftButton);
    QVERIFY(panel.isWholeInSight(kTasks + 1));
    const int scrolled = panel.bar().value();
    QCoreApplication::processEvents();
    QVERIFY(panel.isWholeInSight(kTasks + 1));
    QCOMPARE(panel.bar().value(), scrolled);
}

void tst_PlanListScrolling::aCopiedCardScrollsIntoSight()
{
    Panel panel;
    PlanTaskWidget& source = panel.card(2);
    source.setFolded(false);
    QCoreApplication::processEvents();
    QTest::mouseClick(source.findChild<QPushButton*>(QStringLiteral("pbtCreatCopy")),
                      Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(panel.isWholeInSight(kTasks + 1));
}

void tst_PlanListScrolling::aCardAddedOutOfSightScrollsIntoSightWithTheList()
{
    Panel panel;
    panel.widget().hide();
    panel.list().slotAddOutput();
    panel.widget().show();
    QTRY_VERIFY(panel.isWholeInSight(kTasks + 1));
}

void tst_PlanListScrolling::aRefreshKeepsTheTopCardInItsPlace_data()
{
    QTest::addColumn<int>("gone");
    QTest::addColumn<bool>("clearedBefore");
    QTest::newRow("the same tasks") << 0 << false;
    QTest::newRow("a task above has gone") << 3 << false;
    QTest::newRow("a task below has gone") << 50 << false;
    QTest::newRow("cleared before") << 3 << true;
}

void tst_PlanListScrolling::aRefreshKeepsTheTopCardInItsPlace()
{
    QFETCH(const int, gone);
    QFETCH(const bool, clearedBefore);
    Panel panel;
    panel.scroll(panel.card(20).y() + 10);
    QCOMPARE(panel.offset(20), -10);
    service().stored.erase(gone);
    if (clearedBefore) {
        panel.list().slotclearPlanList();
    }
    panel.refresh();
    QCOMPARE(panel.offset(20), -10);
    QCoreApplication::processEvents();
    QCOMPARE(panel.offset(20), -10);
}

void tst_PlanListScrolling::aRefreshWithoutTheTopCardKeepsTheNext()
{
    Panel panel;
    panel.scroll(panel.card(20).y() + 10);
    const int offset = panel.offset(22);
    service().stored.erase(20);
    service().stored.erase(21);
    panel.refresh();
    QCOMPARE(panel.offset(22), offset);
}

void tst_PlanListScrolling::aRefreshWithOtherTasksKeepsTheScrolling()
{
    Panel panel;
    panel.scroll(700);
    service().stored.clear();
    store(101, 160);
    panel.refresh();
    QCOMPARE(panel.bar().value(), 700);
    service().stored.clear();
    store(201, 210);
    panel.refresh();
    QVERIFY(panel.bar().maximum() < 700);
    QCOMPARE(panel.bar().value(), panel.bar().maximum());
}

void tst_PlanListScrolling::anOpenCardIsKeptInSightByItsTitle()
{
    Panel panel;
    panel.card(20).setFolded(false);
    QCoreApplication::processEvents();
    panel.scroll(panel.card(20).y() + 200);
    QCOMPARE(panel.offset(20), -200);
    panel.refresh();
    QCOMPARE(panel.offset(20), 0);
}

void tst_PlanListScrolling::aRefreshOutOfSightKeepsThePlace()
{
    Panel panel;
    panel.scroll(panel.card(20).y() + 10);
    panel.widget().hide();
    service().stored.erase(3);
    panel.refresh();
    panel.refresh();
    panel.widget().show();
    QTRY_COMPARE(panel.offset(20), -10);
}

void tst_PlanListScrolling::anAddedCardCountsMoreThanAnOldPlace()
{
    Panel panel;
    panel.scroll(panel.card(20).y() + 10);
    panel.list().slotclearPlanList();
    service().working.clear();
    panel.list().slotAddOutput();
    QVERIFY(panel.isWholeInSight(1));
    panel.refresh();
    QCOMPARE(panel.bar().value(), 0);
}

void tst_PlanListScrolling::anOldPlaceOutlastsAnAddedCardThatWent()
{
    Panel panel;
    panel.scroll(panel.card(20).y() + 10);
    panel.widget().hide();
    panel.refresh();
    panel.list().slotAddOutput();
    panel.refresh();
    panel.widget().show();
    QTRY_COMPARE(panel.offset(20), -10);
}

TREL_TEST(tst_PlanListScrolling, QApplication)

#include "tst_PlanListScrolling.moc"
