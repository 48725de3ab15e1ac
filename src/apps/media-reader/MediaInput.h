#pragma once

#include "trelprogramschedule/media/MediaProtocol.h"

#include <cstdint>
#include <memory>
#include <string>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

namespace trel::mediareader {

class InputFile;

/// Gives back what the media libraries hand out.
struct FreeMedia
{
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(SwsContext* context) const { sws_freeContext(context); }
};
template <typename T>
using OwnedMedia = std::unique_ptr<T, FreeMedia>;

/// What the name of a file says for it.
struct NameHint
{
    /// Content that is hard to tell from noise is taken for what the suffix says.
    bool isNamedAsMedia = false;
    const char* suffix = ""; ///< Small letters and digits.
};

/// A media file that the library for containers has opened, if its format is accepted. It reads
/// that one file, whatever the file says.
class MediaInput
{
public:
    /// How far into a file streams are looked for.
    enum class Look { Usual, Thorough };

    /// The file outlives it.
    MediaInput(const InputFile& file, const NameHint& hint, Look look);
    ~MediaInput();
    MediaInput(const MediaInput&) = delete;
    MediaInput& operator=(const MediaInput&) = delete;

    /// Taken, or why it is not open.
    trel::mediadispatch::wire::Verdict verdict() const { return m_verdict; }
    /// Of one that is open.
    AVFormatContext& context() const { return *m_context; }
    bool isImage() const;

private:
    trel::mediadispatch::wire::Verdict open(const NameHint& hint, Look look);
    const AVInputFormat* format(const NameHint& hint) const;
    /// What the content is by all signs, one of them the name where there is one.
    const AVInputFormat* probed(const std::string& name, int leastScore) const;
    static int read(void* self, std::uint8_t* room, int count);
    static std::int64_t seek(void* self, std::int64_t offset, int whence);

    const InputFile& m_file;
    std::int64_t m_place = 0;
    AVIOContext* m_io = nullptr;
    OwnedMedia<AVFormatContext> m_context;
    trel::mediadispatch::wire::Verdict m_verdict;
};

} // namespace trel::mediareader
