#include "ChooserFixture.h"
#include "support/TestProgram.h"

#include "trelwidgets/Dialog.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

std::vector<struProgInfo> abc()
{
    return {entry(1, "A"), entry(2, "B"), entry(3, "C")};
}

/// As from a keyboard, which the window on top has.
void press(QWidget* widget, Qt::Key key = Qt::Key_Return,
           Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
{
    QVERIFY(QTest::qWaitForWindowActive(widget->window()));
    QTest::keyClick(widget, key, modifiers);
}

} // namespace

/// The key that confirms.
class tst_ProgramChooseKeys : public QObject
{
    Q_OBJECT

private slots:
    void confirms_data();
    void confirms();
    void confirmsANewPlan();
    void confirmsFromAnOpenEditor();
    void confirmsOnceForAHeldKey();
    void doesNothingWhileConfirmingIsDisabled();
    void theFrameDoesNotAcceptByKey();
};

void tst_ProgramChooseKeys::confirms_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("confirms");
    QTest::newRow("control return") << int(Qt::Key_Return) << int(Qt::ControlModifier) << true;
    QTest::newRow("control enter") << int(Qt::Key_Enter) << int(Qt::ControlModifier) << true;
    QTest::newRow("control enter of the keypad")
        << int(Qt::Key_Enter) << int(Qt::ControlModifier | Qt::KeypadModifier) << true;
    QTest::newRow("return") << int(Qt::Key_Return) << int(Qt::NoModifier) << false;
    QTest::newRow("shift return") << int(Qt::Key_Return) << int(Qt::ShiftModifier) << false;
    QTest::newRow("control shift return")
        << int(Qt::Key_Return) << int(Qt::ControlModifier | Qt::ShiftModifier) << false;
}

void tst_ProgramChooseKeys::confirms()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(bool, confirms);
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.setCount(2, 3);
        press(chooser.frame(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(chooser.frame()->isVisible(), !confirms);
        chooser.close();
    });
    QCOMPARE(outcome.result, confirms ? 0 : 2);
    // Stored once, as by a click.
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), confirms ? 1 : 0);
    if (confirms) {
        QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, 2 B x1, 3 C x3"));
    }
}

void tst_ProgramChooseKeys::confirmsANewPlan()
{
    ChooserFixture fixture;
    const ChooserOutcome outcome = fixture.openNew([](ChooserWindow& chooser) {
        chooser.checkProgram(1);
        chooser.choose();
        press(chooser.chooser());
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(line(outcome.programs), QStringLiteral("2 B x1"));
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), 0);
}

void tst_ProgramChooseKeys::confirmsFromAnOpenEditor()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QSpinBox* const box = chooser.openCount(0);
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("12"));
        press(box);
    });
    QCOMPARE(outcome.result, 0);
    QCOMPARE(line(outcome.programs), QStringLiteral("1 A x12, 2 B x1, 3 C x1"));
}

void tst_ProgramChooseKeys::confirmsOnceForAHeldKey()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([](ChooserWindow& chooser) {
        QVERIFY(QTest::qWaitForWindowActive(chooser.frame()));
        // The key that has opened the chooser is still down.
        QTest::simulateEvent(chooser.frame(), true, Qt::Key_Return, Qt::ControlModifier, QString(),
                             true);
        QVERIFY(chooser.frame()->isVisible());
        chooser.cancel();
    });
    QCOMPARE(outcome.result, 2);
}

void tst_ProgramChooseKeys::doesNothingWhileConfirmingIsDisabled()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        chooser.checkAllPlan();
        chooser.remove();
        QVERIFY(!chooser.canConfirm());
        press(chooser.frame());
        press(chooser.chooser());
        QVERIFY(chooser.frame()->isVisible());
        QVERIFY(chooser.chooser()->isVisible());
        chooser.cancel();
    });
    QCOMPARE(outcome.result, 2);
    QCOMPARE(fixture.service.count(QStringLiteral("addPlan")), 0);
    QCOMPARE(line(fixture.plan().programs), QStringLiteral("1 A x1, 2 B x1, 3 C x1"));
}

void tst_ProgramChooseKeys::theFrameDoesNotAcceptByKey()
{
    ChooserFixture fixture;
    fixture.setPrograms(abc());
    fixture.openExisting([](ChooserWindow& chooser) {
        auto* const frame = qobject_cast<trel::widgets::Dialog*>(chooser.frame());
        QVERIFY(!frame->acceptsByKey());
        const QSignalSpy accepted(frame, &trel::widgets::Dialog::signalAccept);
        QVERIFY(accepted.isValid());
        press(frame);
        QCOMPARE(accepted.count(), 0);
        QVERIFY(!frame->isVisible());
    });
}

TREL_TEST(tst_ProgramChooseKeys, QApplication)

#include "tst_ProgramChooseKeys.moc"
