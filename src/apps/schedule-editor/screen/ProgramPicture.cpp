#include "screen/ProgramPicture.h"

#include "screen/FirstFrame.h"

#include <QImageReader>

using namespace trel::mediadispatch;

namespace {

/// Dots of an image that is read in full: half a gigabyte of memory.
constexpr qint64 kMostDots = 128 * 1024 * 1024;

qint64 dotsOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

bool exceeds(const QSize& size, const QSize& bound)
{
    return size.width() > bound.width() || size.height() > bound.height();
}

QImage readImage(const QString& path, const QSize& bound)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid()) {
        const QImage image = reader.read();
        return exceeds(image.size(), bound) ? image.scaled(bound, Qt::KeepAspectRatio) : image;
    }
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize room = isTurned ? bound.transposed() : bound;
    if (exceeds(size, room)) {
        if (dotsOf(size) > kMostDots && !reader.supportsOption(QImageIOHandler::ScaledSize)) {
            return {};
        }
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    return reader.read();
}

} // namespace

bool hasPicture(ProgramKind kind)
{
    return kind == ProgramKind::Video || kind == ProgramKind::Image;
}

QImage programPicture(const QString& path, ProgramKind kind, const QSize& bound,
                      const std::atomic<bool>& isCancelled)
{
    if (kind == ProgramKind::Image) {
        const QImage image = readImage(path, bound);
        // There are more formats of images than the toolkit reads.
        return image.isNull() && !isCancelled ? firstFrame(path, bound, isCancelled) : image;
    }
    return kind == ProgramKind::Video ? firstFrame(path, bound, isCancelled) : QImage();
}
