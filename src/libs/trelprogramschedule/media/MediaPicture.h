#pragma once

#include <QSize>

#include <vector>

namespace trel::mediadispatch {

/// A picture out of a media file, dot by dot, as it is to be seen.
struct MediaPicture
{
    QSize size;                ///< Empty when there is no picture.
    std::vector<quint32> dots; ///< 0xAARRGGBB, row by row, nothing in between.
};

} // namespace trel::mediadispatch
