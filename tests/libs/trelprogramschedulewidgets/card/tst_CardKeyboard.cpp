#include "KeyboardWindow.h"

#include "support/ChooserAnswer.h"
#include "support/PromptAnswer.h"
#include "support/TestProgram.h"

#include "MultiComboBox.h"
#include "trelwidgets/ComboBox.h"

#include <QApplication>
#include <QShortcut>
#include <QSpinBox>
#include <QTableView>
#include <QTimeEdit>
#include <QTimer>

#include <functional>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

QString idsOf(const PlayTask& task)
{
    QStringList ids;
    for (const PlayPlan& plan : task.plans) {
        ids << QString::number(plan.id);
    }
    return ids.join(QLatin1Char(' '));
}

} // namespace

/// The keys that act on the card and the row with the focus, pressed in the shown window.
class tst_CardKeyboard : public QObject, private KeyboardWindow
{
    Q_OBJECT

private slots:
    void init() { setUpWindow(); }
    void cleanup() { tearDownWindow(); }

    void keysWalkTheBars();
    void fromInsideItsOwnBarComesFirst();
    void aBarOutOfSightIsScrolledTo();
    void spaceAndReturnFoldTheBarUnderTheFocus();
    void theFoldKeyWorksInsideACard();
    void copyTask();
    void deleteTask();
    void deleteTaskMayBeRefused();
    void aKeyAheadOfThePromptDoesNothing();
    void theLastTaskLeavesTheFocusInThePanel();
    void addPlan();
    void addPlanOpensAFoldedCard();
    void copyPlan();
    void deletePlan();
    void deleteTheOnlyPlan();
    void choosePrograms();
    void keysOfARowNeedARow();
    void theMouseTakesACardAwayAndKeysGoOn();
};

void tst_CardKeyboard::keysWalkTheBars()
{
    press("Ctrl+PgUp");
    QCOMPARE(QApplication::focusWidget(), area());
    for (const int index : {0, 1, 2, 2}) {
        press("Ctrl+PgDown");
        QCOMPARE(QApplication::focusWidget(), bar(index));
    }
    for (const int index : {1, 0, 0}) {
        press("Ctrl+PgUp");
        QCOMPARE(QApplication::focusWidget(), bar(index));
    }
    QCOMPARE(bar(0)->focusPolicy(), Qt::NoFocus);
    QCOMPARE(service().log, QStringList());
}

void tst_CardKeyboard::fromInsideItsOwnBarComesFirst()
{
    card(1).setFolded(false);
    focus(rows(1).startTime(1));
    press("Ctrl+PgUp");
    QCOMPARE(QApplication::focusWidget(), bar(1));
    focus(rows(1).startTime(1));
    press("Ctrl+PgDown");
    QCOMPARE(QApplication::focusWidget(), bar(2));
    QCOMPARE(rows(1).startTime(1).time(), QTime(10, 0));
}

void tst_CardKeyboard::aBarOutOfSightIsScrolledTo()
{
    for (int index = 0; index < 3; ++index) {
        card(index).setFolded(false);
    }
    QCoreApplication::processEvents();
    QVERIFY(bar(2)->visibleRegion().isEmpty());
    for (int index = 0; index < 3; ++index) {
        press("Ctrl+PgDown");
    }
    QCOMPARE(bar(2)->visibleRegion().boundingRect(), bar(2)->rect());
}

void tst_CardKeyboard::spaceAndReturnFoldTheBarUnderTheFocus()
{
    press("Ctrl+PgDown");
    press("Space");
    QVERIFY(!card(0).isFolded());
    press("Return");
    QVERIFY(card(0).isFolded());
    QCOMPARE(QApplication::focusWidget(), bar(0));
    press("Space");
    press("Tab");
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("dateEditVaildStartTime"));
    QVERIFY(card(0).isAncestorOf(QApplication::focusWidget()));
}

