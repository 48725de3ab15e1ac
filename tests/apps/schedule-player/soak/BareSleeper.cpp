#include "BareSleeper.h"

#include <algorithm>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;
using Clock = std::chrono::system_clock;

namespace {

trel::mediadispatch::Instant now()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now().time_since_epoch())
        .count();
}

} // namespace

BareSleeper::BareSleeper(std::vector<Instant> moments)
    : m_moments(std::move(moments))
    , m_thread([this] { run(); })
{}

BareSleeper::~BareSleeper()
{
    m_isStopped = true;
    m_thread.join();
}

void BareSleeper::run()
{
    for (const Instant moment : m_moments) {
        const Clock::time_point wake{std::chrono::milliseconds(moment)};
        while (!m_isStopped && Clock::now() < wake) {
            std::this_thread::sleep_until(std::min(wake, Clock::now() + 100ms));
        }
        if (m_isStopped) {
            return;
        }
        const std::lock_guard lock(m_mutex);
        m_lateness.push_back(now() - moment);
    }
}

qint64 BareSleeper::lateness(int percent) const
{
    std::vector<qint64> sorted;
    {
        const std::lock_guard lock(m_mutex);
        sorted = m_lateness;
    }
    if (sorted.empty()) {
        return 0;
    }
    std::sort(sorted.begin(), sorted.end());
    const std::size_t last = sorted.size() - 1;
    return sorted[std::min(last, sorted.size() * static_cast<std::size_t>(percent) / 100)];
}
