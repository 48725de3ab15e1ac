#include "screen/ProgramPicture.h"

#include "screen/FirstFrame.h"
#include "screen/ImagePasses.h"

#include <QFile>
#include <QImageReader>

using namespace trel::mediadispatch;

namespace {

/// Dots of an image that is read in full: half a gigabyte of memory.
constexpr qint64 kMostDots = 128 * 1024 * 1024;
/// Dots of an image that is scaled down while it is read: a few seconds.
constexpr qint64 kMostDotsScaled = 1024 * 1024 * 1024;

qint64 dotsOf(const QSize& size)
{
    return qint64(size.width()) * size.height();
}

bool exceeds(const QSize& size, const QSize& bound)
{
    return size.width() > bound.width() || size.height() > bound.height();
}

/// Whether an image can be scaled down while it is read, a few rows at a time.
bool isReadInStripes(const QImageReader& reader)
{
    return reader.supportsOption(QImageIOHandler::ScaledSize) &&
           !isStoredInPasses(*reader.device(), reader.format());
}

bool isTooLarge(const QImageReader& reader, const QSize& size)
{
    const qint64 dots = dotsOf(size);
    return dots > kMostDots && (dots > kMostDotsScaled || !isReadInStripes(reader));
}

QImage readImage(QImageReader& reader, const QSize& size, const QSize& bound)
{
    if (!size.isValid()) {
        const QImage image = reader.read();
        return exceeds(image.size(), bound) ? image.scaled(bound, Qt::KeepAspectRatio) : image;
    }
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize room = isTurned ? bound.transposed() : bound;
    if (exceeds(size, room)) {
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    return reader.read();
}

QImage imagePicture(const QString& path, const QSize& bound, const std::atomic<bool>& isCancelled)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly); // A failure shows in what is read.
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isValid() && isTooLarge(reader, size)) {
        return {};
    }
    const QImage image = readImage(reader, size, bound);
    // There are more formats of images than the toolkit reads.
    const bool canBeReadInFull = dotsOf(size) <= kMostDots;
    return image.isNull() && canBeReadInFull && !isCancelled ? firstFrame(path, bound, isCancelled)
                                                             : image;
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
        return imagePicture(path, bound, isCancelled);
    }
    return kind == ProgramKind::Video ? firstFrame(path, bound, isCancelled) : QImage();
}
