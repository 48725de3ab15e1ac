#include "CardLines.h"
#include "EditorWindow.h"

#include "PlanTaskWidget.h"
#include "card/PlanColumns.h"
#include "support/ActiveAccessibility.h"
#include "support/PlanRecords.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/RecordingService.h"
#include "support/TestProgram.h"
#include "trelwidgets/TipDialog.h"

#include <QAccessible>
#include <QApplication>
#include <QItemSelectionModel>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

using namespace trel::mediadispatch;

namespace {

constexpr int kTasks = 20;
constexpr int kPlans = 14;

RecordingService& service()
{
    return RecordingService::instance();
}

/// The editor before it is shown, with more tasks than it has room for, of more plans than a card
/// has room for. The plan of row n has the id 10 + n.
class Editor
{
public:
    scheduleControlUI& dialog() { return m_window.dialog; }
    ClockAfterStart& clock() { return m_clock; }
    PlanList& list() const { return *m_window.panel().planList(); }
    QScrollArea& area() const { return *m_window.panel().findChild<QScrollArea*>(); }
    QSignalSpy& updates() { return m_window.updates; }

    void show()
    {
        m_window.dialog.slotShow();
        QTRY_COMPARE(QApplication::activeWindow(), &m_window.dialog);
        m_clock.advance(2000);
        service().clearLog();
    }

    PlanTaskWidget& card(int taskId) const
    {
        const QList<PlanTaskWidget*> cards = list().cards();
        for (PlanTaskWidget* const card : cards) {
            if (PlanTaskWidgetInspector(*card).task().id == taskId) {
                return *card;
            }
        }
        qFatal("no card of task %d", taskId);
    }

    /// The marked rows of all cards that are open, as "task row".
    QStringList marked() const
    {
        QStringList rows;
        const QList<PlanTaskWidget*> cards = list().cards();
        for (PlanTaskWidget* const card : cards) {
            const PlanTaskWidgetInspector inside(*card);
            const QModelIndexList selected = inside.table().selectionModel()->selectedRows();
            for (const QModelIndex& index : selected) {
                rows.append(QStringLiteral("%1 %2").arg(inside.task().id).arg(index.row()));
            }
        }
        return rows;
    }

    /// Whether a row can be seen in its whole height, and the card with it.
    bool isInSight(int taskId, int row) const
    {
        const QTableView& table = PlanTaskWidgetInspector(card(taskId)).table();
        const QRect cell = table.visualRect(table.model()->index(row, StateColumn));
        const QRect shown(card(taskId).mapTo(area().viewport(), QPoint()), card(taskId).size());
        return isWithin(cell, table.viewport()->rect()) &&
               isWithin(shown, area().viewport()->rect());
    }

private:
    static bool isWithin(const QRect& inner, const QRect& outer)
    {
        return inner.isValid() && inner.top() >= outer.top() && inner.bottom() <= outer.bottom();
    }

    ClockAfterStart m_clock;
    EditorWindow m_window;
};

} // namespace

namespace {

QStringList selections;

void takeSelection(QAccessibleEvent* event)
{
    const bool isSelection = event->type() == QAccessible::Selection ||
                             event->type() == QAccessible::SelectionAdd ||
                             event->type() == QAccessible::SelectionRemove ||
                             event->type() == QAccessible::SelectionWithin;
    const QAccessibleInterface* const from = isSelection ? event->accessibleInterface() : nullptr;
    if (from && qobject_cast<QTableView*>(event->object())) {
        selections.append(QStringLiteral("of the table"));
    } else if (from) {
        selections.append(
            (from->role() == QAccessible::Row ? QStringLiteral("row ") : QStringLiteral("other ")) +
            from->text(QAccessible::Name) +
            (from->state().selected ? QStringLiteral(" selected") : QString()));
    }
}

} // namespace

