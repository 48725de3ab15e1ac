#include "MirrorPlace.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QStandardPaths>

namespace trel::player {

QString defaultMirrorFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/trel/schedule/mirrors");
}

QString mirrorPath(const QString& folder)
{
    return QFileInfo(folder).absoluteFilePath() + QStringLiteral("/mirror.db");
}

QString mirrorPath(const QString& folder, const QString& address, const QString& screen)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(address.toUtf8());
    hash.addData("\0", 1);
    hash.addData(screen.toUtf8());
    return mirrorPath(folder + QLatin1Char('/') + QString::fromLatin1(hash.result().toHex()));
}

} // namespace trel::player
