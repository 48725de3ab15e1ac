#include "ChooserFixture.h"
#include "TabKeys.h"
#include "support/ActiveAccessibility.h"
#include "support/TestProgram.h"

#include "SHeaderView.h"
#include "access/AccessibleFactory.h"
#include "chooser/RowCursor.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

std::vector<struProgInfo> abc()
{
    return {entry(1, "A"), entry(2, "B"), entry(3, "C")};
}

/// To whatever has the focus, as from a keyboard.
void press(const char* keys)
{
    const QKeySequence sequence = QKeySequence(QLatin1String(keys));
    constexpr uint kModifiers = Qt::KeyboardModifierMask;
    const auto key = static_cast<uint>(sequence[0]);
    QTest::keyClick(QApplication::activeWindow()->windowHandle(),
                    static_cast<Qt::Key>(key & ~kModifiers),
                    static_cast<Qt::KeyboardModifiers>(key & kModifiers));
}

RowCursor& offers(const ChooserWindow& chooser)
{
    return *RowCursor::of(*chooser.programTable());
}

RowCursor& choices(const ChooserWindow& chooser)
{
    return *RowCursor::of(*chooser.planTable());
}

void activate(const ChooserWindow& chooser)
{
    QTRY_COMPARE(QApplication::activeWindow(), chooser.frame());
}

QString marks(const QStringList& rows)
{
    return rows.join(QLatin1Char('|'));
}

} // namespace

/// The keys of the chooser's tables, pressed in the shown window.
class tst_ProgramChooseRowKeys : public QObject
{
    Q_OBJECT

private slots:
    void theTablesTakeNoFocusAndSelectNothing();
    void tabGoesThroughAllControlsAndRound();
    void keysWalkTheRows();
    void rowsOutOfSightAreScrolledTo();
    void lettersGoToTheNextName();
    void spaceChecksARow();
    void aHeldSpaceChecksOnce();
    void controlAChecksAll();
    void returnAddsWhatIsChecked();
    void returnAddsTheRowWhenNothingIsChecked();
    void deleteRemovesWhatIsChecked();
    void deleteRemovesTheRowWhenNothingIsChecked();
    void altArrowsMoveTheRow();
    void countsAreTyped();
    void countsAreOpened();
    void aCountOpensInSight();
    void escapeLeavesTheCountAlone();
    void escapeLeavesTheChooser();
    void anEmptyTableIsPassedThrough();
    void aPressTakesTheRowAlong();
    void theRowIsFramedWhileItHasTheKeys();
    void marksAreToldAsTheyChange();
    void marksOfTheHeaderAreTold();
    void aPressTellsTheRow();
};

