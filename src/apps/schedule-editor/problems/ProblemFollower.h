#pragma once

#include "problems/ProblemModel.h"

#include <QObject>

#include <memory>

namespace trel::desktop {

namespace follow {
class EditedSchedule;
}

/// Keeps the problems of the schedule that is being edited up to date, saved or not, once for all
/// edits of one turn of the event loop. What takes long is worked out in another thread; what was
/// known before stays until then.
class ProblemFollower : public QObject
{
    Q_OBJECT

public:
    /// The schedule outlives the follower.
    ProblemFollower(follow::EditedSchedule& edited, QObject* parent);
    ~ProblemFollower() override;

    ProblemModel* model() const { return m_model; }

signals:
    /// The model has taken over what was found.
    void found();

private:
    void take(const follow::ScheduleEdits& edits);

    ProblemModel* m_model;
    std::shared_ptr<ProblemWork> m_search;
    follow::NewestWork m_work;
};

} // namespace trel::desktop
