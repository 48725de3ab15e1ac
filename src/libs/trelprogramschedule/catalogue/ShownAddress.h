#pragma once

#include "trelprogramschedule_export.h"

#include <QString>
#include <QtGlobal>

namespace trel::mediadispatch {

/// An address as people may see it, on a screen or in a log: without the password in front of its
/// host, and with *** in the place of what stands behind passphrase=, token=, key= and their like,
/// however their names are written. The user's name stays, and so does every letter of an address
/// without a secret and of the path of a file.
///
/// For texts only: what plays or stores a program takes its mediaPath as it is.
TRELPROGRAMSCHEDULE_EXPORT QString shownAddress(const QString& address);

} // namespace trel::mediadispatch
