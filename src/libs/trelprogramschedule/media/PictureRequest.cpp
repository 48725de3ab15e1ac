#include "media/PictureRequest.h"

#include "media/MediaReaderClient.h"

namespace trel::mediadispatch {

MediaPicture readPicture(const QString& path, ProgramKind kind, const QSize& bound,
                         const std::atomic<bool>& isCancelled)
{
    if (isCancelled || (kind != ProgramKind::Image && kind != ProgramKind::Video)) {
        return {};
    }
    // A program of its own for each, as pictures are wanted one by one and far between.
    MediaReaderClient client(MediaReaderClient::Purpose::Pictures, mediaReading());
    return client.picture(path, kind, bound, [&isCancelled] { return isCancelled.load(); });
}

MediaPicture readFilmPicture(const QString& path, qint64 positionMs, const QSize& bound,
                             const std::atomic<bool>& isCancelled)
{
    if (isCancelled) {
        return {};
    }
    MediaReaderClient client(MediaReaderClient::Purpose::Pictures, mediaReading());
    return client.picture(
        path, ProgramKind::Video, bound, [&isCancelled] { return isCancelled.load(); }, positionMs);
}

} // namespace trel::mediadispatch
