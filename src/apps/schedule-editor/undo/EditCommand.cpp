#include "undo/EditCommand.h"

#include <utility>

namespace trel::desktop::undo {

EditCommand::EditCommand(Put put, TaskEdits edits, const EditedField& field, int number,
                         Joined joined)
    : m_put(std::move(put))
    , m_edits(std::move(edits))
    , m_field(field)
    , m_number(number)
    , m_joined(joined)
{}

void EditCommand::undo()
{
    for (const TaskEdit& edit : m_edits) {
        m_put(edit.taskId, edit.before);
    }
}

void EditCommand::redo()
{
    if (std::exchange(m_isDone, false)) {
        return;
    }
    for (const TaskEdit& edit : m_edits) {
        m_put(edit.taskId, edit.after);
    }
}

int EditCommand::id() const
{
    constexpr int kNeverJoined = -1;
    constexpr int kJoined = 1;
    return m_field.isOneField() ? kJoined : kNeverJoined;
}

bool EditCommand::mergeWith(const QUndoCommand* next)
{
    // All commands of the history are of this class.
    const auto& later = static_cast<const EditCommand&>(*next);
    if (later.m_joined == Joined::Never || !(later.m_field == m_field)) {
        return false;
    }
    m_edits.front().after = later.m_edits.front().after;
    // Back to where it began: there is nothing left to take back.
    setObsolete(isSameToOperator(m_edits.front().before, m_edits.front().after));
    return true;
}

} // namespace trel::desktop::undo
