#pragma once

#include <QString>

namespace trel::player {

/// The path of a file that is about something of that name, in the user's own place on this machine
/// that goes with its restart.
QString ownPlaceOf(const QString& name, const QString& suffix);

} // namespace trel::player
