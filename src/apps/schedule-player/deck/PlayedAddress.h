#pragma once

#include <QString>

namespace trel::player {

/// Whether an address names a stream by a way that leads over a network, and by none that leads to
/// a file, a device or a description of other things to play.
bool isStreamAddress(const QString& address);

} // namespace trel::player
