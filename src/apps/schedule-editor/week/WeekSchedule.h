#pragma once

#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "week/WeekLayout.h"

#include <map>
#include <memory>

namespace trel::desktop::week {

/// A schedule as the picture shows it, with all that its questions need. Does not change; threads
/// may ask one at the same time.
class WeekSchedule
{
public:
    using Tasks = std::map<int, trel::mediadispatch::PlayTask>;
    using Catalogue = WeekTasks::Catalogue;

    WeekSchedule(const Tasks& tasks, Catalogue catalogue,
                 trel::mediadispatch::ScreenInsertions insertions, const QTimeZone& zone);
    /// The timeline is that of the tasks, with this catalogue and in this zone.
    WeekSchedule(WeekTasks tasks, follow::SharedCatalogue catalogue,
                 trel::mediadispatch::ScreenInsertions insertions, const QTimeZone& zone,
                 trel::mediadispatch::ScreenTimeline timeline);

    const QTimeZone& zone() const { return m_zone; }
    const trel::mediadispatch::ScreenTimeline& timeline() const { return m_timeline; }

    /// The seven days from one on. Cancelled, it is not complete.
    WeekLayout layout(const QDate& first, const follow::Cancellation& cancellation = {}) const;
    /// What is on screen at an instant.
    trel::mediadispatch::ScreenState at(trel::mediadispatch::Instant moment) const;
    /// The plan that a state speaks of; null where it speaks of none of the tasks.
    const trel::mediadispatch::PlayPlan* plan(const trel::mediadispatch::ScreenState& state) const;
    /// The name of a program; empty when it is not known.
    QString program(int progIndex) const;

private:
    WeekTasks m_tasks;
    follow::SharedCatalogue m_catalogue;
    trel::mediadispatch::ScreenInsertions m_insertions;
    QTimeZone m_zone;
    trel::mediadispatch::ScreenTimeline m_timeline;
};

/// A schedule with one of its weeks. Null: none.
struct WeekPicture
{
    std::shared_ptr<const WeekSchedule> schedule;
    std::shared_ptr<const WeekLayout> layout;
};

} // namespace trel::desktop::week
