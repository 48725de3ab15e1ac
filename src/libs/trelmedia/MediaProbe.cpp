#include "MediaProbe.h"

#include "MediaHandles.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <vector>

namespace trel::mediadispatch {

namespace {

/// How much of a file is looked at for its streams: bytes, and microseconds of play.
constexpr char kProbeBytes[] = "10000000";
constexpr char kProbeTime[] = "10000000";

using Input = OwnedMedia<AVFormatContext>;

Input openInput(const QString& path)
{
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // A name such as "take%02d.png" is the name of one file.
    av_dict_set(&options, "pattern_type", "none", 0);
    av_dict_set(&options, "probesize", kProbeBytes, 0);
    av_dict_set(&options, "analyzeduration", kProbeTime, 0);
    AVFormatContext* context = nullptr;
    // Without the prefix a colon in the name would start a protocol.
    const QByteArray address = "file:" + QFile::encodeName(path);
    const int outcome = avformat_open_input(&context, address.constData(), nullptr, &options);
    av_dict_free(&options);
    return Input(outcome < 0 ? nullptr : context);
}

/// Pictures that are containers in which other files hold films.
bool isPictureBrand(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray head = file.read(12);
    if (head.size() < 12 || head.mid(4, 4) != "ftyp") {
        return false;
    }
    const QByteArray brand = head.mid(8, 4);
    return brand == "avif" || brand == "heic" || brand == "heix" || brand == "mif1";
}

bool isImageFormat(const AVInputFormat& format)
{
    const QByteArray name(format.name);
    // Animated pictures run round and round and so have no length of their own either.
    return name == "image2" || name == "gif" || name == "apng" || name == "ico" ||
           name.endsWith("_pipe");
}

bool isAttachedPicture(const AVStream& stream)
{
    return (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
}

bool hasStream(const AVFormatContext& context, AVMediaType type)
{
    return std::any_of(
        context.streams, context.streams + context.nb_streams, [type](const AVStream* stream) {
            return stream->codecpar->codec_type == type && !isAttachedPicture(*stream);
        });
}

bool hasPicture(const AVFormatContext& context)
{
    return std::any_of(context.streams, context.streams + context.nb_streams,
                       [](const AVStream* stream) { return stream->codecpar->width > 0; });
}

double milliseconds(std::int64_t count, AVRational unit)
{
    return 1000.0 * static_cast<double>(count) * av_q2d(unit);
}

/// The length by adding up the packets of the stream that runs longest. For files that do not say
/// how long they are: a guess from size and bit rate can be far off.
double measuredLength(AVFormatContext& context)
{
    std::vector<std::int64_t> lengths(context.nb_streams, 0);
    const OwnedMedia<AVPacket> packet(av_packet_alloc());
    while (av_read_frame(&context, packet.get()) >= 0) {
        const auto stream = static_cast<std::size_t>(packet->stream_index);
        if (stream < lengths.size() && packet->duration > 0) {
            lengths[stream] += packet->duration;
        }
        av_packet_unref(packet.get());
    }
    double longest = 0.0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        longest = std::max(longest, milliseconds(lengths[i], context.streams[i]->time_base));
    }
    return longest;
}

double lengthOf(AVFormatContext& context)
{
    const bool isStated = context.duration != AV_NOPTS_VALUE && context.duration > 0 &&
                          context.duration_estimation_method != AVFMT_DURATION_FROM_BITRATE;
    return isStated ? milliseconds(context.duration, AV_TIME_BASE_Q) : measuredLength(context);
}

MediaFacts refused(const char* reason)
{
    MediaFacts facts;
    facts.reason = QString::fromLatin1(reason);
    return facts;
}

} // namespace

MediaFacts probeMedia(const QString& path, bool isNamedAsMedia)
{
    MediaFacts facts;
    if (isPictureBrand(path)) {
        facts.kind = ProgramKind::Image;
        return facts;
    }
    const Input input = openInput(path);
    if (!input || (!isNamedAsMedia && input->probe_score <= AVPROBE_SCORE_RETRY)) {
        return refused("It is not a media file, or it is damaged.");
    }
    if (avformat_find_stream_info(input.get(), nullptr) < 0) {
        return refused("Its content cannot be read.");
    }
    if (isImageFormat(*input->iformat)) {
        if (!hasPicture(*input)) {
            return refused("The picture in it cannot be read.");
        }
        facts.kind = ProgramKind::Image;
        return facts;
    }
    const bool hasVideo = hasStream(*input, AVMEDIA_TYPE_VIDEO);
    if ((!hasVideo && !hasStream(*input, AVMEDIA_TYPE_AUDIO)) ||
        std::strcmp(input->iformat->name, "tty") == 0) {
        return refused("It holds neither picture nor sound.");
    }
    facts.kind = hasVideo ? ProgramKind::Video : ProgramKind::Audio;
    facts.durationMs = lengthOf(*input);
    if (facts.durationMs <= 0.0) {
        return refused("Its length cannot be read.");
    }
    return facts;
}

} // namespace trel::mediadispatch
