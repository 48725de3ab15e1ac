#pragma once

#include "system/SystemLock.h"

#include <QLockFile>
#include <QString>

#include <memory>

namespace trel::player {

/// Keeps a second player from playing for the same screen on the same store, for as long as it
/// lives. A player that was killed, or whose machine lost its power, keeps no other away, even
/// where its file was left empty or its process number belongs to another process by now.
class ScreenLock
{
public:
    /// The store need not be there yet.
    ScreenLock(const QString& store, const QString& screen);

    bool isTaken() const { return m_isTaken; }
    /// Why not, as a sentence: who has it.
    QString refusal() const;

private:
    void lockAt(const QString& path);
    bool isLeftEmpty() const;
    void takeOver();

    QString m_screen;
    std::unique_ptr<SystemLock> m_living;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isTaken = false;
};

} // namespace trel::player
