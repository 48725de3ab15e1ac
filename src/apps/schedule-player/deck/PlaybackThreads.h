#pragma once

#include <QtGlobal>

#include <chrono>
#include <functional>
#include <memory>

namespace trel::player {

/// Threads that may hang in a file system or in a library, and so are never waited for while
/// something is on screen.
class PlaybackThreads
{
public:
    PlaybackThreads();
    /// Waits for all of them, but no longer than that; those that hang are left to the end of the
    /// process.
    ~PlaybackThreads();
    Q_DISABLE_COPY(PlaybackThreads)

    /// Runs the function in a thread of its own. What it uses has to be its own as well.
    void start(std::function<void()> function);
    /// Whether all have ended by then.
    bool wait(std::chrono::milliseconds patience) const;

private:
    struct Count;

    std::shared_ptr<Count> m_count;
};

} // namespace trel::player