/// A host leads the operator to one plan.
class tst_PlanListShowPlan : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void leadsToTheRow_data();
    void leadsToTheRow();
    void showsAHiddenEditor();
    void isLockedAsAShowIs();
    void givesTheFocusToTheStart();
    void opensNoEditorOfACell();
    void marksOneRowOnly();
    void takesTheFirstOfPlansWithOneId();
    void leavesOtherCardsAsTheyAre();
    void keepsWhatIsNotSaved();
    void changesNothingInTheService();
    void ignoresWhatIsUnknown_data();
    void ignoresWhatIsUnknown();
    void asksNoMoreThanAShow_data();
    void asksNoMoreThanAShow();
    void tellsTheRow();
    void bringsAMinimisedEditorBack();
    void takesOverWhatIsTyped();
    void worksWhileAPromptStands();
    void waitsForARebuild();
    void forgetsAPlanThatARebuildDropped();
    void survivesAListThatGoesMeanwhile();
    void anotherEditorPassesItOn();
};

void tst_PlanListShowPlan::init()
{
    service().reset();
    service().addProgram(1, "Film", 60000.0);
    for (int id = 1; id <= kTasks; ++id) {
        std::vector<PlayPlan> plans;
        for (int row = 0; row < kPlans; ++row) {
            plans.push_back(timePlan(10 + row, "08:00:00", "09:00:00"));
        }
        service().stored[id] = taskWithPlans(plans, id);
    }
}

void tst_PlanListShowPlan::leadsToTheRow_data()
{
    QTest::addColumn<int>("taskId");
    QTest::addColumn<int>("row");
    QTest::newRow("first of all") << 1 << 0;
    QTest::newRow("below what is in sight") << kTasks << kPlans - 1;
    QTest::newRow("in the middle") << 9 << 12;
}

void tst_PlanListShowPlan::leadsToTheRow()
{
    QFETCH(const int, taskId);
    QFETCH(const int, row);
    Editor editor;
    editor.show();
    editor.dialog().slotShowPlan(taskId, 10 + row);
    QVERIFY(!editor.card(taskId).isFolded());
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("%1 %2").arg(taskId).arg(row)));
    QVERIFY(editor.isInSight(taskId, row));
    QCoreApplication::processEvents();
    QVERIFY(editor.isInSight(taskId, row));
    QCOMPARE(editor.updates().count(), 1);
}

void tst_PlanListShowPlan::showsAHiddenEditor()
{
    Editor editor;
    editor.dialog().slotShowPlan(kTasks, 10 + kPlans - 1);
    QVERIFY(editor.dialog().isVisible());
    QCOMPARE(editor.updates().count(), 1);
    QTRY_VERIFY(editor.isInSight(kTasks, kPlans - 1));
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("%1 %2").arg(kTasks).arg(kPlans - 1)));

    editor.dialog().close();
    service().working.at(2).plans.clear();
    editor.clock().advance(2000);
    editor.dialog().slotShowPlan(2, 10 + 3);
    QCOMPARE(editor.updates().count(), 2);
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("2 3")));
}

void tst_PlanListShowPlan::isLockedAsAShowIs()
{
    Editor editor;
    editor.clock().setElapsed(999);
    editor.dialog().slotShowPlan(2, 10);
    QVERIFY(!editor.dialog().isVisible());
    editor.clock().setElapsed(1000);
    editor.dialog().slotShowPlan(2, 10);
    QVERIFY(editor.dialog().isVisible());
    // A visible one needs no show, and is led on at once.
    editor.clock().setElapsed(0);
    editor.dialog().slotShowPlan(3, 11);
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("3 1")));
}

void tst_PlanListShowPlan::givesTheFocusToTheStart()
{
    Editor editor;
    editor.show();
    editor.dialog().slotShowPlan(4, 10 + 5);
    QVERIFY(PlanTaskWidgetInspector(editor.card(4)).startTime(5).hasFocus());
}

void tst_PlanListShowPlan::opensNoEditorOfACell()
{
    Editor editor;
    editor.show();
    editor.card(4).setFolded(false);
    const QTableView& table = PlanTaskWidgetInspector(editor.card(4)).table();
    const int children = table.viewport()->findChildren<QWidget*>().size();
    editor.dialog().slotShowPlan(4, 10 + 5);
    QCOMPARE(table.viewport()->findChildren<QWidget*>().size(), children);
    QVERIFY(!table.currentIndex().isValid());
}

