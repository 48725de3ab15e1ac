#pragma once

#include "undo/TaskEdit.h"
#include "week/moves/PlanMove.h"

#include <QDate>

#include <map>
#include <memory>

namespace trel::desktop::week {

/// Where the edits of a picture go, and what they start from: the schedule that is being edited.
class EditTarget
{
public:
    virtual ~EditTarget() = default;

    /// A task as it is at this moment; null where there is none.
    virtual follow::SharedTask task(int taskId) const = 0;
    /// All of them.
    virtual std::map<int, trel::mediadispatch::PlayTask> tasks() const = 0;
    /// How many tasks are valid on a day.
    virtual int tasksValidOn(const QDate& day) const = 0;
    /// Never null.
    virtual std::shared_ptr<const Programs> programs() const = 0;
    /// Files tasks in the place of those that the operator has seen, as one step. Where one of them
    /// is another by now, nothing is filed.
    virtual void file(const undo::TaskEdits& edits) = 0;

protected:
    EditTarget() = default;
    Q_DISABLE_COPY(EditTarget)
};

} // namespace trel::desktop::week
