#include "deck/PlayedAddress.h"

#include <QStringList>

namespace trel::player {

bool isStreamAddress(const QString& address)
{
    static const QStringList schemes = {
        QStringLiteral("http"),  QStringLiteral("https"), QStringLiteral("mms"),
        QStringLiteral("mmsh"),  QStringLiteral("rist"),  QStringLiteral("rtmp"),
        QStringLiteral("rtmps"), QStringLiteral("rtp"),   QStringLiteral("rtsp"),
        QStringLiteral("rtsps"), QStringLiteral("srt"),   QStringLiteral("tcp"),
        QStringLiteral("udp")};
    const int end = address.indexOf(QLatin1String("://"));
    return end > 0 && schemes.contains(address.left(end).toLower());
}

} // namespace trel::player
