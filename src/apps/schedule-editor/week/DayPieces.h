#pragma once

#include <vector>

namespace trel::desktop::week {

/// What a plan claims of one day, in seconds since midnight; from < to, the end not included.
struct DayClaim
{
    int row = 0; ///< The plan's row; no two claims of a day share one.
    int from = 0;
    int to = 0;
};

/// A part of a claim that is drawn as one.
struct DayPiece
{
    enum State {
        OnScreen, ///< The plan has the screen.
        Hidden,   ///< A plan of an earlier row has it instead.
        LeftOut,  ///< The clocks pass over this time.
        Several   ///< Hidden claims that no lane of their own is left for.
    };

    State state = OnScreen;
    int claim = -1; ///< Position in the list of claims; -1 for several.
    int from = 0;
    int to = 0;
    int lane = 0;
    int lanes = 1; ///< How many lanes stand side by side at this time.
    int count = 1; ///< How many claims it stands for.
};

/// Pieces by lane: in each they follow one another in time and never overlap. Lane 0 holds what is
/// on screen, the lanes beside it what is hidden. There are never more than kLanes.
using DayLanes = std::vector<std::vector<DayPiece>>;

inline constexpr int kLanes = 4;
/// The lane of the claims that the others have no room for.
inline constexpr int kSeveralLane = kLanes - 1;

/// A time that the wall clock passes over, in seconds since midnight.
struct LeftOutTime
{
    int from = 0;
    int to = 0;
};

/// Cuts claims into pieces and gives them lanes. Who has the screen is told by
/// mediadispatch::daySpans.
/// Claims that overlap, also by way of others, make the same number of lanes; claims that touch do
/// not. Costs n log n.
DayLanes dayPieces(const std::vector<DayClaim>& claims,
                   const std::vector<LeftOutTime>& leftOut = {});

} // namespace trel::desktop::week
