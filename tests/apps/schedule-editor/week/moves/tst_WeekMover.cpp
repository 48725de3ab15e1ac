#include "../WeekFixture.h"
#include "RecordingTarget.h"
#include "catalogue/ProgramDrag.h"
#include "look/ThemeColours.h"
#include "support/TestProgram.h"
#include "week/WeekPanel.h"
#include "week/moves/MoveOverlay.h"
#include "week/moves/WeekMover.h"

#include <QApplication>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

using namespace trel::desktop;
using namespace trel::desktop::week;
using namespace trel::mediadispatch;
using namespace weekfixture;

namespace {

const QDate kWednesday(2024, 3, 6);

} // namespace

/// Blocks under an operator's hands.
class tst_WeekMover : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void dragsABlock();
    void needsAWay();
    void movesAllDaysOfAPlan();
    void toAnotherDay();
    void everyDayKeepsItsDays();
    void stretches();
    void showsWhatItTakes();
    void collisionsAreShown();
    void refusalsLeadToNothing_data();
    void refusalsLeadToNothing();
    void escapeGivesUp();
    void otherButtonGivesUp();
    void scrollsAtTheEdge();
    void keys_data();
    void keys();
    void keysGoOn();
    void keysAreMirrored();
    void keysSayWhatComesOfIt();
    void onlyWhereItMay();
    void anotherPlanByNow();
    void dropsPrograms();
    void dropsNothingWithoutTask();
    void leavesOtherDropsAlone();

private:
    WeekView& view() const { return m_week->view; }
    QPoint at(const QDate& date, const QTime& time) const
    {
        const WeekGeometry& geometry = view().geometryOfWeek();
        const int day = *view().layoutOfWeek().dayOf(date);
        // Beside what is hidden.
        return QPoint(geometry.inside(day).left() + 12, geometry.top(QTime(0, 0).secsTo(time))) -
               view().offset();
    }
    void mouse(QEvent::Type type, const QPoint& place,
               Qt::MouseButton button = Qt::LeftButton) const
    {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, place, view().viewport()->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, {});
        QCoreApplication::sendEvent(view().viewport(), &event);
    }
    void take(const QPoint& from, const QPoint& to) const
    {
        mouse(QEvent::MouseButtonPress, from);
        mouse(QEvent::MouseMove, (from + to) / 2);
        mouse(QEvent::MouseMove, to);
    }
    void drag(const QPoint& from, const QPoint& to) const
    {
        take(from, to);
        mouse(QEvent::MouseButtonRelease, to);
    }
    void dragTime(const QTime& from, const QTime& to, const QDate& onto = kWednesday) const
    {
        drag(at(kWednesday, from), at(onto, to));
    }
    QString plan(int row) const
    {
        const PlayPlan& plan = m_target->all[1].plans.at(std::size_t(row));
        return QString::fromStdString(plan.startTime + ' ' + plan.endTime + ' ' + plan.weeks);
    }
    const MoveOverlay& overlay() const
    {
        return *view().findChild<MoveOverlay*>(QStringLiteral("weekMove"));
    }
    QStringList said() const { return overlay().shown().text.split(QLatin1Char('\n')); }
    bool offer(QEvent::Type type, const QPoint& place, const QMimeData& data) const;

    std::unique_ptr<ShownWeek> m_week;
    std::unique_ptr<RecordingTarget> m_target;
    WeekMover* m_mover = nullptr;
};

void tst_WeekMover::init()
{
    m_week = std::make_unique<ShownWeek>();
    view().setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    // An hour is forty pixels high.
    view().resize(900, 1010);
    m_target = std::make_unique<RecordingTarget>(view());
    m_mover = new WeekMover(view(), *m_target);
    m_target->set(mixedPlans());
    view().zoomToFit();
}

void tst_WeekMover::cleanup()
{
    m_week.reset();
    m_target.reset();
}

void tst_WeekMover::dragsABlock()
{
    dragTime({15, 0}, {17, 10});
    QCOMPARE(int(m_target->filed.size()), 1);
    QCOMPARE(plan(2), QStringLiteral("16:15:00 18:15:00 3,4"));
    QVERIFY(overlay().isHidden());
    QVERIFY(!m_mover->isDragging());
    // It stays selected.
    QCOMPARE(view().selected().value(), (BlockRef{kWednesday, 2}));
}

void tst_WeekMover::needsAWay()
{
    const QPoint from = at(kWednesday, {15, 0});
    drag(from, from + QPoint(3, 4));
    QCOMPARE(int(m_target->filed.size()), 0);
    QCOMPARE(view().selected().value(), (BlockRef{kWednesday, 2}));
    // Back to where it was.
    mouse(QEvent::MouseButtonPress, from);
    mouse(QEvent::MouseMove, from + QPoint(0, 200));
    QVERIFY(m_mover->isDragging());
    mouse(QEvent::MouseMove, from + QPoint(0, 2));
    mouse(QEvent::MouseButtonRelease, from + QPoint(0, 2));
    QCOMPARE(int(m_target->filed.size()), 0);
}

