#include "deck/PlaybackThreads.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace trel::player {

namespace {

/// A player that is told to end has a second for all.
constexpr std::chrono::milliseconds kPatience{300};

using Patience = std::chrono::steady_clock::duration;

std::atomic<bool> hasLeftAny{false};

} // namespace

struct PlaybackThreads::Count
{
    std::mutex mutex;
    std::condition_variable changed;
    int running = 0;
};

PlaybackThreads::PlaybackThreads()
    : m_count(std::make_shared<Count>())
{}

PlaybackThreads::~PlaybackThreads()
{
    if (!m_hasLeft) {
        leave(std::chrono::steady_clock::now() + kPatience);
    }
}

bool PlaybackThreads::leave(std::chrono::steady_clock::time_point until)
{
    m_hasLeft = true;
    const auto patience = std::max(until - std::chrono::steady_clock::now(), Patience::zero());
    const bool isOver = wait(std::chrono::ceil<std::chrono::milliseconds>(patience));
    hasLeftAny = hasLeftAny || !isOver;
    return isOver;
}

bool PlaybackThreads::areLeft()
{
    return hasLeftAny;
}

void PlaybackThreads::start(std::function<void()> function)
{
    if (m_hasLeft) {
        return;
    }
    {
        const std::lock_guard lock(m_count->mutex);
        if (m_count->running >= kMost) {
            return;
        }
        ++m_count->running;
    }
    const auto over = [count = m_count] {
        const std::lock_guard lock(count->mutex);
        --count->running;
        count->changed.notify_all();
    };
    try {
        std::thread([function = std::move(function), over]() mutable {
            function();
            // What the function holds goes first, as it is what is waited for.
            function = nullptr;
            over();
        }).detach();
    } catch (const std::system_error&) {
        over();
    }
}

int PlaybackThreads::running() const
{
    const std::lock_guard lock(m_count->mutex);
    return m_count->running;
}

bool PlaybackThreads::wait(std::chrono::milliseconds patience) const
{
    std::unique_lock lock(m_count->mutex);
    return m_count->changed.wait_for(lock, patience, [this] { return m_count->running == 0; });
}

} // namespace trel::player
