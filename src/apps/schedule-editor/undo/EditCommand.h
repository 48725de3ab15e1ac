#pragma once

#include "undo/EditedField.h"
#include "undo/TaskEdit.h"

#include <QUndoCommand>

#include <functional>

namespace trel::desktop::undo {

/// One step of the operator, which has been done when the command is made. Steps at the same field,
/// one after the other, are one.
class EditCommand : public QUndoCommand
{
public:
    /// Files a state of a task, or takes the task out.
    using Put = std::function<void(int taskId, const follow::SharedTask& task)>;

    /// Whether a step is one with that before it.
    enum class Joined { ToSameField, Never };

    /// The number tells it from all others of the history. What put refers to outlives the command.
    EditCommand(Put put, TaskEdits edits, const EditedField& field, int number, Joined joined);

    const EditedField& field() const { return m_field; }
    const TaskEdits& edits() const { return m_edits; }
    int number() const { return m_number; }

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;

private:
    Put m_put;
    TaskEdits m_edits;
    EditedField m_field;
    int m_number;
    Joined m_joined;
    bool m_isDone = true; ///< The stack asks for it once more when it takes the command.
};

} // namespace trel::desktop::undo
