#include "support/NumberedClip.h"

#include <QBuffer>
#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/display.h>
#include <libavutil/frame.h>
#include <libavutil/log.h>
#include <libavutil/opt.h>
#include <libavutil/samplefmt.h>
}

namespace {

constexpr int kColumns = 8;
constexpr int kRows = 4;
constexpr int kBlocks = kColumns * kRows;
constexpr int kSoundRate = 48000;
constexpr double kToneHertz = 440.0;
constexpr double kToneStrength = 0.1;
constexpr std::uint8_t kDarkLuma = 16;
constexpr std::uint8_t kLightLuma = 235;
constexpr std::uint8_t kNoColor = 128;

using Blocks = std::array<bool, kBlocks>;

/// Differs from all that a black, a white or a mixed picture holds.
std::uint32_t checkOf(const media::ClipMark& mark)
{
    const auto program = static_cast<std::uint32_t>(mark.program);
    const auto frame = static_cast<std::uint32_t>(mark.frame);
    return (program * 37U + (frame & 0xffU) * 91U + (frame >> 8U) * 53U + 0xa5U) & 0xffU;
}

Blocks blocksOf(const media::ClipMark& mark)
{
    const std::uint32_t word = (static_cast<std::uint32_t>(mark.program) << 24U) |
                               (static_cast<std::uint32_t>(mark.frame) << 8U) | checkOf(mark);
    Blocks blocks{};
    for (int block = 0; block < kBlocks; ++block) {
        blocks[static_cast<std::size_t>(block)] = ((word >> (31 - block)) & 1U) != 0;
    }
    return blocks;
}

bool isLight(const Blocks& blocks, int x, int y, const QSize& size)
{
    const int block = y * kRows / size.height() * kColumns + x * kColumns / size.width();
    return blocks[static_cast<std::size_t>(block)];
}

struct FreeOutput
{
    void operator()(AVFormatContext* context) const
    {
        avio_closep(&context->pb);
        avformat_free_context(context);
    }
};

struct FreeCoder
{
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};

struct FreeFrame
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

using Output = std::unique_ptr<AVFormatContext, FreeOutput>;
using Coder = std::unique_ptr<AVCodecContext, FreeCoder>;
using Frame = std::unique_ptr<AVFrame, FreeFrame>;

/// A coder and the stream that its packets go to.
struct Track
{
    AVStream* stream = nullptr;
    Coder coder;
};

Output openOutput(const QString& path)
{
    // Some coders tell the console about each clip.
    av_log_set_level(AV_LOG_ERROR);
    AVFormatContext* context = nullptr;
    const QByteArray name = QFile::encodeName(path);
    if (avformat_alloc_output_context2(&context, nullptr, nullptr, name.constData()) < 0) {
        return nullptr;
    }
    Output output(context);
    const QByteArray address = "file:" + name;
    return avio_open(&context->pb, address.constData(), AVIO_FLAG_WRITE) < 0 ? nullptr
                                                                             : std::move(output);
}

bool openTrack(AVFormatContext& output, const AVCodec& codec, Track& track)
{
    if ((output.oformat->flags & AVFMT_GLOBALHEADER) != 0) {
        track.coder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    }
    track.coder->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
    track.coder->thread_count = 1;
    if (avcodec_open2(track.coder.get(), &codec, nullptr) < 0) {
        return false;
    }
    track.stream = avformat_new_stream(&output, nullptr);
    if (track.stream == nullptr) {
        return false;
    }
    track.stream->time_base = track.coder->time_base;
    return avcodec_parameters_from_context(track.stream->codecpar, track.coder.get()) >= 0;
}

bool openPictures(AVFormatContext& output, const media::ClipOrder& order, Track& track)
{
    const AVCodec* codec = avcodec_find_encoder_by_name(order.pictureCoder.toLatin1().constData());
    if (codec == nullptr) {
        return false;
    }
    track.coder.reset(avcodec_alloc_context3(codec));
    AVCodecContext& coder = *track.coder;
    coder.width = order.size.width();
    coder.height = order.size.height();
    coder.time_base = {1, order.framesPerSecond};
    coder.framerate = {order.framesPerSecond, 1};
    coder.gop_size = order.framesBetweenKeys;
    coder.pix_fmt = codec->pix_fmts == nullptr ? AV_PIX_FMT_YUV420P : codec->pix_fmts[0];
    // Only the formats of which the luma is a plane of bytes, twice as fine as its colors or not.
    if (coder.pix_fmt != AV_PIX_FMT_YUVJ420P) {
        coder.pix_fmt = AV_PIX_FMT_YUV420P;
    }
    coder.bit_rate = 1500000;
    if (std::strncmp(codec->name, "libx26", 6) == 0) {
        av_opt_set(coder.priv_data, "preset", "ultrafast", 0);
        av_opt_set(coder.priv_data, "x265-params", "log-level=none", 0);
    }
    av_opt_set(coder.priv_data, "deadline", "realtime", 0);
    if (!openTrack(output, *codec, track)) {
        return false;
    }
    track.stream->avg_frame_rate = coder.framerate;
    if (order.turned != 0) {
        auto* matrix = reinterpret_cast<std::int32_t*>(av_stream_new_side_data(
            track.stream, AV_PKT_DATA_DISPLAYMATRIX, 9 * sizeof(std::int32_t)));
        if (matrix == nullptr) {
            return false;
        }
        av_display_rotation_set(matrix, order.turned);
    }
    return true;
}

bool openSound(AVFormatContext& output, const QString& soundCoder, Track& track)
{
    const AVCodec* codec = avcodec_find_encoder_by_name(soundCoder.toLatin1().constData());
    if (codec == nullptr) {
        return false;
    }
    track.coder.reset(avcodec_alloc_context3(codec));
    AVCodecContext& coder = *track.coder;
    coder.sample_rate = kSoundRate;
    coder.time_base = {1, kSoundRate};
    coder.sample_fmt = codec->sample_fmts == nullptr ? AV_SAMPLE_FMT_S16 : codec->sample_fmts[0];
    coder.bit_rate = 96000;
    av_channel_layout_default(&coder.ch_layout, 2);
    return openTrack(output, *codec, track);
}

/// Null sends the coder's last packets on.
bool encode(AVFormatContext& output, const Track& track, const AVFrame* frame)
{
    if (avcodec_send_frame(track.coder.get(), frame) < 0) {
        return false;
    }
    const std::unique_ptr<AVPacket, FreePacket> packet(av_packet_alloc());
    while (avcodec_receive_packet(track.coder.get(), packet.get()) >= 0) {
        if (packet->duration == 0 && track.coder->codec_type == AVMEDIA_TYPE_VIDEO) {
            packet->duration = 1;
        }
        av_packet_rescale_ts(packet.get(), track.coder->time_base, track.stream->time_base);
        packet->stream_index = track.stream->index;
        if (av_interleaved_write_frame(&output, packet.get()) < 0) {
            return false;
        }
    }
    return true;
}

void draw(const Blocks& blocks, AVFrame& frame)
{
    const QSize size(frame.width, frame.height);
    for (int y = 0; y < frame.height; ++y) {
        std::uint8_t* row = frame.data[0] + std::ptrdiff_t(y) * frame.linesize[0];
        for (int x = 0; x < frame.width; ++x) {
            row[x] = isLight(blocks, x, y, size) ? kLightLuma : kDarkLuma;
        }
    }
    for (int plane = 1; plane < 3; ++plane) {
        for (int y = 0; y < frame.height / 2; ++y) {
            std::memset(frame.data[plane] + std::ptrdiff_t(y) * frame.linesize[plane], kNoColor,
                        static_cast<std::size_t>(frame.width / 2));
        }
    }
}

bool writePicture(AVFormatContext& output, const Track& track, const media::ClipMark& mark)
{
    const Frame frame(av_frame_alloc());
    frame->format = track.coder->pix_fmt;
    frame->width = track.coder->width;
    frame->height = track.coder->height;
    if (av_frame_get_buffer(frame.get(), 0) < 0) {
        return false;
    }
    draw(blocksOf(mark), *frame);
    frame->pts = mark.frame;
    return encode(output, track, frame.get());
}

void setSample(AVFrame& frame, int channel, int sample, double value)
{
    const auto format = static_cast<AVSampleFormat>(frame.format);
    const bool isPlanar = av_sample_fmt_is_planar(format) != 0;
    std::uint8_t* plane = frame.data[isPlanar ? channel : 0];
    const int place = isPlanar ? sample : sample * frame.ch_layout.nb_channels + channel;
    switch (av_get_packed_sample_fmt(format)) {
    case AV_SAMPLE_FMT_S16:
        reinterpret_cast<std::int16_t*>(plane)[place] = std::int16_t(std::lround(value * 32767));
        break;
    case AV_SAMPLE_FMT_S32:
        reinterpret_cast<std::int32_t*>(plane)[place] =
            std::int32_t(std::lround(value * 2147483647));
        break;
    case AV_SAMPLE_FMT_FLT:
        reinterpret_cast<float*>(plane)[place] = float(value);
        break;
    default:
        plane[place] = std::uint8_t(128 + std::lround(value * 127));
        break;
    }
}

/// The samples from one on, as many as the coder takes at a time and there are left.
bool writeSound(AVFormatContext& output, const Track& track, int first, int end)
{
    const int most = track.coder->frame_size == 0 ? 1024 : track.coder->frame_size;
    const Frame frame(av_frame_alloc());
    frame->format = track.coder->sample_fmt;
    frame->nb_samples = std::min(most, end - first);
    frame->sample_rate = kSoundRate;
    if (av_channel_layout_copy(&frame->ch_layout, &track.coder->ch_layout) < 0 ||
        av_frame_get_buffer(frame.get(), 0) < 0) {
        return false;
    }
    for (int sample = 0; sample < frame->nb_samples; ++sample) {
        const double turns = kToneHertz * (first + sample) / kSoundRate;
        for (int channel = 0; channel < frame->ch_layout.nb_channels; ++channel) {
            setSample(*frame, channel, sample, kToneStrength * std::sin(turns * 2 * M_PI));
        }
    }
    frame->pts = first;
    return encode(output, track, frame.get());
}

/// The sound up to a moment, from where it was left.
bool writeSoundUntil(AVFormatContext& output, const Track& track, int& written, int end)
{
    const int step = track.coder->frame_size == 0 ? 1024 : track.coder->frame_size;
    for (; written < end; written += step) {
        if (!writeSound(output, track, written, end)) {
            return false;
        }
    }
    return true;
}

bool finish(AVFormatContext& output, const Track& track)
{
    return track.coder == nullptr || encode(output, track, nullptr);
}

} // namespace

