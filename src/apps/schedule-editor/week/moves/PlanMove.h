#pragma once

#include "service/PlanTiming.h"
#include "service/ScheduleRecords.h"

#include <map>
#include <optional>
#include <vector>

namespace trel::desktop::week {

using Programs = std::map<int, trel::mediadispatch::ProgramIten>;

inline constexpr int kQuarterSeconds = 900;
/// The end of a day, as which the latest time that a plan can have counts.
inline constexpr int kMidnight = 86400;

/// What an operator does with a block of the picture.
struct PlanMove
{
    enum Part {
        Whole, ///< Both times, its length staying as it is.
        Begin,
        End
    };

    Part part = Whole;
    /// Where the begin comes to, for End the end; in seconds since midnight. Nothing: it stays.
    std::optional<int> second;
    /// The days of the week, 1 to 7, that a whole block leaves and comes to; equal where it stays.
    int fromDay = 1;
    int toDay = 1;
};

/// Why a move leads to nothing.
enum class MoveRefusal {
    None,
    Nowhere, ///< The plan is already there.
    Unreadable,
    PastMidnight, ///< A plan ends on the day on which it starts.
    NoLength,     ///< The start would not be before the end.
    EndFollows,   ///< Its length follows from its programs and runs.
    EveryDay,     ///< It plays every day, so that it cannot change one of them.
    HasThatDay,   ///< It plays on that day already.
    UnknownDays,  ///< Its days are not all days of the week.
    OtherTask     ///< Another task is in effect there, or none. movedPlan() does not know of it.
};

struct MovedPlan
{
    MoveRefusal refusal = MoveRefusal::None;
    trel::mediadispatch::PlayPlan plan; ///< As it was where it is refused.
};

/// What a plan becomes: the same as when these times and days are entered in its row. A plan of
/// several days keeps one time for all of them; the day that the block leaves is replaced by the
/// one that it comes to.
///
/// A move that cannot be leads to nothing at all, and so does one that would run over midnight or
/// leave no length. A plan in FrequencyMode moves by its start, and its end follows.
MovedPlan movedPlan(const trel::mediadispatch::PlayPlan& plan, const PlanMove& move,
                    const Programs& programs,
                    const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// The begin of a plan, in seconds since midnight; its end as it is stored. Nothing for a text that
/// names no time.
std::optional<int> beginOf(const trel::mediadispatch::PlayPlan& plan);
std::optional<int> endOf(const trel::mediadispatch::PlayPlan& plan);

/// A second moved by so many of them, on the quarter of an hour that is nearest then. Where that is
/// less than half a quarter it stays, wherever it is: then there is nothing.
std::optional<int> draggedTo(int second, int bySeconds);
/// The quarter of an hour so many quarters later, or earlier. The first of them is the next one
/// from a time between two.
int steppedTo(int second, int quarters);

/// The test of a catalogue for programs without a length of their own. The catalogue outlives it.
trel::mediadispatch::NoDurationTest noDurationIn(const Programs& programs);

/// Sets the mark of collision of every plan afresh.
void markCollisions(trel::mediadispatch::PlayTask& task, const Programs& programs,
                    const trel::mediadispatch::NoDurationTest& hasNoDuration);

/// The rows that a plan of the task would collide with, were it the plan of a row. A row that the
/// task has not is one that is added.
std::vector<int> collidingRows(const trel::mediadispatch::PlayTask& task, int row,
                               const trel::mediadispatch::PlayPlan& plan, const Programs& programs,
                               const trel::mediadispatch::NoDurationTest& hasNoDuration);

} // namespace trel::desktop::week
