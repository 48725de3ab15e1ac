#pragma once

#include <QString>

#include <memory>

namespace trel::player {

/// Writes the log to the standard error, in a thread of its own, since what reads there may be
/// slow, or stand still for ever.
class LogWriter
{
public:
    LogWriter();
    /// Finishes.
    ~LogWriter();
    Q_DISABLE_COPY(LogWriter)

    /// A line, with the line feed apart. Returns at once. Where a thousand lines wait already it is
    /// left out, and counted.
    void write(const QString& line);
    /// Waits a little for what is still to be written, and takes nothing any more. A thread that
    /// hangs is left to the end of the process; tells whether it has ended.
    bool finish();

private:
    struct Queue;
    static void run(Queue& queue);

    std::shared_ptr<Queue> m_queue;
};

} // namespace trel::player
