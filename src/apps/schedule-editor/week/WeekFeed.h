#pragma once

#include "week/WeekSchedule.h"

#include <QObject>

#include <memory>

namespace week {

/// Which schedule the picture shows.
enum class WeekSource {
    Edited,   ///< As the operator has it in the editor, saved or not.
    InEffect, ///< As it was started, with what was cut in.
};

/// Brings the schedule of a source from the service, and anew whenever it has changed. It asks for
/// nothing as long as nobody looks.
class WeekFeed : public QObject
{
    Q_OBJECT

public:
    explicit WeekFeed(QObject* parent = nullptr);
    ~WeekFeed() override;

    WeekSource source() const { return m_source; }
    void setSource(WeekSource source);
    /// While it is watched, it emits changed(), at once when something happened before.
    void setWatched(bool isWatched);

signals:
    void changed(const std::shared_ptr<const week::WeekSchedule>& schedule);

private:
    void markStale();
    void checkInEffect();
    void fetch();
    WeekSchedule::Tasks tasks() const;
    trel::mediadispatch::ScreenInsertions insertions() const;

    WeekSource m_source = WeekSource::Edited;
    bool m_isWatched = false;
    bool m_isStale = true;
    /// What was in effect when it was last fetched: the dispatch tells of every play, and few of
    /// them are news here.
    WeekSchedule::Tasks m_tasksInEffect;
    trel::mediadispatch::ScreenInsertions m_insertions;
};

} // namespace week
