#pragma once

#include <QMetaObject>
#include <QObject>

#include <mutex>
#include <utility>

namespace trel::player {

/// Lets a thread call into the thread of the windows for as long as somebody there wants to hear of
/// it. What is on its way when the receiver goes is dropped.
class ThreadMail
{
public:
    /// The receiver outlives the mail, or is taken out with close() before it goes.
    explicit ThreadMail(QObject& receiver)
        : m_receiver(&receiver)
    {}

    /// Runs the function in the receiver's thread, from its event loop. For any thread.
    template <typename Function>
    void post(Function&& function)
    {
        const std::lock_guard lock(m_mutex);
        if (m_receiver != nullptr) {
            QMetaObject::invokeMethod(m_receiver, std::forward<Function>(function),
                                      Qt::QueuedConnection);
        }
    }

    /// Nothing more is sent.
    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
    }

private:
    std::mutex m_mutex;
    QObject* m_receiver;
};

} // namespace trel::player