void tst_ProgramChooseRowKeys::theTablesTakeNoFocusAndSelectNothing()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        for (const QTableView* table : {chooser.programTable(), chooser.planTable()}) {
            QCOMPARE(table->focusPolicy(), Qt::NoFocus);
            QCOMPARE(table->selectionMode(), QAbstractItemView::NoSelection);
            QVERIFY(RowCursor::of(*table)->testAttribute(Qt::WA_TransparentForMouseEvents));
            QCOMPARE(RowCursor::of(*table)->geometry(), table->viewport()->geometry());
        }
        QCOMPARE(chooser.planTable()->editTriggers(), QAbstractItemView::DoubleClicked);
        press("Down");
        press("Space");
        QVERIFY(chooser.programTable()->selectionModel()->selectedIndexes().isEmpty());
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::tabGoesThroughAllControlsAndRound()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        QList<QWidget*> wanted{&offers(chooser),
                               chooser.button("pushButtonChonse"),
                               chooser.button("UpBtn"),
                               chooser.button("DownBtn"),
                               chooser.button("pushButtonDelete"),
                               &choices(chooser),
                               chooser.button("cancelBtn"),
                               chooser.button("comfirmBtn")};
        QCOMPARE(QApplication::focusWidget(), wanted.front());
        QList<QWidget*> reached;
        for (int i = 0; i < wanted.size(); ++i) {
            reached.append(QApplication::focusWidget());
            QVERIFY(pressTab());
        }
        QCOMPARE(reached, wanted);
        QCOMPARE(QApplication::focusWidget(), wanted.front());
        QCOMPARE(pressTab(false), wanted.back());
        QCOMPARE(pressTab(false), wanted.at(wanted.size() - 2));
        QCOMPARE(pressTab(false), &choices(chooser));
        QCOMPARE(pressTab(false), wanted.at(4));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::keysWalkTheRows()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        const RowCursor& cursor = offers(chooser);
        QCOMPARE(cursor.row(), 0);
        const std::pair<const char*, int> steps[] = {
            {"Up", 0},   {"Down", 1}, {"Down", 2},   {"Up", 1},   {"End", 5},
            {"Down", 5}, {"Home", 0}, {"PgDown", 5}, {"PgUp", 0},
        };
        for (const auto& [keys, row] : steps) {
            press(keys);
            QCOMPARE(cursor.row(), row);
        }
        QCOMPARE(QApplication::focusWidget(), &cursor);
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::rowsOutOfSightAreScrolledTo()
{
    ChooserFixture fixture;
    for (int index = 7; index <= 60; ++index) {
        fixture.service.addProgram(index, "More", 1.0);
    }
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        QTableView* const table = chooser.programTable();
        const auto isInSight = [table](int row) {
            const QRect cell = table->visualRect(table->model()->index(row, 2));
            return table->viewport()->rect().contains(cell);
        };
        press("PgDown");
        const int page = offers(chooser).row();
        QVERIFY(page > 3 && page < 20);
        QVERIFY(isInSight(page));
        press("End");
        QCOMPARE(offers(chooser).row(), 59);
        QVERIFY(isInSight(59) && !isInSight(0));
        // Those that mean nothing here do not reach the table either.
        for (const char* keys : {"Right", "Ctrl+Home", "Ctrl+Up", "Left", "Alt+M"}) {
            press(keys);
            QVERIFY2(isInSight(59), keys);
        }
        QCOMPARE(offers(chooser).row(), 59);
        QCOMPARE(table->currentIndex(), QModelIndex());
        press("Home");
        QVERIFY(isInSight(0));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::lettersGoToTheNextName()
{
    ChooserFixture fixture;
    fixture.service.addProgram(7, "bats", 1.0);
    fixture.service.addProgram(8, "24 h", 1.0);
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        press("B");
        QCOMPARE(offers(chooser).row(), 1);
        press("B");
        QCOMPARE(offers(chooser).row(), 6);
        press("B");
        QCOMPARE(offers(chooser).row(), 1);
        press("X");
        QCOMPARE(offers(chooser).row(), 1);
        press("2");
        QCOMPARE(offers(chooser).row(), 7);
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::spaceChecksARow()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        press("Down");
        press("Space");
        press("Home");
        press("Space");
        QCOMPARE(chooser.programRows().mid(0, 3),
                 (QStringList{QStringLiteral("[x]02 A"), QStringLiteral("[x]01 B"),
                              QStringLiteral("[ ] C")}));
        press("Space");
        QCOMPARE(chooser.programRows().front(), QStringLiteral("[ ] A"));
        choices(chooser).setFocus();
        press("End");
        press("Space");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 B x1|[x]03 C x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::aHeldSpaceChecksOnce()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        press("Space");
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(&offers(chooser), &held);
        QCOMPARE(chooser.programRows().front(), QStringLiteral("[x]01 A"));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::controlAChecksAll()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        press("Ctrl+A");
        QCOMPARE(chooser.programRows().back(), QStringLiteral("[x]06 F"));
        press("Ctrl+A");
        QCOMPARE(chooser.programRows().back(), QStringLiteral("[ ] F"));
        choices(chooser).setFocus();
        press("Ctrl+A");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[x]01 A x1|[x]02 B x1|[x]03 C x1"));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::returnAddsWhatIsChecked()
{
    ChooserFixture fixture;
    const ChooserOutcome outcome = fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        for (const char* keys : {"End", "Space", "Up", "Space", "Home", "Return"}) {
            press(keys);
        }
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 F x1|[ ]02 E x1"));
        // They stay checked, as after a press of the button.
        QCOMPARE(chooser.programRows().back(), QStringLiteral("[x]01 F"));
        press("Ctrl+Return");
    });
    QCOMPARE(line(outcome.programs), QStringLiteral("6 F x1, 5 E x1"));
}

