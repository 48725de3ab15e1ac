#pragma once

#include <QRunnable>
#include <QSemaphore>
#include <QThreadPool>

/// Keeps every thread of the global pool busy, so that work that is given to it waits.
class HeldPool
{
public:
    HeldPool()
    {
        QThreadPool* pool = QThreadPool::globalInstance();
        const int threads = pool->maxThreadCount();
        for (int i = 0; i < threads; ++i) {
            pool->start(QRunnable::create([this] {
                m_held.release();
                m_mayGo.acquire();
                m_mayGo.release();
            }));
        }
        m_held.acquire(threads);
    }

    ~HeldPool()
    {
        release();
        QThreadPool::globalInstance()->waitForDone();
    }

    Q_DISABLE_COPY(HeldPool)

    void release() { m_mayGo.release(); }

private:
    QSemaphore m_held;
    QSemaphore m_mayGo;
};
