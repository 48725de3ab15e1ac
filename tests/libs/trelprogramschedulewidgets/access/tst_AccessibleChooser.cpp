#include "ShownEditor.h"

#include "support/ChooserAnswer.h"
#include "support/ChooserWindow.h"
#include "support/PlanTaskWidgetInspector.h"
#include "support/TestProgram.h"

#include <QAccessible>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QAccessibleInterface* spoken(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

/// A cell as one line: its role, what it says and what it holds.
QString line(QAccessibleInterface* cell)
{
    const QString name = cell->text(QAccessible::Name);
    switch (cell->role()) {
    case QAccessible::CheckBox:
        return QStringLiteral("%1 %2").arg(
            cell->state().checked ? QStringLiteral("[x]") : QStringLiteral("[ ]"), name);
    case QAccessible::SpinBox:
        return QStringLiteral("%1 = %2").arg(name, cell->text(QAccessible::Value));
    default:
        return name;
    }
}

QAccessibleInterface* at(QTableView* table, int row, int column)
{
    return spoken(table)->tableInterface()->cellAt(row, column);
}

/// All cells below the headings.
QStringList lines(QTableView* table)
{
    QStringList all;
    const int columns = spoken(table)->tableInterface()->columnCount();
    for (int i = columns; i < spoken(table)->childCount(); ++i) {
        all.append(line(spoken(table)->child(i)));
    }
    return all;
}

void toggle(QAccessibleInterface* cell)
{
    QVERIFY(cell->actionInterface());
    cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
}

} // namespace

/// What a screen reader finds in the tables of the chooser, and does with them.
class tst_AccessibleChooser : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theWindowAroundItIsTheDialog();
    void cellsOfBothTables();
    void columnsHaveTheirLabels();
    void headingsStandOverTheirCells();
    void theMarkOfTheHeadingChecksAll();
    void theRowOfTheKeysHasTheFocus();
    void whatHasTheFocusIsNoOtherTable();
    void marksSayTheirPlace();
    void theWayUpIsTheWayDown();
    void programsAreCheckedAndChosen();
    void countsAreReadAndSet();
    void countsAreSetBesideOneAnother();
    void whatIsNoCountChangesNothing();
    void rowsThatHaveGoneAreNotValid();
    void nothingIsWorkedBehindAnotherWindow();
    void nothingIsWorkedBehindAMenu();
    void buttonsOfOtherWindowsAreTheToolkits();

private:
    /// Opens the chooser of the first plan, which holds the first program once.
    void withChooser(const std::function<void(ChooserWindow&)>& steps);

    std::unique_ptr<ShownEditor> m_editor;
};

void tst_AccessibleChooser::init()
{
    m_editor = std::make_unique<ShownEditor>();
    RecordingService::instance().addProgram(2, "News", 30000.0);
}

void tst_AccessibleChooser::cleanup()
{
    m_editor.reset();
}

void tst_AccessibleChooser::withChooser(const std::function<void(ChooserWindow&)>& steps)
{
    const PlanTaskWidgetInspector rows(m_editor->card(0));
    bool isDone = false;
    const ChooserAnswer answer([&](ChooserWindow& chooser) {
        steps(chooser);
        isDone = true;
        chooser.cancel();
    });
    rows.cell(0, ProgramsColumn)->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    QVERIFY(isDone);
}

void tst_AccessibleChooser::theWindowAroundItIsTheDialog()
{
    withChooser([this](ChooserWindow& chooser) {
        QVERIFY(spoken(chooser.frame())->state().modal);
        QCOMPARE(spoken(chooser.frame())->role(), QAccessible::Dialog);
        // It is a dialog in a dialog, and has no title of its own.
        QCOMPARE(spoken(chooser.chooser())->role(), QAccessible::Grouping);
        QVERIFY(!spoken(&m_editor->dialog())->state().modal);
    });
}

void tst_AccessibleChooser::cellsOfBothTables()
{
    withChooser([](ChooserWindow& chooser) {
        QCOMPARE(spoken(chooser.programTable())->role(), QAccessible::Table);
        QCOMPARE(lines(chooser.programTable()).join(u'|'),
                 QStringLiteral("[ ] Film||Film|[ ] News||News"));
        // The columns that tie a row to its records are not shown.
        QCOMPARE(lines(chooser.planTable()).join(u'|'),
                 QStringLiteral("[ ] Film|01|Film|Film, zhPlayCounts = 1"));
    });
}

