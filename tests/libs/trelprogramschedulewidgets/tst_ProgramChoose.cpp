#include "ChooserFixture.h"

#include "ScheduleText.h"
#include "support/MessageLog.h"
#include "support/MetaMethods.h"
#include "support/TestProgram.h"
#include "trelwidgets/Dialog.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace trel::mediadispatch;

/// The chooser itself: its form, its texts, its frame and its life.
class tst_ProgramChoose : public QObject
{
    Q_OBJECT

private slots:
    void slotsInOrderAndNoSignals();
    void theTypeOfItsSignalsIsRegistered();
    void texts();
    void hooksOfStyleSheets();
    void sizesOfTheForm();
    void theFrame();
    void theFrameSwitchesItsSize();
    void keysAreTheFramesToAnswer();
    void theCatalogueMayChangeWhileItIsOpen();
    void theFrameStaysWithTheCaller();
    void aCallerMayGoWhileItIsOpen();
    void nothingIsSaidInTheLog();
};

namespace {

QString propertyOf(const QWidget* widget, const char* name)
{
    return widget->property(name).toString();
}

} // namespace

void tst_ProgramChoose::slotsInOrderAndNoSignals()
{
    QCOMPARE(
        ownMethods(ProgramChoose::staticMetaObject, QMetaMethod::Slot),
        (QStringList{QStringLiteral("slotChecked(CheckType,int,bool)"),
                     QStringLiteral("slotSelectAll(CheckType,bool)"), QStringLiteral("slotChose()"),
                     QStringLiteral("slotDelete()"), QStringLiteral("slotSave()"),
                     QStringLiteral("slotCancel()"), QStringLiteral("slotClicked()"),
                     QStringLiteral("onCustomContextMenuRequested(QPoint)"),
                     QStringLiteral("onActionInsertProgramTriggered()"),
                     QStringLiteral("slotProgIndexChanged()"),
                     QStringLiteral("onSpinBoxValueChanged(QModelIndex,int)"),
                     QStringLiteral("onOkBtnClicked()"), QStringLiteral("onCancelBtnClicked()")}));
    QCOMPARE(ownMethods(ProgramChoose::staticMetaObject, QMetaMethod::Signal), QStringList());
}

void tst_ProgramChoose::theTypeOfItsSignalsIsRegistered()
{
    ChooserFixture fixture;
    fixture.openNew([](ChooserWindow& chooser) { chooser.cancel(); });
    QVERIFY(QMetaType::type("CheckType") != QMetaType::UnknownType);
}

void tst_ProgramChoose::texts()
{
    ChooserFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.label("label")->text(), scheduleText("szProgramLstStr"));
        QCOMPARE(chooser.label("label_2")->text(), scheduleText("szPlanLstStr"));
        QCOMPARE(chooser.label("tipLab")->text(), scheduleText("zhOnlyOne"));
        QCOMPARE(chooser.label("label_timeWord")->text(), scheduleText("zhTotalDuration"));
        QCOMPARE(chooser.label("overTimeTip")->text(), scheduleText("zhOverTimeTips"));
        QCOMPARE(chooser.button("pushButtonDelete")->text(), scheduleText("szDeleteStr"));
        QCOMPARE(chooser.button("comfirmBtn")->text(), scheduleText("zhFixAct"));
        QCOMPARE(chooser.button("cancelBtn")->text(), scheduleText("zhCancelAct"));
        QCOMPARE(chooser.button("pushButtonChonse")->text(), QString());
        QCOMPARE(chooser.chooser()->windowTitle(), QStringLiteral("ProgramChoose"));
        chooser.cancel();
    });
}

void tst_ProgramChoose::hooksOfStyleSheets()
{
    ChooserFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(propertyOf(chooser.button("pushButtonDelete"), "style"), QStringLiteral("assist"));
        QCOMPARE(propertyOf(chooser.button("cancelBtn"), "style"), QStringLiteral("assist"));
        QCOMPARE(propertyOf(chooser.label("tipLab"), "style"), QStringLiteral("errorHint"));
        QCOMPARE(propertyOf(chooser.label("overTimeTip"), "style"), QStringLiteral("errorHint"));
        QCOMPARE(propertyOf(chooser.button("pushButtonChonse"), "imageBtn"),
                 QStringLiteral("turnNext"));
        QVERIFY(chooser.button("okBtn") == nullptr);
        chooser.cancel();
    });
}

void tst_ProgramChoose::sizesOfTheForm()
{
    ChooserFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) {
        QCOMPARE(chooser.chooser()->maximumSize(), QSize(764, QWIDGETSIZE_MAX));
        QCOMPARE(chooser.programTable()->minimumSize(), QSize(202, 280));
        QCOMPARE(chooser.planTable()->minimumSize(), QSize(285, 280));
        QCOMPARE(chooser.button("pushButtonChonse")->size(), QSize(24, 24));
        QCOMPARE(chooser.button("UpBtn")->size(), QSize(20, 20));
        QCOMPARE(chooser.button("DownBtn")->size(), QSize(20, 20));
        QCOMPARE(chooser.button("pushButtonDelete")->height(), 20);
        QCOMPARE(chooser.button("comfirmBtn")->height(), 24);
        QCOMPARE(chooser.button("cancelBtn")->height(), 24);
        QCOMPARE(chooser.label("label")->height(), 24);
        QCOMPARE(chooser.label("label_2")->height(), 24);
        QCOMPARE(chooser.label("warningLab")->maximumSize(), QSize(16, 16));
        QCOMPARE(chooser.chooser()->layout()->contentsMargins(), QMargins(11, 11, 11, 11));
        chooser.cancel();
    });
}

