#include "media/PictureRequest.h"

#include "media/MediaModule.h"

namespace trel::mediadispatch {

MediaPicture firstPicture(const QString& path, const QSize& bound,
                          const std::atomic<bool>& isCancelled)
{
    const MediaModule::Opened opened = MediaModule::instance().open();
    return opened.reader == nullptr ? MediaPicture()
                                    : opened.reader->firstPicture(path, bound, isCancelled);
}

} // namespace trel::mediadispatch