bool media::makeClip(const QString& path, const ClipOrder& order)
{
    const Output output = openOutput(path);
    Track pictures;
    Track sound;
    if (output == nullptr || !openPictures(*output, order, pictures) ||
        (!order.soundCoder.isEmpty() && !openSound(*output, order.soundCoder, sound)) ||
        avformat_write_header(output.get(), nullptr) < 0) {
        return false;
    }
    int written = 0;
    for (int frame = 0; frame < order.frames; ++frame) {
        if (!writePicture(*output, pictures, {order.program, frame})) {
            return false;
        }
        const int step =
            sound.coder == nullptr || sound.coder->frame_size == 0 ? 1024 : sound.coder->frame_size;
        // Whole frames of the coder while it goes on; the rest comes at the end.
        const int due = kSoundRate * (frame + 1) / order.framesPerSecond / step * step;
        if (sound.coder != nullptr && !writeSoundUntil(*output, sound, written, due)) {
            return false;
        }
    }
    const int end = kSoundRate * order.frames / order.framesPerSecond;
    return (sound.coder == nullptr || writeSoundUntil(*output, sound, written, end)) &&
           finish(*output, pictures) && finish(*output, sound) &&
           av_write_trailer(output.get()) == 0;
}

bool media::makeTone(const QString& path, int milliseconds, const QString& soundCoder)
{
    const Output output = openOutput(path);
    Track sound;
    int written = 0;
    return output != nullptr && openSound(*output, soundCoder, sound) &&
           avformat_write_header(output.get(), nullptr) >= 0 &&
           writeSoundUntil(*output, sound, written, kSoundRate / 1000 * milliseconds) &&
           finish(*output, sound) && av_write_trailer(output.get()) == 0;
}

