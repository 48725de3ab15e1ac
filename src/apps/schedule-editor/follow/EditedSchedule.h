#pragma once

#include "follow/ScheduleEdits.h"

#include <QObject>

#include <set>

namespace trel::desktop::follow {

/// The schedule that is being edited, saved or not, as records that can be handed to other threads.
/// An edit costs the tasks that it touches.
///
/// A follower connects to edited() and then asks for everything(). While there is no follower,
/// nothing is copied.
class EditedSchedule : public QObject
{
    Q_OBJECT

public:
    explicit EditedSchedule(QObject* parent = nullptr);
    ~EditedSchedule() override;

    ScheduleEdits everything();

signals:
    /// Comes from the event loop, once for all edits of one of its turns.
    void edited(const follow::ScheduleEdits& edits);

private:
    void take(const std::set<int>& taskIds);
    void takeCatalogue();
    bool isFollowed() const;
    void put(ScheduleEdits& edits, int taskId);
    bool addCatalogue(ScheduleEdits& edits);

    bool m_isKnown = false; ///< The records below are those of the service.
    std::map<int, SharedTask> m_tasks;
    SharedCatalogue m_catalogue;
    std::size_t m_size = 0;
};

} // namespace trel::desktop::follow
