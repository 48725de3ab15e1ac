#include "SpoolPlace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace trel::player {

QString defaultSpoolFolder()
{
    // The toolkit knows no place for state. A path that is not absolute is to be ignored.
    const QString given = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state =
        QDir::isAbsolutePath(given) ? given : QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/schedule-player");
}

QString spoolPath(const QString& folder, const QString& store, const QString& screen)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(store.toUtf8());
    hash.addData("\0", 1);
    hash.addData(screen.toUtf8());
    return QStringLiteral("%1/%2.as-run")
        .arg(QFileInfo(folder).absoluteFilePath(), QString::fromLatin1(hash.result().toHex()));
}

} // namespace trel::player
