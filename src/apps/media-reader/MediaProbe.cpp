#include "MediaProbe.h"

#include "Drawing.h"
#include "InputFile.h"
#include "MediaInput.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <vector>

using namespace trel::mediadispatch::wire;

namespace trel::mediareader {

namespace {

/// Images that are containers in which other files hold films.
bool isImageBrand(const InputFile& file)
{
    std::array<char, 12> head = {};
    if (file.readAt(0, head.data(), head.size()) != head.size() ||
        std::string_view(&head[4], 4) != "ftyp") {
        return false;
    }
    const std::string_view brand(&head[8], 4);
    return brand == "avif" || brand == "heic" || brand == "heix" || brand == "mif1";
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
    return isStated ? milliseconds(context.duration, av_get_time_base_q())
                    : measuredLength(context);
}

ProbedMedia image()
{
    return {Verdict::Taken, Kind::Image, 0.0};
}

} // namespace

ProbedMedia probeMedia(const InputFile& file, const NameHint& hint)
{
    if (isImageBrand(file)) {
        return image();
    }
    if (isDrawing(file)) {
        return readDrawing(file).isEmpty() ? ProbedMedia{Verdict::UnreadablePicture} : image();
    }
    const MediaInput input(file, hint, MediaInput::Look::Thorough);
    if (input.verdict() != Verdict::Taken) {
        return {input.verdict()};
    }
    AVFormatContext& context = input.context();
    if (input.isImage()) {
        return hasPicture(context) ? image() : ProbedMedia{Verdict::UnreadablePicture};
    }
    const bool hasVideo = hasStream(context, AVMEDIA_TYPE_VIDEO);
    if (!hasVideo && !hasStream(context, AVMEDIA_TYPE_AUDIO)) {
        return {Verdict::NoContent};
    }
    const double length = lengthOf(context);
    // Written so that what is no number has no length.
    if (!(length > 0.0)) {
        return {Verdict::NoLength};
    }
    return {Verdict::Taken, hasVideo ? Kind::Video : Kind::Audio, length};
}

} // namespace trel::mediareader
