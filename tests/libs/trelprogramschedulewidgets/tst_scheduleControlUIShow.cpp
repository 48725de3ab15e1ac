#include "EditorWindow.h"

#include "PlanTaskWidget.h"
#include "support/RecordingService.h"
#include "support/TaskRecords.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

/// A clock that also sees whether a timer was restarted between two readings.
class TimerWatch : public ClockAfterStart
{
public:
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

} // namespace

/// When the window is shown, and when it is not.
class tst_scheduleControlUIShow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showIsLockedForASecondAfterConstruction();
    void showIsLockedForASecondAfterAShow();
    void aRefusedShowDoesNotExtendTheLock();
    void aShowOfAVisibleWindowOnlyRestartsTheLock();
    void theLockCountsInThirtyTwoBits_data();
    void theLockCountsInThirtyTwoBits();
    void showWithoutRefresh();
    void showRefreshesOnceItIsVisible();
    void showAgainReadsTheStoredSet();
};

void tst_scheduleControlUIShow::init()
{
    service().reset();
}

void tst_scheduleControlUIShow::showIsLockedForASecondAfterConstruction()
{
    TimerWatch clock;
    EditorWindow editor;
    clock.setElapsed(999);
    editor.dialog.slotShow(true);
    QVERIFY(!editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 0);
    clock.setElapsed(1000);
    editor.dialog.slotShow(true);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 1);
}

void tst_scheduleControlUIShow::showIsLockedForASecondAfterAShow()
{
    TimerWatch clock;
    EditorWindow editor;
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

void tst_scheduleControlUIShow::aRefusedShowDoesNotExtendTheLock()
{
    TimerWatch clock;
    EditorWindow editor;
    clock.setElapsed(500);
    editor.dialog.slotShow(true);
    editor.dialog.slotShow(true);
    QVERIFY(!clock.wasRestarted());
}

void tst_scheduleControlUIShow::aShowOfAVisibleWindowOnlyRestartsTheLock()
{
    TimerWatch clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    service().clearLog();
    editor.dialog.slotShow(true);
    QVERIFY(clock.wasRestarted());
    editor.dialog.slotShow(true);
    QVERIFY(clock.wasRestarted());
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUIShow::theLockCountsInThirtyTwoBits_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<bool>("shown");
    const qint64 largest = std::numeric_limits<qint32>::max();
    QTest::newRow("largest") << largest << true;
    QTest::newRow("wrapped") << largest + 1 << false;
    QTest::newRow("once around") << (qint64{1} << 32) + 999 << false;
    QTest::newRow("once around and a second") << (qint64{1} << 32) + 1000 << true;
}

void tst_scheduleControlUIShow::theLockCountsInThirtyTwoBits()
{
    QFETCH(const qint64, elapsed);
    QFETCH(const bool, shown);
    TimerWatch clock;
    EditorWindow editor;
    clock.setElapsed(elapsed);
    editor.dialog.slotShow(false);
    QCOMPARE(editor.dialog.isVisible(), shown);
}

void tst_scheduleControlUIShow::showWithoutRefresh()
{
    const TimerWatch clock;
    EditorWindow editor;
    editor.dialog.slotShow(false);
    QVERIFY(editor.dialog.isVisible());
    QCOMPARE(editor.updates.count(), 0);
    QCOMPARE(service().log, QStringList());
}

void tst_scheduleControlUIShow::showRefreshesOnceItIsVisible()
{
    const TimerWatch clock;
    EditorWindow editor;
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

void tst_scheduleControlUIShow::showAgainReadsTheStoredSet()
{
    TimerWatch clock;
    service().stored[1] = makeTask(1, "2024.01.01", "2024.01.31");
    EditorWindow editor;
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

TREL_TEST(tst_scheduleControlUIShow, QApplication)

#include "tst_scheduleControlUIShow.moc"
