#include "TimelineComparison.h"

#include "ScheduleWriting.h"
#include "StateWriting.h"

using namespace trel::mediadispatch;
using secondbysecond::Holder;
using secondbysecond::Shown;
using secondbysecond::Window;

namespace {

/// A state as the walk has it, at a moment that it holds.
Shown shownOf(const ScreenState& state, qint64 sinceFirstShown)
{
    Shown shown;
    switch (state.reason) {
    case ScreenReason::PlanPlays:
    case ScreenReason::PlanHasNothing:
    case ScreenReason::PlanRanOut:
        shown.holder = Holder::Plan;
        break;
    case ScreenReason::InsertionPlays:
    case ScreenReason::InsertionHasNothing:
    case ScreenReason::InsertionRanOut:
        shown.holder = Holder::Insertion;
        break;
    case ScreenReason::PlanEnded:
    case ScreenReason::NoPlanYet:
    case ScreenReason::NothingInEffect:
        break;
    }
    shown.hasEnded = state.reason == ScreenReason::PlanEnded;
    shown.isPlaying = state.picture == ScreenPicture::Playing;
    shown.isFrozen = state.picture == ScreenPicture::Frozen;
    shown.taskId = state.taskId;
    shown.planId = state.planId;
    shown.row = state.planRow;
    shown.entry = state.entry;
    shown.progIndex = state.progIndex;
    shown.play = state.play;
    shown.run = state.run;
    shown.position = state.position + (shown.isPlaying ? sinceFirstShown : 0);
    return shown;
}

QString textOf(const Shown& shown)
{
    return QStringLiteral("holder %1 ended %2 playing %3 frozen %4, %5.%6 row %7, %8 entry %9")
               .arg(static_cast<int>(shown.holder))
               .arg(shown.hasEnded)
               .arg(shown.isPlaying)
               .arg(shown.isFrozen)
               .arg(shown.taskId)
               .arg(shown.planId)
               .arg(shown.row)
               .arg(shown.progIndex < 0 ? QString() : letterOf(shown.progIndex))
               .arg(shown.entry) +
           QStringLiteral(" play %1 run %2 at %3")
               .arg(shown.play)
               .arg(shown.run)
               .arg(shown.position);
}

bool hasSameBorders(const ScreenState& a, const ScreenState& b)
{
    return a.since == b.since && a.until == b.until && a.spanUntil == b.spanUntil;
}

/// A stretch of time in which the insertions stay as they are.
class Stretch
{
public:
    Stretch(const ScreenTimeline& timeline, const ScreenInsertions& insertions, Instant begin,
            Instant end)
        : m_timeline(timeline)
        , m_insertions(insertions)
        , m_begin(begin)
        , m_end(end)
    {
        m_timeline.visitPlays(begin, end, insertions, [this](const ScreenState& state) {
            m_plays.push_back(state);
            return true;
        });
        m_timeline.visitSpans(begin, end, insertions, [this](const ScreenState& state) {
            m_spans.push_back(state);
            return true;
        });
    }

    QString difference(const std::vector<Shown>& walk, Instant walkBegin) const
    {
        QString found = inOrder(m_plays, QStringLiteral("plays"));
        found = found.isEmpty() ? inOrder(m_spans, QStringLiteral("spans")) : found;
        found = found.isEmpty() ? againstWalk(walk, walkBegin) : found;
        found = found.isEmpty() ? againstSpans() : found;
        return found.isEmpty() ? againstQuestions() : found;
    }

private:
    Instant firstShown(const ScreenState& state) const { return std::max(state.since, m_begin); }

    QString report(const QString& what, const ScreenState& state, Instant moment) const
    {
        return QStringLiteral("%1 at %2:\n    %3")
            .arg(what, momentText(moment, m_timeline.local(0).timeZone()),
                 lineOf(state, m_timeline, moment));
    }

    /// One behind the other, all of the time, and never two that should be one.
    QString inOrder(const std::vector<ScreenState>& states, const QString& name) const
    {
        Instant reached = m_begin;
        for (std::size_t i = 0; i < states.size(); ++i) {
            const ScreenState& state = states[i];
            if (state.until <= reached || state.spanUntil < state.until ||
                (i == 0 ? state.since > m_begin : state.since != reached)) {
                return report(name + QStringLiteral(" out of order"), state, reached);
            }
            reached = state.until;
            if (i > 0 && &states == &m_plays && areOne(states[i - 1], state)) {
                return report(name + QStringLiteral(" cut in two"), state, state.since);
            }
        }
        return reached < m_end ? name + QStringLiteral(" end too soon") : QString();
    }

