#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <optional>

/// How long a trial goes on, and what it is drawn from.
struct TrialOptions
{
    std::uint64_t seed = 1;
    std::chrono::seconds time{60};
    /// Ends the trial before its time is over; 0 for no limit.
    qint64 actions = 0;
    /// So long nothing may happen.
    std::chrono::seconds patience{60};
    /// Every action is told, on standard error.
    bool isTold = false;
};

/// Reads `--minutes X --seed S --actions N --patience SECONDS --tell`. None for anything else,
/// which is told on standard error. With a number of actions alone the time has no limit.
std::optional<TrialOptions> readTrialOptions(const QStringList& arguments);
