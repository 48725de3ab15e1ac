#pragma once

#include <QString>

namespace trel::desktop::place {

/// What is told of where a schedule is: a file, or under a name on a server. Plain text of one
/// line, which never has a password; empty for no place.
QString placeName(const QString& place);

/// What files are called that are made of a schedule and stand elsewhere: its name, without what no
/// name of a file takes.
QString placeFileName(const QString& place);

/// The folder of a file; empty for a place on a server.
QString placeFolder(const QString& place);

} // namespace trel::desktop::place
