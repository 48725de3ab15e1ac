#include "ScreenTimeline.h"

#include "trelprogramschedule/dispatch/InsertedScreen.h"
#include "trelprogramschedule/dispatch/PlainScreen.h"
#include "trelprogramschedule/dispatch/ScreenPlan.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// What a list needs of the catalogue: all but the texts.
std::map<int, ProgramIten> withoutTexts(const std::map<int, ProgramIten>& catalogue)
{
    std::map<int, ProgramIten> result;
    for (const auto& [index, program] : catalogue) {
        ProgramIten& copy = result.emplace_hint(result.end(), index, ProgramIten())->second;
        copy.progIndex = program.progIndex;
        copy.durationMs = program.durationMs;
        copy.kind = program.kind;
        copy.isNull = program.isNull;
    }
    return result;
}

/// Moments so far away that an offset would carry them out of the range.
Instant withinReach(Instant moment)
{
    return std::clamp(moment, kEver, -kEver);
}

} // namespace

class ScreenTimeline::Private
{
public:
    using Programs = std::map<int, ProgramIten>;

    Private(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue,
            const QTimeZone& zone)
        : programs(std::make_shared<const Programs>(withoutTexts(catalogue)))
        , plain(tasks, catalogue, zone)
    {}

    Private(const Private& former, const ScreenTasks& tasks)
        : programs(former.programs)
        , plain(former.plain.withTasks(tasks))
    {}

    using Inserted = std::vector<InsertedScreen>;

    /// Those that have the screen at all, each until the next one begins.
    Inserted inserted(const ScreenInsertions& insertions) const
    {
        Inserted result;
        for (std::size_t i = 0; i < insertions.size(); ++i) {
            const ScreenInsertion& insertion = insertions[i];
            const Instant next = i + 1 < insertions.size() ? insertions[i + 1].begins : kNever;
            if (insertion.begins < std::min(insertion.ends, next)) {
                result.emplace_back(insertion, *programs,
                                    plain.calendar().rowOf(insertion.taskId, insertion.planId),
                                    next);
            }
        }
        return result;
    }

    ScreenShown at(Instant moment, const Inserted& inserted) const
    {
        for (const InsertedScreen& insertion : inserted) {
            if (insertion.hasScreenAt(moment)) {
                return insertion.at(moment);
            }
        }
        ScreenShown shown = plain.at(moment);
        for (const InsertedScreen& insertion : inserted) {
            if (insertion.begins() > moment) {
                shown.cutFrom(insertion.begins());
            } else {
                shown.cutBefore(insertion.ends());
            }
        }
        return shown;
    }

    /// kNever when it does not come before `to`.
    Instant nextPlay(Instant from, Instant to, const Inserted& inserted,
                     const SoughtPlay& sought) const
    {
        for (Instant moment = from; moment < to;) {
            const auto has =
                std::find_if(inserted.begin(), inserted.end(), [moment](const InsertedScreen& one) {
                    return one.hasScreenAt(moment);
                });
            Instant limit = to;
            for (const InsertedScreen& one : inserted) {
                limit = one.begins() > moment ? std::min(limit, one.begins()) : limit;
            }
            if (has != inserted.end()) {
                limit = std::min(limit, has->ends());
            }
            const Instant found = has == inserted.end() ? plain.nextPlay(moment, sought)
                                                        : has->nextPlay(moment, sought);
            if (found < limit) {
                return found;
            }
            moment = limit;
        }
        return kNever;
    }

    Instant listOver(Instant moment, const Inserted& inserted) const
    {
        for (const InsertedScreen& insertion : inserted) {
            if (insertion.hasScreenAt(moment)) {
                return insertion.listOver();
            }
        }
        return plain.listOver(moment);
    }

    Instant endOf(const ScreenInsertion& insertion) const
    {
        return insertion.plan.serviceFlagB ? endOfOneRun(insertion) : endOfSpan(insertion);
    }

    std::shared_ptr<const Programs> programs;
    PlainScreen plain;

private:
    Instant endOfOneRun(const ScreenInsertion& insertion) const
    {
        const Microseconds length = insertedList(insertion.plan, *programs).length();
        return length == kEndless ? plain.nextTaken(insertion.begins)
                                  : insertion.begins + millisecondsUp(length);
    }

    Instant endOfSpan(const ScreenInsertion& insertion) const
    {
        const LocalTime begins = plain.offsets().periodAt(insertion.begins).local(insertion.begins);
        const ScreenPlan plan = screenPlans({insertion.plan}, *programs).front();
        return plain.offsets().firstShown(timeOn(dayOf(begins), plan.claim.end), insertion.begins);
    }
};

ScreenTimeline::ScreenTimeline(const std::map<int, PlayTask>& tasks,
                               const std::map<int, ProgramIten>& catalogue, const QTimeZone& zone)
    : d(std::make_unique<Private>(tasks, catalogue, zone))
{}