void tst_AccessibleChooser::columnsHaveTheirLabels()
{
    withChooser([](ChooserWindow& chooser) {
        const QAccessibleTableInterface* const plan = spoken(chooser.planTable())->tableInterface();
        QStringList labels;
        for (int column = 0; column < plan->columnCount(); ++column) {
            labels.append(plan->columnDescription(column));
        }
        QCOMPARE(labels.join(u'|'), QStringLiteral("|zhCheckNumber|szProgramLstStr|zhPlayCounts"));
        QCOMPARE(plan->columnDescription(4), QString());
        QCOMPARE(plan->columnDescription(-1), QString());
        QCOMPARE(plan->rowDescription(0), QStringLiteral("Film"));
        QCOMPARE(plan->rowCount(), 1);
    });
}

void tst_AccessibleChooser::headingsStandOverTheirCells()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleInterface* const plan = spoken(chooser.planTable());
        for (int column = 0; column < 4; ++column) {
            QAccessibleInterface* const heading = plan->child(column);
            QCOMPARE(heading->role(),
                     column == 0 ? QAccessible::CheckBox : QAccessible::ColumnHeader);
            QCOMPARE(heading->text(QAccessible::Name),
                     column == 0 ? chooser.planTable()->accessibleName()
                                 : plan->tableInterface()->columnDescription(column));
            const auto* const below = at(chooser.planTable(), 0, column)->tableCellInterface();
            QCOMPARE(below->columnHeaderCells(), QList<QAccessibleInterface*>{heading});
            QCOMPARE(below->rowIndex(), 0);
            QCOMPARE(below->columnIndex(), column);
            QCOMPARE(below->table(), plan);
        }
        QVERIFY(!plan->child(1)->actionInterface());
    });
}

void tst_AccessibleChooser::theMarkOfTheHeadingChecksAll()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleInterface* const mark = spoken(chooser.programTable())->child(0);
        QVERIFY(mark->state().checkable && !mark->state().checked);
        toggle(mark);
        QVERIFY(mark->state().checked);
        QCOMPARE(chooser.programRows(),
                 QStringList({QStringLiteral("[x]01 Film"), QStringLiteral("[x]02 News")}));
        toggle(at(chooser.programTable(), 0, 0));
        QVERIFY(!mark->state().checked);
        QDialog prompt(chooser.frame());
        prompt.setModal(true);
        prompt.show();
        toggle(mark);
        QVERIFY(!mark->state().checked);
        prompt.close();
    });
}

void tst_AccessibleChooser::theRowOfTheKeysHasTheFocus()
{
    withChooser([](ChooserWindow& chooser) {
        QTRY_COMPARE(QApplication::activeWindow(), chooser.frame());
        QAccessibleInterface* const news = at(chooser.programTable(), 1, 0);
        QAccessibleInterface* const film = at(chooser.programTable(), 0, 0);
        QVERIFY(film->state().focusable && film->state().focused && !news->state().focused);
        QCOMPARE(spoken(chooser.programTable())->focusChild(), film);
        news->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(news->state().focused && !film->state().focused);
        // What has the focus in place of the table speaks as the table.
        QAccessibleInterface* const inPlace =
            QAccessible::queryAccessibleInterface(QApplication::focusWidget());
        QCOMPARE(inPlace->role(), QAccessible::Table);
        QCOMPARE(inPlace->text(QAccessible::Name), chooser.programTable()->accessibleName());
        QCOMPARE(inPlace->focusChild(), news);
        QCOMPARE(inPlace->parent(), spoken(chooser.programTable()));
        spoken(chooser.planTable())
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(at(chooser.planTable(), 0, 0)->state().focused);
        QVERIFY(!news->state().focused);
    });
}

void tst_AccessibleChooser::whatHasTheFocusIsNoOtherTable()
{
    withChooser([](ChooserWindow& chooser) {
        QTRY_COMPARE(QApplication::activeWindow(), chooser.frame());
        QTableView* const view = chooser.programTable();
        QWidget* const cursor = QApplication::focusWidget();
        QVERIFY(view->isAncestorOf(cursor));
        const QAccessible::Id table = QAccessible::uniqueId(spoken(view));
        const QAccessible::Id mark = QAccessible::uniqueId(at(view, 0, 0));
        QCOMPARE(spoken(cursor), spoken(cursor));
        QVERIFY(spoken(cursor) != spoken(view));
        QCOMPARE(QAccessible::uniqueId(spoken(view)), table);
        QCOMPARE(QAccessible::uniqueId(at(view, 0, 0)), mark);
        // The rows are told once, below the table.
        QCOMPARE(spoken(cursor)->childCount(), 0);
        QVERIFY(!spoken(cursor)->tableInterface());
    });
}

