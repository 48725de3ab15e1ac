#pragma once

#include <QString>

namespace trel::player {

/// Whether an address names a stream by a way that leads over a network, and by none that leads to
/// a file, a device or a description of other things to play.
bool isStreamAddress(const QString& address);

/// What a library says, without the passwords and keys of the addresses that it quotes: the one
/// that it was given, and others that it has made of it or was sent to.
QString withoutSecrets(const QString& words);

} // namespace trel::player
