#pragma once

#include "asrun/AsRunMail.h"
#include "trelscreen/AsRunRecorder.h"

#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>

#include <memory>

namespace trel::screen {
class Conductor;
}

namespace trel::player {

class AsRunKeeper;
struct AsRunPlace;

/// Records what is on a screen, from construction to leave(). In the thread of the screen it only
/// posts; writing and handing in is done in a thread of its own.
class AsRunRecording : public QObject
{
    Q_OBJECT

public:
    explicit AsRunRecording(const AsRunPlace& place);
    /// leave() has to have been called, and to have said that the thread has ended.
    ~AsRunRecording() override;

    /// What happens on the screen is to be told here.
    screen::ScreenLog& log() { return m_recorder; }
    /// To be called right before the screen is given a schedule.
    void take(const screen::ScreenSchedule& schedule) { m_recorder.take(schedule); }
    /// Looks every few seconds at what is on the screen, which outlives this or its leave().
    void follow(const screen::Conductor& conductor);

    /// The screen ends. What is known is written beside.
    void leave();
    /// Waits for that; false where it takes longer.
    bool waitForEnd(int milliseconds);

signals:
    /// Something for the log.
    void told(const QString& line);

private:
    void look();
    void wakeKeeper();

    std::shared_ptr<AsRunMail> m_mail;
    screen::AsRunRecorder m_recorder;
    const screen::Conductor* m_conductor = nullptr;
    QTimer m_round;
    std::unique_ptr<AsRunKeeper> m_keeper; ///< In the thread.
    QThread m_thread;
};

} // namespace trel::player
