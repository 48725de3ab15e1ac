#pragma once

#include "week/WeekView.h"

#include "support/PlanRecords.h"
#include "support/PlatformNotes.h"
#include "support/TestClock.h"

#include <QToolTip>
#include <QtTest>

#include <memory>

/// A schedule in Berlin, on Wednesday, 2024-03-06, at nine.
namespace weekfixture {

inline QTimeZone berlin()
{
    return QTimeZone("Europe/Berlin");
}

inline QDateTime wednesdayAtNine()
{
    return QDateTime(QDate(2024, 3, 6), QTime(9, 0), berlin());
}

inline trel::mediadispatch::ProgramIten program(int index, const char* name, double msecs,
                                                trel::mediadispatch::ProgramKind kind)
{
    trel::mediadispatch::ProgramIten item;
    item.progIndex = index;
    item.progName = name;
    item.durationMs = msecs;
    item.kind = kind;
    return item;
}

inline trel::desktop::week::WeekSchedule::Catalogue catalogue()
{
    using trel::mediadispatch::ProgramKind;
    return {{1, program(1, "City news", 90000, ProgramKind::Video)},
            {2, program(2, "Weather", 30000, ProgramKind::Video)},
            {3, program(3, "Logo", -1, ProgramKind::Image)}};
}

inline std::shared_ptr<const trel::desktop::week::WeekSchedule>
scheduleOf(std::vector<trel::mediadispatch::PlayPlan> plans)
{
    for (trel::mediadispatch::PlayPlan& plan : plans) {
        if (plan.programs.empty()) {
            plan.programs = {entry(1), entry(2)};
        }
    }
    return std::make_shared<trel::desktop::week::WeekSchedule>(
        trel::desktop::week::WeekSchedule::Tasks{{1, taskWithPlans(std::move(plans))}}, catalogue(),
        trel::mediadispatch::ScreenInsertions(), berlin());
}

/// A plan each of what a week can hold, on Wednesdays.
inline std::vector<trel::mediadispatch::PlayPlan> mixedPlans()
{
    std::vector<trel::mediadispatch::PlayPlan> plans{
        timePlan(11, "08:00:00", "10:00:00", "3"), timePlan(12, "09:00:00", "12:00:00", "3"),
        timePlan(13, "14:00:00", "16:00:00", "3,4"), timePlan(14, "20:00:00", "18:00:00", "3")};
    plans[1].endAction = trel::mediadispatch::FreezeCurrentFrame;
    return plans;
}

/// The picture of that week in a window, as a German operator sees it.
class ShownWeek
{
public:
    ShownWeek()
        : clock(wednesdayAtNine())
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        view.setLocale(QLocale());
        view.setSchedule(scheduleOf(mixedPlans()));
        view.resize(900, 560);
        view.show();
        [this] { QVERIFY(QTest::qWaitForWindowExposed(&view)); }();
        view.setFocus();
    }

    ~ShownWeek() { QToolTip::hideText(); }

    Q_DISABLE_COPY(ShownWeek)

    void key(Qt::Key key) { QTest::keyClick(&view, key); }

    void wheel(int delta, const QPoint& place, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(place, view.viewport()->mapToGlobal(place), QPoint(), QPoint(0, delta),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }

private:
    NoPlatformNotes m_quiet;

public:
    TestClock clock;
    trel::desktop::week::WeekView view;
};

} // namespace weekfixture
