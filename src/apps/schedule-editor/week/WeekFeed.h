#pragma once

#include "follow/NewestWork.h"
#include "week/WeekWork.h"

#include <QObject>

#include <memory>

namespace trel::desktop::follow {
class EditedSchedule;
} // namespace trel::desktop::follow

namespace trel::desktop::week {

/// Which schedule the picture shows.
enum class WeekSource {
    Edited,   ///< As the operator has it in the editor, saved or not.
    InEffect, ///< As it was started, with what was cut in.
};

/// Makes pictures of the schedule of a source, and another one whenever it has changed. It asks for
/// nothing while it is not watched. A picture that takes long is made in another thread, and
/// abandoned when a newer edit comes.
class WeekFeed : public QObject
{
    Q_OBJECT

public:
    /// The schedule outlives the feed.
    explicit WeekFeed(follow::EditedSchedule& edited, QObject* parent = nullptr);
    ~WeekFeed() override;

    WeekSource source() const { return m_source; }
    void setSource(WeekSource source);
    /// The week that pictures are made of. A picture that is on its way is made of this one
    /// instead.
    void setWeek(const QDate& first);
    /// While it is watched, it emits changed() when something has happened, and when it did before.
    void setWatched(bool isWatched);

signals:
    /// Comes within the call, or from the event loop.
    void changed(const week::WeekPicture& picture);

private:
    void watchEdits();
    void checkInEffect();
    void markStale();
    void orderAll();
    follow::ScheduleEdits everything();
    void order(const follow::ScheduleEdits& edits);

    follow::EditedSchedule& m_edited;
    QMetaObject::Connection m_following;
    WeekSource m_source = WeekSource::Edited;
    QDate m_week;
    bool m_isWatched = false;
    bool m_isStale = true;
    bool m_isOnItsWay = false; ///< A picture.
    std::shared_ptr<WeekWork> m_pictures;
    follow::NewestWork m_work;
    /// What was in effect when it was last fetched: the dispatch tells of every play, and few of
    /// them are news here.
    WeekSchedule::Tasks m_tasksInEffect;
    trel::mediadispatch::ScreenInsertions m_insertions;
    std::size_t m_size = 0; ///< See ScheduleEdits.
};

} // namespace trel::desktop::week
