#pragma once

#include "trelscreen/ScreenFeed.h"

#include <QString>
#include <QTimeZone>
#include <QTimer>

#include <optional>

namespace trel::mediadispatch {
class ScheduleHost;
}

namespace trel::screen {

/// Follows what is in effect in a store, for a screen in another thread: reads the store, which it
/// only ever reads, and tells of everything that the screen has to know as one record.
///
/// It lives in a thread of its own, in which alone the schedule service is used by this program, so
/// that a large schedule or a slow disk holds up no picture. A store that is not there, cannot be
/// read or was replaced is looked for every second, for as long as it takes; meanwhile the screen
/// goes on with what was read last.
class ScheduleFeed : public ScreenFeed
{
    Q_OBJECT

public:
    explicit ScheduleFeed(QString store);

    void start() override;
    void stop() override;

private:
    void look();
    void takeOver();
    void note(const mediadispatch::StoreResult& result);
    void publishSoon();
    void publish();

    QString m_store;
    mediadispatch::ScheduleHost* m_host = nullptr; ///< From start to stop.
    QTimer m_round;
    QTimer m_publishing;
    ScreenSchedule m_told;
    QTimeZone m_zone; ///< Of the timeline that was told last.
    std::optional<mediadispatch::StoreResult> m_loss;
};

} // namespace trel::screen
