#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace trel::player {

/// Milliseconds since the machine was started, its sleep included. Never leaps.
qint64 sinceBoot();

/// Which start of the machine this is: 16 bytes; zeros where the system does not say.
QByteArray bootId();

} // namespace trel::player
