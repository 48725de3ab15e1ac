#include "ScreenLock.h"

#include "common/DisplayText.h"
#include "system/OwnPlace.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QSysInfo>
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

bool isOfThisMachine(const QLockFile& lock)
{
    qint64 process = 0;
    QString machine;
    QString program;
    return lock.getLockInfo(&process, &machine, &program) && machine == QSysInfo::machineHostName();
}

} // namespace

ScreenLock::ScreenLock(const QString& store, const QString& screen)
    : m_screen(screen)
{
    const QString path = mediadispatch::PlayerStatusFolder(store).lockPath(screen);
    lockAt(path);
    if (m_lock->error() == QLockFile::PermissionError ||
        m_lock->error() == QLockFile::UnknownError) {
        // Where the folder of the store cannot be written, and no other machine can either.
        lockAt(ownPlaceOf(path, QStringLiteral("lock")));
    }
    m_isTaken = m_lock->isLocked();
}

/// The file tells who has the screen, to those on other machines as well; the lock of the system
/// tells whether the one on this machine is still there.
void ScreenLock::lockAt(const QString& path)
{
    m_living.reset();
    m_living = std::make_unique<SystemLock>(path + QStringLiteral("-held"));
    m_lock = std::make_unique<QLockFile>(path);
    // Its age says nothing: a player may play for years.
    m_lock->setStaleLockTime(0);
    if (m_living->state() == SystemLock::State::Refused) {
        return;
    }
    if (m_lock->tryLock(0) || m_lock->error() != QLockFile::LockFailedError) {
        return;
    }
    // The number of a player that was killed may be another process's by now. The toolkit sees that
    // only where it can read the name of that one, which is not so with those of other users, and
    // is another name: a player of another screen, or the only process of a container, has the
    // same.
    const bool isLeft = m_living->state() == SystemLock::State::Held && isOfThisMachine(*m_lock);
    if (isLeft || isLeftEmpty()) {
        takeOver();
    }
}

/// A machine that lost its power may leave it empty or cut short, which would keep all players away
/// for ever.
bool ScreenLock::isLeftEmpty() const
{
    if (saysWho(*m_lock)) {
        return false;
    }
    QThread::msleep(kWriting);
    return !saysWho(*m_lock);
}

/// The toolkit takes no file away that a process on this machine has open as its lock.
void ScreenLock::takeOver()
{
    if (!m_lock->tryLock(0) && m_lock->removeStaleLockFile()) {
        m_lock->tryLock(0);
    }
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
    if (m_living->state() == SystemLock::State::Refused) {
        return QStringLiteral("Another player shows the screen %1 of this schedule.").arg(name);
    }
    return QStringLiteral("The screen %1 of this schedule cannot be taken: no lock can be made.")
        .arg(name);
}

} // namespace trel::player
