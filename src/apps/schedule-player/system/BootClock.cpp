#include "BootClock.h"

#include <QSysInfo>

#include <ctime>

namespace trel::player {

namespace {

constexpr int kIdSize = 16;

} // namespace

qint64 sinceBoot()
{
    timespec time = {};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000;
}

QByteArray bootId()
{
    const QByteArray id = QByteArray::fromHex(QSysInfo::bootUniqueId());
    return id.size() == kIdSize ? id : QByteArray(kIdSize, '\0');
}

} // namespace trel::player
