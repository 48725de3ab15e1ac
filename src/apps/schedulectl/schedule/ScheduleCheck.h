#pragma once

#include "service/PlanTiming.h"
#include "service/ScheduleRecords.h"
#include "service/TaskPeriods.h"
#include "trelprogramschedule/problems/ScheduleProblem.h"

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace trel::console {

/// A plan as it takes effect.
struct PlanState
{
    std::string end; ///< The end in force, which a plan in FrequencyMode does not store.
    int collidingRow =
        -1; ///< The first earlier plan of the task that it collides with; -1 for none.

    bool collides() const { return collidingRow >= 0; }
};

/// What there is to say about one plan of a task. Rows count from 0.
struct PlanCollision
{
    int taskId;
    int row;
    int earlierRow;
    std::string end; ///< The end in force.
};

/// A field that does not hold what it should.
struct ScheduleRemark
{
    int taskId;
    int row; ///< -1 for the task itself.
    QString field;
    QString sentence; ///< For people, without a full stop.
    QString code;     ///< For machines, such as "notADate".
    QString value;    ///< What the field holds.
    QString taken;    ///< What it is taken for all the same; empty when it is not.
};

struct ScheduleCheck
{
    std::vector<trel::mediadispatch::TaskOverlap> overlaps; ///< A save would be refused for these.
    std::vector<PlanCollision> collisions;
    std::vector<ScheduleRemark> remarks;
    /// What the editor's list of problems finds, in its order, also of what is over.
    std::vector<trel::mediadispatch::ScheduleProblem> problems;

    /// Whether a save would be taken, and no plans collide.
    bool isClean() const { return overlaps.empty() && collisions.empty(); }
};

/// The programs that a schedule refers to.
struct Catalogue
{
    std::map<int, trel::mediadispatch::ProgramIten> programs;
    trel::mediadispatch::NoDurationTest hasNoDuration;
};

/// The state of each plan of a task, in the order of the rows, as the editor's cards show it.
std::vector<PlanState> planStates(const std::vector<trel::mediadispatch::PlayPlan>& plans,
                                  const Catalogue& catalogue);

/// Looks at a whole schedule: what a save would refuse, which plans collide, and what else is odd.
/// Changes of the clocks count from today on, in the zone of the clock.
ScheduleCheck checkSchedule(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                            const Catalogue& catalogue);

} // namespace trel::console
