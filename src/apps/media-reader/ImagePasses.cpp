#include "ImagePasses.h"

#include <QIODevice>
#include <QtEndian>

namespace trel::mediareader {

namespace {

/// Where the header of a PNG tells how its rows follow one another.
constexpr qint64 kPngInterlace = 28;

constexpr quint8 kMarker = 0xff;
constexpr quint8 kFirstFrame = 0xc0;
constexpr quint8 kLastFrame = 0xcf;
constexpr quint8 kStartOfScan = 0xda;

/// The kind of a JPEG's frame, by its marker; 0 when it is not found.
quint8 frameOf(QIODevice& device)
{
    for (qint64 place = 2;;) {
        uchar head[4] = {};
        constexpr qint64 size = sizeof head;
        if (!device.seek(place) || device.read(reinterpret_cast<char*>(head), size) != size ||
            head[0] != kMarker || head[1] == kStartOfScan) {
            return 0;
        }
        const quint8 marker = head[1];
        // Among the frames stand three markers of tables.
        const bool isTable = marker == 0xc4 || marker == 0xc8 || marker == 0xcc;
        if (marker >= kFirstFrame && marker <= kLastFrame && !isTable) {
            return marker;
        }
        // A marker may be filled up from the left.
        place += marker == kMarker ? 1 : 2 + qFromBigEndian<quint16>(head + 2);
    }
}

} // namespace

bool isStoredInPasses(QIODevice& device, const QByteArray& format)
{
    const qint64 place = device.pos();
    bool result = false;
    if (format == "png") {
        char interlace = 0;
        result = device.seek(kPngInterlace) && device.getChar(&interlace) && interlace != 0;
    } else if (format == "jpeg" || format == "jpg") {
        constexpr quint8 sequential = 0xc1;
        result = frameOf(device) > sequential;
    }
    device.seek(place);
    return result;
}

} // namespace trel::mediareader
