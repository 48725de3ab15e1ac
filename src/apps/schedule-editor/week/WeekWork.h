#pragma once

#include "follow/ScheduleEdits.h"
#include "trelprogramschedule/dispatch/ScreenTask.h"
#include "week/WeekSchedule.h"

#include <mutex>
#include <optional>
#include <set>

namespace trel::desktop::week {

/// What a picture is to be made of, next to the schedule.
struct WeekFrame
{
    QDate first;
    QTimeZone zone;
    trel::mediadispatch::ScreenInsertions insertions;
};

/// Makes the pictures of a schedule that is edited task by task. Nothing is worked out again for a
/// task that an edit does not touch, except which plans have the screen in the week that is shown.
class WeekWork
{
public:
    /// Takes note of what to make next. Edits add up; of frames the newest counts. Any thread.
    void order(const follow::ScheduleEdits& edits, const WeekFrame& frame);
    /// Makes the picture that was ordered last. Nothing when it is cancelled; what it has worked
    /// out until then serves the next. One thread at a time.
    std::optional<WeekPicture> make(const follow::Cancellation& cancellation);

private:
    void takeOrder();
    bool readTasks(const follow::Cancellation& cancellation);
    trel::mediadispatch::ScreenTimeline timeline() const;

    std::mutex m_mutex; ///< Of the two below.
    follow::ScheduleEdits m_orderedEdits;
    WeekFrame m_orderedFrame;

    WeekFrame m_frame;
    follow::SharedCatalogue m_catalogue;
    WeekTasks m_tasks;
    trel::mediadispatch::ScreenTasks m_screenTasks;
    std::set<int> m_unread; ///< Tasks that do not yet stand among those as they are.
    /// What it knows of tasks, catalogue and zone serves the next one.
    std::shared_ptr<const WeekSchedule> m_former;
    /// Kept so that it is destroyed in this thread: the view releases it first.
    std::shared_ptr<const WeekSchedule> m_shown;
};

} // namespace trel::desktop::week
