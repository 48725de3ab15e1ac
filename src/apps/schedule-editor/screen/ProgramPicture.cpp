#include "screen/ProgramPicture.h"

#include "trelprogramschedule/media/PictureRequest.h"

using namespace trel::mediadispatch;

namespace trel::desktop {

bool hasPicture(ProgramKind kind)
{
    return kind == ProgramKind::Video || kind == ProgramKind::Image;
}

QImage programPicture(const QString& path, ProgramKind kind, const QSize& bound,
                      const std::atomic<bool>& isCancelled, qint64 positionMs)
{
    const MediaPicture picture =
        kind == ProgramKind::Video && positionMs > 0
            ? readFilmPicture(path, positionMs, bound, isCancelled)
            : (hasPicture(kind) ? readPicture(path, kind, bound, isCancelled) : MediaPicture());
    if (picture.size.isEmpty()) {
        return {};
    }
    return QImage(reinterpret_cast<const uchar*>(picture.dots.data()), picture.size.width(),
                  picture.size.height(), QImage::Format_ARGB32)
        .copy();
}

} // namespace trel::desktop
