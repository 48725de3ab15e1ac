#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule/dispatch/SoughtPlay.h"
#include "trelprogramschedule_export.h"

#include <QTimeZone>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

class ScreenTask;

/// What a schedule shows at every moment of any date: a function of the tasks, the catalogue and
/// the insertions alone, with no clock of its own.
///
/// The task in effect is the one whose validity holds the local day, the one with the lowest id
/// where several do. Of its plans those claim a moment whose weekday fits and whose span holds the
/// local time of day, start included, end not; a span that is empty or inverted claims nothing. The
/// end of a plan in FrequencyMode is worked out with plannedEnd. The first of them in row order has
/// the screen.
///
/// How far a plan has got follows from the time of day since its start, not from what was on screen
/// before: a plan that gets the screen back is where it would have been. So a clock that leaps, an
/// hour that is left out and one that comes twice all lead to what the local time says. Where no
/// plan claims the moment, the screen keeps what the plan left that really had it last.
///
/// The picture of a plan is cut where the clock is changed, as its position leaps then; a plan that
/// has the screen on both sides of the change keeps it, and so does a picture that does not move.
///
/// Lengths count to the microsecond. Building costs n log n over plans, a question log n over tasks
/// and plans, and with an insertion on screen also once the length of its list. What a question
/// finds out about a zone and a weekday is kept for the next. Threads may ask at the same time.
class TRELPROGRAMSCHEDULE_EXPORT ScreenTimeline
{
public:
    /// Copies what it needs; days and times of day are those of the zone.
    ScreenTimeline(const std::map<int, PlayTask>& tasks,
                   const std::map<int, ProgramIten>& catalogue, const QTimeZone& zone);
    ~ScreenTimeline();
    /// Moves; the source may only be assigned to or destroyed.
    ScreenTimeline(ScreenTimeline&&) noexcept;
    /// Moves; the source may only be assigned to or destroyed.
    ScreenTimeline& operator=(ScreenTimeline&&) noexcept;
    /// The timeline of other tasks, which have been read with the catalogue of this one, in the
    /// same zone. Shares the tasks and, where all are valid on the same days, what it knows of
    /// days; costs a step for each task besides.
    ScreenTimeline withTasks(const std::map<int, std::shared_ptr<const ScreenTask>>& tasks) const;

    /// What is on screen at an instant.
    ScreenState at(Instant moment, const ScreenInsertions& insertions = {}) const;

    /// Is handed one state after the other; false ends the visit.
    using Visitor = std::function<bool(const ScreenState&)>;
    /// Every play of a program and every picture in between, in order, from the one at `from` to
    /// the last that begins before `to`; ends early when the visitor returns false. Position is
    /// that of the first instant shown, since and until are not cut off at the borders. A play that
    /// falls between two milliseconds is left out. Costs a question for each.
    void visitPlays(Instant from, Instant to, const ScreenInsertions& insertions,
                    const Visitor& visitor) const;
    /// As visitPlays, with one state for the whole time that a plan has the screen without a break
    /// (its first picture in that time, also when that lies before `from`; until as spanUntil), one
    /// for each insertion, and one for each stretch between.
    void visitSpans(Instant from, Instant to, const ScreenInsertions& insertions,
                    const Visitor& visitor) const;

    /// The first of the plays from `from` on that begin before `to`, or are on at `from`, and are
    /// sought, as visitPlays tells it; nothing when there is none. Walks neither plays nor days: it
    /// costs the spans of a week for each stretch of days with one task in effect, in most cases
    /// once the length of each of their lists.
    std::optional<ScreenState> nextPlay(Instant from, Instant to,
                                        const ScreenInsertions& insertions,
                                        const SoughtPlay& sought) const;

    /// What the screen shows once the list is over that it plays in a state of this timeline, where
    /// the plan, or the insertion, has the screen by then; nothing where it plays for as long as
    /// that. Its `since` tells when the list is over.
    std::optional<ScreenState> afterList(const ScreenState& state,
                                         const ScreenInsertions& insertions) const;

    /// The insertions as they stand once a plan in effect is cut in at a moment: at once or, when
    /// delayed, as soon as the play then on screen has ended. Of those before, the one that has the
    /// screen ends when the new one begins, and the others are dropped: they are over, or give way.
    /// The request comes last, whatever it has to play; its three instants are written here.
    ///
    /// It ends when the local clock first shows the end of its plan's span or more, counted on the
    /// day on which it begins; with serviceFlagB, after one run of its list, or when a plan next
    /// takes the screen if a program has no length. It ends as it begins when that has passed, or
    /// when it has nothing to play outside the span. A play that never ends is not waited for.
    ScreenInsertions withInsertion(ScreenInsertions current, ScreenInsertion request,
                                   Instant moment, bool isDelayed) const;

    /// The insertions as they stand once the one that waits at a moment is taken back, or else the
    /// one that has the screen ends at it. The one before that gave way to the one that waited has
    /// the end again that it had before.
    ScreenInsertions withoutInsertion(ScreenInsertions current, Instant moment) const;

    /// The local date and time of day of an instant, and the other way round: the earliest instant
    /// at which the local clock shows this or more; kNever for a date or time that is not valid.
    QDateTime local(Instant moment) const;
    /// When the local clock shows a date and time: the first moment where it does so twice, and the
    /// first after the gap where it leaves them out.
    Instant instant(const QDate& date, const QTime& time) const;

private:
    class Private;
    explicit ScreenTimeline(std::unique_ptr<Private> own);

    std::unique_ptr<Private> d;
};

} // namespace trel::mediadispatch
