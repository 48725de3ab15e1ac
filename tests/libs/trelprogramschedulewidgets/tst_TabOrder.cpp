#include "EditorWindow.h"
#include "TabKeys.h"

#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/PromptAnswer.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QDateEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

PlayTask task(int id, int plans)
{
    std::vector<PlayPlan> rows;
    for (int plan = 1; plan <= plans; ++plan) {
        // Every second row counts its runs, so that another editor is disabled in it.
        rows.push_back(plan % 2 == 0 ? frequencyPlan(plan, "08:00:00", 2, {entry(1)})
                                     : timePlan(plan, "08:00:00", "09:00:00"));
    }
    return taskWithPlans(rows, id);
}

} // namespace

/// Tab and Shift+Tab, pressed in the shown window, through all editors of all rows.
class tst_TabOrder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void throughAllRowsAndOutAgain();
    void backThroughAllRows();
    void foldedCardsArePassedOver();
    void openedLaterStandsAtItsPlace();
    void copiedRowStandsBehindItsTable();
    void copiedRowOfAnUpperCardStandsBeforeTheNextCard();
    void deletedRowLeavesNoGap();
    void copiedTaskStandsLast();
    void rowsBelowTheEdgeComeIntoSight();

private:
    struct Card
    {
        explicit Card(PlanTaskWidget& card)
            : widget(card)
            , rows(card)
        {}

        PlanTaskWidget& widget;
        PlanTaskWidgetInspector rows;
    };

    Card card(int index) const;
    void open(int index) const;
    QWidget* area() const { return m_window->panel().findChild<QScrollArea*>(); }
    /// What an operator reads, from the first day of the first open card on.
    QList<QWidget*> wanted() const;
    /// What the key reaches from the scroll area until it is back there.
    QList<QWidget*> reached(bool forward) const;
    void compare(QList<QWidget*> reached, bool forward = true) const;

    std::unique_ptr<ClockAfterStart> m_clock;
    std::unique_ptr<EditorWindow> m_window;
};

void tst_TabOrder::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
    for (int id = 1; id <= 3; ++id) {
        service().stored[id] = task(id, id);
    }
    m_clock = std::make_unique<ClockAfterStart>();
    m_window = std::make_unique<EditorWindow>();
    m_window->dialog.slotShow();
    m_window->dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window->dialog));
    m_clock->advance(2000);
}

void tst_TabOrder::cleanup()
{
    m_window.reset();
    m_clock.reset();
}

tst_TabOrder::Card tst_TabOrder::card(int index) const
{
    return Card(*m_window->panel().planList()->cards().at(index));
}

void tst_TabOrder::open(int index) const
{
    card(index).widget.setFolded(false);
    QCoreApplication::processEvents();
}

QList<QWidget*> tst_TabOrder::wanted() const
{
    QList<QWidget*> fields;
    const int cards = m_window->panel().planList()->cards().size();
    for (int index = 0; index < cards; ++index) {
        const Card shown = card(index);
        if (shown.widget.isFolded()) {
            continue;
        }
        fields << shown.widget.findChild<QWidget*>(QStringLiteral("dateEditVaildStartTime"))
               << shown.widget.findChild<QWidget*>(QStringLiteral("dateEditVaildEndTime"));
        for (int row = 0; row < shown.rows.rowCount(); ++row) {
            for (QWidget* editor : std::initializer_list<QWidget*>{
                     &shown.rows.mode(row), &shown.rows.startTime(row), &shown.rows.endTime(row),
                     &shown.rows.times(row), &shown.rows.weeks(row), &shown.rows.endAction(row)}) {
                if (editor->isEnabled()) {
                    fields << editor;
                }
            }
        }
    }
    return fields;
}

QList<QWidget*> tst_TabOrder::reached(bool forward) const
{
    constexpr int kMost = 200;
    // After a prompt no window manager gives it back to the window below.
    m_window->dialog.activateWindow();
    if (!QTest::qWaitForWindowActive(&m_window->dialog)) {
        return {};
    }
    area()->setFocus();
    QList<QWidget*> fields;
    for (int i = 0; i < kMost; ++i) {
        QWidget* const field = pressTab(forward);
        if (!field || field == area()) {
            break;
        }
        fields << field;
    }
    return fields;
}

void tst_TabOrder::compare(QList<QWidget*> reached, bool forward) const
{
    if (!forward) {
        std::reverse(reached.begin(), reached.end());
    }
    QCOMPARE(reached, wanted());
    QCOMPARE(QApplication::focusWidget(), area());
}

void tst_TabOrder::throughAllRowsAndOutAgain()
{
    open(0);
    open(1);
    open(2);
    QCOMPARE(wanted().size(), 3 * 2 + 6 * 5);
    compare(reached(true));
}

void tst_TabOrder::backThroughAllRows()
{
    open(0);
    open(1);
    open(2);
    compare(reached(false), false);
}

void tst_TabOrder::foldedCardsArePassedOver()
{
    compare(reached(true));
    open(1);
    QCOMPARE(wanted().size(), 2 + 2 * 5);
    compare(reached(true));
    compare(reached(false), false);
}

void tst_TabOrder::openedLaterStandsAtItsPlace()
{
    open(2);
    open(0);
    open(1);
    compare(reached(true));
    compare(reached(false), false);
}

void tst_TabOrder::copiedRowStandsBehindItsTable()
{
    open(2);
    card(2).rows.copyButton(0).click();
    card(2).rows.copyButton(3).click();
    QCOMPARE(card(2).rows.rowCount(), 5);
    compare(reached(true));
    compare(reached(false), false);
}

void tst_TabOrder::copiedRowOfAnUpperCardStandsBeforeTheNextCard()
{
    open(0);
    open(1);
    card(0).rows.copyButton(0).click();
    QCOMPARE(card(0).rows.rowCount(), 2);
    compare(reached(true));
    compare(reached(false), false);
}

void tst_TabOrder::deletedRowLeavesNoGap()
{
    open(1);
    open(2);
    const PromptAnswer answer({1, 1});
    card(2).rows.deleteButton(0).click();
    card(1).rows.deleteButton(1).click();
    QCOMPARE(card(2).rows.rowCount(), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    card(1).rows.copyButton(0).click();
    compare(reached(true));
    compare(reached(false), false);
}

void tst_TabOrder::copiedTaskStandsLast()
{
    card(1).widget.slotCopyTask();
    QCoreApplication::processEvents();
    open(0);
    QCOMPARE(wanted().size(), (2 + 5) + (2 + 2 * 5));
    compare(reached(true));
    compare(reached(false), false);
}

void tst_TabOrder::rowsBelowTheEdgeComeIntoSight()
{
    service().stored[2] = task(2, 12);
    m_window->dialog.clearAndInitialize();
    open(1);
    const Card shown = card(1);
    const QWidget& port = *shown.rows.table().viewport();
    area()->setFocus();
    for (QWidget* const field : wanted()) {
        QCOMPARE(pressTab(), field);
        if (port.isAncestorOf(field)) {
            const QRect inTable(field->mapTo(&port, QPoint()), field->size());
            QVERIFY(port.rect().contains(inTable));
        }
        QVERIFY(!field->visibleRegion().isEmpty());
    }
    // And back to the top.
    area()->setFocus();
    QCOMPARE(pressTab(), wanted().first());
    QCOMPARE(pressTab(), wanted().at(1));
    QCOMPARE(pressTab(), wanted().at(2));
    QCOMPARE(shown.rows.table().verticalScrollBar()->value(), 0);
}

TREL_TEST(tst_TabOrder, QApplication)
#include "tst_TabOrder.moc"
