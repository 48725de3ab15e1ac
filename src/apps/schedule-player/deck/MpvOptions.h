#pragma once

#include "deck/MpvHandle.h"

#include <QByteArray>

#include <vector>

namespace trel::player {

/// What differs from one playback to the next.
struct MpvWishes
{
    bool isStream = false;
    int streamPatience = 5;  ///< Seconds that a stream may be silent.
    bool onlySounds = false; ///< Shows no picture, also where the file has one for its cover.
    bool isMute = false;
    bool copiesDecoded = true; ///< Pictures decoded by hardware are fetched into memory.
};

struct MpvOption
{
    QByteArray name;
    QByteArray value;
};

/// All that is set on a handle before it starts.
std::vector<MpvOption> mpvOptions(const MpvWishes& wishes);

/// While one of these lives, the libraries beneath libmpv write nothing to the console, which they
/// otherwise do whenever the last handle goes in the middle of their work. It plays nothing. Null
/// where the library does not start.
MpvHandle quietMpv();

/// A handle that runs, idle; null where the library does not start. LC_NUMERIC has to be that of
/// "C" by then.
MpvHandle startMpv(const MpvWishes& wishes);

} // namespace trel::player
