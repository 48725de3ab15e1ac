#pragma once

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

class QSqlDriver;

namespace trel::mediadispatch {

/// Ends the wait for a server that no longer answers, while its machine goes on confirming what it
/// gets: one whose processes were stopped, or that is too busy for anything. The client library
/// knows no end of that. The connection is cut then, from a thread of its own, and whoever waits
/// for an answer gets the error of a connection that has gone.
///
/// But for that thread, for one thread.
class PostgresPatience
{
public:
    /// Waits so long for each answer.
    explicit PostgresPatience(std::chrono::milliseconds limit);
    ~PostgresPatience();
    Q_DISABLE_COPY(PostgresPatience)

    /// The connection that is waited for from now on; its driver has to be open. Where the driver
    /// does not tell its socket, the wait has no end.
    void watch(const QSqlDriver& driver);
    /// There is no connection now.
    void leave();
    /// Something is asked. What is asked meanwhile has the whole time anew.
    void begin();
    /// It is answered, or nobody waits for it any more.
    void end();
    /// Whether the wait for the present connection was ended.
    bool hasCut() const;

private:
    using Time = std::chrono::steady_clock::time_point;

    void run();
    void forget();

    std::chrono::milliseconds m_limit;
    mutable std::mutex m_mutex; ///< Of all that follows.
    std::condition_variable m_changed;
    /// Another handle of the connection's socket, so that no number is ever that of another file.
    int m_socket = -1;
    std::optional<Time> m_end; ///< Of the present wait.
    bool m_isAsleep = false;   ///< The thread waits for a wait to begin.
    bool m_hasCut = false;
    bool m_isLeaving = false;
    std::thread m_thread; ///< From the first wait on.
};

} // namespace trel::mediadispatch
