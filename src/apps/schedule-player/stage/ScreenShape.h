#pragma once

#include <QImage>
#include <QSize>

namespace trel::player {

/// The dots that a screen has, and how it hangs.
struct ScreenShape
{
    QSize size; ///< As the system sees the screen, in dots of the device.
    /// By how much what is shown has to be turned clockwise to stand upright on it: 0, 90, 180 or
    /// 270 degrees.
    int turned = 0;

    bool operator==(const ScreenShape& other) const
    {
        return size == other.size && turned == other.turned;
    }
    bool operator!=(const ScreenShape& other) const { return !(*this == other); }
};

/// The room for something that fills a room of that size once it has been turned.
QSize roomBeforeTurning(const QSize& size, int degrees);
/// Turned clockwise by 0, 90, 180 or 270 degrees, dot by dot.
QImage turnedClockwise(const QImage& picture, int degrees);
/// The picture in the middle of a black room, as large as fits, upright or not as it was given. A
/// picture of that size already is returned as it is; no picture gives a black room.
QImage fittedOnBlack(const QImage& picture, const QSize& room);

} // namespace trel::player
