#include "media/MediaReading.h"

#include <QMutex>
#include <QMutexLocker>

namespace trel::mediadispatch {

namespace {

struct Shared
{
    QMutex mutex;
    MediaReading reading;
};

Shared& shared()
{
    static Shared instance;
    return instance;
}

} // namespace

void setMediaReading(const MediaReading& reading)
{
    const QMutexLocker lock(&shared().mutex);
    shared().reading = reading;
}

MediaReading mediaReading()
{
    const QMutexLocker lock(&shared().mutex);
    return shared().reading;
}

} // namespace trel::mediadispatch