    bool areOne(const ScreenState& before, const ScreenState& after) const
    {
        if (before.reason != after.reason || before.spanUntil != after.spanUntil) {
            // Two plans, one plan twice, or a border of an insertion.
            return false;
        }
        return shownOf(before, before.until - firstShown(before)) == shownOf(after, 0);
    }

    QString againstWalk(const std::vector<Shown>& walk, Instant walkBegin) const
    {
        auto state = m_plays.begin();
        for (Instant moment = m_begin; moment < m_end; moment += 1000) {
            while (state->until <= moment) {
                ++state;
            }
            const Shown& expected = walk[static_cast<std::size_t>((moment - walkBegin) / 1000)];
            if (shownOf(*state, moment - firstShown(*state)) != expected) {
                return report(QStringLiteral("another picture than by the walk"), *state, moment) +
                       QStringLiteral("\n    ") + textOf(expected);
            }
        }
        return {};
    }

    /// Each play within its span, which tells the same end.
    QString againstSpans() const
    {
        auto span = m_spans.begin();
        for (const ScreenState& play : m_plays) {
            while (span->until <= play.since) {
                ++span;
            }
            const bool isFirst = play.since == span->since;
            if (play.spanUntil != span->until || play.since < span->since ||
                play.taskId != span->taskId || play.planRow != span->planRow ||
                (isFirst && (play.until < span->until ? play.entry != span->entry
                                                      : play.reason != span->reason))) {
                return report(QStringLiteral("not in its span"), play, firstShown(play));
            }
        }
        return {};
    }

    /// A few moments of each play: its first, its last, and one in between.
    QString againstQuestions() const
    {
        Instant reached = m_begin;
        for (const ScreenState& play : m_plays) {
            const Instant last = std::min(play.until, m_end) - 1;
            if (last - reached < 900 && play.until % 7 != 0) {
                // Of the crowd of short plays a few are enough.
                reached = last + 1;
                continue;
            }
            for (const Instant moment : {reached, reached + (last - reached) / 2, last}) {
                const ScreenState state = m_timeline.at(moment, m_insertions);
                if (!hasSameBorders(state, play) ||
                    shownOf(state, 0) != shownOf(play, moment - reached)) {
                    return report(QStringLiteral("asked otherwise than visited"), state, moment) +
                           QStringLiteral("\n    ") + lineOf(play, m_timeline, moment);
                }
            }
            reached = last + 1;
        }
        return {};
    }

    const ScreenTimeline& m_timeline;
    const ScreenInsertions& m_insertions;
    Instant m_begin = 0;
    Instant m_end = 0;
    std::vector<ScreenState> m_plays;
    std::vector<ScreenState> m_spans;
};

} // namespace

QString firstDifference(const RandomSchedule& schedule, const Window& window, const QTimeZone& zone)
{
    const std::map<int, ProgramIten> catalogue = lettersCatalogue();
    const ScreenTimeline timeline(schedule.tasks, catalogue, zone);
    std::vector<secondbysecond::Request> requests = schedule.requests;
    std::vector<ScreenInsertions> insertions(1);
    for (secondbysecond::Request& request : requests) {
        // What never ends is not waited for; within a window it only ends beyond it.
        if (timeline.at(request.moment, insertions.back()).until == kNever) {
            request.isDelayed = false;
        }
        ScreenInsertion insertion;
        insertion.taskId = request.taskId;
        insertion.planId = request.planId;
        insertion.plan = request.plan;
        insertions.push_back(timeline.withInsertion(insertions.back(), insertion, request.moment,
                                                    request.isDelayed));
    }

    const std::vector<Shown> walk =
        secondbysecond::walk(window, schedule.tasks, catalogue, requests);
    Instant reached = window.begin;
    for (std::size_t i = 0; i < insertions.size(); ++i) {
        const Instant end = i < requests.size() ? requests[i].moment : window.end();
        if (reached < end) {
            const QString found =
                Stretch(timeline, insertions[i], reached, end).difference(walk, window.begin);
            if (!found.isEmpty()) {
                return found;
            }
        }
        reached = end;
    }
    return {};
}
