#include "deck/MpvTracks.h"

#include <QByteArray>

#include <cstring>

namespace trel::player {

namespace {

/// A film has more than half a picture a second, and fewer than these.
constexpr double kFewestFrames = 0.5;
constexpr double kMostFrames = 1000.0;

QByteArray trackProperty(std::int64_t track, const char* name)
{
    return "track-list/" + QByteArray::number(qint64(track)) + '/' + name;
}

bool flagOf(mpv_handle* handle, const QByteArray& property)
{
    int value = 0;
    return mpv_get_property(handle, property.constData(), MPV_FORMAT_FLAG, &value) >= 0 &&
           value != 0;
}

bool isTrackOf(mpv_handle* handle, std::int64_t track, const char* type)
{
    char* found = mpv_get_property_string(handle, trackProperty(track, "type").constData());
    const bool isOf = found != nullptr && std::strcmp(found, type) == 0;
    mpv_free(found);
    return isOf;
}

} // namespace

std::optional<FilmTrack> filmTrackOf(mpv_handle* handle)
{
    const std::int64_t tracks = numberOf(handle, "track-list/count");
    for (std::int64_t track = 0; track < tracks; ++track) {
        if (!isTrackOf(handle, track, "video") ||
            flagOf(handle, trackProperty(track, "albumart"))) {
            continue;
        }
        FilmTrack film;
        film.turned =
            static_cast<int>(numberOf(handle, trackProperty(track, "demux-rotation").constData()));
        const double frames =
            decimalOf(handle, trackProperty(track, "demux-fps").constData()).value_or(0.0);
        film.framesPerSecond = frames >= kFewestFrames && frames <= kMostFrames ? frames : 0.0;
        return film;
    }
    return std::nullopt;
}

std::int64_t numberOf(mpv_handle* handle, const char* property)
{
    std::int64_t value = 0;
    return mpv_get_property(handle, property, MPV_FORMAT_INT64, &value) < 0 ? 0 : value;
}

std::optional<double> decimalOf(mpv_handle* handle, const char* property)
{
    double value = 0.0;
    return mpv_get_property(handle, property, MPV_FORMAT_DOUBLE, &value) < 0 ? std::nullopt
                                                                             : std::optional(value);
}

} // namespace trel::player
