#pragma once

#include "deck/MpvHandle.h"

#include <QtGlobal>

#include <cstdint>
#include <optional>

namespace trel::player {

/// What a file tells of its film before a picture of it has been decoded.
struct FilmTrack
{
    int turned = 0; ///< By how much its pictures are to be turned clockwise, in degrees.
    double framesPerSecond = 0.0; ///< 0 where that is not known or not to be believed.
};

/// The first film of what a handle has loaded; none where there is none but covers.
std::optional<FilmTrack> filmTrackOf(mpv_handle* handle);

/// A number that the handle tells; 0 where it does not.
std::int64_t numberOf(mpv_handle* handle, const char* property);
/// A decimal that the handle tells, if it does.
std::optional<double> decimalOf(mpv_handle* handle, const char* property);

} // namespace trel::player
