#pragma once

#include "undo/EditedField.h"
#include "undo/TaskEdit.h"

#include <QUndoCommand>

namespace trel::desktop::undo {

class EditHistory;

/// One step of the operator, which has been done when the command is made. Steps at the same field,
/// one after the other, are one.
class EditCommand : public QUndoCommand
{
public:
    /// The history outlives the command. The number tells it from all others of the history.
    EditCommand(EditHistory& history, TaskEdits edits, const EditedField& field, int number);

    const EditedField& field() const { return m_field; }
    const TaskEdits& edits() const { return m_edits; }
    int number() const { return m_number; }

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;

private:
    EditHistory& m_history;
    TaskEdits m_edits;
    EditedField m_field;
    int m_number;
    int m_catalogue;      ///< Which catalog its records were made with.
    bool m_isDone = true; ///< The stack asks for it once more when it takes the command.
};

} // namespace trel::desktop::undo
