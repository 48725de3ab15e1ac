#include "EditorWindow.h"

#include "CheckBoxImages.h"
#include "PlanList.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "TitleBar.h"
#include "support/MessageLog.h"
#include "support/MetaMethods.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"
#include "tstranslate/Translator.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

tessark::trans::Translator& translator()
{
    return ProgramSheduleWidgetTranslateManager::instance().translator();
}

} // namespace

class tst_scheduleControlUI : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void declaresItsMethodsInOrder();
    void holdsThePanelAlone();
    void onlyTheIdleConnectionsAreRefused();
    void clearAndInitializeInOrder();
    void cancelClosesAndCallsNothing();
    void saveClosesAfterSaving();
    void startSavesAndStays();
    void escapeLeavesTheWindowOpen();
    void otherKeysReachTheDialog();
    void imagePathsAreKept();
    void unsetHasNoEffect();
    void nobodyListensToTheLanguageIndex();
    void aMissingFileStillSelectsTheDefaultLanguage();
};

void tst_scheduleControlUI::init()
{
    service().reset();
    checkBoxImagePaths() = {};
    translator().switchLanguage(QStringLiteral("zh_CN"));
}

void tst_scheduleControlUI::declaresItsMethodsInOrder()
{
    const QMetaObject& metaObject = scheduleControlUI::staticMetaObject;
    QCOMPARE(
        ownMethods(metaObject, QMetaMethod::Signal).join(QLatin1Char(' ')),
        QStringLiteral("signalUpdatePlanList() sigclearPlanList() signalTranslationByQz7(int)"));
    QCOMPARE(ownMethods(metaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral("slotCancel() slotSave() slotStart() slotShow(bool) slotShow() "
                            "slotShowTask(int) slotShowPlan(int,int)"));
}

void tst_scheduleControlUI::holdsThePanelAlone()
{
    const EditorWindow editor;
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(editor.panel().parentWidget(), editor.dialog.dialogWidget());
    QCOMPARE(editor.panel().minimumSize(), QSize(1140, 600));
    QCOMPARE(editor.panel().maximumSize(), QSize(1140, 600));
    const auto* layout = qobject_cast<QVBoxLayout*>(editor.dialog.dialogWidget()->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), static_cast<QWidget*>(&editor.panel()));
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUI::onlyTheIdleConnectionsAreRefused()
{
    const MessageLog log;
    const scheduleControlUI dialog;
    QCOMPARE(log.texts(),
             QStringList({QStringLiteral("QObject::connect(trel::mediadispatch::TitleBar, "
                                         "trel::mediadispatch::scheduleControlUI): invalid nullptr "
                                         "parameter"),
                          QStringLiteral("QObject::connect(trel::mediadispatch::scheduleControlUI, "
                                         "Unknown): invalid nullptr parameter")}));
    QVERIFY(dialog.findChild<TitleBar*>() == nullptr);
}

void tst_scheduleControlUI::clearAndInitializeInOrder()
{
    service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
    EditorWindow editor;
    editor.dialog.clearAndInitialize();
    service().clearLog();
    QObject::connect(
        editor.panel().planList(), &PlanList::sigGetMapCount, &editor.dialog,
        [](int count) { service().log.append(QStringLiteral("count %1").arg(count)); });
    editor.dialog.clearAndInitialize();
    QCOMPARE(service().edits(),
             QStringList({QStringLiteral("count 0"), QStringLiteral("resetUiTask()"),
                          QStringLiteral("count 0"), QStringLiteral("getgTaskMap()"),
                          QStringLiteral("updateUItask()"), QStringLiteral("count 1")}));
    QCOMPARE(editor.clears.count(), 2);
    QCOMPARE(editor.updates.count(), 2);
}

void tst_scheduleControlUI::cancelClosesAndCallsNothing()
{
    const ClockAfterStart clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    editor.dialog.slotCancel();
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUI::saveClosesAfterSaving()
{
    const ClockAfterStart clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    QTest::mouseClick(editor.button("pushButtonSave"), Qt::LeftButton);
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(service().log,
             QStringList({QStringLiteral("getAllTask()"), QStringLiteral("save()")}));
}

void tst_scheduleControlUI::startSavesAndStays()
{
    const ClockAfterStart clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    QTest::mouseClick(editor.button("pushButtonStart"), Qt::LeftButton);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(service().log, QStringList({QStringLiteral("getAllTask()"), QStringLiteral("save()"),
                                         QStringLiteral("slotOpen()")}));
}

void tst_scheduleControlUI::escapeLeavesTheWindowOpen()
{
    const ClockAfterStart clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.accept();
    QCoreApplication::sendEvent(&editor.dialog, &escape);
    QVERIFY(!escape.isAccepted());
    QVERIFY(editor.dialog.isVisible());
    QTest::keyClick(&editor.dialog, Qt::Key_Escape);
    QVERIFY(editor.dialog.isVisible());
}

void tst_scheduleControlUI::otherKeysReachTheDialog()
{
    const ClockAfterStart clock;
    EditorWindow editor;
    const QSignalSpy accepts(&editor.dialog, &scheduleControlUI::signalAccept);
    QVERIFY(accepts.isValid());
    auto* byKey = new QPushButton(&editor.dialog);
    byKey->setDefault(true);
    const QSignalSpy clicks(byKey, &QPushButton::clicked);
    QVERIFY(clicks.isValid());
    editor.dialog.slotShow(false);
    QTest::keyClick(&editor.dialog, Qt::Key_Return);
    QCOMPARE(clicks.count(), 1);
    // The frame's own key does not reach the frame.
    QTest::keyClick(&editor.dialog, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(accepts.count(), 0);
}

void tst_scheduleControlUI::imagePathsAreKept()
{
    const EditorWindow editor;
    editor.dialog.setCheckBoxImagePath(QStringLiteral("on.png"), QStringLiteral("off.png"));
    QCOMPARE(checkBoxImagePaths().checked, QStringLiteral("on.png"));
    QCOMPARE(checkBoxImagePaths().unchecked, QStringLiteral("off.png"));
}

void tst_scheduleControlUI::unsetHasNoEffect()
{
    const ClockAfterStart clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    editor.dialog.unsetScheduleManage();
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(service().log, QStringList());
    editor.dialog.slotStart();
    QCOMPARE(service().log, QStringList({QStringLiteral("save()"), QStringLiteral("slotOpen()")}));
}

void tst_scheduleControlUI::nobodyListensToTheLanguageIndex()
{
    EditorWindow editor;
    QSignalSpy emissions(&editor.dialog, &scheduleControlUI::signalTranslationByQz7);
    QVERIFY(emissions.isValid());
    const QString text = editor.button("pushButtonSave")->text();
    const QString language = translator().language();
    emit editor.dialog.signalTranslationByQz7(2);
    QCOMPARE(emissions.count(), 1);
    QCOMPARE(editor.button("pushButtonSave")->text(), text);
    QCOMPARE(translator().language(), language);
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUI::aMissingFileStillSelectsTheDefaultLanguage()
{
    const EditorWindow editor;
    editor.dialog.switchLanguage(QStringLiteral("en_US"));
    QCOMPARE(translator().language(), QStringLiteral("en_US"));
    editor.dialog.loadLanguageFiles({});
    QCOMPARE(translator().language(), QStringLiteral("zh_CN"));
    editor.dialog.switchLanguage(QStringLiteral("en_US"));
    editor.dialog.loadLanguageFiles({QStringLiteral("/nowhere/at_all.qm")});
    QCOMPARE(translator().language(), QStringLiteral("zh_CN"));
}

TREL_TEST(tst_scheduleControlUI, QApplication)

#include "tst_scheduleControlUI.moc"
