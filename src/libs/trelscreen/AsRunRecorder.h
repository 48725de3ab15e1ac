#pragma once

#include "trelprogramschedule/asrun/AsRunRecord.h"
#include "trelscreen/ScreenLog.h"
#include "trelscreen/ScreenSchedule.h"

#include <functional>
#include <optional>
#include <vector>

namespace trel::screen {

/// A record of what was on a screen, and with that of a schedule that was taken the schedule.
struct AsRunEntry
{
    mediadispatch::AsRunRecord record; ///< Without number, schedule, boot and hash.
    ScreenSchedule schedule;           ///< Of AsRunKind::ScheduleTaken alone.
};

/// Turns what happens on a screen into records of what was on it: every moment from construction to
/// end() is in exactly one of them, and each begins where the one before has ended. A record is
/// about one picture under one schedule: where the picture goes on when another schedule is taken,
/// it goes on in a record of its own.
///
/// Works in memory alone and in no time worth mentioning, in the thread of the screen. Asks the
/// clock in force for the time.
class AsRunRecorder : public ScreenLog
{
public:
    /// Milliseconds of a clock that never leaps and counts through the sleep of the machine.
    using Steady = std::function<qint64()>;
    /// A fault as a sentence.
    using Words = std::function<QString(const DeckFault&)>;
    /// Gets every record as soon as it is certain, in their order.
    using Take = std::function<void(const AsRunEntry&)>;

    /// Begins with a gap, which lasts until the first schedule is taken.
    AsRunRecorder(Steady steady, Words words, Take take);

    /// To be called right before the screen is given a schedule. What it has been given already is
    /// no record.
    void take(const ScreenSchedule& schedule);
    void note(const ScreenEvent& event) override;
    /// To be called every few seconds, and after each schedule that was given, with what the screen
    /// has on by then: a play may end at another moment than was planned when it began.
    void look(const ScreenPlay& now);
    /// What is on screen, as a record that ends at this moment with the player being killed.
    mediadispatch::AsRunRecord open() const;
    /// The player ends in order. Nothing is noted any more. Returns what open() is from then on: a
    /// record without length that says so.
    mediadispatch::AsRunRecord end();

private:
    struct Moment
    {
        mediadispatch::Instant time = 0; ///< By the clock in force,
        qint64 steady = 0;               ///< and by the one that never leaps.
    };

    /// The present moment, with the end of what was on where the clock has leapt.
    Moment now();
    bool isNew(const ScreenSchedule& schedule) const;
    void takeAt(Moment moment);
    void due(const ScreenEvent& event, Moment moment);
    void put(const ScreenEvent& event, mediadispatch::AsRunShown shown, Moment moment);
    qint64 heldUp(const ScreenEvent& event, Moment moment) const;
    void leap(qint64 amount, Moment moment);
    void sleep(qint64 length, Moment moment);
    mediadispatch::AsRunOutcome causeOf(const ScreenPlay& next) const;

    void begin(const ScreenPlay& play, mediadispatch::AsRunShown shown, Moment moment);
    void goOn(Moment moment);
    void close(Moment moment, mediadispatch::AsRunOutcome outcome);
    void release();

    const Steady m_steady;
    const Words m_words;
    const Take m_take;
    Moment m_last;       ///< At which the clocks were read last.
    qint64 m_passed = 0; ///< Between the last two times, by the steady clock.
    qint64 m_leapt = 0;  ///< What was seen of leaps that the screen has not told of.
    std::optional<ScreenSchedule> m_given; ///< To be taken with the next ScheduleTaken.
    ScreenSchedule m_schedule;             ///< That is followed.

    mediadispatch::AsRunRecord m_open;
    ScreenPlay m_play;         ///< Of m_open.
    bool m_goesOn = false;     ///< m_open is what the record before has left on screen.
    bool m_isForeseen = false; ///< What is on has come to its end, and what follows is at hand.
    std::optional<qint64> m_leaptAt;  ///< When the last leap was seen, in steady time.
    std::vector<AsRunEntry> m_closed; ///< Not certain yet.
};

} // namespace trel::screen
