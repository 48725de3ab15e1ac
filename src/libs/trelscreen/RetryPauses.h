#pragma once

#include <QtGlobal>

namespace trel::screen {

/// How long to wait, in milliseconds, before something is tried again that has failed so many times
/// in a row, 1 or more: a quarter of a second at first, later a second, so that what comes back is
/// on screen soon after. Counted from the beginning of a try that came to nothing, though never
/// less than a quarter of a second from its end, and from the end of one that was on screen.
qint64 retryPause(int failures);

} // namespace trel::screen
