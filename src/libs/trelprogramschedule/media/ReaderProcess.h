#pragma once

#include <QString>

#include <chrono>
#include <cstddef>
#include <functional>

#include <sys/types.h>

namespace trel::mediadispatch {

/// A running program that reads media, and the line to it. The program goes with the object; it
/// goes as well when the thread that started it ends, whatever ends that.
///
/// Waiting ends at a moment, or as soon as it is no longer wanted, which is asked for many times a
/// second.
class ReaderProcess
{
public:
    using Moment = std::chrono::steady_clock::time_point;
    using Cancelled = std::function<bool()>;

    enum class Transfer {
        Done,
        Late,      ///< The moment came first.
        Cancelled, ///< It was no longer wanted.
        Ended,     ///< The other side has gone.
    };

    ReaderProcess() = default;
    ~ReaderProcess();
    Q_DISABLE_COPY(ReaderProcess)

    /// Starts the program, which stands in this file, with one argument. 0, or why it does
    /// not run, as errno.
    int start(const QString& program, const char* argument);
    bool isRunning() const { return m_pid > 0; }
    /// Ends the program at once, in whatever it is.
    void kill();

    /// Sends a record of few bytes with an open file beside it. False when the reader does not take
    /// it.
    bool send(const void* record, std::size_t size, int descriptor) const;
    /// Reads as many bytes as there is room for.
    Transfer receive(void* room, std::size_t size, Moment until,
                     const Cancelled& isCancelled) const;
    /// Whether something lies there that was not read, or the other side has gone.
    bool hasUnread() const;

private:
    pid_t m_pid = -1;
    int m_line = -1;
};

} // namespace trel::mediadispatch