void tst_PlanListShowPlan::marksOneRowOnly()
{
    Editor editor;
    editor.show();
    for (const auto& [taskId, row] : {std::pair(4, 5), std::pair(4, 6), std::pair(7, 2)}) {
        editor.dialog().slotShowPlan(taskId, 10 + row);
        QCOMPARE(editor.marked(), QStringList(QStringLiteral("%1 %2").arg(taskId).arg(row)));
    }
    // The marked card is no more.
    editor.list().slotShowTask(7);
    editor.dialog().slotShowPlan(4, 10);
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 0")));
}

void tst_PlanListShowPlan::takesTheFirstOfPlansWithOneId()
{
    service().stored.at(4).plans.at(7).id = 13;
    Editor editor;
    editor.show();
    editor.dialog().slotShowPlan(4, 13);
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 3")));
}

void tst_PlanListShowPlan::leavesOtherCardsAsTheyAre()
{
    Editor editor;
    editor.show();
    editor.card(2).setFolded(false);
    editor.dialog().slotShowPlan(4, 13);
    for (int id = 1; id <= kTasks; ++id) {
        QCOMPARE(editor.card(id).isFolded(), id != 2 && id != 4);
    }
}

void tst_PlanListShowPlan::keepsWhatIsNotSaved()
{
    Editor editor;
    editor.show();
    service().working.at(4).plans.push_back(timePlan(99, "10:00:00", "11:00:00"));
    editor.dialog().slotShowTask(4);
    editor.dialog().slotShowPlan(4, 99);
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 %1").arg(kPlans)));
    QCOMPARE(editor.updates().count(), 1);
}

void tst_PlanListShowPlan::changesNothingInTheService()
{
    Editor editor;
    editor.show();
    editor.dialog().slotShowPlan(4, 13);
    QCOMPARE(service().log, QStringList());
}

void tst_PlanListShowPlan::ignoresWhatIsUnknown_data()
{
    QTest::addColumn<int>("taskId");
    QTest::addColumn<int>("planId");
    QTest::newRow("task") << kTasks + 1 << 10;
    QTest::newRow("no task") << -1 << 10;
    QTest::newRow("plan") << 4 << 9;
    QTest::newRow("no plan") << 4 << -1;
}

void tst_PlanListShowPlan::ignoresWhatIsUnknown()
{
    QFETCH(const int, taskId);
    QFETCH(const int, planId);
    Editor editor;
    editor.show();
    editor.dialog().setWindowState(Qt::WindowMinimized);
    editor.dialog().slotShowPlan(taskId, planId);
    QVERIFY(editor.dialog().isMinimized());
    QCOMPARE(editor.marked(), QStringList());
    for (int id = 1; id <= kTasks; ++id) {
        QVERIFY(editor.card(id).isFolded());
    }
}

// Only a list that is read anew reads the stored set, and once: it may be large.
void tst_PlanListShowPlan::asksNoMoreThanAShow_data()
{
    QTest::addColumn<int>("planId");
    QTest::newRow("known") << 13;
    QTest::newRow("unknown") << 9;
}

void tst_PlanListShowPlan::asksNoMoreThanAShow()
{
    QFETCH(const int, planId);
    Editor editor;
    editor.dialog().slotShowPlan(4, planId);
    QVERIFY(editor.dialog().isVisible());
    QCOMPARE(editor.updates().count(), 1);
    QCOMPARE(service().count(QStringLiteral("getgTaskMap")), 1);
    QCOMPARE(editor.marked(), planId == 13 ? QStringList(QStringLiteral("4 3")) : QStringList());
}

void tst_PlanListShowPlan::tellsTheRow()
{
    Editor editor;
    editor.show();
    const ActiveAccessibility active;
    selections.clear();
    const auto former = QAccessible::installUpdateHandler(takeSelection);
    editor.dialog().slotShowPlan(4, 13);
    QAccessible::installUpdateHandler(former);
    QCOMPARE(selections,
             QStringList(QStringLiteral("row zhPlayTaskStr4, zhPlanTimeStr13: selected")));
}

void tst_PlanListShowPlan::bringsAMinimisedEditorBack()
{
    Editor editor;
    editor.show();
    editor.dialog().setWindowState(Qt::WindowMinimized);
    editor.dialog().slotShowPlan(4, 13);
    QVERIFY(!editor.dialog().isMinimized());
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 3")));
}

