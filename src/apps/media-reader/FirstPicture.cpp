#include "FirstPicture.h"

#include "MediaInput.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

extern "C" {
#include <libavutil/display.h>
}

namespace trel::mediareader {

namespace {

/// A film whose first picture lies further in than this is not searched any longer.
constexpr int kMostPackets = 4096;
/// Dots of a picture that is decoded; memory goes by it.
constexpr std::int64_t kMostDots = 128 * 1024 * 1024;

OwnedMedia<AVCodecContext> openDecoder(const AVStream& stream, const AVCodec* codec)
{
    OwnedMedia<AVCodecContext> decoder(avcodec_alloc_context3(codec));
    if (!decoder || avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0) {
        return {};
    }
    // One picture is wanted soon, and more threads only delay it.
    decoder->thread_count = 1;
    decoder->max_pixels = kMostDots;
    if (avcodec_open2(decoder.get(), codec, nullptr) < 0) {
        return {};
    }
    return decoder;
}

/// The pictures that a decoder gives, up to the one that is wanted.
class WantedFrame
{
public:
    /// From this time on, in the units of the stream; none for the very first.
    explicit WantedFrame(std::int64_t from)
        : m_from(from)
    {}

    bool isReady() const { return m_last && m_next; }
    /// Whether the picture that is wanted has come.
    bool take(AVCodecContext& decoder)
    {
        while (avcodec_receive_frame(&decoder, m_next.get()) == 0) {
            std::swap(m_last, m_next);
            m_isAny = true;
            const std::int64_t time = m_last->best_effort_timestamp;
            if (m_from == AV_NOPTS_VALUE || time == AV_NOPTS_VALUE || time >= m_from) {
                return true;
            }
        }
        return false;
    }
    /// The last one that came.
    OwnedMedia<AVFrame> release() { return m_isAny ? std::move(m_last) : OwnedMedia<AVFrame>(); }

private:
    std::int64_t m_from;
    OwnedMedia<AVFrame> m_last{av_frame_alloc()};
    OwnedMedia<AVFrame> m_next{av_frame_alloc()};
    bool m_isAny = false;
};

/// Feeds the decoder until it gives the picture that is wanted.
OwnedMedia<AVFrame> decodeFrom(AVFormatContext& input, const AVStream& stream,
                               AVCodecContext& decoder, std::int64_t from)
{
    WantedFrame wanted(from);
    const OwnedMedia<AVPacket> packet(av_packet_alloc());
    if (!wanted.isReady() || !packet) {
        return {};
    }
    bool isAtEnd = false;
    for (int packets = 0; packets < kMostPackets && !isAtEnd; ++packets) {
        isAtEnd = av_read_frame(&input, packet.get()) < 0;
        if (isAtEnd) {
            avcodec_send_packet(&decoder, nullptr);
        } else if (packet->stream_index == stream.index) {
            avcodec_send_packet(&decoder, packet.get());
        }
        av_packet_unref(packet.get());
        if (wanted.take(decoder)) {
            break;
        }
    }
    return wanted.release();
}

/// Goes to the last picture that can be decoded by itself and is not behind a position, and tells
/// the time of the position in the units of the stream; none for the begin.
std::int64_t seekTo(AVFormatContext& input, const AVStream& stream, std::int64_t positionMs)
{
    if (positionMs <= 0) {
        return AV_NOPTS_VALUE;
    }
    const std::int64_t begin = stream.start_time == AV_NOPTS_VALUE ? 0 : stream.start_time;
    const std::int64_t time =
        begin + av_rescale_q(positionMs, AVRational{1, 1000}, stream.time_base);
    // Where it cannot be done the film is gone through from its begin, for as long as that may
    // take.
    av_seek_frame(&input, stream.index, time, AVSEEK_FLAG_BACKWARD);
    return time;
}

/// How far the picture is to be turned to stand upright, in degrees clockwise.
double turnOf(const AVStream& stream)
{
    const std::uint8_t* matrix =
        av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    if (matrix == nullptr) {
        return 0.0;
    }
    const double turn = -av_display_rotation_get(reinterpret_cast<const std::int32_t*>(matrix));
    return std::isnan(turn) ? 0.0 : turn;
}

/// The picture as it is to be seen: its dots need not be square.
QSize shownSize(AVFormatContext& input, AVStream& stream, AVFrame& frame)
{
    const AVRational dot = av_guess_sample_aspect_ratio(&input, &stream, &frame);
    if (dot.num <= 0 || dot.den <= 0) {
        return {frame.width, frame.height};
    }
    return {std::max(1, static_cast<int>(std::lround(frame.width * av_q2d(dot)))), frame.height};
}

QSize scaledInto(const QSize& size, const QSize& bound)
{
    const bool fits = size.width() <= bound.width() && size.height() <= bound.height();
    return (fits ? size : size.scaled(bound, Qt::KeepAspectRatio)).expandedTo(QSize(1, 1));
}

void setColours(SwsContext& scaler, const AVFrame& frame)
{
    constexpr int kFirstWideHeight = 720;
    const bool isNamed = frame.colorspace != AVCOL_SPC_UNSPECIFIED;
    const int wide = frame.height >= kFirstWideHeight ? SWS_CS_ITU709 : SWS_CS_ITU601;
    const int* from = sws_getCoefficients(isNamed ? static_cast<int>(frame.colorspace) : wide);
    const int isFull = frame.color_range == AVCOL_RANGE_JPEG ? 1 : 0;
    constexpr int kUnchanged = 1 << 16;
    sws_setColorspaceDetails(&scaler, from, isFull, sws_getCoefficients(SWS_CS_DEFAULT), 1, 0,
                             kUnchanged, kUnchanged);
}

QImage imageOf(const AVFrame& frame, const QSize& size)
{
    const OwnedMedia<SwsContext> scaler(sws_getContext(
        frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), size.width(),
        size.height(), AV_PIX_FMT_RGB32, SWS_AREA, nullptr, nullptr, nullptr));
    QImage image(size, QImage::Format_ARGB32);
    if (!scaler || image.isNull()) {
        return {};
    }
    setColours(*scaler, frame);
    std::uint8_t* const lines[] = {image.bits()};
    const int strides[] = {image.bytesPerLine()};
    const int height =
        sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, lines, strides);
    return height == size.height() ? image : QImage();
}

} // namespace

QImage firstPicture(const InputFile& file, const NameHint& hint, const QSize& bound,
                    std::int64_t positionMs)
{
    const MediaInput input(file, hint, MediaInput::Look::Usual);
    if (input.verdict() != trel::mediadispatch::wire::Verdict::Taken) {
        return {};
    }
    AVFormatContext& context = input.context();
    const AVCodec* codec = nullptr;
    const int index = av_find_best_stream(&context, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (index < 0) {
        return {};
    }
    AVStream& stream = *context.streams[index];
    const OwnedMedia<AVCodecContext> decoder = openDecoder(stream, codec);
    if (!decoder) {
        return {};
    }
    const std::int64_t from = seekTo(context, stream, positionMs);
    const OwnedMedia<AVFrame> frame = decodeFrom(context, stream, *decoder, from);
    if (!frame || frame->width <= 0 || frame->height <= 0) {
        return {};
    }
    const double turn = turnOf(stream);
    const bool isLying = std::lround(std::abs(turn) / 90.0) % 2 == 1;
    const QSize room = isLying ? bound.transposed() : bound;
    const QImage image = imageOf(*frame, scaledInto(shownSize(context, stream, *frame), room));
    return turn == 0.0 ? image : image.transformed(QTransform().rotate(turn));
}

} // namespace trel::mediareader
