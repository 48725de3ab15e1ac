#include "ScreenLock.h"

#include "common/DisplayText.h"
#include "system/OwnPlace.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QThread>

namespace trel::player {

namespace {

/// How long a file that says nothing may be one that is just being written, in milliseconds.
constexpr unsigned long kWriting = 100;

bool saysWho(const QLockFile& lock)
{
    qint64 process = 0;
    QString machine;
    QString program;
    return lock.getLockInfo(&process, &machine, &program);
}

std::unique_ptr<QLockFile> lockAt(const QString& path)
{
    auto lock = std::make_unique<QLockFile>(path);
    // Its age says nothing: a player may play for years.
    lock->setStaleLockTime(0);
    lock->tryLock(0);
    if (lock->error() == QLockFile::LockFailedError && !saysWho(*lock)) {
        // A machine that lost its power may leave it empty or cut short, which would keep all
        // players away for ever.
        QThread::msleep(kWriting);
        if (!lock->tryLock(0) && !saysWho(*lock) && lock->removeStaleLockFile()) {
            lock->tryLock(0);
        }
    }
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
        // Where the folder of the store cannot be written, and no other machine can either.
        m_lock = lockAt(ownPlaceOf(path, QStringLiteral("lock")));
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
