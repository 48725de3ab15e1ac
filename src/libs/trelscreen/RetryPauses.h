#pragma once

#include <QtGlobal>

namespace trel::screen {

/// How long to wait, in milliseconds, before something is tried again that has failed so many times
/// in a row, 1 or more: a quarter of a second at first, later a second, so that what comes back is
/// on screen soon after.
qint64 retryPause(int failures);

} // namespace trel::screen
