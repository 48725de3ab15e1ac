#pragma once

#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "week/WeekLayout.h"

#include <map>

namespace week {

/// A schedule as the picture shows it, with all that its questions need. Does not change.
class WeekSchedule
{
public:
    using Tasks = std::map<int, trel::mediadispatch::PlayTask>;
    using Catalogue = std::map<int, trel::mediadispatch::ProgramIten>;

    WeekSchedule(Tasks tasks, Catalogue catalogue, trel::mediadispatch::ScreenInsertions insertions,
                 const QTimeZone& zone);

    const Tasks& tasks() const { return m_tasks; }
    const Catalogue& catalogue() const { return m_catalogue; }
    const QTimeZone& zone() const { return m_zone; }

    /// The seven days from one on.
    WeekLayout layout(const QDate& first) const;
    /// What is on screen at an instant.
    trel::mediadispatch::ScreenState at(trel::mediadispatch::Instant moment) const;
    /// The plan that a state speaks of; null where it speaks of none of the tasks.
    const trel::mediadispatch::PlayPlan* plan(const trel::mediadispatch::ScreenState& state) const;
    /// The name of a program; empty when it is not known.
    QString program(int progIndex) const;

private:
    Tasks m_tasks;
    Catalogue m_catalogue;
    trel::mediadispatch::ScreenInsertions m_insertions;
    QTimeZone m_zone;
    trel::mediadispatch::ScreenTimeline m_timeline;
};

} // namespace week
