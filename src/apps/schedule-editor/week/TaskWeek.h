#pragma once

#include "service/PlanFaults.h"
#include "service/ScheduleRecords.h"
#include "week/DayPieces.h"

#include <QString>
#include <QStringList>

#include <array>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace trel::desktop::week {

/// What one plan claims of one day. One that never plays is marked where it starts.
struct WeekBlock
{
    int planId = -1;
    int row = -1;
    int from = 0; ///< Seconds since midnight.
    int to = 0;
    trel::mediadispatch::PlanFault never = trel::mediadispatch::PlanFault::None;
    /// The second of the day in which its list is over before the plan ends.
    std::optional<int> listOver;
    bool collides = false;           ///< With a plan above it.
    bool hasNothing = false;         ///< None of its programs can be shown.
    QString start;                   ///< As the plan says.
    QString end;                     ///< As it is in force.
    QStringList programs;            ///< The first of them.
    std::vector<int> programIndexes; ///< Of the same.
    bool hasMorePrograms = false;
};

/// The lanes of blocks that stand on one day. Their claims are positions among the blocks.
DayLanes lanesOf(const std::vector<WeekBlock>& blocks,
                 const std::vector<LeftOutTime>& leftOut = {});

/// What the plans of a task claim of each day of the week, were the task in effect on it. Does not
/// change, so that layouts and threads may share one.
class TaskWeek
{
public:
    /// Costs n log n over the plans and their entries. Copies what it needs.
    TaskWeek(const trel::mediadispatch::PlayTask& task,
             const std::map<int, trel::mediadispatch::ProgramIten>& catalogue);
    ~TaskWeek();
    Q_DISABLE_COPY(TaskWeek)

    /// The blocks of a day of the week, 1 to 7, by start, then by row. What they have to show is
    /// not known to them.
    const std::vector<WeekBlock>& blocksOn(int weekday) const { return dayOf(weekday).blocks; }
    /// Their lanes, with no time left out. Worked out when they are first asked for.
    const DayLanes& lanesOn(int weekday) const;

private:
    struct Day
    {
        std::vector<WeekBlock> blocks;
        mutable std::once_flag isLaidOut;
        mutable DayLanes lanes;
    };

    const Day& dayOf(int weekday) const { return m_days[static_cast<std::size_t>(weekday)]; }
    void addToDays(const WeekBlock& block, const std::string& weeks);

    std::array<Day, trel::mediadispatch::WeekDayCount> m_days;
};

} // namespace trel::desktop::week
