#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace trel::mediadispatch {

/// What kind of difference there is between two states of a schedule.
enum class DifferenceKind {
    TaskAdded,
    TaskRemoved,
    TaskField,
    PlanAdded,
    PlanRemoved,
    PlanMoved, ///< Has another place among the plans of its task that stay.
    PlanField,
    EntryAdded,
    EntryRemoved,
    EntryMoved, ///< Has another place among the entries of its plan that stay.
    EntryField,
};

/// How many kinds there are; they count from 0.
constexpr int kDifferenceKinds = static_cast<int>(DifferenceKind::EntryField) + 1;

/// The field of a task, a plan or an entry that is another one.
enum class DifferenceField {
    None,
    StartDate, ///< Of a task, as the next; texts.
    EndDate,
    Mode,          ///< Of a plan, as all up to ServiceFlagB; a number, a PlanMode.
    StartTime,     ///< A text.
    EndTime,       ///< A text. With FrequencyMode it follows from the programs.
    Times,         ///< A number.
    EndAction,     ///< A number, a PlanEndAction.
    Weeks,         ///< A text.
    HasNoDuration, ///< 0 or 1, as all truth values.
    IsConflict,    ///< A mark that is worked out afresh wherever a task is shown.
    ServiceCount,  ///< A number.
    ServiceList,   ///< A list.
    ServiceTime,   ///< A text.
    ServiceFlagA,
    ServiceFlagB,
    ProgName,  ///< Of an entry, as the next two; a text.
    PlayCount, ///< A number.
    IsInvalid,
};

/// How many fields there are, with None; they count from 0.
constexpr int kDifferenceFields = static_cast<int>(DifferenceField::IsInvalid) + 1;

/// The value of a field: a number, a text or a list of numbers.
using DifferenceValue = std::variant<std::int64_t, std::string, std::vector<std::int64_t>>;

/// One difference between two states. Places count from 0 and are -1 where they do not apply. It
/// carries what is needed to make the later state of the former one.
struct ScheduleDifference
{
    DifferenceKind kind = DifferenceKind::TaskField; ///< What has happened.
    DifferenceField field = DifferenceField::None;   ///< With the three kinds that name a field.
    int taskId = -1;                                 ///< In which task; always given.
    int planId = -1;        ///< The id of the plan, with all that is about a plan or an entry.
    int formerRow = -1;     ///< The plan's row in the former task; -1 for one that is new.
    int row = -1;           ///< The plan's row in the later task; -1 for one that has gone.
    int formerPlace = -1;   ///< The entry's place in the former list; -1 for one that is new.
    int place = -1;         ///< The entry's place in the later list; -1 for one that has gone.
    DifferenceValue before; ///< The former value of the field.
    DifferenceValue after;  ///< The later value of the field.
    PlayTask task;          ///< The one that is new or has gone.
    PlayPlan plan;          ///< The one that is new or has gone.
    struProgInfo entry;     ///< The one that is new or has gone; with EntryField the later one.
};

/// Everything in which two states of a schedule differ, by ids of tasks and within a task by rows;
/// empty when they are the same. Plans are taken for the same by their ids, entries by their
/// programs, each first one for the first that is left. Of what stays, as few as can be have moved.
///
/// To make the later state: put in and take out tasks; of each plan list take out, from the last
/// on, what has gone or moved, and put in by ascending rows what is new or moved; the same with the
/// entries of each plan that stays; then set the fields. Costs n log n over tasks, plans and
/// entries.
SCHEDULECONTRACT_EXPORT std::vector<ScheduleDifference>
scheduleDifferences(const std::map<int, PlayTask>& former, const std::map<int, PlayTask>& later);

/// Whether a difference is about what every display works out afresh: a mark of collision.
inline bool isWorkedOutAfresh(const ScheduleDifference& difference)
{
    return difference.field == DifferenceField::IsConflict;
}

/// What of scheduleDifferences() an operator is told: all but what is worked out afresh.
SCHEDULECONTRACT_EXPORT std::vector<ScheduleDifference>
differencesOfNote(const std::map<int, PlayTask>& former, const std::map<int, PlayTask>& later);

} // namespace trel::mediadispatch
