#pragma once

#include <QSize>

#include <vector>

namespace trel::mediadispatch {

/// A picture out of a media file, dot by dot.
struct MediaPicture
{
    QSize size;                ///< Empty when there is no picture.
    std::vector<quint32> dots; ///< 0xAARRGGBB, row by row, nothing in between.
    /// How far it is to be turned to stand upright, in degrees clockwise.
    double turn = 0.0;
};

} // namespace trel::mediadispatch