void tst_CardKeyboard::theFoldKeyWorksInsideACard()
{
    card(1).setFolded(false);
    focus(rows(1).weeks(1));
    press("F3");
    QVERIFY(card(1).isFolded());
    QCOMPARE(QApplication::focusWidget(), bar(1));
    press("F3");
    QVERIFY(!card(1).isFolded());
    QVERIFY(card(0).isFolded());
    area()->setFocus();
    press("F3");
    QVERIFY(!card(1).isFolded());
}

void tst_CardKeyboard::copyTask()
{
    press("Ctrl+Shift+D");
    QCOMPARE(cards(), 3);
    card(1).setFolded(false);
    focus(rows(1).mode(0));
    press("Ctrl+Shift+D");
    QCOMPARE(cards(), 4);
    QCOMPARE(service().edits().first(), QStringLiteral("getTask(2)"));
    QCOMPARE(QApplication::focusWidget(), bar(3));
}

void tst_CardKeyboard::deleteTask()
{
    press("Ctrl+PgDown");
    press("Ctrl+PgDown");
    const PromptAnswer answer({1, 1});
    press("Ctrl+Shift+Del");
    QCOMPARE(answer.texts(), QStringList{QStringLiteral("szDeleteTaskConfirmStr")});
    QCOMPARE(cards(), 2);
    QCOMPARE(service().working.count(2), std::size_t(0));
    comeBack();
    QCOMPARE(QApplication::focusWidget(), bar(1));
    // The last one hands over to the one above.
    press("Ctrl+Shift+Del");
    comeBack();
    QCOMPARE(QApplication::focusWidget(), bar(0));
}

void tst_CardKeyboard::deleteTaskMayBeRefused()
{
    press("Ctrl+PgDown");
    const PromptAnswer answer(2);
    press("Ctrl+Shift+Del");
    QCOMPARE(cards(), 3);
    comeBack();
    QCOMPARE(QApplication::focusWidget(), bar(0));
}

void tst_CardKeyboard::aKeyAheadOfThePromptDoesNothing()
{
    constexpr int kRefuse = 2;
    press("Ctrl+PgDown");
    const PromptAnswer prompt(kRefuse);
    // Short cuts fire behind the prompt until the system gives it the focus.
    const QObject context;
    bool areFired = false;
    const std::function<void()> fire = [&] {
        if (!QApplication::activeModalWidget()) {
            QTimer::singleShot(0, &context, fire);
            return;
        }
        areFired = true;
        const auto shortcuts = m_window->panel().findChildren<QShortcut*>();
        for (QShortcut* const shortcut : shortcuts) {
            emit shortcut->activated();
        }
    };
    fire();
    press("Ctrl+Shift+Del");
    QVERIFY(areFired);
    QCOMPARE(prompt.count(), 1);
    QVERIFY(m_window->dialog.isVisible());
    QCOMPARE(cards(), 3);
}

void tst_CardKeyboard::theLastTaskLeavesTheFocusInThePanel()
{
    const PromptAnswer answer({1, 1, 1});
    for (int i = 0; i < 3; ++i) {
        press("Ctrl+PgDown");
        comeBack();
        press("Ctrl+PgUp");
        press("Ctrl+Shift+Del");
        comeBack();
    }
    QCOMPARE(cards(), 0);
    QCOMPARE(QApplication::focusWidget(), area());
    press("Ctrl+Shift+N");
    QCOMPARE(cards(), 1);
}

void tst_CardKeyboard::addPlan()
{
    card(1).setFolded(false);
    focus(rows(1).startTime(0));
    const ChooserAnswer chooser([](ChooserWindow& window) {
        window.checkProgram(0);
        window.choose();
        window.confirm();
    });
    press("Ctrl+N");
    QCOMPARE(rows(1).rowCount(), 3);
    comeBack();
    QCOMPARE(QApplication::focusWidget(), &rows(1).mode(2));
}

void tst_CardKeyboard::addPlanOpensAFoldedCard()
{
    press("Ctrl+PgDown");
    const ChooserAnswer chooser([](ChooserWindow& window) { window.cancel(); });
    press("Ctrl+N");
    QVERIFY(!card(0).isFolded());
    QCOMPARE(rows(0).rowCount(), 2);
}

