#include "ImagePicture.h"

#include "Drawing.h"
#include "FirstPicture.h"
#include "ImagePasses.h"
#include "InputDevice.h"
#include "InputFile.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QSemaphore>
#include <QThreadPool>

#include <array>

namespace trel::mediareader {

namespace {

/// Dots of an image that is read in full: half a gigabyte of memory.
constexpr qint64 kMostDots = 128 * 1024 * 1024;
/// Dots of an image that is scaled down while it is read: a few seconds.
constexpr qint64 kMostDotsScaled = 1024 * 1024 * 1024;

/// A format that the toolkit reads, and how its files begin.
struct ToolkitFormat
{
    const char* name;
    QByteArray mark;
};

/// The toolkit knows more, among them some that load other files.
const std::array<ToolkitFormat, 5>& toolkitFormats()
{
    static const std::array<ToolkitFormat, 5> formats = {{
        {"png", QByteArrayLiteral("\x89PNG\r\n")},
        {"jpeg", QByteArrayLiteral("\xff\xd8\xff")},
        {"gif", QByteArrayLiteral("GIF8")},
        {"bmp", QByteArrayLiteral("BM")},
        {"ico", QByteArrayLiteral("\0\0\1\0")},
    }};
    return formats;
}

/// The toolkit's name of the format; empty when it is another.
QByteArray toolkitFormat(InputDevice& device)
{
    const QByteArray head = device.peek(8);
    for (const ToolkitFormat& format : toolkitFormats()) {
        if (head.startsWith(format.mark)) {
            return format.name;
        }
    }
    return {};
}

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

} // namespace

QImage imagePicture(const InputFile& file, const NameHint& hint, const QSize& bound)
{
    if (isDrawing(file)) {
        return drawingImage(file, bound);
    }
    InputDevice device(file);
    const QByteArray format = toolkitFormat(device);
    QImage image;
    if (!format.isEmpty()) {
        QImageReader reader(&device, format);
        reader.setAutoDetectImageFormat(false);
        reader.setAutoTransform(true);
        const QSize size = reader.size();
        if (size.isValid() && isTooLarge(reader, size)) {
            return {};
        }
        image = readImage(reader, size, bound);
        if (dotsOf(size) > kMostDots) {
            return image;
        }
    }
    // There are more formats of images than the toolkit reads.
    return image.isNull() ? firstPicture(file, hint, bound) : image;
}

void prepareImageFormats()
{
    QByteArray none;
    QBuffer buffer(&none);
    buffer.open(QIODevice::ReadOnly);
    const auto prepare = [&buffer](const char* format) {
        QImageReader reader(&buffer, format);
        reader.setAutoDetectImageFormat(false);
        // A reader makes its handler, and loads its module, when it is first asked.
        reader.supportsOption(QImageIOHandler::ScaledSize);
    };
    for (const ToolkitFormat& format : toolkitFormats()) {
        prepare(format.name);
    }
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        prepare(kDrawingFormat);
    }
    // The toolkit counts on a thread of its pool, and would wait for ever for one that the system
    // refuses to start.
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    pool.setExpiryTimeout(-1);
    QSemaphore isRunning;
    pool.start([&isRunning] { isRunning.release(); });
    isRunning.acquire();
}

} // namespace trel::mediareader
