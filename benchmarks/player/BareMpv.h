#pragma once

#include <QSize>
#include <QString>

#include <chrono>

namespace bench {

/// Has the library play a film for some time, and draw each picture in memory, with nothing around
/// it. Throws where the library does not.
void playWithLibrary(const QString& film, const QSize& size, std::chrono::milliseconds length);

} // namespace bench
