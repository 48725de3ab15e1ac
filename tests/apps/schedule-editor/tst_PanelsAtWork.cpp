#include "HostFixture.h"
#include "clock/ClockChangePanel.h"
#include "follow/HeldPool.h"
#include "support/PlanRecords.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "week/WeekPage.h"
#include "week/WeekPanel.h"
#include "week/WeekView.h"

#include <QApplication>
#include <QSignalSpy>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;

namespace {

constexpr int kManyPlans = 300;

/// A task for this year, with more plans than are worked through on the spot. Its first plan meets
/// a change of the clocks.
PlayTask longTask(const char* start)
{
    std::vector<PlayPlan> plans{timePlan(1, start, "03:30:00")};
    for (int plan = 2; plan <= kManyPlans; ++plan) {
        plans.push_back(timePlan(plan, "12:00:00", "13:00:00", "3"));
    }
    PlayTask task = taskWithPlans(plans);
    task.startDate = "2026.01.01";
    task.endDate = "2026.12.31";
    return task;
}

struct Window : HostFixture
{
    Window()
        : week(*window.findChild<WeekPage*>())
        , view(*week.panel()->view())
        , feed(*window.findChild<WeekFeed*>())
        , clocks(*window.findChild<ClockChangePanel*>())
    {
        window.openDatabase(database);
        manager.addTask(longTask("01:00:00"));
        window.show();
        clocks.parentWidget()->show();
    }

    int plansOfWednesday() const
    {
        const WeekLayout& layout = view.layoutOfWeek();
        const int day = *layout.dayOf(QDate(2026, 3, 25));
        return static_cast<int>(layout.days[static_cast<std::size_t>(day)].blocks.size());
    }

    /// The start of the first plan on the first day.
    QString start() const
    {
        const std::vector<WeekBlock>& blocks = view.layoutOfWeek().days[0].blocks;
        return blocks.empty() ? QString() : blocks.front().start;
    }

    QString firstChange() const { return clocks.count() > 0 ? clocks.item(0)->text() : QString(); }

    WeekPage& week;
    WeekView& view;
    WeekFeed& feed;
    ClockChangePanel& clocks;
};

QDateTime beforeTheChange()
{
    return QDateTime(QDate(2026, 3, 25), QTime(12, 0));
}

} // namespace

/// The panels of the window with a schedule that is worked through in another thread.
class tst_PanelsAtWork : public QObject
{
    Q_OBJECT

private slots:
    void thePictureStaysUntilTheNextIsThere();
    void ofManyEditsTheLastIsShown();
    void anotherWeekIsShownAtOnce();
    void rowsThatStayKeepTheirPlace();
    void aWindowGoesAtOnce();
};

void tst_PanelsAtWork::thePictureStaysUntilTheNextIsThere()
{
    const TestClock clock(beforeTheChange());
    Window fixture;
    QTRY_COMPARE(fixture.start(), QStringLiteral("01:00:00"));
    QTRY_VERIFY(fixture.firstChange().contains(QStringLiteral("plan 1")));
    const QString change = fixture.firstChange();

    HeldPool pool;
    fixture.manager.addTask(longTask("02:30:00"));
    QCoreApplication::processEvents();
    QCOMPARE(fixture.start(), QStringLiteral("01:00:00"));
    QCOMPARE(fixture.plansOfWednesday(), kManyPlans);
    QCOMPARE(fixture.firstChange(), change);

    pool.release();
    QTRY_COMPARE(fixture.start(), QStringLiteral("02:30:00"));
    QTRY_VERIFY(fixture.firstChange() != change);
}

void tst_PanelsAtWork::ofManyEditsTheLastIsShown()
{
    const TestClock clock(beforeTheChange());
    Window fixture;
    QTRY_COMPARE(fixture.start(), QStringLiteral("01:00:00"));
    QSignalSpy pictures(&fixture.feed, &WeekFeed::changed);
    QVERIFY(pictures.isValid());

    HeldPool pool;
    for (const char* const start : {"01:10:00", "01:20:00", "01:30:00", "01:40:00"}) {
        fixture.manager.addTask(longTask(start));
        QCoreApplication::processEvents();
    }
    QCOMPARE(pictures.count(), 0);
    pool.release();
    QTRY_COMPARE(fixture.start(), QStringLiteral("01:40:00"));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCOMPARE(pictures.count(), 1);
}

void tst_PanelsAtWork::anotherWeekIsShownAtOnce()
{
    const TestClock clock(beforeTheChange());
    Window fixture;
    QTRY_COMPARE(fixture.start(), QStringLiteral("01:00:00"));
    HeldPool pool;
    fixture.manager.addTask(longTask("01:10:00"));
    QCoreApplication::processEvents();
    const QDate first = fixture.view.firstDay();
    fixture.view.stepWeeks(1);
    QCOMPARE(fixture.view.firstDay(), first.addDays(7));
    QCOMPARE(fixture.start(), QStringLiteral("01:00:00"));
    pool.release();
    QTRY_COMPARE(fixture.start(), QStringLiteral("01:10:00"));
    QCOMPARE(fixture.view.firstDay(), first.addDays(7));
}

void tst_PanelsAtWork::rowsThatStayKeepTheirPlace()
{
    const TestClock clock(beforeTheChange());
    Window fixture;
    PlayTask later = taskWithPlans({timePlan(1, "02:10:00", "02:20:00")}, 2);
    later.startDate = "2027.01.01";
    later.endDate = "2028.12.31";
    fixture.manager.addTask(later);
    QTRY_COMPARE(fixture.clocks.count(), 6);
    std::vector<const QListWidgetItem*> before;
    for (int row = 0; row < fixture.clocks.count(); ++row) {
        before.push_back(fixture.clocks.item(row));
    }
    const QSignalSpy reset(fixture.clocks.model(), &QAbstractItemModel::modelReset);
    QVERIFY(reset.isValid());

    const QString change = fixture.firstChange();
    PlayTask edited = longTask("02:30:00");
    fixture.manager.addTask(edited);
    QTRY_VERIFY(fixture.firstChange() != change);
    QCOMPARE(fixture.clocks.count(), 6);
    for (int row = 2; row < 6; ++row) {
        QVERIFY(fixture.clocks.item(row) == before[static_cast<std::size_t>(row)]);
    }
    // A plan that meets both changes of the year makes a row more for each.
    edited.plans[1] = timePlan(2, "02:00:00", "02:15:00");
    fixture.manager.addTask(edited);
    QTRY_COMPARE(fixture.clocks.count(), 8);
    QVERIFY(fixture.clocks.item(1)->text().contains(QStringLiteral("plan 2")));
    for (int row = 2; row < 6; ++row) {
        QVERIFY(fixture.clocks.item(row + 2) == before[static_cast<std::size_t>(row)]);
    }
    QCOMPARE(reset.count(), 0);
}

void tst_PanelsAtWork::aWindowGoesAtOnce()
{
    HeldPool pool;
    const TestClock clock(beforeTheChange());
    {
        Window fixture;
        QCoreApplication::processEvents();
        fixture.manager.addTask(longTask("01:10:00"));
        QCoreApplication::processEvents();
    }
    // Nothing of it was waited for: no thread has been free.
    pool.release();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

TREL_TEST(tst_PanelsAtWork, QApplication)
#include "tst_PanelsAtWork.moc"
