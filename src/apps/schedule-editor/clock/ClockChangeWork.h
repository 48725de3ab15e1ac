#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"
#include "trelprogramschedule/dispatch/ClockChanges.h"

#include <QDate>
#include <QTimeZone>

#include <mutex>
#include <optional>
#include <vector>

namespace trel::desktop {

/// Finds the next changes of the clocks in a schedule that is edited task by task.
class ClockChangeWork
{
public:
    using Changes = std::vector<trel::mediadispatch::TaskClockChange>;

    /// Takes note of what to look for next. Edits add up, and another zone counts from the next
    /// whole schedule on. Any thread.
    void order(const follow::ScheduleEdits& edits, const QTimeZone& zone, const QDate& today);
    /// So many changes at most. Nothing when it is cancelled. One thread at a time.
    std::optional<Changes> find(int count, const follow::Cancellation& cancellation);

private:
    QDate takeOrder();

    std::mutex m_mutex; ///< Of the three below.
    follow::ScheduleEdits m_edits;
    QTimeZone m_zone;
    QDate m_today;

    follow::SharedCatalogue m_catalogue;
    trel::mediadispatch::ClockChangeSearch m_search{QTimeZone::utc()};
};

} // namespace trel::desktop