void tst_ProgramChooseRowKeys::returnAddsTheRowWhenNothingIsChecked()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        press("Down");
        press("Enter");
        press("Return");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 B x1"));
        QCOMPARE(chooser.programRows().at(1), QStringLiteral("[ ] B"));
        QVERIFY(chooser.canConfirm());
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::deleteRemovesWhatIsChecked()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        choices(chooser).setFocus();
        for (const char* keys : {"Space", "End", "Space", "Up", "Del"}) {
            press(keys);
        }
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 B x1"));
        QCOMPARE(choices(chooser).row(), 0);
        QCOMPARE(QApplication::focusWidget(), &choices(chooser));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::deleteRemovesTheRowWhenNothingIsChecked()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        press("Del");
        choices(chooser).setFocus();
        press("Down");
        press("Del");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 C x1"));
        QCOMPARE(choices(chooser).row(), 1);
        press("Del");
        press("Del");
        QVERIFY(!chooser.canConfirm());
        QCOMPARE(choices(chooser).row(), -1);
        press("Del");
        press("Alt+Up");
        press("F2");
        QCOMPARE(chooser.planRows(), QStringList());
        // The mark that the last row had for the press is not the one of the header.
        const auto* const header =
            qobject_cast<SHeaderView*>(chooser.planTable()->horizontalHeader());
        QVERIFY(!header->isChecked());
        offers(chooser).setFocus();
        press("Return");
        choices(chooser).setFocus();
        press("Ctrl+A");
        QCOMPARE(chooser.planRows(), QStringList(QStringLiteral("[x]01 A x1")));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::altArrowsMoveTheRow()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        choices(chooser).setFocus();
        press("Alt+Down");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 A x1|[ ]03 C x1"));
        QCOMPARE(choices(chooser).row(), 1);
        press("Alt+Down");
        press("Alt+Down");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 B x1|[ ]02 C x1|[ ]03 A x1"));
        QCOMPARE(choices(chooser).row(), 2);
        press("Alt+Up");
        press("Ctrl+Return");
    });
    QCOMPARE(line(outcome.programs), QStringLiteral("2 B x1, 1 A x1, 3 C x1"));
}

void tst_ProgramChooseRowKeys::countsAreTyped()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        choices(chooser).setFocus();
        press("Down");
        press("1");
        auto* const box = qobject_cast<QSpinBox*>(QApplication::focusWidget());
        QVERIFY(box);
        QCOMPARE(box->accessibleName(), QStringLiteral("B, zhPlayCounts"));
        press("2");
        press("Return");
        QCOMPARE(marks(chooser.planRows()), QStringLiteral("[ ]01 A x1|[ ]02 B x12|[ ]03 C x1"));
        QCOMPARE(chooser.total(), QStringLiteral("02:20:00.000"));
        QCOMPARE(QApplication::focusWidget(), &choices(chooser));
        QCOMPARE(choices(chooser).row(), 1);
        press("Ctrl+Return");
    });
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x1, 2 B x12, 3 C x1"));
}

void tst_ProgramChooseRowKeys::countsAreOpened()
{
    for (const char* keys : {"F2", "Return"}) {
        ChooserFixture fixture;
        fixture.setPrograms(abc());
        fixture.openExisting([keys](ChooserWindow& chooser) {
            activate(chooser);
            choices(chooser).setFocus();
            press(keys);
            press("Up");
            press("Up");
            press("Return");
            QCOMPARE(chooser.planRows().front(), QStringLiteral("[ ]01 A x3"));
            QCOMPARE(QApplication::focusWidget(), &choices(chooser));
            chooser.cancel();
        });
    }
}

void tst_ProgramChooseRowKeys::aCountOpensInSight()
{
    ChooserFixture fixture;
    fixture.setPrograms(std::vector<struProgInfo>(60, entry(1, "A")));
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        choices(chooser).setFocus();
        QScrollBar* const bar = chooser.planTable()->verticalScrollBar();
        bar->setValue(bar->maximum());
        press("F2");
        const QWidget* const box = qobject_cast<QSpinBox*>(QApplication::focusWidget());
        QVERIFY(box);
        QVERIFY(chooser.planTable()->viewport()->rect().contains(box->geometry()));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::escapeLeavesTheCountAlone()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        choices(chooser).setFocus();
        press("9");
        press("Esc");
        QVERIFY(chooser.frame()->isVisible());
        QCOMPARE(chooser.planRows().front(), QStringLiteral("[ ]01 A x1"));
        QCOMPARE(chooser.total(), QStringLiteral("00:30:00.000"));
        QCOMPARE(QApplication::focusWidget(), &choices(chooser));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::escapeLeavesTheChooser()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        press("Esc");
        QVERIFY(!chooser.frame()->isVisible());
    });
}

void tst_ProgramChooseRowKeys::anEmptyTableIsPassedThrough()
{
    ChooserFixture fixture;
    fixture.service.programs.clear();
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        for (const char* keys : {"Down", "PgDown", "End", "Space", "Ctrl+A", "Return", "B"}) {
            press(keys);
        }
        QCOMPARE(offers(chooser).row(), -1);
        QCOMPARE(pressTab(), chooser.button("pushButtonChonse"));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::aPressTakesTheRowAlong()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        chooser.checkProgram(3);
        QCOMPARE(offers(chooser).row(), 3);
        press("Down");
        press("Space");
        QCOMPARE(chooser.programRows().at(4), QStringLiteral("[x]02 E"));
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::theRowIsFramedWhileItHasTheKeys()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        const auto picture = [&chooser] { return chooser.programTable()->grab().toImage(); };
        const QImage first = picture();
        press("Down");
        const QImage second = picture();
        QVERIFY(first != second);
        chooser.button("cancelBtn")->setFocus();
        const QImage without = picture();
        QVERIFY(without != first && without != second);
        offers(chooser).setFocus();
        QCOMPARE(picture(), second);
        chooser.cancel();
    });
}

