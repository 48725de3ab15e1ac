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
    /// Leaves a third of a second from now, unless it has left.
    ~PlaybackThreads();
    Q_DISABLE_COPY(PlaybackThreads)

    /// How many run at a time. Two programs and their successors take a handful; all others hang.
    static constexpr int kMost = 16;

    /// Runs the function in a thread of its own. What it uses has to be its own as well. Where
    /// that many hang already, or the system has none left, it is not run: a disk that does
    /// not answer for days must not use up the machine. A load that was to be read so never gets
    /// ready, and is given up and tried again like any other.
    void start(std::function<void()> function);
    int running() const;
    /// Whether all have ended by then.
    bool wait(std::chrono::milliseconds patience) const;

    /// Waits for all of them, but no longer than that, and tells whether they have ended; those
    /// that hang are left to the end of the process. Nothing is started any more.
    bool leave(std::chrono::steady_clock::time_point until);
    /// Whether any thread of this process has been left. What such a one may use again must not be
    /// taken down, the static objects of the libraries among it.
    static bool areLeft();

private:
    struct Count;

    std::shared_ptr<Count> m_count;
    bool m_hasLeft = false;
};

} // namespace trel::player
