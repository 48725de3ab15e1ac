#pragma once

#include <QString>

namespace trel::desktop {

/// Whether a file that was named on the command line is a database, and not media. Only its first
/// bytes are read; whether there is a schedule in it turns out when it is opened.
bool isDatabaseFile(const QString& path);

} // namespace trel::desktop
