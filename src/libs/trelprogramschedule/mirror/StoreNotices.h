#pragma once

#include "LookTimes.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace trel::mediadispatch {

/// Has a store on a server looked at when it is time to: when the server has told of a change,
/// after its connection has gone, and now and then in any case, since what the server tells can be
/// lost. The driver does not tell that a connection has gone, so that it is asked each second.
///
/// Belongs to one thread, whose event loop it needs.
class StoreNotices : public QObject
{
    Q_OBJECT

public:
    using Time = LookTimes::Time;

    /// Where time and chance come from, for tests.
    struct Habits
    {
        LookTimes::Random random;
        std::function<Time()> now;

        Habits();
    };

    /// Looks, connecting anew and subscribing before where that is needed; whether the store could
    /// be read. May take as long as the server does.
    using Look = std::function<bool()>;
    /// Whether nothing is known of a loss of the connection. Takes no time.
    using IsConnected = std::function<bool()>;

    StoreNotices(Look look, IsConnected isConnected, Habits habits = {});

    /// The first look is within a second.
    void begin();
    /// There is no look any more.
    void end();
    /// The server has told of a change. From the thread of this object; the look follows soon, one
    /// for all that is told until then.
    void hear();
    /// What the last look has found was of no use: it is done again after a pause, as one that was
    /// refused is.
    void refuse();
    /// Looks at the connection, and at the store where that is due. Comes by itself, each second
    /// and whenever a look is due.
    void turn();

private:
    void waitForTurn();

    Look m_look;
    IsConnected m_isConnected;
    Habits m_habits;
    LookTimes m_times;
    QTimer m_turn;
    bool m_isOn = false;
    bool m_isRead = false; ///< By the last look, and the connection is there since.
};

} // namespace trel::mediadispatch
