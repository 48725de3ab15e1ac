#include "deck/PlayedAddress.h"

#include "trelprogramschedule/catalogue/ShownAddress.h"

#include <QRegularExpression>
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

QString withoutSecrets(const QString& words)
{
    static const QRegularExpression address(QStringLiteral("[A-Za-z][A-Za-z0-9+.-]*://[^\\s'\"]+"));
    QString told;
    int end = 0;
    QRegularExpressionMatchIterator found = address.globalMatch(words);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        told += words.mid(end, match.capturedStart() - end) +
                mediadispatch::shownAddress(match.captured());
        end = match.capturedEnd();
    }
    return told + words.mid(end);
}

} // namespace trel::player
