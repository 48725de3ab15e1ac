#include "HostFixture.h"
#include "clock/ClockChangePanel.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDockWidget>
#include <QSignalSpy>

using namespace trel::desktop;
using namespace trel::mediadispatch;

namespace {

PlayTask taskOf2027(std::vector<PlayPlan> plans)
{
    PlayTask task = taskWithPlans(std::move(plans));
    task.startDate = "2027.01.01";
    task.endDate = "2027.12.31";
    return task;
}

} // namespace

/// The host's list of hours that the clocks leave out or double.
class tst_ClockChangePanel : public QObject
{
    Q_OBJECT

private slots:
    void saysWhatBecomesOfAPlan();
    void followsEditsOnceATurn();
    void worksNothingOutWhileHidden();
    void saysThatThereIsNone();
    void speaksTheLanguageInUse();

private:
    static QStringList lines(const ClockChangePanel& panel)
    {
        QStringList result;
        for (int i = 0; i < panel.count(); ++i) {
            result.append(panel.item(i)->text());
        }
        return result;
    }
    static ClockChangePanel& panelOf(HostFixture& fixture)
    {
        fixture.window.openDatabase(fixture.database);
        auto* panel = fixture.window.findChild<ClockChangePanel*>();
        fixture.window.findChild<QDockWidget*>(QStringLiteral("clockChangeDock"))->show();
        fixture.window.show();
        return *panel;
    }
};

void tst_ClockChangePanel::saysWhatBecomesOfAPlan()
{
    const TestClock clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)));
    HostFixture fixture;
    const ClockChangePanel& panel = panelOf(fixture);
    fixture.manager.addTask(
        taskOf2027({timePlan(3, "02:30:00", "05:00:00"), timePlan(4, "10:00:00", "11:00:00"),
                    timePlan(5, "01:00:00", "02:30:00")}));

    QTRY_COMPARE(
        lines(panel),
        QStringList({QStringLiteral(
                         "\u20662027.03.28\u2069: 02:00:00–03:00:00 is skipped; plan 3 of task 1 "
                         "starts at 03:00:00 in the middle of its list."),
                     QStringLiteral(
                         "\u20662027.03.28\u2069: 02:00:00–03:00:00 is skipped; plan 5 of task 1 "
                         "is cut off at 02:00:00."),
                     QStringLiteral(
                         "\u20662027.10.31\u2069: 02:00:00–03:00:00 occurs twice; plan 3 of task 1 "
                         "starts twice at 02:30:00."),
                     QStringLiteral(
                         "\u20662027.10.31\u2069: 02:00:00–03:00:00 occurs twice; plan 5 of task 1 "
                         "ends twice at 02:30:00.")}));
}

void tst_ClockChangePanel::followsEditsOnceATurn()
{
    const TestClock clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)));
    HostFixture fixture;
    ClockChangePanel& panel = panelOf(fixture);
    QCoreApplication::processEvents();
    const QSignalSpy reset(panel.model(), &QAbstractItemModel::modelReset);
    QVERIFY(reset.isValid());

    for (int i = 0; i < 100; ++i) {
        fixture.manager.addTask(taskOf2027({}));
    }
    QCOMPARE(reset.count(), 0);
    QTRY_COMPARE(
        lines(panel).value(0),
        QStringLiteral("\u20662027.03.28\u2069: 02:00:00–03:00:00 is skipped; no plan of task 1 is "
                       "affected."));
    QCOMPARE(reset.count(), 1);
    QCOMPARE(panel.count(), 2);
}

void tst_ClockChangePanel::worksNothingOutWhileHidden()
{
    const TestClock clock(QDateTime(QDate(2026, 11, 21), QTime(12, 0)));
    HostFixture fixture;
    ClockChangePanel& panel = panelOf(fixture);
    fixture.window.hide();
    QCoreApplication::processEvents();
    const QSignalSpy reset(panel.model(), &QAbstractItemModel::modelReset);
    QVERIFY(reset.isValid());

    fixture.manager.addTask(taskOf2027({}));
    QCoreApplication::processEvents();
    QCOMPARE(reset.count(), 0);

    fixture.window.show();
    QCOMPARE(panel.count(), 2);
}

void tst_ClockChangePanel::saysThatThereIsNone()
{
    HostFixture fixture;
    const ClockChangePanel& panel = panelOf(fixture);
    QCOMPARE(lines(panel),
             QStringList(QStringLiteral("No clock change falls within the validity of any task.")));
}

void tst_ClockChangePanel::speaksTheLanguageInUse()
{
    HostFixture fixture;
    const ClockChangePanel& panel = panelOf(fixture);
    fixture.languages.select(QStringLiteral("de_DE"));
    QTRY_COMPARE(lines(panel),
                 QStringList(QStringLiteral(
                     "In den Gültigkeitszeitraum der Aufträge fällt keine Zeitumstellung.")));
    QTRY_COMPARE(
        fixture.window.findChild<QDockWidget*>(QStringLiteral("clockChangeDock"))->windowTitle(),
        QStringLiteral("Zeitumstellungen"));
}

TREL_TEST(tst_ClockChangePanel, QApplication)
#include "tst_ClockChangePanel.moc"
