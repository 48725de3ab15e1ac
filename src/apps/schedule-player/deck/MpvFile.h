#pragma once

#include "deck/MpvHandle.h"

#include <QByteArray>
#include <QString>

namespace trel::player {

class PlayedFile;

/// Has a handle read a file that is open already, so that the library knows no name beside which it
/// could look for others. Returns the address under which the handle is to load it; the path gives
/// it its suffix alone. The file outlives the handle.
QByteArray offerFile(mpv_handle* handle, PlayedFile& file, const QString& path);

} // namespace trel::player
