#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QtGlobal>

namespace trel::mediadispatch {

// The numbers of the enumerations stand in databases and in what is hashed: they never change, and
// new ones come at the end.

/// What a record is about.
enum class AsRunKind {
    Picture = 1,       ///< Something was on screen from `begins` to `ends`.
    Gap = 2,           ///< No player had the screen from `begins` to `ends`.
    ScheduleTaken = 3, ///< From `begins` on the player followed another schedule, or none.
};

/// What was on screen, as against what the schedule had there.
enum class AsRunShown {
    AsPlanned = 0,
    StandBy = 1,       ///< The picture that stands for one that is missing.
    LastFrame = 2,     ///< The last picture of the same play that there was.
    FormerPicture = 3, ///< What was on before, until the play was ready.
};

/// How a picture, or a gap, came to its end or to be.
enum class AsRunOutcome {
    Complete = 0, ///< It was on until the moment that was planned, or what stood in was replaced by
                  ///< what was planned.
    CutByInsertion = 1, ///< An insertion began, or was ended.
    CutBySchedule = 2,  ///< Another schedule was taken.
    CutByStop = 3,      ///< What was in effect was stopped.
    CutByPlayerEnd = 4, ///< The player was ended in order.
    CutByKill = 5,      ///< The player, or its machine, stopped without a chance to say so. The end
                        ///< is the moment at which it was last known to be on.
    CutByFault = 6,     ///< It broke; `why` tells the reason.
    CutByClock = 7,     ///< The clock leapt.
    // of a gap: why no player had the screen
    PlayerHadEnded = 8,
    PlayerWasKilled = 9,
    MachineHadStopped = 10, ///< It was another start of the machine.
    // of a picture
    GoesOn = 11, ///< The same picture goes on under the schedule that was taken.
    // of a gap
    NothingReadYet = 12,  ///< The player had begun, and had no schedule yet.
    MachineHadSlept = 13, ///< It was suspended.
    NotRecorded = 14,     ///< Something was on, but its records could not be kept.
};

/// One change of what was on a screen, as a player tells it. Numbers that do not apply are -1,
/// texts empty.
struct AsRunRecord
{
    qint64 number = 0; ///< Counted from 1 for each screen, without a hole. Given by the database.
    AsRunKind kind = AsRunKind::Picture;

    /// Which save of the store was started, as EffectStart has it; 0 while nothing is in effect.
    qint64 revision = 0;
    /// The schedule that the player followed, by asRunScheduleHash; of ScheduleTaken, the one that
    /// it takes. Empty before the first.
    QByteArray schedule;

    // What the schedule had on screen, as in ScreenState.
    ScreenPicture picture = ScreenPicture::Black;
    int taskId = -1;
    int planId = -1;
    int planRow = -1;
    int entry = -1;
    int play = -1;
    qint64 run = -1;
    qint64 insertion = 0; ///< Its number in the store; 0 where none has the screen.
    int progIndex = -1;
    QString program; ///< Its name at the time.
    /// Since and until of the state. kEver and kNever are possible.
    Instant plannedBegin = 0;
    Instant plannedEnd = 0;

    /// When it really was on screen. `ends` is not before `begins`, unless the clock leapt.
    Instant begins = 0;
    Instant ends = 0;
    /// The same in milliseconds of a clock that never leaps and counts from the start of the
    /// machine, through its sleep too.
    qint64 steadyBegin = 0;
    qint64 steadyEnd = 0;
    QByteArray boot; ///< Which start of the machine: its 16 bytes.

    AsRunShown shown = AsRunShown::AsPlanned;
    AsRunOutcome outcome = AsRunOutcome::Complete;
    qint64 late = 0; ///< Milliseconds behind the moment at which it was to be on; 0 for in time.
    QString why;     ///< The reason of a fault, or of what stood in.

    /// Of all above, and of the record before; 32 bytes. Given by the database.
    QByteArray hash;
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::AsRunRecord)
