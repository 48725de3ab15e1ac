#include "RecordingTarget.h"
#include "look/ThemeColours.h"
#include "support/TestProgram.h"
#include "week/WeekPanel.h"
#include "week/moves/DayDrag.h"
#include "week/moves/MoveOverlay.h"

#include <QApplication>

using namespace trel::desktop;
using namespace trel::desktop::week;
using namespace trel::mediadispatch;
using namespace weekfixture;

namespace {

const QDate kTuesday(2024, 3, 5);
const QDate kWednesday(2024, 3, 6);
const QDate kFriday(2024, 3, 8);

} // namespace

/// The plans of a day under an operator's hands, by its date.
class tst_DayDrag : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void copiesADay();
    void copiesToAnotherTask();
    void needsAWay();
    void showsWhatItTakes();
    void collisionsAreShown();
    void whatIsThereAlreadyLeadsToNothing();
    void aDayWithoutTaskLeadsToNothing();
    void escapeGivesUp();
    void anotherButtonGivesUp();
    void onlyWhereItMay();
    void saysThatItCanBeTaken();

private:
    WeekView& view() const { return m_week->view; }
    MoveOverlay& overlay() const
    {
        return *view().findChild<MoveOverlay*>(QStringLiteral("weekDayDrag"));
    }
    QPoint head(const QDate& date) const
    {
        const int day = *view().layoutOfWeek().dayOf(date);
        return {view().geometryOfWeek().column(day).center().x() - view().offset().x(), 10};
    }
    void mouse(QEvent::Type type, const QPoint& place,
               Qt::MouseButton button = Qt::LeftButton) const
    {
        QWidget* const dates = view().dates();
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, dates->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, {});
        QCoreApplication::sendEvent(dates, &event);
    }
    void take(const QDate& from, const QDate& onto) const
    {
        mouse(QEvent::MouseButtonPress, head(from));
        mouse(QEvent::MouseMove, (head(from) + head(onto)) / 2);
        mouse(QEvent::MouseMove, head(onto));
    }
    void drag(const QDate& from, const QDate& onto) const
    {
        take(from, onto);
        mouse(QEvent::MouseButtonRelease, head(onto));
    }
    const PlayPlan& plan(int row) const { return m_target->all[1].plans.at(std::size_t(row)); }

    std::unique_ptr<ShownWeek> m_week;
    std::unique_ptr<RecordingTarget> m_target;
    DayDrag* m_drag = nullptr;
};

void tst_DayDrag::init()
{
    m_week = std::make_unique<ShownWeek>();
    m_target = std::make_unique<RecordingTarget>(view());
    m_drag = new DayDrag(view(), *m_target);
    m_target->set(
        {timePlan(11, "08:00:00", "10:00:00", "3"), timePlan(12, "12:00:00", "13:00:00", "3"),
         timePlan(13, "09:00:00", "11:00:00", "2"), timePlan(14, "20:00:00", "21:00:00")});
}

void tst_DayDrag::cleanup()
{
    m_week.reset();
    m_target.reset();
}

void tst_DayDrag::copiesADay()
{
    drag(kWednesday, kFriday);
    QCOMPARE(m_target->filed.size(), std::size_t(1));
    QCOMPARE(plan(0).weeks, std::string("3,5"));
    QCOMPARE(plan(1).weeks, std::string("3,5"));
    // Those of other days, and of every day, stay as they are.
    QCOMPARE(plan(2).weeks, std::string("2"));
    QCOMPARE(m_target->all[1].plans.size(), std::size_t(4));
    QVERIFY(!m_drag->isDragging());
    QVERIFY(!overlay().isVisible());
}

void tst_DayDrag::copiesToAnotherTask()
{
    PlayTask first = m_target->all[1];
    PlayTask other = taskWithPlans({}, 2);
    first.startDate = "2024.01.01";
    first.endDate = "2024.03.06";
    other.startDate = "2024.03.07";
    other.endDate = "2024.12.31";
    m_target->all = {{1, first}, {2, other}};
    m_target->show();
    take(kWednesday, kFriday);
    QCOMPARE(overlay().shown().ghosts.size(), std::size_t(3));
    mouse(QEvent::MouseButtonRelease, head(kFriday));
    QCOMPARE(m_target->filed.size(), std::size_t(1));
    const std::vector<PlayPlan>& plans = m_target->all[2].plans;
    QCOMPARE(plans.size(), std::size_t(3));
    QCOMPARE(plans[0].startTime, std::string("08:00:00"));
    QCOMPARE(plans[0].weeks, std::string("5"));
    QCOMPARE(m_target->all[1].plans.size(), std::size_t(4));
}

void tst_DayDrag::needsAWay()
{
    const QPoint place = head(kWednesday);
    mouse(QEvent::MouseButtonPress, place);
    mouse(QEvent::MouseMove, place + QPoint(2, 0));
    QVERIFY(!m_drag->isDragging());
    mouse(QEvent::MouseButtonRelease, place + QPoint(2, 0));
    // Back where it came from, it is nothing either.
    take(kWednesday, kFriday);
    QVERIFY(m_drag->isDragging());
    mouse(QEvent::MouseMove, place);
    QVERIFY(!overlay().isVisible());
    mouse(QEvent::MouseButtonRelease, place);
    QVERIFY(m_target->filed.empty());
}