void tst_WeekMover::movesAllDaysOfAPlan()
{
    take(at(kWednesday, {15, 0}), at(kWednesday, {18, 0}));
    // On Wednesday and on Thursday.
    QCOMPARE(int(overlay().shown().ghosts.size()), 2);
    QCOMPARE(said().first(), QStringLiteral("Plan 13: Wed, Thu, 17:00 to 19:00"));
    mouse(QEvent::MouseButtonRelease, at(kWednesday, {18, 0}));
    QCOMPARE(plan(2), QStringLiteral("17:00:00 19:00:00 3,4"));
}

void tst_WeekMover::toAnotherDay()
{
    dragTime({8, 30}, {8, 30}, QDate(2024, 3, 8));
    QCOMPARE(plan(0), QStringLiteral("08:00:00 10:00:00 5"));
    QCOMPARE(view().selected().value(), (BlockRef{QDate(2024, 3, 8), 0}));
}

void tst_WeekMover::everyDayKeepsItsDays()
{
    m_target->set({timePlan(1, "08:00:00", "10:00:00")});
    dragTime({9, 0}, {9, 0}, QDate(2024, 3, 8));
    QCOMPARE(int(m_target->filed.size()), 0);
    dragTime({9, 0}, {10, 0}, QDate(2024, 3, 8));
    QCOMPARE(plan(0), QStringLiteral("09:00:00 11:00:00 0"));
    QCOMPARE(view().selected().value(), (BlockRef{kWednesday, 0}));
}

void tst_WeekMover::stretches()
{
    const QPoint begin = at(kWednesday, {14, 0}) + QPoint(0, 2);
    drag(begin, at(kWednesday, {12, 30}));
    QCOMPARE(plan(2), QStringLiteral("12:30:00 16:00:00 3,4"));
    const QPoint end = at(kWednesday, {16, 0}) - QPoint(0, 2);
    // The day does not count.
    drag(end, at(QDate(2024, 3, 8), {23, 0}));
    QCOMPARE(plan(2), QStringLiteral("12:30:00 23:00:00 3,4"));
    drag(at(kWednesday, {23, 0}) - QPoint(0, 2), at(kWednesday, {23, 59}));
    QCOMPARE(plan(2), QStringLiteral("12:30:00 23:59:59 3,4"));
}

