#include "deck/MpvOptions.h"

#include <QLoggingCategory>

namespace trel::player {

namespace {

/// Containers of films and sound, those of the program that imports media. Lists that name other
/// files are not among them.
constexpr char kFileFormats[] =
    "aac,ac3,aiff,amr,amrnb,amrwb,ape,asf,au,av1,avi,caf,dirac,dts,dv,eac3,flac,flv,gxf,h261,h263,"
    "h264,hevc,ivf,m4v,mjpeg,matroska,webm,mov,mp4,m4a,3gp,3g2,mj2,mp3,mpc,mpc8,mpeg,mpegts,"
    "mpegvideo,mxf,nut,obu,ogg,rm,tta,vc1,voc,w64,wav,wv";
/// What comes over a network besides.
constexpr char kStreamFormats[] = ",asf_o,dash,hls,live_flv,mpjpeg,mpegtsraw,rtp,rtsp,sdp";
constexpr char kNetworkProtocols[] =
    "crypto,data,ffrtmpcrypt,ffrtmphttp,hls,http,httpproxy,https,mmsh,mmst,rist,rtmp,rtmpe,rtmps,"
    "rtmpt,rtmpte,rtmpts,rtp,rtsp,srt,srtp,tcp,tls,udp,udplite";

/// As many dots as the program that imports media decodes in one picture.
constexpr qint64 kMostDots = 128 * 1024 * 1024;

/// A list as one value of a list of keys and values: its length in bytes, and the bytes.
QByteArray quoted(const QByteArray& value)
{
    return '%' + QByteArray::number(value.size()) + '%' + value;
}

void addGuards(std::vector<MpvOption>& options)
{
    options.insert(
        options.end(),
        {// The program alone says what is set: no file of the user or of the machine does.
         {"config", "no"},
         {"load-auto-profiles", "no"},
         {"load-scripts", "no"},
         {"ytdl", "no"},
         {"resume-playback", "no"},
         {"save-position-on-quit", "no"},
         // No keys, no terminal and nothing drawn over the picture.
         {"input-default-bindings", "no"},
         {"input-builtin-bindings", "no"},
         {"input-vo-keyboard", "no"},
         {"input-cursor", "no"},
         {"input-media-keys", "no"},
         {"terminal", "no"},
         {"osc", "no"},
         {"load-stats-overlay", "no"},
         {"load-osd-console", "no"},
         {"osd-level", "0"},
         {"sid", "no"},
         // One file is one program: nothing beside it is looked for, nothing that it names read.
         {"autoload-files", "no"},
         {"sub-auto", "no"},
         {"audio-file-auto", "no"},
         {"cover-art-auto", "no"},
         {"ordered-chapters", "no"},
         {"load-unsafe-playlists", "no"},
         // Past all other readers of the library, such as those of lists, archives and disks.
         {"demuxer", "lavf"}});
}

void addPlaying(std::vector<MpvOption>& options)
{
    options.insert(
        options.end(),
        {{"vo", "libmpv"},
         {"idle", "yes"},
         // The first picture stands until it is told to play, and the last one afterwards.
         {"pause", "yes"},
         {"keep-open", "yes"},
         {"hr-seek", "yes"},
         // Pictures are drawn as they come; the library's lead is for windows that wait.
         {"video-timing-offset", "0"},
         // The software renderer of the library ends the process over a picture that is to be
         // turned, so that the deck turns it.
         {"video-rotate", "no"},
         {"audio-display", "no"},
         // A breath of speed is to be heard as little as it is seen: no filter comes or goes.
         {"audio-pitch-correction", "no"},
         // The end is where the last sound has been heard, and not where it was handed to the
         // device.
         {"gapless-audio", "no"},
         // What only sounds goes on in time where there is no device.
         {"audio-fallback-to-null", "yes"},
         {"audio-client-name", "schedule-player"},
         // What the import tells from noise with the help of a name plays as well.
         {"demuxer-lavf-probescore", "1"},
         // Two decks in a machine of small memory.
         {"demuxer-max-bytes", "32MiB"},
         {"demuxer-max-back-bytes", "0"}});
}

} // namespace

std::vector<MpvOption> mpvOptions(const MpvWishes& wishes)
{
    std::vector<MpvOption> options;
    addGuards(options);
    addPlaying(options);
    options.push_back({"hwdec", wishes.copiesDecoded ? "auto-copy-safe" : "auto-safe"});
    if (wishes.onlySounds) {
        options.push_back({"vid", "no"});
    }
    if (wishes.isMute) {
        // No device is taken at all.
        options.push_back({"ao", "null"});
    }
    QByteArray decoding = "max_pixels=" + QByteArray::number(kMostDots);
    if (wishes.isStream) {
        // Where a line breaks off, its last picture is only half there.
        decoding += ",err_detect=explode";
        const QByteArray protocols = "protocol_whitelist=" + quoted(kNetworkProtocols);
        const QByteArray formats = QByteArray(kFileFormats) + kStreamFormats;
        options.push_back({"stream-lavf-o", protocols});
        options.push_back({"demuxer-lavf-o", protocols + ",format_whitelist=" + quoted(formats)});
        options.push_back({"network-timeout", QByteArray::number(wishes.streamPatience)});
        options.push_back({"cache-pause-wait", "0.2"});
    } else {
        options.push_back({"access-references", "no"});
        // Where a file is cut short, its last picture is only half there.
        options.push_back(
            {"demuxer-lavf-o", "fflags=+discardcorrupt,format_whitelist=" + quoted(kFileFormats)});
        options.push_back({"cache", "no"});
    }
    options.push_back({"vd-lavc-o", decoding});
    return options;
}

MpvHandle quietMpv()
{
    MpvHandle handle(mpv_create());
    if (handle != nullptr) {
        mpv_set_option_string(handle.get(), "terminal", "no");
    }
    return handle;
}

MpvHandle startMpv(const MpvWishes& wishes)
{
    MpvHandle handle(mpv_create());
    if (handle == nullptr) {
        return nullptr;
    }
    for (const MpvOption& option : mpvOptions(wishes)) {
        const int result =
            mpv_set_option_string(handle.get(), option.name.constData(), option.value.constData());
        if (result < 0) {
            qWarning("libmpv does not take %s: %s", option.name.constData(),
                     mpv_error_string(result));
        }
    }
    if (mpv_initialize(handle.get()) < 0) {
        return nullptr;
    }
    return handle;
}

} // namespace trel::player
