#include "FirstPicture.h"

#include "MediaInput.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

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

/// Feeds the decoder until it gives a picture.
OwnedMedia<AVFrame> decodeFirst(AVFormatContext& input, const AVStream& stream,
                                AVCodecContext& decoder)
{
    OwnedMedia<AVFrame> frame(av_frame_alloc());
    const OwnedMedia<AVPacket> packet(av_packet_alloc());
    if (!frame || !packet) {
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
        if (avcodec_receive_frame(&decoder, frame.get()) == 0) {
            return frame;
        }
    }
    return {};
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

QImage firstPicture(const InputFile& file, const NameHint& hint, const QSize& bound)
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
    const OwnedMedia<AVFrame> frame = decodeFirst(context, stream, *decoder);
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