void tst_WeekMover::showsWhatItTakes()
{
    const auto shapeAt = [this](const QPoint& place) {
        QMouseEvent event(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(view().viewport(), &event);
        return view().viewport()->cursor().shape();
    };
    QCOMPARE(shapeAt(at(kWednesday, {14, 0}) + QPoint(0, 2)), Qt::SizeVerCursor);
    QCOMPARE(shapeAt(at(kWednesday, {15, 0})), Qt::ArrowCursor);
    QCOMPARE(shapeAt(at(kWednesday, {16, 0}) - QPoint(0, 2)), Qt::SizeVerCursor);
    QCOMPARE(shapeAt(at(kWednesday, {17, 0})), Qt::ArrowCursor);
}

void tst_WeekMover::collisionsAreShown()
{
    take(at(kWednesday, {15, 0}), at(kWednesday, {10, 30}));
    QCOMPARE(said(), (QStringList{QStringLiteral("Plan 13: Wed, Thu, 09:30 to 11:30"),
                                  QStringLiteral("Conflicts with plan 11, 08:00 to 10:00."),
                                  QStringLiteral("Conflicts with plan 12, 09:00 to 12:00."),
                                  QStringLiteral("Conflicts with plan 14, 20:00 to 18:00.")}));
    QCOMPARE(int(overlay().shown().collisions.size()), 3);
    QVERIFY(!overlay().shown().isRefused);
    mouse(QEvent::MouseButtonRelease, at(kWednesday, {10, 30}));
    // It is filed all the same, with the marks that its card shows.
    QVERIFY(m_target->all[1].plans[2].isConflict);
}

void tst_WeekMover::refusalsLeadToNothing_data()
{
    QTest::addColumn<QTime>("from");
    QTest::addColumn<int>("pixels"); // Beside the hour.
    QTest::addColumn<QTime>("to");
    QTest::addColumn<int>("onto");
    QTest::addColumn<QString>("expected");
    QTest::newRow("over midnight") << QTime(15, 0) << 0 << QTime(23, 30) << 0
                                   << QStringLiteral("A plan cannot run over midnight.");
    QTest::newRow("no length") << QTime(16, 0) << -2 << QTime(13, 0) << 0
                               << QStringLiteral("A plan has to start before it ends.");
    QTest::newRow("has that day") << QTime(15, 0) << 0 << QTime(15, 0) << 1
                                  << QStringLiteral("It plays on that day already.");
}

void tst_WeekMover::refusalsLeadToNothing()
{
    QFETCH(QTime, from);
    QFETCH(int, pixels);
    QFETCH(QTime, to);
    QFETCH(int, onto);
    const QPoint begin = at(kWednesday, from) + QPoint(0, pixels);
    const QPoint end = at(kWednesday.addDays(onto), to);
    take(begin, end);
    QTEST(said().last(), "expected");
    QVERIFY(overlay().shown().isRefused);
    mouse(QEvent::MouseButtonRelease, end);
    QCOMPARE(int(m_target->filed.size()), 0);
    QVERIFY(overlay().isHidden());
}

void tst_WeekMover::escapeGivesUp()
{
    take(at(kWednesday, {15, 0}), at(kWednesday, {18, 0}));
    m_week->key(Qt::Key_Escape);
    QVERIFY(overlay().isHidden());
    mouse(QEvent::MouseMove, at(kWednesday, {19, 0}));
    mouse(QEvent::MouseButtonRelease, at(kWednesday, {19, 0}));
    QCOMPARE(int(m_target->filed.size()), 0);
}

void tst_WeekMover::otherButtonGivesUp()
{
    take(at(kWednesday, {15, 0}), at(kWednesday, {18, 0}));
    mouse(QEvent::MouseButtonPress, at(kWednesday, {18, 0}), Qt::RightButton);
    QVERIFY(!m_mover->isDragging());
    mouse(QEvent::MouseButtonRelease, at(kWednesday, {18, 0}));
    QCOMPARE(int(m_target->filed.size()), 0);
}

void tst_WeekMover::scrollsAtTheEdge()
{
    view().resize(900, 400);
    view().zoom(4);
    view().verticalScrollBar()->setValue(view().geometryOfWeek().top(11 * 3600));
    const int before = view().verticalScrollBar()->value();
    const QPoint from = at(kWednesday, {15, 0});
    take(from, {from.x(), view().viewport()->height() - 2});
    QTRY_VERIFY(view().verticalScrollBar()->value() > before + 100);
    // The block goes along.
    QVERIFY(overlay().shown().ghosts.front().top() > from.y());
    m_week->key(Qt::Key_Escape);
    const int after = view().verticalScrollBar()->value();
    QTest::qWait(0);
    QCOMPARE(view().verticalScrollBar()->value(), after);
}

void tst_WeekMover::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, int key, int modifiers, const char* expected) {
        QTest::newRow(name) << key << modifiers << QString::fromLatin1(expected);
    };
    const int control = Qt::ControlModifier;
    const int shift = Qt::ShiftModifier;
    const int alt = Qt::AltModifier;
    row("later", Qt::Key_Down, control, "14:15:00 16:15:00 3,4");
    row("earlier", Qt::Key_Up, control, "13:45:00 15:45:00 3,4");
    row("day before", Qt::Key_Left, control, "14:00:00 16:00:00 2,4");
    row("longer", Qt::Key_Down, control | shift, "14:00:00 16:15:00 3,4");
    row("shorter", Qt::Key_Up, control | shift, "14:00:00 15:45:00 3,4");
    row("begins later", Qt::Key_Down, alt | shift, "14:15:00 16:00:00 3,4");
    row("begins earlier", Qt::Key_Up, alt | shift, "13:45:00 16:00:00 3,4");
    row("day that it has", Qt::Key_Right, control, "14:00:00 16:00:00 3,4");
    row("only walks", Qt::Key_Down, 0, "14:00:00 16:00:00 3,4");
}

void tst_WeekMover::keys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, at(kWednesday, {15, 0}));
    QTest::keyClick(&view(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QTEST(plan(2), "expected");
}

void tst_WeekMover::keysGoOn()
{
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, at(kWednesday, {15, 0}));
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&view(), Qt::Key_Down, Qt::ControlModifier);
    }
    QCOMPARE(plan(2), QStringLiteral("15:15:00 17:15:00 3,4"));
    QTest::keyClick(&view(), Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(&view(), Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(plan(2), QStringLiteral("15:15:00 17:15:00 1,4"));
    QCOMPARE(view().selected().value(), (BlockRef{QDate(2024, 3, 4), 2}));
    // No day of this week is before Monday.
    QTest::keyClick(&view(), Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(plan(2), QStringLiteral("15:15:00 17:15:00 1,4"));
}

void tst_WeekMover::keysAreMirrored()
{
    view().setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, at(kWednesday, {15, 0}));
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(plan(2), QStringLiteral("14:00:00 16:00:00 2,4"));
}

void tst_WeekMover::keysSayWhatComesOfIt()
{
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, at(kWednesday, {8, 30}));
    QTest::keyClick(&view(), Qt::Key_Up, Qt::ControlModifier);
    QVERIFY2(QToolTip::text().contains(QLatin1String("Conflicts with plan 12, 09:00 to 12:00.")),
             qPrintable(QToolTip::text()));
    QVERIFY(overlay().isHidden());
}