namespace {

QStringList heard;

void listen(QAccessibleEvent* event)
{
    const QAccessibleInterface* const from = event->accessibleInterface();
    const QString name = from ? from->text(QAccessible::Name) : QString();
    if (event->type() == QAccessible::Focus) {
        heard.append(QStringLiteral("focus ") + name);
    } else if (event->type() == QAccessible::Alert) {
        heard.append(QStringLiteral("say ") + name);
    } else if (event->type() == QAccessible::StateChanged && from &&
               from->role() == QAccessible::CheckBox) {
        heard.append(name + (from->state().checked ? QStringLiteral(" checked")
                                                   : QStringLiteral(" not checked")));
    }
}

} // namespace

void tst_ProgramChooseRowKeys::marksAreToldAsTheyChange()
{
    installAccessibleFactory();
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        QCoreApplication::processEvents();
        const ActiveAccessibility active;
        heard.clear();
        const auto former = QAccessible::installUpdateHandler(listen);
        press("Down");
        press("Space");
        press("Space");
        QCOMPARE(heard, (QStringList{QStringLiteral("focus B"), QStringLiteral("B checked"),
                                     QStringLiteral("B not checked")}));
        heard.clear();
        // The mark that the row has meanwhile is nothing to be said; what has come is.
        press("Return");
        QCOMPARE(heard, QStringList(QStringLiteral("say B")));
        heard.clear();
        chooser.button("cancelBtn")->setFocus();
        offers(chooser).setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(heard.mid(1),
                 (QStringList{QStringLiteral("focus szProgramLstStr"), QStringLiteral("focus B")}));
        QAccessible::installUpdateHandler(former);
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::marksOfTheHeaderAreTold()
{
    installAccessibleFactory();
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    fixture.openExisting([](ChooserWindow& chooser) {
        activate(chooser);
        QCoreApplication::processEvents();
        const ActiveAccessibility active;
        const auto former = QAccessible::installUpdateHandler(listen);
        const auto told = [](const char* keys) {
            heard.clear();
            press(keys);
            return heard.join(u'|');
        };
        QCOMPARE(told("Ctrl+A"), QStringLiteral("A checked|szProgramLstStr checked"));
        QCOMPARE(told("Space"), QStringLiteral("A not checked|szProgramLstStr not checked"));
        QCOMPARE(told("Space"), QStringLiteral("A checked|szProgramLstStr checked"));
        press("Space");
        press("Down");
        // The row of the keys has its mark already.
        QCOMPARE(told("Ctrl+A"), QStringLiteral("szProgramLstStr checked"));
        QCOMPARE(told("Ctrl+A"), QStringLiteral("B not checked|szProgramLstStr not checked"));
        heard.clear();
        auto* const dialog = qobject_cast<ProgramChoose*>(chooser.chooser());
        dialog->slotChecked(static_cast<CheckType>(2), 0, true);
        dialog->slotSelectAll(static_cast<CheckType>(2), true);
        QCOMPARE(heard, QStringList());
        // The mark that the only row has for the press is not told, nor that of the header.
        choices(chooser).setFocus();
        QCoreApplication::processEvents();
        QCOMPARE(told("Del"), QString());
        QAccessible::installUpdateHandler(former);
        chooser.cancel();
    });
}

void tst_ProgramChooseRowKeys::aPressTellsTheRow()
{
    installAccessibleFactory();
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) {
        activate(chooser);
        QCoreApplication::processEvents();
        const ActiveAccessibility active;
        const auto former = QAccessible::installUpdateHandler(listen);
        const QTableView* const table = chooser.programTable();
        const auto pressName = [table](int row) {
            heard.clear();
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                              table->visualRect(table->model()->index(row, 2)).center());
            return heard.join(u'|');
        };
        // It is the row of the keys already.
        QCOMPARE(pressName(0), QString());
        QCOMPARE(pressName(2), QStringLiteral("focus C"));
        QAccessible::installUpdateHandler(former);
        chooser.cancel();
    });
}

TREL_TEST(tst_ProgramChooseRowKeys, QApplication)

#include "tst_ProgramChooseRowKeys.moc"