ScreenTimeline::ScreenTimeline(std::unique_ptr<Private> own)
    : d(std::move(own))
{}

ScreenTimeline::~ScreenTimeline() = default;
ScreenTimeline::ScreenTimeline(ScreenTimeline&&) noexcept = default;
ScreenTimeline& ScreenTimeline::operator=(ScreenTimeline&&) noexcept = default;

ScreenTimeline ScreenTimeline::withTasks(const ScreenTasks& tasks) const
{
    return ScreenTimeline(std::make_unique<Private>(*d, tasks));
}

ScreenState ScreenTimeline::at(Instant moment, const ScreenInsertions& insertions) const
{
    return d->at(withinReach(moment), d->inserted(insertions)).state;
}

void ScreenTimeline::visitPlays(Instant from, Instant to, const ScreenInsertions& insertions,
                                const Visitor& visitor) const
{
    const Private::Inserted inserted = d->inserted(insertions);
    for (Instant moment = withinReach(from); moment < to;) {
        const ScreenState state = d->at(moment, inserted).state;
        if (!visitor(state)) {
            return;
        }
        moment = state.until;
    }
}

void ScreenTimeline::visitSpans(Instant from, Instant to, const ScreenInsertions& insertions,
                                const Visitor& visitor) const
{
    const Private::Inserted inserted = d->inserted(insertions);
    for (Instant moment = withinReach(from); moment < to;) {
        ScreenShown shown = d->at(moment, inserted);
        if (shown.spanSince < moment) {
            shown = d->at(shown.spanSince, inserted);
        }
        shown.state.until = shown.state.spanUntil;
        if (!visitor(shown.state)) {
            return;
        }
        moment = shown.state.until;
    }
}

std::optional<ScreenState> ScreenTimeline::nextPlay(Instant from, Instant to,
                                                    const ScreenInsertions& insertions,
                                                    const SoughtPlay& sought) const
{
    if (from >= to) {
        return std::nullopt;
    }
    const Private::Inserted inserted = d->inserted(insertions);
    const Instant found = d->nextPlay(withinReach(from), to, inserted, sought);
    return found == kNever ? std::nullopt : std::make_optional(d->at(found, inserted).state);
}

std::optional<ScreenState> ScreenTimeline::afterList(const ScreenState& state,
                                                     const ScreenInsertions& insertions) const
{
    if (!state.isPlaying()) {
        return std::nullopt;
    }
    const Private::Inserted inserted = d->inserted(insertions);
    const Instant over = d->listOver(state.since, inserted);
    return over < state.spanUntil ? std::make_optional(d->at(over, inserted).state) : std::nullopt;
}

ScreenInsertions ScreenTimeline::withInsertion(ScreenInsertions current, ScreenInsertion request,
                                               Instant moment, bool isDelayed) const
{
    moment = withinReach(moment);
    current.erase(std::remove_if(current.begin(), current.end(),
                                 [moment](const ScreenInsertion& insertion) {
                                     return !insertion.hasScreenAt(moment);
                                 }),
                  current.end());
    request.requested = moment;
    request.begins = moment;
    if (isDelayed) {
        const ScreenState state = at(moment, current);
        // What would never end cannot be waited for.
        if (state.isPlaying() && state.until != kNever) {
            request.begins = state.until;
        }
    }
    request.ends = d->endOf(request);
    for (ScreenInsertion& insertion : current) {
        insertion.ends = std::min(insertion.ends, request.begins);
    }
    if (!current.empty() && current.back().begins == request.begins) {
        current.pop_back();
    }
    current.push_back(std::move(request));
    return current;
}

ScreenInsertions ScreenTimeline::withoutInsertion(ScreenInsertions current, Instant moment) const
{
    moment = withinReach(moment);
    const auto waiting =
        std::find_if(current.begin(), current.end(), [moment](const ScreenInsertion& insertion) {
            return insertion.isWaitingAt(moment);
        });
    if (waiting != current.end()) {
        const Instant gaveWay = waiting->begins;
        current.erase(waiting, current.end());
        if (!current.empty() && current.back().ends == gaveWay) {
            current.back().ends = d->endOf(current.back());
        }
        return current;
    }
    for (ScreenInsertion& insertion : current) {
        if (insertion.hasScreenAt(moment)) {
            insertion.ends = moment;
        }
    }
    return current;
}

QDateTime ScreenTimeline::local(Instant moment) const
{
    return QDateTime::fromMSecsSinceEpoch(moment, d->plain.offsets().zone());
}

Instant ScreenTimeline::instant(const QDate& date, const QTime& time) const
{
    if (!date.isValid() || !time.isValid()) {
        return kNever;
    }
    return d->plain.offsets().firstShown(timeOn(dayNumber(date), 0) + time.msecsSinceStartOfDay());
}

} // namespace trel::mediadispatch
