#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

/// A thread that only sleeps until the given moments, one after the other, and takes down how late
/// it woke: what the machine itself allows a player.
class BareSleeper
{
public:
    using Instant = trel::mediadispatch::Instant;

    /// In ascending order, by the machine's clock.
    explicit BareSleeper(std::vector<Instant> moments);
    /// Waits for the sleep under way, a tenth of a second at most.
    ~BareSleeper();
    BareSleeper(const BareSleeper&) = delete;
    BareSleeper& operator=(const BareSleeper&) = delete;
    BareSleeper(BareSleeper&&) = delete;
    BareSleeper& operator=(BareSleeper&&) = delete;

    /// The lateness in milliseconds that so many percent do not exceed, of the moments that have
    /// passed; 0 before the first.
    qint64 lateness(int percent) const;

private:
    void run();

    const std::vector<Instant> m_moments;
    std::atomic<bool> m_isStopped{false};
    mutable std::mutex m_mutex;
    std::vector<qint64> m_lateness;
    std::thread m_thread;
};