void tst_ProgramChoose::theFrame()
{
    ChooserFixture fixture;
    fixture.openExisting([&](ChooserWindow& chooser) {
        const auto* frame = qobject_cast<trel::widgets::Dialog*>(chooser.frame());
        QVERIFY(frame != nullptr);
        QCOMPARE(frame->parentWidget(), &fixture.caller);
        QVERIFY(frame->isModal());
        QCOMPARE(frame->windowTitle(), scheduleText("zhSelectProgramsStr"));
        QCOMPARE(frame->size(), QSize(610, 470));
        QCOMPARE(frame->dialogWidget()->layout()->contentsMargins(), QMargins());
        QCOMPARE(chooser.chooser()->parentWidget(), frame->dialogWidget());
        QVERIFY(!chooser.chooser()->isWindow());
        chooser.cancel();
    });
}

void tst_ProgramChoose::theFrameSwitchesItsSize()
{
    ChooserFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) {
        auto* button = chooser.frame()->findChild<QPushButton*>(QStringLiteral("ButtonScale"));
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(chooser.frame()->width(), 610);
        // As tall as the screen allows, 1000 at the most.
        QVERIFY(chooser.frame()->height() > 470);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(chooser.frame()->size(), QSize(610, 470));
        chooser.cancel();
    });
}

void tst_ProgramChoose::keysAreTheFramesToAnswer()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    const ChooserOutcome outcome = fixture.openExisting([&](ChooserWindow& chooser) {
        fixture.service.clearLog();
        QTest::keyClick(chooser.chooser(), Qt::Key_Return);
        QTest::keyClick(chooser.chooser(), Qt::Key_Enter);
        QVERIFY(chooser.frame()->isVisible());
        QVERIFY(chooser.chooser()->isVisible());
        QCOMPARE(fixture.service.log, QStringList());
        QTest::keyClick(chooser.chooser(), Qt::Key_Escape);
        // The frame has closed, not the chooser inside it.
        QVERIFY(!chooser.frame()->isVisible());
        QVERIFY(!chooser.chooser()->isHidden());
    });
    QCOMPARE(outcome.result, 2);
}

void tst_ProgramChoose::theCatalogueMayChangeWhileItIsOpen()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A")});
    fixture.openExisting([&](ChooserWindow& chooser) {
        const QStringList programs = chooser.programRows();
        const QStringList plan = chooser.planRows();
        fixture.service.programs.clear();
        fixture.service.clearLog();
        emit RecordingService::manager().sigProgIndexChanged();
        QCOMPARE(chooser.programRows(), programs);
        QCOMPARE(chooser.planRows(), plan);
        QCOMPARE(fixture.service.log, QStringList());
        chooser.cancel();
    });
}

void tst_ProgramChoose::theFrameStaysWithTheCaller()
{
    ChooserFixture fixture;
    fixture.openExisting([](ChooserWindow& chooser) { chooser.cancel(); });
    fixture.openNew([](ChooserWindow& chooser) { chooser.cancel(); });
    const auto frames = fixture.caller.findChildren<trel::widgets::Dialog*>();
    QCOMPARE(frames.size(), 2);
    for (const trel::widgets::Dialog* frame : frames) {
        QVERIFY(frame->isHidden());
        QVERIFY(frame->findChild<ProgramChoose*>() == nullptr);
    }
}

void tst_ProgramChoose::aCallerMayGoWhileItIsOpen()
{
    ChooserFixture fixture;
    auto caller = std::make_unique<QWidget>();
    PlayTask task = fixture.task;
    const ChooserAnswer answer([&](ChooserWindow&) { caller.reset(); });
    ProgramChoose chooser(&task, ChooserFixture::kTask, ChooserFixture::kPlan, caller.get(), true);
    QCOMPARE(chooser.execChoose(), 2);
    QVERIFY(chooser.parent() == nullptr);
}

void tst_ProgramChoose::nothingIsSaidInTheLog()
{
    ChooserFixture fixture;
    fixture.setPrograms({entry(1, "A"), badEntry(100, "Old")});
    const MessageLog log;
    fixture.openExisting([](ChooserWindow& chooser) {
        chooser.checkProgram(0);
        chooser.choose();
        chooser.setCount(0, 3);
        chooser.contextMenu(0);
        chooser.confirm();
    });
    QCOMPARE(log.texts(), QStringList());
}

TREL_TEST(tst_ProgramChoose, QApplication)

#include "tst_ProgramChoose.moc"