void tst_CardKeyboard::copyPlan()
{
    card(1).setFolded(false);
    focus(rows(1).weeks(0));
    press("Ctrl+D");
    QCOMPARE(idsOf(rows(1).task()), QStringLiteral("1 2 3"));
    QCOMPARE(rows(1).task().plans[2].startTime, std::string("09:00:00"));
    QCOMPARE(QApplication::focusWidget(), &rows(1).weeks(2));
    // In between two others, so that it is neither the first row nor the last.
    focus(rows(1).times(1));
    press("Ctrl+D");
    QCOMPARE(idsOf(rows(1).task()), QStringLiteral("1 2 3 4"));
    QCOMPARE(rows(1).task().plans[3].mode, static_cast<int>(FrequencyMode));
    QCOMPARE(rows(1).task().plans[3].programs.size(), std::size_t(1));
    QCOMPARE(QApplication::focusWidget(), &rows(1).times(3));
    QCOMPARE(idsOf(rows(0).task()), QStringLiteral("1 2"));
}

void tst_CardKeyboard::deletePlan()
{
    card(1).setFolded(false);
    focus(rows(1).startTime(0));
    const PromptAnswer answer({2, 1});
    press("Ctrl+Del");
    QCOMPARE(answer.texts(), QStringList{QStringLiteral("szDeletePlanConfirmStr")});
    QCOMPARE(idsOf(rows(1).task()), QStringLiteral("1 2"));
    comeBack();
    QCOMPARE(QApplication::focusWidget(), &rows(1).startTime(0));
    press("Ctrl+Del");
    QCOMPARE(idsOf(rows(1).task()), QStringLiteral("2"));
    comeBack();
    QCOMPARE(QApplication::focusWidget(), &rows(1).startTime(0));
}

void tst_CardKeyboard::deleteTheOnlyPlan()
{
    card(1).setFolded(false);
    const PromptAnswer answer({1, 1});
    // The runs of the row that stays are disabled in the one that is left.
    focus(rows(1).times(1));
    press("Ctrl+Del");
    comeBack();
    QCOMPARE(QApplication::focusWidget(), &rows(1).mode(0));
    press("Ctrl+Del");
    QCOMPARE(rows(1).rowCount(), 0);
    comeBack();
    QCOMPARE(QApplication::focusWidget(), bar(1));
}

void tst_CardKeyboard::choosePrograms()
{
    card(1).setFolded(false);
    // Of these two plans the second has a program.
    for (const int row : {0, 1}) {
        focus(rows(1).endAction(row));
        const ChooserAnswer chooser([row](ChooserWindow& window) {
            QCOMPARE(window.planRows().size(), row);
            window.cancel();
        });
        press("F2");
        QCOMPARE(chooser.count(), 1);
        comeBack();
        QCOMPARE(QApplication::focusWidget(), &rows(1).endAction(row));
    }
}

void tst_CardKeyboard::keysOfARowNeedARow()
{
    const PromptAnswer noPrompt;
    for (const bool isInCard : {false, true}) {
        for (const char* const key : {"Ctrl+D", "Ctrl+Del", "F2"}) {
            press(key);
        }
        if (!isInCard) {
            press("Ctrl+PgDown");
            press("Space");
            press("Tab");
        }
    }
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("dateEditVaildStartTime"));
    QCOMPARE(service().log, QStringList());
}

void tst_CardKeyboard::theMouseTakesACardAwayAndKeysGoOn()
{
    card(0).setFolded(false);
    focus(rows(0).startTime(0));
    const PromptAnswer answer(1);
    card(0).findChild<QPushButton*>(QStringLiteral("pushButtonDelete"))->click();
    QCOMPARE(cards(), 2);
    comeBack();
    press("Ctrl+PgDown");
    QCOMPARE(QApplication::focusWidget(), bar(0));
}

TREL_TEST(tst_CardKeyboard, QApplication)
#include "tst_CardKeyboard.moc"
