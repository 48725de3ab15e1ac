#pragma once

#include <QtGlobal>

#include <atomic>
#include <functional>
#include <memory>

namespace trel::desktop::follow {

/// Whether a piece of work has become needless. To be asked often by the thread that carries it
/// out.
class Cancellation
{
public:
    /// Never cancelled.
    Cancellation() = default;
    /// Cancelled as soon as the number of the newest piece of work is another one.
    Cancellation(std::shared_ptr<const std::atomic<int>> newest, int own)
        : m_newest(std::move(newest))
        , m_own(own)
    {}

    bool isCancelled() const { return m_newest != nullptr && *m_newest != m_own; }

private:
    std::shared_ptr<const std::atomic<int>> m_newest;
    int m_own = 0;
};

/// Carries work out in a thread of the global pool, one piece at a time. Newer work cancels older
/// work, and only the newest of the waiting pieces is started.
///
/// To be used in one thread, which has an event loop. The destructor cancels the work and does not
/// wait for it. No outcome runs after that.
class NewestWork
{
public:
    /// What is to be done in the thread that gave the work, once the work is done.
    using Outcome = std::function<void()>;
    /// Runs in the other thread, so that it must not share anything without a lock. Cancelled work
    /// should return soon; its outcome is dropped.
    using Work = std::function<Outcome(const Cancellation&)>;

    NewestWork();
    ~NewestWork();
    Q_DISABLE_COPY(NewestWork)

    void start(Work work);
    /// True while work is under way in the other thread, cancelled or not.
    bool isBusy() const;
    /// Carries the work out with its outcome before it returns, for work that takes less time than
    /// a frame. An outcome that is still to come is dropped. Only while it is not busy.
    void carryOut(const Work& work);

private:
    class Queue;
    std::shared_ptr<Queue> m_queue;
};

} // namespace trel::desktop::follow
