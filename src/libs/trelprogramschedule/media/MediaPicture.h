#pragma once

#include <QSize>

#include <atomic>
#include <vector>

class QString;

namespace trel::mediadispatch {

/// A picture out of a media file, dot by dot.
struct MediaPicture
{
    QSize size;                ///< Empty when there is no picture.
    std::vector<quint32> dots; ///< 0xAARRGGBB, row by row, nothing in between.
    /// How far it is to be turned to stand upright, in degrees clockwise.
    double turn = 0.0;
};

/// The first picture of a film, in its own shape, scaled down so that it fits into the bound once
/// it has been turned upright. None when the file holds none that can be read, when the module for
/// media files cannot be opened, or as soon as `isCancelled` is set. Takes as long as the disk and
/// the decoder do; for any thread but that of the windows.
Q_DECL_EXPORT MediaPicture firstPicture(const QString& path, const QSize& bound,
                                        const std::atomic<bool>& isCancelled);

} // namespace trel::mediadispatch
