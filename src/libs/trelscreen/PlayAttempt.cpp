#include "PlayAttempt.h"

#include "trelscreen/RetryPauses.h"

#include <algorithm>
#include <utility>

namespace trel::screen {

bool PlayAttempt::fail(const DeckFault& newFault, qint64 steady)
{
    const bool isNew = fault.trouble != newFault.trouble;
    fault = newFault;
    ++failures;
    failedAt = failedAt.value_or(steady);
    // What took long to fail has had its pause meanwhile.
    retryAt = std::max(steady + retryPause(1), triedAt.value_or(steady) + retryPause(failures));
    triedAt.reset();
    backAt.reset();
    slot = nullptr;
    return isNew;
}

ScreenEvent PlayAttempt::recover(qint64 steady)
{
    ScreenEvent event;
    event.kind = ScreenEvent::Kind::Recovered;
    event.play = play;
    event.amount = backAt.value_or(steady) - failedAt.value_or(steady);
    event.fault = std::exchange(fault, {});
    event.tries = std::exchange(failures, 0);
    failedAt.reset();
    backAt.reset();
    return event;
}

} // namespace trel::screen
