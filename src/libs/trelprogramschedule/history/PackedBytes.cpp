#include "PackedBytes.h"

#include <QtEndian>

#include <zlib.h>

#include <new>

namespace trel::mediadispatch {

namespace {

/// The first byte of a piece.
enum Form : char { Plain = 0, Deflated = 1 };

/// What is shorter takes a page of the store as it is, and is not worth the time.
constexpr int kShortestDeflated = 2048;
/// Behind the form: the length of what was deflated.
constexpr int kHeadSize = 1 + int(sizeof(quint32));
constexpr quint32 kLargestPiece = 1024 * 1024;
// A save waits for it, at the quickest level.
constexpr int kWindowBits = 15;
constexpr int kMemoryLevel = 8;

} // namespace

BytePacker::BytePacker() = default;

BytePacker::~BytePacker()
{
    if (m_stream) {
        deflateEnd(m_stream.get());
    }
}

QByteArray BytePacker::packed(const QByteArray& bytes)
{
    if (bytes.size() >= kShortestDeflated) {
        QByteArray smaller = deflated(bytes);
        if (smaller.size() < bytes.size()) {
            return smaller;
        }
    }
    return char(Plain) + bytes;
}

QByteArray BytePacker::deflated(const QByteArray& bytes)
{
    if (!m_stream) {
        auto stream = std::make_unique<z_stream>();
        if (deflateInit2(stream.get(), Z_BEST_SPEED, Z_DEFLATED, kWindowBits, kMemoryLevel,
                         Z_DEFAULT_STRATEGY) != Z_OK) {
            throw std::bad_alloc();
        }
        m_stream = std::move(stream);
    }
    deflateReset(m_stream.get());
    QByteArray result(kHeadSize + int(deflateBound(m_stream.get(), uLong(bytes.size()))),
                      Qt::Uninitialized);
    result[0] = Deflated;
    qToBigEndian(quint32(bytes.size()), result.data() + 1);
    // The interface of the library takes what it reads as if it could write there.
    m_stream->next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData()));
    m_stream->avail_in = uInt(bytes.size());
    m_stream->next_out = reinterpret_cast<Bytef*>(result.data() + kHeadSize);
    m_stream->avail_out = uInt(result.size() - kHeadSize);
    deflate(m_stream.get(), Z_FINISH);
    result.resize(result.size() - int(m_stream->avail_out));
    return result;
}

std::optional<QByteArray> unpacked(const QByteArray& packed)
{
    if (packed.startsWith(char(Plain))) {
        return packed.mid(1);
    }
    if (packed.size() < kHeadSize || packed.at(0) != Deflated) {
        return std::nullopt;
    }
    const auto size = qFromBigEndian<quint32>(packed.constData() + 1);
    if (size > kLargestPiece) {
        return std::nullopt;
    }
    QByteArray bytes(int(size), Qt::Uninitialized);
    auto length = uLongf(size);
    const int code = uncompress(reinterpret_cast<Bytef*>(bytes.data()), &length,
                                reinterpret_cast<const Bytef*>(packed.constData() + kHeadSize),
                                uLong(packed.size() - kHeadSize));
    if (code != Z_OK || length != size) {
        return std::nullopt;
    }
    return bytes;
}

} // namespace trel::mediadispatch
