#pragma once

#include "service/ScheduleRecords.h"

#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <vector>

/// The rules of the screen written down a second time, as literally and as slowly as may be: every
/// second of a window is walked, and what the screen is left with is carried along. It shares
/// nothing with the code under test but the records, and takes local time from the system's own
/// library.
namespace secondbysecond {

/// Milliseconds since the epoch. Beyond the window no more is known than that it lies beyond.
using Instant = std::int64_t;
inline constexpr Instant kBeyond = std::numeric_limits<Instant>::max();

/// A second of the local clock.
struct WallSecond
{
    std::string date; ///< kDateFormat.
    int weekday = 0;  ///< 1 for Monday to 7 for Sunday.
    int second = 0;   ///< Of the day.
};

struct Window
{
    Instant begin = 0; ///< A whole second.
    std::vector<WallSecond> seconds;

    Instant end() const { return begin + static_cast<Instant>(seconds.size()) * 1000; }
};

/// The seconds of a zone, from an instant on.
Window windowOf(const char* zone, Instant begin, int seconds);

enum class Holder { Nobody, Plan, Insertion };

/// What is on screen at the beginning of a second. Numbers that do not apply are -1.
struct Shown
{
    Holder holder = Holder::Nobody;
    bool hasEnded = false; ///< Of Nobody: a plan had the screen before.
    bool isPlaying = false;
    bool isFrozen = false;
    int taskId = -1;
    int planId = -1;
    int row = -1;
    int entry = -1;
    int progIndex = -1;
    int play = -1;
    qint64 run = -1;
    Instant position = 0;

    bool operator==(const Shown& other) const;
    bool operator!=(const Shown& other) const { return !(*this == other); }
};

/// A plan that is cut in at a whole second.
struct Request
{
    Instant moment = 0;
    bool isDelayed = false;
    int taskId = 0;
    int planId = 0;
    trel::mediadispatch::PlayPlan plan;
};

/// What is on screen at each second of the window. No task may be valid before it. The requests
/// stand in the order of their moments.
std::vector<Shown> walk(const Window& window,
                        const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                        const std::map<int, trel::mediadispatch::ProgramIten>& catalogue,
                        const std::vector<Request>& requests);

} // namespace secondbysecond
