#include "support/MediaFiles.h"

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QtEndian>

#include <memory>
#include <random>

extern "C" {
#include <libavcodec/packet.h>
#include <libavformat/avformat.h>
}

namespace {

constexpr int kWavRate = 8000;
constexpr int kMp3Rate = 44100;
constexpr int kMp3Samples = 1152;
constexpr int kVideoSide = 16;

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

template <typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(int(sizeof(Number)), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <typename Number>
QByteArray bigEndian(Number number)
{
    QByteArray bytes(int(sizeof(Number)), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// A size as the head of an MP3 file has it: seven bits a byte.
QByteArray sevenBits(int size)
{
    QByteArray bytes;
    for (int shift = 21; shift >= 0; shift -= 7) {
        bytes.append(static_cast<char>((size >> shift) & 0x7f));
    }
    return bytes;
}

/// The head of an MP3 file with a picture in it.
QByteArray coverTag()
{
    QByteArray picture("\x00image/png\x00\x03\x00", 13);
    // The smallest PNG: one grey pixel.
    picture += QByteArray::fromHex(
        "89504e470d0a1a0a0000000d49484452000000010000000108000000003a7e9b550000000a494441"
        "54789c636800000082008177cd72b60000000049454e44ae426082");
    const QByteArray frame = QByteArray("APIC") + bigEndian<quint32>(quint32(picture.size())) +
                             QByteArray(2, '\0') + picture;
    return QByteArray("ID3\x03\x00\x00", 6) + sevenBits(frame.size()) + frame;
}

struct FreeOutput
{
    void operator()(AVFormatContext* context) const
    {
        avio_closep(&context->pb);
        avformat_free_context(context);
    }
};

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

using Output = std::unique_ptr<AVFormatContext, FreeOutput>;

Output openOutput(const QString& path)
{
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

} // namespace

bool media::makeWav(const QString& path, int milliseconds)
{
    const QByteArray samples(milliseconds * kWavRate / 1000 * 2, '\0');
    const QByteArray format =
        littleEndian<quint16>(1) + littleEndian<quint16>(1) + littleEndian<quint32>(kWavRate) +
        littleEndian<quint32>(kWavRate * 2) + littleEndian<quint16>(2) + littleEndian<quint16>(16);
    const QByteArray body = QByteArray("WAVEfmt ") + littleEndian<quint32>(quint32(format.size())) +
                            format + QByteArray("data") +
                            littleEndian<quint32>(quint32(samples.size())) + samples;
    return writeFile(path, QByteArray("RIFF") + littleEndian<quint32>(quint32(body.size())) + body);
}

bool media::makeMp3(const QString& path, int frames, bool withCover)
{
    // 128 kbit a second; silence is a frame whose body is all zero.
    constexpr int frameSize = 144 * 128000 / kMp3Rate;
    QByteArray frame = QByteArray("\xff\xfb\x90\xc0", 4);
    frame += QByteArray(frameSize - frame.size(), '\0');
    return writeFile(path, (withCover ? coverTag() : QByteArray()) + frame.repeated(frames));
}

double media::mp3Length(int frames)
{
    return 1000.0 * frames * kMp3Samples / kMp3Rate;
}

bool media::makeVideo(const QString& path, int frames, int framesPerSecond)
{
    const Output output = openOutput(path);
    AVStream* stream = output ? avformat_new_stream(output.get(), nullptr) : nullptr;
    if (stream == nullptr) {
        return false;
    }
    stream->time_base = {1, framesPerSecond};
    stream->avg_frame_rate = {framesPerSecond, 1};
    stream->codecpar->codec_type = AVMEDIA_TYPE_VIDEO;
    stream->codecpar->codec_id = AV_CODEC_ID_RAWVIDEO;
    // Each container has its own order of colours.
    stream->codecpar->format =
        path.endsWith(QLatin1String(".avi")) ? AV_PIX_FMT_BGR24 : AV_PIX_FMT_RGB24;
    stream->codecpar->bits_per_coded_sample = 24;
    stream->codecpar->width = kVideoSide;
    stream->codecpar->height = kVideoSide;
    if (avformat_write_header(output.get(), nullptr) < 0) {
        return false;
    }
    const std::unique_ptr<AVPacket, FreePacket> packet(av_packet_alloc());
    for (int frame = 0; frame < frames; ++frame) {
        if (av_new_packet(packet.get(), kVideoSide * kVideoSide * 3) < 0) {
            return false;
        }
        packet->pts = packet->dts = av_rescale_q(frame, {1, framesPerSecond}, stream->time_base);
        packet->duration = av_rescale_q(1, {1, framesPerSecond}, stream->time_base);
        packet->flags = AV_PKT_FLAG_KEY;
        if (av_interleaved_write_frame(output.get(), packet.get()) < 0) {
            return false;
        }
        av_packet_unref(packet.get());
    }
    return av_write_trailer(output.get()) == 0;
}

bool media::makeImage(const QString& path)
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    return image.save(path);
}

bool media::makePhotograph(const QString& path, int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            image.setPixel(x, y, 0xff000000U | static_cast<QRgb>(random()));
        }
    }
    return image.save(path, "JPEG", 90);
}

bool media::makeText(const QString& path)
{
    return writeFile(path, QByteArray("Nothing to see or to hear in here.\n").repeated(50));
}
