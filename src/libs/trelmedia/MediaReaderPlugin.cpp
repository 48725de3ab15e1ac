#include "MediaReaderPlugin.h"

#include "FirstPicture.h"
#include "MediaProbe.h"

extern "C" {
#include <libavutil/log.h>
}

using namespace trel::mediadispatch;

MediaReaderPlugin::MediaReaderPlugin()
{
    // What is wrong with a file is told by the service, once and in its own words.
    av_log_set_level(AV_LOG_QUIET);
}

MediaFacts MediaReaderPlugin::facts(const QString& path, bool isNamedAsMedia) const
{
    return probeMedia(path, isNamedAsMedia);
}

MediaPicture MediaReaderPlugin::firstPicture(const QString& path, const QSize& bound,
                                             const std::atomic<bool>& isCancelled) const
{
    return readFirstPicture(path, bound, isCancelled);
}
