#pragma once

#include "undo/TaskEdit.h"

namespace trel::desktop::undo {

/// What of a schedule a step changed, the smallest thing that holds all of it.
enum class EditKind {
    ReadAgain, ///< The saved schedule took the place of edits.
    Tasks,     ///< More than one task.
    TaskAdded,
    TaskDeleted,
    Task, ///< More than one thing in it.
    FirstDay,
    LastDay,
    PlanAdded,
    PlanDeleted,
    Programs,
    Mode,
    Start,
    Days,
    Runs,
    EndAction,
    End,
    Carried,        ///< What the service carries and nobody sees.
    Moved,          ///< Both times, as when a block of the week is dragged.
    SavedElsewhere, ///< What another program has saved meanwhile, read or merged with the edits.
};

struct EditedField
{
    EditKind kind = EditKind::Tasks;
    int taskId = -1;  ///< -1 where there is more than one.
    int planRow = -1; ///< Among the plans of the task, before it was deleted; -1 outside of them.

    /// Whether a second step at the same place goes on with the first. What was put in, taken out
    /// or changed in more than one place stands by itself.
    bool isOneField() const;
};

bool operator==(const EditedField& a, const EditedField& b);

/// Whether two states of a task are the same to an operator. Marks of collision are worked out
/// wherever a task is shown, and ends in FrequencyMode follow from the lengths of programs: neither
/// is an edit.
bool isSameToOperator(const follow::SharedTask& a, const follow::SharedTask& b);

/// The edits may not be empty. A field that others follow from stands for them: a new start in
/// FrequencyMode moves the end as well.
EditedField editedField(const TaskEdits& edits);

} // namespace trel::desktop::undo