void tst_AccessibleChooser::marksSayTheirPlace()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleInterface* const news = at(chooser.programTable(), 1, 0);
        QCOMPARE(news->text(QAccessible::Description), QString());
        toggle(news);
        QCOMPARE(news->text(QAccessible::Description), QStringLiteral("01"));
        QCOMPARE(at(chooser.planTable(), 0, 0)->text(QAccessible::Description),
                 QStringLiteral("01, zhPlayCounts 1"));
    });
}

void tst_AccessibleChooser::theWayUpIsTheWayDown()
{
    withChooser([](ChooserWindow& chooser) {
        QTableView* const view = chooser.programTable();
        QAccessibleInterface* const table = spoken(view);
        for (int i = 0; i < table->childCount(); ++i) {
            QAccessibleInterface* const cell = table->child(i);
            QVERIFY(cell->isValid());
            QCOMPARE(cell->parent(), table);
            QCOMPARE(table->indexOfChild(cell), i);
            if (i >= 3) {
                QCOMPARE(table->tableInterface()->cellAt(i / 3 - 1, i % 3), cell);
            }
            const QPoint place = cell->rect().center();
            QCOMPARE(table->childAt(place.x(), place.y()), cell);
        }
        QVERIFY(!table->child(9));
        QVERIFY(!table->tableInterface()->cellAt(2, 0));
        QVERIFY(!table->child(-1));
        QVERIFY(!table->tableInterface()->cellAt(0, 3));
        QVERIFY(!table->childAt(-5000, -5000));
        QCOMPARE(spoken(chooser.planTable())->indexOfChild(table->child(0)), -1);
        view->setColumnHidden(1, true);
        QCOMPARE(table->childCount(), 6);
        QCOMPARE(line(table->child(4)), QStringLiteral("[ ] News"));
        QCOMPARE(table->child(5)->tableCellInterface()->columnIndex(), 1);
    });
}

void tst_AccessibleChooser::programsAreCheckedAndChosen()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleInterface* const news = at(chooser.programTable(), 1, 0);
        QCOMPARE(news->text(QAccessible::Name), QStringLiteral("News"));
        QVERIFY(news->state().checkable && !news->state().checked);
        toggle(news);
        QVERIFY(news->state().checked);
        // It has its place in the order, as after a press.
        QCOMPARE(chooser.programRows(),
                 QStringList({QStringLiteral("[ ] Film"), QStringLiteral("[x]01 News")}));
        toggle(news);
        QVERIFY(!news->state().checked);
        toggle(news);
        chooser.choose();
        QCOMPARE(lines(chooser.planTable()).join(u'|'),
                 QStringLiteral("[ ] Film|01|Film|Film, zhPlayCounts = 1|"
                                "[ ] News|02|News|News, zhPlayCounts = 1"));
        // Only marks are turned over.
        QVERIFY(!at(chooser.programTable(), 1, 2)->actionInterface());
    });
}

void tst_AccessibleChooser::countsAreReadAndSet()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleInterface* const cell = at(chooser.planTable(), 0, 3);
        QAccessibleValueInterface* const count = cell->valueInterface();
        QVERIFY(count);
        QCOMPARE(count->currentValue().toInt(), 1);
        QCOMPARE(count->minimumValue().toInt(), 1);
        QCOMPARE(count->maximumValue().toInt(), 999);
        const QString before = chooser.total();
        count->setCurrentValue(3.0);
        QTRY_COMPARE(count->currentValue().toInt(), 3);
        QCOMPARE(before, QStringLiteral("00:01:00.000"));
        QCOMPARE(chooser.total(), QStringLiteral("00:03:00.000"));
        count->setCurrentValue(1e9);
        QTRY_COMPARE(count->currentValue().toInt(), 999);
        QVERIFY(!at(chooser.planTable(), 0, 2)->valueInterface());
    });
}

