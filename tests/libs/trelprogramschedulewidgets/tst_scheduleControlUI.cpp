#include "CheckBoxImages.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"
#include "ProgramSheduleWidgetTranslateManager.h"
#include "TitleBar.h"
#include "centerWidget.h"
#include "scheduleControlUI.h"
#include "support/MessageLog.h"
#include "support/MetaMethods.h"
#include "support/RecordingService.h"
#include "support/RefusedConnections.h"
#include "support/TaskRecords.h"
#include "support/TestClock.h"
#include "tstranslate/Translator.h"

#include <QDateEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

namespace {

const QDateTime kNow(QDate(2024, 3, 10), QTime(12, 0));

RecordingService& service()
{
    return RecordingService::instance();
}

tessark::trans::Translator& translator()
{
    return ProgramSheduleWidgetTranslateManager::instance().translator();
}

/// A clock that also sees whether a timer was restarted between two readings.
class TimerWatch : public TestClock
{
public:
    TimerWatch()
        : TestClock(kNow)
    {
        setElapsed(1000);
    }

    qint64 elapsed(const QElapsedTimer& timer) const override
    {
        m_restarted = !(timer == m_seen);
        m_seen = timer;
        return TestClock::elapsed(timer);
    }

    /// Whether the timer had been restarted when it was last read.
    bool wasRestarted() const { return m_restarted; }

private:
    mutable QElapsedTimer m_seen;
    mutable bool m_restarted = false;
};

/// The dialog with its panel and what it asked of its list.
struct Editor : RefusedConnections
{
    Editor()
        : updates(&dialog, &scheduleControlUI::signalUpdatePlanList)
        , clears(&dialog, &scheduleControlUI::sigclearPlanList)
    {}

    centerWidget& panel() const { return *dialog.findChild<centerWidget*>(); }
    QPushButton* button(const char* name) const
    {
        return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
    }

    scheduleControlUI dialog;
    QSignalSpy updates;
    QSignalSpy clears;
};

} // namespace

class tst_scheduleControlUI : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void declaresItsMethodsInOrder();
    void holdsThePanelAlone();
    void onlyTheIdleConnectionsAreRefused();
    void showIsLockedForASecondAfterConstruction();
    void showIsLockedForASecondAfterAShow();
    void aRefusedShowDoesNotExtendTheLock();
    void aShowOfAVisibleWindowOnlyRestartsTheLock();
    void theLockCountsInThirtyTwoBits_data();
    void theLockCountsInThirtyTwoBits();
    void showWithoutRefresh();
    void showRefreshesOnceItIsVisible();
    void showAgainReadsTheStoredSet();
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
             QStringLiteral("slotCancel() slotSave() slotStart() slotShow(bool) slotShow()"));
}

void tst_scheduleControlUI::holdsThePanelAlone()
{
    const Editor editor;
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

void tst_scheduleControlUI::showIsLockedForASecondAfterConstruction()
{
    TimerWatch clock;
    Editor editor;
    clock.setElapsed(999);
    editor.dialog.slotShow(true);
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 0);
    clock.setElapsed(1000);
    editor.dialog.slotShow(true);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 1);
}

void tst_scheduleControlUI::showIsLockedForASecondAfterAShow()
{
    TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(true);
    editor.dialog.close();
    clock.setElapsed(999);
    editor.dialog.slotShow(true);
    QVERIFY(!editor.dialog.isVisible());
    QVERIFY(clock.wasRestarted());
    clock.setElapsed(1000);
    editor.dialog.slotShow(true);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 2);
}

void tst_scheduleControlUI::aRefusedShowDoesNotExtendTheLock()
{
    TimerWatch clock;
    Editor editor;
    clock.setElapsed(500);
    editor.dialog.slotShow(true);
    editor.dialog.slotShow(true);
    QVERIFY(!clock.wasRestarted());
}

void tst_scheduleControlUI::aShowOfAVisibleWindowOnlyRestartsTheLock()
{
    TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    service().clearLog();
    editor.dialog.slotShow(true);
    QVERIFY(clock.wasRestarted());
    editor.dialog.slotShow(true);
    QVERIFY(clock.wasRestarted());
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUI::theLockCountsInThirtyTwoBits_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<bool>("shown");
    const qint64 largest = std::numeric_limits<qint32>::max();
    QTest::newRow("largest") << largest << true;
    QTest::newRow("wrapped") << largest + 1 << false;
    QTest::newRow("once around") << (qint64{1} << 32) + 999 << false;
    QTest::newRow("once around and a second") << (qint64{1} << 32) + 1000 << true;
}

