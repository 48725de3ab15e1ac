#pragma once

#include "catalogue/FileLook.h"

#include <QThread>

#include <atomic>

/// Counts who looks at files while it lives: the thread that it was made in, or others. Looks at
/// the real files.
class CountingLook : public trel::mediadispatch::FileLook
{
public:
    CountingLook()
        : m_former(install(this))
    {}
    ~CountingLook() override { install(m_former); }

    bool isThere(const QString& path) const override
    {
        ++(QThread::currentThread() == m_own ? m_here : m_elsewhere);
        return FileLook::isThere(path);
    }

    /// Looks of its own thread since the last call.
    int takeHere() const { return m_here.exchange(0); }
    /// Looks of all other threads so far.
    int elsewhere() const { return m_elsewhere; }

private:
    QThread* const m_own = QThread::currentThread();
    mutable std::atomic<int> m_here{0};
    mutable std::atomic<int> m_elsewhere{0};
    const FileLook* m_former;
};
