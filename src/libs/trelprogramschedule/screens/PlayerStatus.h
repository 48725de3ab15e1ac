#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QMetaType>
#include <QString>

namespace trel::mediadispatch {

/// What the player of a screen tells of itself.
struct PlayerStatus
{
    QString screen; ///< Its name, one that PlayerStatusFolder::takesName.
    QString player; ///< The program, its process and the machine, as "schedule-player 17@lobby".
    Instant started = 0; ///< Since when the player runs.
    Instant heard = 0;   ///< When it told this.

    ScreenState shown; ///< What the timeline has on the screen.
    QString program;   ///< The name of the program in it; empty for none.
    /// Something else stands there, because what the timeline has cannot be shown.
    bool isStandIn = false;
    /// What stands there instead is the last good picture of the program, and not one of no
    /// program.
    bool keepsLastPicture = false;

    qint64 switches = 0; ///< Changes of picture since it runs.
    /// How late they came, in milliseconds.
    double medianLateness = 0.0;
    double worstLateness = 0.0;

    qint64 faults = 0; ///< Since it runs.
    QString lastFault; ///< In words; empty for none.
    Instant lastFaultAt = 0;
};

/// Whether a player has not been heard for half a minute at a moment. It tells of itself every ten
/// seconds, so that it has missed two rounds: it is gone, or stands still.
inline bool isSilent(const PlayerStatus& status, Instant now)
{
    constexpr Instant kSilence = 30000; // milliseconds
    return now - status.heard > kSilence;
}

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::PlayerStatus)
