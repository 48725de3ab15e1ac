#include "undo/EditedField.h"

#include <algorithm>
#include <cstddef>
#include <tuple>

using namespace trel::mediadispatch;

namespace trel::desktop::undo {

namespace {

using Plans = std::vector<PlayPlan>;

PlayPlan withoutWhatFollows(PlayPlan plan)
{
    plan.isConflict = false;
    if (plan.mode == FrequencyMode) {
        plan.endTime.clear();
    }
    return plan;
}

bool isSamePlan(const PlayPlan& a, const PlayPlan& b)
{
    return withoutWhatFollows(a) == withoutWhatFollows(b);
}

bool areSamePlans(const Plans& a, const Plans& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSamePlan);
}

/// The row of the one plan that the longer list has and the other has not; -1 where that is not all
/// in which they differ.
int rowOfOneMore(const Plans& longer, const Plans& shorter)
{
    if (longer.size() != shorter.size() + 1) {
        return -1;
    }
    const auto [extra, next] =
        std::mismatch(longer.begin(), longer.end(), shorter.begin(), shorter.end(), isSamePlan);
    const bool isAll = std::equal(extra + 1, longer.end(), next, shorter.end(), isSamePlan);
    return isAll ? static_cast<int>(extra - longer.begin()) : -1;
}

/// The row of the one plan that is another; -1 where there are more, or none.
int rowOfOneOther(const Plans& a, const Plans& b)
{
    int row = -1;
    for (std::size_t i = 0; i < a.size() && a.size() == b.size(); ++i) {
        if (isSamePlan(a[i], b[i])) {
            continue;
        }
        if (row >= 0) {
            return -1;
        }
        row = static_cast<int>(i);
    }
    return row;
}

EditKind kindOf(const PlayPlan& before, const PlayPlan& after)
{
    if (before.programs != after.programs) {
        return EditKind::Programs;
    }
    if (before.mode != after.mode) {
        return EditKind::Mode;
    }
    if (before.startTime != after.startTime) {
        const bool isMoved = after.mode == TimeMode && before.endTime != after.endTime;
        return isMoved ? EditKind::Moved : EditKind::Start;
    }
    if (before.weeks != after.weeks) {
        return EditKind::Days;
    }
    if (before.times != after.times) {
        return EditKind::Runs;
    }
    if (before.endAction != after.endAction) {
        return EditKind::EndAction;
    }
    return before.endTime != after.endTime ? EditKind::End : EditKind::Carried;
}

EditedField fieldOf(const PlayTask& before, const PlayTask& after)
{
    const int id = before.id;
    const bool isStartOther = before.startDate != after.startDate;
    const bool isEndOther = before.endDate != after.endDate;
    const bool arePlansOther = !areSamePlans(before.plans, after.plans);
    if (int(isStartOther) + int(isEndOther) + int(arePlansOther) != 1) {
        return {EditKind::Task, id};
    }
    if (!arePlansOther) {
        return {isStartOther ? EditKind::FirstDay : EditKind::LastDay, id};
    }
    if (const int row = rowOfOneMore(after.plans, before.plans); row >= 0) {
        return {EditKind::PlanAdded, id, row};
    }
    if (const int row = rowOfOneMore(before.plans, after.plans); row >= 0) {
        return {EditKind::PlanDeleted, id, row};
    }
    const int row = rowOfOneOther(before.plans, after.plans);
    if (row < 0) {
        return {EditKind::Task, id};
    }
    const auto index = static_cast<std::size_t>(row);
    return {kindOf(before.plans[index], after.plans[index]), id, row};
}

} // namespace

bool EditedField::isOneField() const
{
    switch (kind) {
    case EditKind::FirstDay:
    case EditKind::LastDay:
    case EditKind::Programs:
    case EditKind::Mode:
    case EditKind::Start:
    case EditKind::Days:
    case EditKind::Runs:
    case EditKind::EndAction:
    case EditKind::End:
    case EditKind::Moved:
        return true;
    default:
        return false;
    }
}

bool operator==(const EditedField& a, const EditedField& b)
{
    return std::tie(a.kind, a.taskId, a.planRow) == std::tie(b.kind, b.taskId, b.planRow);
}

bool isSameToOperator(const follow::SharedTask& a, const follow::SharedTask& b)
{
    if (a == b || !a || !b) {
        return a == b;
    }
    return std::tie(a->id, a->startDate, a->endDate) == std::tie(b->id, b->startDate, b->endDate) &&
           areSamePlans(a->plans, b->plans);
}

EditedField editedField(const TaskEdits& edits)
{
    if (edits.size() != 1) {
        return {EditKind::Tasks};
    }
    const TaskEdit& edit = edits.front();
    if (!edit.before) {
        return {EditKind::TaskAdded, edit.taskId};
    }
    if (!edit.after) {
        return {EditKind::TaskDeleted, edit.taskId};
    }
    return fieldOf(*edit.before, *edit.after);
}

} // namespace trel::desktop::undo