void tst_PlanListShowPlan::takesOverWhatIsTyped()
{
    Editor editor;
    editor.show();
    editor.card(2).setFolded(false);
    QCoreApplication::processEvents();
    QTimeEdit& field = PlanTaskWidgetInspector(editor.card(2)).startTime(0);
    field.setFocus();
    QVERIFY(field.hasFocus());
    field.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&field, QStringLiteral("1"));
    QCOMPARE(service().working.at(2).plans.at(0).startTime, std::string("08:00:00"));
    editor.dialog().slotShowPlan(4, 13);
    QCOMPARE(QString::fromStdString(service().working.at(2).plans.at(0).startTime).left(2),
             QStringLiteral("01"));
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 3")));
}

void tst_PlanListShowPlan::worksWhileAPromptStands()
{
    Editor editor;
    editor.show();
    editor.card(2).setFolded(false);
    QTimer::singleShot(0, &editor.dialog(), [&] {
        editor.dialog().slotShowPlan(4, 13);
        QWidget* const prompt = QApplication::activeModalWidget();
        QVERIFY(qobject_cast<trel::widgets::TipDialog*>(prompt));
        QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 3")));
        QTest::mouseClick(prompt->findChild<QPushButton*>(QStringLiteral("tipButton1")),
                          Qt::LeftButton);
    });
    QTest::mouseClick(&PlanTaskWidgetInspector(editor.card(2)).deleteButton(1), Qt::LeftButton);
    // The question was that of its own card, and is carried out there.
    QCOMPARE(int(service().working.at(2).plans.size()), kPlans - 1);
    QCOMPARE(int(service().working.at(4).plans.size()), kPlans);
    QVERIFY(editor.isInSight(4, 3));
}

void tst_PlanListShowPlan::waitsForARebuild()
{
    Editor editor;
    editor.show();
    int asked = 0;
    QObject context;
    connect(&editor.list(), &PlanList::sigGetMapCount, &context, [&](int count) {
        if (count == 0) {
            ++asked;
            editor.dialog().slotShowPlan(3, 10);
            editor.dialog().slotShowPlan(kTasks, 10 + 7);
        }
    });
    editor.dialog().clearAndInitialize();
    QVERIFY(asked >= 1);
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("%1 7").arg(kTasks)));
    QVERIFY(editor.isInSight(kTasks, 7));
    QVERIFY(editor.card(3).isFolded());
    // Once only.
    context.disconnect();
    editor.list().disconnect(&context);
    editor.dialog().clearAndInitialize();
    QCOMPARE(editor.marked(), QStringList());
}

void tst_PlanListShowPlan::forgetsAPlanThatARebuildDropped()
{
    Editor editor;
    editor.show();
    QObject context;
    service().working.at(4).plans.push_back(timePlan(99, "10:00:00", "11:00:00"));
    connect(&editor.list(), &PlanList::sigShowProcess, &context,
            [&] { editor.dialog().slotShowPlan(4, 99); });
    editor.list().refreshPlanList();
    QCOMPARE(editor.marked(), QStringList());
    QVERIFY(editor.card(4).isFolded());
}

void tst_PlanListShowPlan::survivesAListThatGoesMeanwhile()
{
    Editor editor;
    connect(&editor.list(), &PlanList::sigCloseProcess, &editor.dialog(),
            [&] { delete editor.dialog().findChild<centerWidget*>(); });
    editor.dialog().slotShowPlan(4, 13);
    QVERIFY(editor.dialog().isVisible());
    QVERIFY(!editor.dialog().findChild<centerWidget*>());
}

void tst_PlanListShowPlan::anotherEditorPassesItOn()
{
    Editor editor;
    editor.show();
    EditorWindow second;
    second.dialog.slotShowPlan(4, 13);
    QVERIFY(!second.dialog.isVisible());
    QCOMPARE(editor.marked(), QStringList(QStringLiteral("4 3")));
}

TREL_TEST(tst_PlanListShowPlan, QApplication)
#include "tst_PlanListShowPlan.moc"
