#include "system/OwnPlace.h"

#include <QCryptographicHash>
#include <QStandardPaths>

namespace trel::player {

QString ownPlaceOf(const QString& name, const QString& suffix)
{
    const QByteArray hash =
        QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("%1/schedule-player-%2.%3")
        .arg(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation),
             QString::fromLatin1(hash), suffix);
}

} // namespace trel::player
