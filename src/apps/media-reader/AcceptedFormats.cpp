#include "AcceptedFormats.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace trel::mediareader::formats {

namespace {

constexpr const char* kFilmsAndSound[] = {
    "aac",  "ac3",  "aiff", "amr",  "amrnb",  "amrwb",         "ape",
    "asf",  "au",   "av1",  "avi",  "caf",    "dirac",         "dts",
    "dv",   "eac3", "flac", "flv",  "gxf",    "h261",          "h263",
    "h264", "hevc", "ivf",  "m4v",  "mjpeg",  "matroska,webm", "mov,mp4,m4a,3gp,3g2,mj2",
    "mp3",  "mpc",  "mpc8", "mpeg", "mpegts", "mpegvideo",     "mxf",
    "nut",  "obu",  "ogg",  "rm",   "tta",    "vc1",           "voc",
    "w64",  "wav",  "wv"};

constexpr const char* kImages[] = {
    "apng",         "bmp_pipe",  "dpx_pipe",  "exr_pipe",    "gif",         "gif_pipe", "ico",
    "image2pipe",   "j2k_pipe",  "jpeg_pipe", "jpegls_pipe", "jpegxl_pipe", "pam_pipe", "pbm_pipe",
    "pcx_pipe",     "pgm_pipe",  "png_pipe",  "ppm_pipe",    "psd_pipe",    "qoi_pipe", "sgi_pipe",
    "sunrast_pipe", "tiff_pipe", "webp_pipe", "xbm_pipe",    "xpm_pipe",    "xwd_pipe"};

template <typename List>
bool holds(const List& list, const char* name)
{
    return std::any_of(std::begin(list), std::end(list),
                       [name](const char* one) { return std::strcmp(one, name) == 0; });
}

} // namespace

bool isAccepted(const char* name)
{
    return holds(kFilmsAndSound, name) || isImage(name);
}

bool isImage(const char* name)
{
    return holds(kImages, name);
}

} // namespace trel::mediareader::formats
