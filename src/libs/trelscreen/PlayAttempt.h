#pragma once

#include "trelscreen/DeckFault.h"
#include "trelscreen/ScreenPlay.h"

#include <optional>

namespace trel::screen {

class DeckSlot;

/// A play that is to be on screen, and how it fares. Steady moments are milliseconds that never
/// leap.
struct PlayAttempt
{
    ScreenPlay play;
    DeckSlot* slot = nullptr; ///< Where it is loaded; none while it waits to be tried again.

    DeckFault fault;                ///< The last one, until it has recovered.
    int failures = 0;               ///< Since it was well.
    std::optional<qint64> failedAt; ///< The first of them.
    std::optional<qint64> retryAt;
    /// When it was on screen again; it has recovered once it stays so for a while.
    std::optional<qint64> backAt;
};

} // namespace trel::screen
