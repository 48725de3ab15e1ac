#include "screen/FirstFrame.h"

#include "trelprogramschedule/media/PictureRequest.h"

#include <QTransform>

using namespace trel::mediadispatch;

QImage firstFrame(const QString& path, const QSize& bound, const std::atomic<bool>& isCancelled)
{
    const MediaPicture picture = firstPicture(path, bound, isCancelled);
    if (picture.size.isEmpty()) {
        return {};
    }
    const QImage image = QImage(reinterpret_cast<const uchar*>(picture.dots.data()),
                                picture.size.width(), picture.size.height(), QImage::Format_ARGB32)
                             .copy();
    return picture.turn == 0.0 ? image : image.transformed(QTransform().rotate(picture.turn));
}