void tst_DayDrag::showsWhatItTakes()
{
    take(kWednesday, kFriday);
    const MovePicture& picture = overlay().shown();
    QVERIFY(overlay().isVisible());
    QVERIFY(!picture.isRefused);
    QCOMPARE(picture.ghosts.size(), std::size_t(2));
    QVERIFY(picture.collisions.empty());
    const WeekGeometry& geometry = view().geometryOfWeek();
    const QRect friday = geometry.inside(*view().layoutOfWeek().dayOf(kFriday));
    QCOMPARE(picture.ghosts[0].left(), friday.left() - view().offset().x());
    QCOMPARE(picture.ghosts[0].top(), geometry.top(8 * 3600) - view().offset().y());
    QVERIFY2(picture.text.startsWith(QStringLiteral("Copy the plans of ")) &&
                 picture.text.contains(QStringLiteral("2024.03.06")) &&
                 picture.text.contains(QStringLiteral("2024.03.08")),
             qPrintable(picture.text));
    // Another day is another matter.
    mouse(QEvent::MouseMove, head(kTuesday));
    QVERIFY(overlay().shown().text.contains(QStringLiteral("2024.03.05")));
    QVERIFY(m_target->filed.empty());
}

void tst_DayDrag::collisionsAreShown()
{
    take(kWednesday, kTuesday);
    const MovePicture& picture = overlay().shown();
    QCOMPARE(picture.ghosts.size(), std::size_t(2));
    // The plan of 09:00 is there; that of every day, at 20:00, is in nobody's way.
    QCOMPARE(picture.collisions, std::vector<QRect>{view().visualRect({kTuesday, 2})});
    QVERIFY2(picture.text.contains(QStringLiteral("Conflicts with plan 13, 09:00 to 11:00.")),
             qPrintable(picture.text));
    mouse(QEvent::MouseButtonRelease, head(kTuesday));
    QCOMPARE(plan(0).weeks, std::string("2,3"));
    QVERIFY(plan(2).isConflict);
}

void tst_DayDrag::whatIsThereAlreadyLeadsToNothing()
{
    drag(kFriday, kWednesday);
    // Only the plan of every day plays on Fridays.
    QVERIFY(m_target->filed.empty());
    take(kFriday, kWednesday);
    QVERIFY(overlay().shown().isRefused);
    QVERIFY2(overlay().shown().text.contains(QStringLiteral("play on these days already")),
             qPrintable(overlay().shown().text));
}

void tst_DayDrag::aDayWithoutTaskLeadsToNothing()
{
    m_target->all[1].endDate = "2024.03.06";
    m_target->show();
    take(kWednesday, kFriday);
    QVERIFY(overlay().shown().isRefused);
    QVERIFY2(overlay().shown().text.endsWith(QStringLiteral("No task is valid on this day.")),
             qPrintable(overlay().shown().text));
    mouse(QEvent::MouseButtonRelease, head(kFriday));
    QVERIFY(m_target->filed.empty());
}

void tst_DayDrag::escapeGivesUp()
{
    take(kWednesday, kFriday);
    QVERIFY(view().hasFocus());
    QTest::keyClick(&view(), Qt::Key_Down);
    QVERIFY(m_drag->isDragging());
    QTest::keyClick(&view(), Qt::Key_Escape);
    QVERIFY(!m_drag->isDragging());
    QVERIFY(!overlay().isVisible());
    mouse(QEvent::MouseMove, head(kTuesday));
    mouse(QEvent::MouseButtonRelease, head(kTuesday));
    QVERIFY(m_target->filed.empty());
}

void tst_DayDrag::anotherButtonGivesUp()
{
    take(kWednesday, kFriday);
    mouse(QEvent::MouseButtonPress, head(kFriday), Qt::RightButton);
    QVERIFY(!m_drag->isDragging());
    mouse(QEvent::MouseButtonRelease, head(kFriday));
    QVERIFY(m_target->filed.empty());
}

void tst_DayDrag::onlyWhereItMay()
{
    QCOMPARE(view().dates()->cursor().shape(), Qt::OpenHandCursor);
    m_drag->setEnabled(false);
    QCOMPARE(view().dates()->cursor().shape(), Qt::ArrowCursor);
    drag(kWednesday, kFriday);
    QVERIFY(m_target->filed.empty());
    m_drag->setEnabled(true);
    drag(kWednesday, kFriday);
    QCOMPARE(m_target->filed.size(), std::size_t(1));
}

void tst_DayDrag::saysThatItCanBeTaken()
{
    const QPoint place = head(kWednesday);
    QHelpEvent help(QEvent::ToolTip, place, view().dates()->mapToGlobal(place));
    QCoreApplication::sendEvent(view().dates(), &help);
    QVERIFY2(QToolTip::text().contains(QStringLiteral("Drag a day onto another one")),
             qPrintable(QToolTip::text()));
}

TREL_TEST(tst_DayDrag, QApplication)
#include "tst_DayDrag.moc"