void tst_scheduleControlUI::theLockCountsInThirtyTwoBits()
{
    QFETCH(const qint64, elapsed);
    QFETCH(const bool, shown);
    TimerWatch clock;
    Editor editor;
    clock.setElapsed(elapsed);
    editor.dialog.slotShow(false);
    QCOMPARE(editor.dialog.isVisible(), shown);
}

void tst_scheduleControlUI::showWithoutRefresh()
{
    const TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUI::showRefreshesOnceItIsVisible()
{
    const TimerWatch clock;
    Editor editor;
    editor.dialog.setWindowState(Qt::WindowMinimized);
    QStringList states;
    QObject::connect(&editor.dialog, &scheduleControlUI::signalUpdatePlanList, &editor.dialog, [&] {
        states.append(QStringLiteral("visible %1, minimised %2")
                          .arg(editor.dialog.isVisible())
                          .arg(editor.dialog.isMinimized()));
    });
    editor.dialog.slotShow();
    QCOMPARE(states, QStringList{QStringLiteral("visible 1, minimised 0")});
    QCOMPARE(editor.clears.count(), 0);
    QCOMPARE(service().calls({QStringLiteral("getgTaskMap"), QStringLiteral("updateUItask"),
                              QStringLiteral("resetUiTask")}),
             QStringList({QStringLiteral("getgTaskMap()"), QStringLiteral("updateUItask()")}));
}

void tst_scheduleControlUI::showAgainReadsTheStoredSet()
{
    TimerWatch clock;
    service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
    Editor editor;
    editor.dialog.slotShow();
    clock.advance(1000);
    QTest::mouseClick(editor.button("pushButtonAddTask"), Qt::LeftButton);
    QCOMPARE(service().working.size(), std::size_t{2});
    QTest::mouseClick(editor.button("pushButtonClose"), Qt::LeftButton);
    QVERIFY(!editor.dialog.isVisible());
    editor.dialog.slotShow();
    QCOMPARE(service().working.size(), std::size_t{1});
    QCOMPARE(editor.dialog.findChildren<PlanTaskWidget*>().size(), 1);
}

void tst_scheduleControlUI::clearAndInitializeInOrder()
{
    service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
    Editor editor;
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
    const TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    editor.dialog.slotCancel();
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUI::saveClosesAfterSaving()
{
    const TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    QTest::mouseClick(editor.button("pushButtonSave"), Qt::LeftButton);
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(service().log,
             QStringList({QStringLiteral("getAllTask()"), QStringLiteral("save()")}));
}

void tst_scheduleControlUI::startSavesAndStays()
{
    const TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    QTest::mouseClick(editor.button("pushButtonStart"), Qt::LeftButton);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(service().log, QStringList({QStringLiteral("getAllTask()"), QStringLiteral("save()"),
                                         QStringLiteral("slotOpen()")}));
}

void tst_scheduleControlUI::escapeLeavesTheWindowOpen()
{
    const TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.accept();
    QVERIFY(!QCoreApplication::sendEvent(&editor.dialog, &escape) || !escape.isAccepted());
    QVERIFY(!escape.isAccepted());
    QVERIFY(editor.dialog.isVisible());
    QTest::keyClick(&editor.dialog, Qt::Key_Escape);
    QVERIFY(editor.dialog.isVisible());
}

void tst_scheduleControlUI::otherKeysReachTheDialog()
{
    const TimerWatch clock;
    Editor editor;
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
    const Editor editor;
    editor.dialog.setCheckBoxImagePath(QStringLiteral("on.png"), QStringLiteral("off.png"));
    QCOMPARE(checkBoxImagePaths().checked, QStringLiteral("on.png"));
    QCOMPARE(checkBoxImagePaths().unchecked, QStringLiteral("off.png"));
}

void tst_scheduleControlUI::unsetHasNoEffect()
{
    const TimerWatch clock;
    Editor editor;
    editor.dialog.slotShow(false);
    editor.dialog.unsetScheduleManage();
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(service().log, QStringList());
    editor.dialog.slotStart();
    QCOMPARE(service().log, QStringList({QStringLiteral("save()"), QStringLiteral("slotOpen()")}));
}

void tst_scheduleControlUI::nobodyListensToTheLanguageIndex()
{
    Editor editor;
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
    const Editor editor;
    editor.dialog.switchLanguage(QStringLiteral("en_US"));
    QCOMPARE(translator().language(), QStringLiteral("en_US"));
    editor.dialog.loadLanguageFiles({});
    QCOMPARE(translator().language(), QStringLiteral("zh_CN"));
    editor.dialog.switchLanguage(QStringLiteral("en_US"));
    editor.dialog.loadLanguageFiles({QStringLiteral("/nowhere/at_all.qm")});
    QCOMPARE(translator().language(), QStringLiteral("zh_CN"));
}

QTEST_MAIN(tst_scheduleControlUI)

#include "tst_scheduleControlUI.moc"
