#pragma once

#include "trelscreen/DeckFault.h"
#include "trelscreen/ScreenLog.h"
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
    std::optional<qint64> triedAt;  ///< When it was loaded, until it has been on screen.
    std::optional<qint64> retryAt;
    /// When it was on screen again; it has recovered once it stays so for a while.
    std::optional<qint64> backAt;

    /// Takes down that it cannot be shown, gives up its slot and sets the time of the next try.
    /// Tells whether that is another trouble than before.
    bool fail(const DeckFault& fault, qint64 steady);
    /// Forgets its troubles: returns what there is to tell of them.
    ScreenEvent recover(qint64 steady);
    /// Whether it may be tried now.
    bool isDue(qint64 steady) const { return !retryAt || steady >= *retryAt; }
};

} // namespace trel::screen
