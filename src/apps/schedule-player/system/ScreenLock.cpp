#include "ScreenLock.h"

#include "common/DisplayText.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QCryptographicHash>
#include <QStandardPaths>

namespace trel::player {

namespace {

/// Where the folder of the store cannot be written, and no other machine can either: the user's own
/// place on this machine.
QString ownPath(const QString& lockPath)
{
    const QByteArray name =
        QCryptographicHash::hash(lockPath.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           QStringLiteral("/schedule-player-%1.lock").arg(QString::fromLatin1(name));
}

std::unique_ptr<QLockFile> lockAt(const QString& path)
{
    auto lock = std::make_unique<QLockFile>(path);
    // Its age says nothing: a player may play for years.
    lock->setStaleLockTime(0);
    lock->tryLock(0);
    return lock;
}

} // namespace

ScreenLock::ScreenLock(const QString& store, const QString& screen)
    : m_screen(screen)
{
    const QString path = mediadispatch::PlayerStatusFolder(store).lockPath(screen);
    m_lock = lockAt(path);
    if (m_lock->error() == QLockFile::PermissionError ||
        m_lock->error() == QLockFile::UnknownError) {
        m_lock = lockAt(ownPath(path));
    }
    m_isTaken = m_lock->isLocked();
}

QString ScreenLock::refusal() const
{
    qint64 process = 0;
    QString machine;
    QString program;
    const QString name = hosts::inQuotes(hosts::printable(m_screen));
    if (m_lock->getLockInfo(&process, &machine, &program)) {
        return QStringLiteral(
                   "Another player shows the screen %1 of this schedule: process %2 on %3.")
            .arg(name, QString::number(process), hosts::printable(machine));
    }
    return QStringLiteral("The screen %1 of this schedule cannot be taken: no lock can be made.")
        .arg(name);
}

} // namespace trel::player
