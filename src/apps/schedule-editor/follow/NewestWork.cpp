#include "follow/NewestWork.h"

#include <QObject>
#include <QRunnable>
#include <QThreadPool>

#include <mutex>
#include <optional>
#include <utility>

namespace trel::desktop::follow {

/// Stays until the last thread is through with it.
class NewestWork::Queue : public std::enable_shared_from_this<NewestWork::Queue>
{
public:
    Queue()
        : m_receiver(std::make_unique<QObject>())
        , m_newest(std::make_shared<std::atomic<int>>(0))
    {}

    void put(Work work)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++*m_newest;
        m_next = std::move(work);
        if (!m_isBusy) {
            m_isBusy = true;
            QThreadPool::globalInstance()->start(
                QRunnable::create([queue = shared_from_this()] { queue->carryOutAll(); }));
        }
    }

    void cancel() { ++*m_newest; }

    void close()
    {
        std::optional<Work> dropped;
        const std::lock_guard<std::mutex> lock(m_mutex);
        ++*m_newest;
        m_receiver.reset();
        m_next.swap(dropped);
    }

    bool isBusy() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_isBusy;
    }

private:
    std::optional<std::pair<Work, int>> takeNext()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isBusy = m_next.has_value();
        if (!m_isBusy) {
            return std::nullopt;
        }
        return std::make_pair(*std::exchange(m_next, std::nullopt), m_newest->load());
    }

    void carryOutAll()
    {
        while (const auto next = takeNext()) {
            const auto& [work, number] = *next;
            deliver(work(Cancellation(m_newest, number)), number);
        }
    }

    void deliver(Outcome outcome, int number)
    {
        // Under the lock the receiver does not go meanwhile.
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_receiver == nullptr || *m_newest != number) {
            return;
        }
        const auto carryOut = [newest = m_newest, number, outcome = std::move(outcome)] {
            if (*newest == number) {
                outcome();
            }
        };
        QMetaObject::invokeMethod(m_receiver.get(), carryOut, Qt::QueuedConnection);
    }

    mutable std::mutex m_mutex;
    std::unique_ptr<QObject> m_receiver; ///< Of the outcomes; none once the owner has gone.
    std::shared_ptr<std::atomic<int>> m_newest;
    std::optional<Work> m_next;
    bool m_isBusy = false;
};

NewestWork::NewestWork()
    : m_queue(std::make_shared<Queue>())
{}

NewestWork::~NewestWork()
{
    m_queue->close();
}

void NewestWork::start(Work work)
{
    m_queue->put(std::move(work));
}

bool NewestWork::isBusy() const
{
    return m_queue->isBusy();
}

void NewestWork::carryOut(const Work& work)
{
    m_queue->cancel();
    work(Cancellation())();
}

} // namespace trel::desktop::follow
