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
    /// Waits a little for what is still to be written. A thread that hangs is left to the end of
    /// the process.
    ~LogWriter();
    Q_DISABLE_COPY(LogWriter)

    /// A line, with the line feed apart. Returns at once. Where a thousand lines wait already it is
    /// left out, and counted.
    void write(const QString& line);

private:
    struct Queue;
    static void run(Queue& queue);

    std::shared_ptr<Queue> m_queue;
};

} // namespace trel::player
