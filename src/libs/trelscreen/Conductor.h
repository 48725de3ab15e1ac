#pragma once

#include "trelscreen/PlayAttempt.h"
#include "trelscreen/PositionHold.h"
#include "trelscreen/ScreenLog.h"
#include "trelscreen/ScreenSchedule.h"
#include "trelscreen/ScreenTally.h"
#include "trelscreen/Stage.h"

#include <QElapsedTimer>
#include <QObject>

#include <array>
#include <memory>
#include <optional>

namespace trel::mediadispatch {
class ClockAlarm;
}

namespace trel::screen {

class Deck;
class DeckSlot;

/// What a screen shows, for those who ask how it is.
struct ScreenStatus
{
    ScreenPlay play; ///< What the schedule has on at this moment.
    StagePicture::Kind picture = StagePicture::Kind::StandBy; ///< What stands on the stage.
    /// Whether that is what the schedule has.
    bool isOnTimeline = false;
    /// Where it is not, the last good picture of the play stands meanwhile.
    bool keepsLastPicture = false;
    mediadispatch::Instant onScreenSince = mediadispatch::kNever; ///< kNever while it is not.
    DeckFault fault;                                              ///< What keeps it from being so.
};

/// Has on the stage what the schedule says, moment for moment, with two decks that take turns.
///
/// It decides nothing about what plays: it asks the timeline. The next play is loaded into the deck
/// that is free two seconds before its time, and the decks are swapped when that has come. A play
/// that has begun already is joined at the place where it would be. While a play lasts it is held
/// there; see PositionHold. What is frozen after it played is left alone; what is frozen otherwise
/// is loaded where it stopped.
///
/// A play that is not there when its time has come, or breaks, is tried again for as long as it
/// lasts. Its last picture stands meanwhile, where there is one, or else the stand-by picture;
/// never that of another play. Only where a change could not be foreseen, as with a new schedule or
/// a clock that was set, the former picture stays for a tenth of a second until the new one is
/// there.
///
/// The clock in force is its only clock. It works from the event loop, in the GUI thread.
class Conductor : public QObject
{
    Q_OBJECT

public:
    /// Shows the stand-by picture until the first schedule comes. Stage, decks and log outlive it,
    /// and the decks are used by nothing else.
    Conductor(Stage& stage, Deck& first, Deck& second, ScreenLog& log, QObject* parent = nullptr);
    ~Conductor() override;

    /// Follows a schedule from now on. What is on screen in both goes on undisturbed.
    void setSchedule(ScreenSchedule schedule);

    ScreenStatus status() const;
    const ScreenTally& tally() const { return m_tally; }
    /// The longest time without what the schedule has, in milliseconds, up to now.
    qint64 longestOff() const;

signals:
    /// What status() tells is something else, other than by time passing.
    void changed();

private:
    /// Goes by all clocks, and does what is due.
    void follow();
    /// How far the clock has leapt since the last look at it.
    qint64 look();

    void begin(const ScreenPlay& play, bool hasLeapt);
    void beginWithout(std::optional<qint64> grace);
    void leave();
    bool isThere(const ScreenPlay& play) const;
    void adopt(const ScreenPlay& play);
    void join();

    void prepareNext();
    bool needsDeck(const ScreenPlay& next) const;
    DeckSlot* slotForNext();
    void dropNext();

    void attendNext();
    void attendCurrent();
    void attendPicture();
    void attendPosition();
    void attendGrace();
    void settleCurrent();
    void fail(PlayAttempt& attempt, const DeckFault& fault);
    void loseCurrent(const DeckFault& fault);

    void load(PlayAttempt& attempt, DeckSlot& slot, mediadispatch::Instant startsAt);
    DeckSlot* slotForCurrent() const;
    bool isWatched() const;
    bool isLookDue() const;

    void show();
    void start();
    void showBlack();
    void standBy();
    void put(const StagePicture& picture);
    void noteShown();
    void noteDue();
    void noteStandIn(StandIn standIn);

    void sleep();
    void note(ScreenEvent::Kind kind, const ScreenPlay& play, qint64 amount = 0);
    void note(ScreenEvent event);

    Stage& m_stage;
    ScreenLog& m_log;
    std::array<DeckSlot*, 2> m_slots; ///< Children.
    ScreenTally m_tally;

    std::optional<ScreenSchedule> m_schedule;
    std::unique_ptr<mediadispatch::ClockAlarm> m_alarm;
    QElapsedTimer m_running;
    mediadispatch::Instant m_now = 0; ///< At the last look at the clock,
    qint64 m_steady = 0;              ///< and on one that never leaps.

    PlayAttempt m_current;
    mediadispatch::Instant m_over = mediadispatch::kEver; ///< When something else is on.
    std::optional<PlayAttempt> m_next;

    StagePicture m_picture;
    DeckSlot* m_onStage = nullptr; ///< Whose picture or sound is out.
    bool m_isShown = false;        ///< What is out is what the schedule has.
    mediadispatch::Instant m_shownSince = mediadispatch::kNever;
    mediadispatch::Instant m_dueAt = 0; ///< What the lateness is counted from.
    bool m_isSwitch = false;
    std::optional<qint64> m_graceUntil; ///< How long a former picture may stay.

    std::optional<PositionHold> m_hold; ///< Of what has been started.
    qint64 m_lookAt = 0;                ///< When the position is looked at next.
    bool m_isChanged = false;
};

} // namespace trel::screen
