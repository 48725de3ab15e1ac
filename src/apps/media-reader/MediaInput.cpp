#include "MediaInput.h"

#include "AcceptedFormats.h"
#include "InputFile.h"

#include <algorithm>
#include <cstring>
#include <string>

extern "C" {
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

namespace trel::mediareader {

using trel::mediadispatch::wire::Verdict;

namespace {

constexpr int kBufferBytes = 64 * 1024;
/// How much of a file is looked at for its streams: bytes, and microseconds of play.
constexpr std::int64_t kThoroughBytes = 10000000;
constexpr std::int64_t kThoroughTime = 10000000;

int refuseOtherFile(AVFormatContext* /*context*/, AVIOContext** /*io*/, const char* /*address*/,
                    int /*flags*/, AVDictionary** /*options*/)
{
    return AVERROR(EPERM);
}

} // namespace

MediaInput::MediaInput(const InputFile& file, const NameHint& hint, Look look)
    : m_file(file)
    , m_verdict(open(hint, look))
{}

MediaInput::~MediaInput()
{
    m_context.reset();
    if (m_io != nullptr) {
        // The library may have put another in the place of the one that it was given.
        av_freep(&m_io->buffer);
        avio_context_free(&m_io);
    }
}

bool MediaInput::isImage() const
{
    return formats::isImage(m_context->iformat->name);
}

Verdict MediaInput::open(const NameHint& hint, Look look)
{
    auto* buffer = static_cast<std::uint8_t*>(av_malloc(kBufferBytes));
    m_io = avio_alloc_context(buffer, kBufferBytes, 0, this, &MediaInput::read, nullptr,
                              &MediaInput::seek);
    const AVInputFormat* const found = m_io == nullptr ? nullptr : format(hint);
    if (found == nullptr) {
        return Verdict::NoMedia;
    }
    if (!formats::isAccepted(found->name)) {
        return Verdict::OtherFormat;
    }
    AVFormatContext* context = avformat_alloc_context();
    if (context == nullptr) {
        return Verdict::Unreadable;
    }
    context->pb = m_io;
    context->io_open = &refuseOtherFile;
    if (look == Look::Thorough) {
        context->probesize = kThoroughBytes;
        context->max_analyze_duration = kThoroughTime;
    }
    if (std::strcmp(found->name, "image2pipe") == 0) {
        context->video_codec_id = AV_CODEC_ID_TARGA;
    }
    // On failure the context is freed, and the pointer to it cleared.
    if (avformat_open_input(&context, nullptr, found, nullptr) < 0) {
        return Verdict::NoMedia;
    }
    m_context.reset(context);
    return avformat_find_stream_info(context, nullptr) < 0 ? Verdict::Unreadable : Verdict::Taken;
}

const AVInputFormat* MediaInput::format(const NameHint& hint) const
{
    // The one image that has no mark of its own at its beginning.
    if (std::strcmp(hint.suffix, "tga") == 0) {
        return av_find_input_format("image2pipe");
    }
    if (!hint.isNamedAsMedia) {
        return probed({}, AVPROBE_SCORE_RETRY);
    }
    const AVInputFormat* const found = probed(std::string("file.") + hint.suffix, 0);
    // A format that wants to open its files itself was guessed from the suffix alone, and hides
    // what the content says, as it does for every photograph.
    return found == nullptr ? probed({}, 0) : found;
}

const AVInputFormat* MediaInput::probed(const std::string& name, int leastScore) const
{
    const AVInputFormat* found = nullptr;
    const int score = av_probe_input_buffer2(m_io, &found, name.c_str(), nullptr, 0, 0);
    const bool isFound = score > leastScore && (found->flags & AVFMT_NOFILE) == 0;
    return isFound ? found : nullptr;
}

int MediaInput::read(void* self, std::uint8_t* room, int count)
{
    auto& input = *static_cast<MediaInput*>(self);
    const std::int64_t got = input.m_file.readAt(input.m_place, room, count);
    if (got > 0) {
        input.m_place += got;
        return static_cast<int>(got);
    }
    return got == 0 ? AVERROR_EOF : AVERROR(EIO);
}

std::int64_t MediaInput::seek(void* self, std::int64_t offset, int whence)
{
    auto& input = *static_cast<MediaInput*>(self);
    std::int64_t place = offset;
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return input.m_file.size();
    case SEEK_SET:
        break;
    case SEEK_CUR:
        place += input.m_place;
        break;
    case SEEK_END:
        place += input.m_file.size();
        break;
    default:
        return AVERROR(EINVAL);
    }
    if (place < 0) {
        return AVERROR(EINVAL);
    }
    input.m_place = place;
    return place;
}

} // namespace trel::mediareader
