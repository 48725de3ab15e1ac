#pragma once

#include "trelscreen/DeckFault.h"
#include "trelscreen/ScreenPlay.h"

namespace trel::screen {

/// What stands on the stage in the place of a play.
enum class StandIn {
    None,
    StandByPicture,
    LastPicture, ///< Of the same play, from before it broke or went elsewhere.
};

/// Something that has happened on a screen.
struct ScreenEvent
{
    enum class Kind {
        ScheduleTaken,    ///< Another schedule was given; the play is what was on before.
        Shown,            ///< The play is on screen from now on; again, after a fault.
        Left,             ///< The play, which was on screen, is so no more.
        Late,             ///< It was not ready when its time came.
        Fault,            ///< It cannot be shown, for a reason that is new.
        Recovered,        ///< It has been on screen again for a while without a fault.
        CorrectedBySpeed, ///< It begins to be brought back onto the timeline by its speed.
        Sought,           ///< It is brought back onto the timeline at once.
        ClockLeapt,
        Due, ///< The schedule has the play on from now on. Shown or StoodIn follows: at once, or
             ///< within a tenth of a second in which the former picture stays.
        StoodIn, ///< Something else stands on the stage from now on, as the play is not there.
    };

    Kind kind = Kind::Shown;
    mediadispatch::Instant moment = 0;
    /// What this is about, with the begin and the end that were planned at the moment.
    ScreenPlay play;
    /// Since when the play has been, or was, on screen; kNever while it has not.
    mediadispatch::Instant onScreenSince = mediadispatch::kNever;

    /// Of Shown and Due: the change came at its time, and not with a new schedule, a leap of the
    /// clock or, of Shown, the end of a fault.
    bool isSwitch = false;
    /// Of Shown: it has broken before and may do so again at once. Recovered follows when it has
    /// lasted for a second, or to its end; Left without it where it has not.
    bool isAgain = false;
    /// Milliseconds. Of Shown: behind the planned beginning or, where that could not be known, the
    /// moment at which it was. Of Recovered: how long it was away. Of CorrectedBySpeed and Sought:
    /// how far it was ahead of the timeline, below 0 behind. Of ClockLeapt: how far, below 0 back.
    qint64 amount = 0;
    DeckFault fault; ///< Of Fault and Recovered; of StoodIn, where a fault is known.
    int tries = 0;   ///< Of Recovered: how often it was tried again.
    StandIn standIn = StandIn::None; ///< Of StoodIn.
};

/// Takes down what happens on a screen. Called in the screen's own thread, right after a picture
/// has changed: an implementation must not block.
class ScreenLog
{
public:
    virtual ~ScreenLog() = default;

    virtual void note(const ScreenEvent& event) = 0;

protected:
    ScreenLog() = default;
    ScreenLog(const ScreenLog&) = default;
    ScreenLog& operator=(const ScreenLog&) = default;
};

} // namespace trel::screen
