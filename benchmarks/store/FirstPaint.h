#pragma once

#include <QWidget>

namespace bench {

/// Runs the event loop until a window that is on show has been painted.
void waitForPaint(QWidget& window);

/// Prints the processor time that this process has taken since it was started, in seconds, and ends
/// it on the spot.
[[noreturn]] void reportStart();

} // namespace bench
