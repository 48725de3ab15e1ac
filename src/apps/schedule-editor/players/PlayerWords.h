#pragma once

#include "trelprogramschedule/screens/PlayerStatus.h"

#include <QCoreApplication>
#include <QString>

namespace trel::desktop {

class ScreenFollower;

namespace players {

/// What is told of the player of a screen, in the language in use. Plain texts; moments are told by
/// the clock of the schedule in effect.
class PlayerWords
{
    Q_DECLARE_TR_FUNCTIONS(PlayerWords)

public:
    /// The program on the screen, or what stands there in its place.
    static QString shown(const trel::mediadispatch::PlayerStatus& status);
    /// When it told of itself, given the present moment.
    static QString heard(const trel::mediadispatch::PlayerStatus& status,
                         trel::mediadispatch::Instant now, const ScreenFollower& clock);
    /// How many things went wrong, and the last of them.
    static QString faults(const trel::mediadispatch::PlayerStatus& status,
                          const ScreenFollower& clock);
    /// How many players there are, and how many of them are silent.
    static QString number(int players, int silent);
};

} // namespace players
} // namespace trel::desktop