void tst_WeekMover::onlyWhereItMay()
{
    m_mover->setEnabled(false);
    dragTime({15, 0}, {17, 0});
    QTest::keyClick(&view(), Qt::Key_Down, Qt::ControlModifier);
    QMimeData programs;
    programs.setData(programdrag::mimeType(), "x");
    QVERIFY(!offer(QEvent::DragEnter, at(kWednesday, {1, 0}), programs));
    QCOMPARE(int(m_target->filed.size()), 0);
    // In the midst of a drag.
    m_mover->setEnabled(true);
    take(at(kWednesday, {15, 0}), at(kWednesday, {18, 0}));
    m_mover->setEnabled(false);
    QVERIFY(overlay().isHidden());
}

void tst_WeekMover::anotherPlanByNow()
{
    // The picture has not heard of it yet.
    m_target->all[1].plans[2].id = 99;
    dragTime({15, 0}, {17, 0});
    QCOMPARE(int(m_target->filed.size()), 0);
}

bool tst_WeekMover::offer(QEvent::Type type, const QPoint& place, const QMimeData& data) const
{
    if (type == QEvent::DragEnter) {
        QDragEnterEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(view().viewport(), &event);
        return event.isAccepted();
    }
    if (type == QEvent::DragMove) {
        QDragMoveEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(view().viewport(), &event);
        return event.isAccepted();
    }
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    event.ignore();
    QCoreApplication::sendEvent(view().viewport(), &event);
    return event.isAccepted();
}

void tst_WeekMover::dropsPrograms()
{
    const std::unique_ptr<QMimeData> data(programdrag::make({2, 1}));
    const QPoint place = at(QDate(2024, 3, 8), {9, 20});
    QVERIFY(offer(QEvent::DragEnter, place, *data));
    QVERIFY(offer(QEvent::DragMove, place, *data));
    QCOMPARE(said(), QStringList{QStringLiteral("New plan in task 1: Friday, 09:15 to 09:17")});
    QCOMPARE(int(overlay().shown().ghosts.size()), 1);
    QVERIFY(offer(QEvent::Drop, place, *data));
    QVERIFY(overlay().isHidden());
    QCOMPARE(plan(4), QStringLiteral("09:15:00 09:17:00 5"));
    QCOMPARE(m_target->all[1].plans[4].id, 15);
    QCOMPARE(m_target->all[1].plans[4].programs.front().progIndex, 2);
    QCOMPARE(view().selected().value(), (BlockRef{QDate(2024, 3, 8), 4}));
    // Two tasks on one day: it is said which.
    m_target->all[2] = taskWithPlans({}, 2);
    offer(QEvent::DragEnter, place, *data);
    QCOMPARE(said().value(1),
             QStringLiteral("2 tasks are valid on this day; that is the one in effect."));
}

void tst_WeekMover::dropsNothingWithoutTask()
{
    m_target->all[1].endDate = "2024.03.06";
    m_target->show();
    const std::unique_ptr<QMimeData> data(programdrag::make({1}));
    const QPoint place = at(QDate(2024, 3, 8), {9, 20});
    // The next place may have one.
    QVERIFY(offer(QEvent::DragEnter, place, *data));
    QVERIFY(!offer(QEvent::DragMove, place, *data));
    QCOMPARE(said(), QStringList{QStringLiteral("No task is valid on this day.")});
    QVERIFY(!offer(QEvent::Drop, place, *data));
    QCOMPARE(int(m_target->filed.size()), 0);
    // Nor a block of another day.
    take(at(kWednesday, {15, 0}), at(QDate(2024, 3, 8), {15, 0}));
    QCOMPARE(said().last(), QStringLiteral("Its task is not in effect on that day."));
}

void tst_WeekMover::leavesOtherDropsAlone()
{
    QMimeData files;
    files.setUrls({QUrl(QStringLiteral("file:///film.mp4"))});
    QVERIFY(!offer(QEvent::DragEnter, at(kWednesday, {9, 0}), files));
    QVERIFY(!offer(QEvent::Drop, at(kWednesday, {9, 0}), files));
    QVERIFY(overlay().isHidden());
}

TREL_TEST(tst_WeekMover, QApplication)
#include "tst_WeekMover.moc"