bool media::makeTurnedJpeg(const QString& path, const QImage& picture, int orientation)
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "JPEG", 95)) {
        return false;
    }
    QByteArray mark("Exif\0\0MM\0\x2a\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 25);
    mark += char(orientation);
    mark += QByteArray(2 + 4, '\0');
    QByteArray head("\xff\xe1\0", 3);
    head += char(mark.size() + 2);
    // Behind the sign that every such file begins with.
    jpeg.insert(2, head + mark);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(jpeg) == jpeg.size();
}

QImage media::clipPicture(const ClipMark& mark, const QSize& size)
{
    const Blocks blocks = blocksOf(mark);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, isLight(blocks, x, y, size) ? 0xffffffff : 0xff000000);
        }
    }
    return image;
}

std::optional<media::ClipMark> media::readClipMark(const QImage& image, const QRectF& part)
{
    const QRectF whole = part.isEmpty() ? QRectF(image.rect()) : part;
    std::uint32_t word = 0;
    for (int block = 0; block < kBlocks; ++block) {
        const int column = block % kColumns;
        const int row = block / kColumns;
        const double x = whole.x() + whole.width() * (column + 0.5) / kColumns;
        const double y = whole.y() + whole.height() * (row + 0.5) / kRows;
        const QPoint point{int(x), int(y)};
        if (!image.rect().contains(point)) {
            return {};
        }
        const int luma = qGray(image.pixel(point));
        // What lies between is a mixture of two pictures.
        if (luma > 80 && luma < 176) {
            return {};
        }
        word = word << 1U | (luma >= 176 ? 1U : 0U);
    }
    const ClipMark mark{int(word >> 24U), int(word >> 8U & 0xffffU)};
    return mark.program != 0 && (word & 0xffU) == checkOf(mark) ? std::optional(mark)
                                                                : std::nullopt;
}