void tst_AccessibleChooser::countsAreSetBesideOneAnother()
{
    withChooser([](ChooserWindow& chooser) {
        QTRY_COMPARE(QApplication::activeWindow(), chooser.frame());
        toggle(at(chooser.programTable(), 1, 0));
        chooser.choose();
        QSpinBox* const box = chooser.openCount(0);
        QPushButton* const cancel = chooser.button("cancelBtn");
        box->setFocus();
        at(chooser.planTable(), 0, 3)->valueInterface()->setCurrentValue(3);
        at(chooser.planTable(), 1, 3)->valueInterface()->setCurrentValue(4);
        QCOMPARE(lines(chooser.planTable()).join(u'|'),
                 QStringLiteral("[ ] Film|01|Film|Film, zhPlayCounts = 3|"
                                "[ ] News|02|News|News, zhPlayCounts = 4"));
        QCOMPARE(chooser.total(), QStringLiteral("00:05:00.000"));
        // A box that is open shows what has been set.
        QCOMPARE(box->value(), 3);
        QCOMPARE(QApplication::focusWidget(), box);
        cancel->setFocus();
        at(chooser.planTable(), 1, 3)->valueInterface()->setCurrentValue(5);
        QCOMPARE(QApplication::focusWidget(), cancel);
        QCOMPARE(chooser.planRows().back(), QStringLiteral("[ ]02 News x5"));
    });
}

void tst_AccessibleChooser::whatIsNoCountChangesNothing()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleValueInterface* const count = at(chooser.planTable(), 0, 3)->valueInterface();
        count->setCurrentValue(3);
        QTRY_COMPARE(count->currentValue().toInt(), 3);
        count->setCurrentValue(QStringLiteral("many"));
        count->setCurrentValue(qQNaN());
        QCoreApplication::processEvents();
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[ ]01 Film x3")));
    });
}

void tst_AccessibleChooser::rowsThatHaveGoneAreNotValid()
{
    withChooser([](ChooserWindow& chooser) {
        QAccessibleInterface* const mark = at(chooser.planTable(), 0, 0);
        toggle(mark);
        chooser.remove();
        QVERIFY(!mark->isValid());
        QVERIFY(mark->state().invalid);
        QCOMPARE(mark->text(QAccessible::Name), QString());
        QCOMPARE(spoken(chooser.planTable())->indexOfChild(mark), -1);
        mark->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(chooser.planRows(), QStringList());
    });
}

void tst_AccessibleChooser::nothingIsWorkedBehindAnotherWindow()
{
    withChooser([](ChooserWindow& chooser) {
        QDialog prompt(chooser.frame());
        prompt.setModal(true);
        prompt.show();
        QAccessibleInterface* const mark = at(chooser.programTable(), 0, 0);
        toggle(mark);
        at(chooser.planTable(), 0, 3)->valueInterface()->setCurrentValue(5);
        QCoreApplication::processEvents();
        QVERIFY(!mark->state().checked);
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[ ]01 Film x1")));
        prompt.close();
        toggle(mark);
        QVERIFY(mark->state().checked);
    });
}

void tst_AccessibleChooser::nothingIsWorkedBehindAMenu()
{
    withChooser([](ChooserWindow& chooser) {
        QPushButton* const button = chooser.button("pushButtonDelete");
        const auto pressDelete = [button] {
            spoken(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            // It comes with what is posted: no timer is waited for.
            QCoreApplication::sendPostedEvents(button, QEvent::MetaCall);
        };
        QAccessibleInterface* const mark = at(chooser.planTable(), 0, 0);
        toggle(mark);
        QMenu menu;
        menu.addAction(QStringLiteral("Other"));
        menu.popup(chooser.planTable()->mapToGlobal(QPoint(9, 9)));
        QTRY_COMPARE(QApplication::activePopupWidget(), &menu);
        toggle(mark);
        QVERIFY(mark->state().checked);
        pressDelete();
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[x]01 Film x1")));
        menu.close();
        pressDelete();
        QCOMPARE(chooser.planRows(), QStringList());
    });
}

void tst_AccessibleChooser::buttonsOfOtherWindowsAreTheToolkits()
{
    QWidget window;
    auto* const button = new QPushButton(QStringLiteral("Other"), &window);
    window.show();
    QDialog prompt;
    prompt.setModal(true);
    prompt.show();
    const QSignalSpy pressed(button, &QPushButton::clicked);
    spoken(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    // Those of the library are not pressed behind a prompt. What others do there is not its affair.
    QTRY_COMPARE(pressed.size(), 1);
}

TREL_TEST(tst_AccessibleChooser, QApplication)
#include "tst_AccessibleChooser.moc"
