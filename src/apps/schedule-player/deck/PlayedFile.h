#pragma once

#include "trelprogramschedule/media/MediaFile.h"
#include "trelscreen/DeckFault.h"

#include <QString>

#include <cstdint>

namespace trel::player {

/// A media file, open for reading, and read through its descriptor alone: the library that plays it
/// knows no name beside which other files could stand. Only a regular file is opened; a device, a
/// pipe and a socket may keep a reader waiting for ever, and some do something when they are
/// opened.
///
/// Goes on to be read where its name is taken away, and to its new end where it grows.
class PlayedFile
{
public:
    explicit PlayedFile(const QString& path);

    /// Why it is not open.
    screen::DeckFault fault() const;

    /// The bytes that it has now; -1 where that cannot be told.
    std::int64_t size() const;
    /// Reads on from where it is; 0 at the end, -1 where the disk fails.
    std::int64_t read(char* room, std::uint64_t count);
    /// False for a place that no file has.
    bool seek(std::int64_t place);

private:
    const mediadispatch::MediaFile m_file;
    std::int64_t m_place = 0;
};

} // namespace trel::player
