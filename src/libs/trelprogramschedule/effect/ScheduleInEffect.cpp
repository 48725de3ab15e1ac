#include "ScheduleInEffect.h"

#include "PlanEnds.h"
#include "ThisProgram.h"
#include "clock/Clock.h"
#include "store/ScheduleDatabase.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/dispatch/SkippedPlay.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

Instant now()
{
    return Clock::current().msecsSinceEpoch();
}

/// The insertion that has the screen now; null without one.
const ScreenInsertion* insertionOnScreen(const ScreenInsertions& insertions)
{
    const Instant moment = now();
    const auto found =
        std::find_if(insertions.begin(), insertions.end(),
                     [moment](const ScreenInsertion& one) { return one.hasScreenAt(moment); });
    return found == insertions.end() ? nullptr : &*found;
}

} // namespace

bool ScheduleInEffect::takesInsertion() const
{
    const ScreenInsertions& insertions = m_dispatch.insertions();
    const Instant moment = now();
    const bool waits =
        std::any_of(insertions.begin(), insertions.end(),
                    [moment](const ScreenInsertion& one) { return one.isWaitingAt(moment); });
    return m_dispatch.isRunning() && !waits;
}

PlayPlan ScheduleInEffect::plan(int taskId, int planId, int& index) const
{
    PlayPlan found = findPlan(m_dispatch.tasks(), taskId, planId, index);
    const ScreenInsertion* inserted = insertionOnScreen(m_dispatch.insertions());
    if (inserted && inserted->taskId == taskId && inserted->planId == planId) {
        found = inserted->plan;
    }
    updatePlanEnd(found, m_catalogue);
    return found;
}

StoreResult ScheduleInEffect::start(const TaskMap& tasks)
{
    EffectStart start;
    start.since = now();
    start.by = thisProgram();
    StoredEffect effect;
    if (isShared()) {
        if (StoreResult result = m_database.startEffect(start, effect); !result) {
            return result;
        }
    } else {
        effect.start = start;
        effect.tasks = tasks;
    }
    m_start.reset();
    take(std::move(effect));
    return {};
}

StoreResult ScheduleInEffect::stop()
{
    StoredEffect effect;
    if (isShared()) {
        if (StoreResult result = m_database.stopEffect(effect); !result) {
            return result;
        }
    }
    m_isRehearsing = false;
    take(std::move(effect));
    return {};
}

void ScheduleInEffect::rehearse(const TaskMap& tasks)
{
    if (!m_start) {
        m_isRehearsing = true;
        m_dispatch.start(tasks);
    }
}

void ScheduleInEffect::leave()
{
    m_start.reset();
    m_revision = 0;
    m_lastInsertion = 0;
    m_isRehearsing = false;
    m_dispatch.stop();
}

StoreResult ScheduleInEffect::follow()
{
    StoreRevision known;
    StoreResult result = m_database.readRevision(known);
    return result ? followTo(known) : result;
}

StoreResult ScheduleInEffect::followTo(const StoreRevision& known)
{
    if (known.effect == m_revision) {
        return {};
    }
    StoredEffect effect;
    StoreResult result = m_database.readEffect(effect);
    if (result) {
        take(std::move(effect));
    }
    return result;
}

/// What a process without a store has in effect is its own.
bool ScheduleInEffect::isShared() const
{
    return m_database.isOpen();
}

void ScheduleInEffect::take(StoredEffect effect)
{
    m_revision = effect.revision;
    ++m_changes;
    if (!effect.start) {
        m_start.reset();
        if (!m_isRehearsing) {
            m_dispatch.stop();
        }
        return;
    }
    m_isRehearsing = false;
    if (m_start == effect.start) {
        m_dispatch.setInsertions(std::move(effect.insertions));
        return;
    }
    m_start = effect.start;
    for (auto& [id, task] : effect.tasks) {
        markLostEntries(task, [this](int index) { return m_catalogue.contains(index); });
    }
    m_dispatch.start(effect.tasks, std::move(effect.insertions));
}

StoreResult ScheduleInEffect::changeInsertions(const InsertionChange& change)
{
    for (;;) {
        std::optional<ScreenInsertions> insertions = change();
        if (!insertions) {
            return {};
        }
        StoreResult result;
        // A rehearsal is no business of the store's.
        if (isShared() && !m_isRehearsing) {
            result = m_database.writeInsertions(*insertions, m_revision);
        }
        if (result) {
            ++m_changes;
            m_dispatch.setInsertions(*std::move(insertions));
        }
        if (result.problem != StoreProblem::MovedOn) {
            return result;
        }
        if (result = follow(); !result) {
            return result;
        }
    }
}

StoreResult ScheduleInEffect::insert(int taskId, int planId, const PlayPlan& plan, bool isDelayed)
{
    ScreenInsertion request;
    request.taskId = taskId;
    request.planId = planId;
    request.plan = plan;
    request.askedBy = thisProgram();
    bool isTaken = false;
    const auto cutIn = [&]() -> std::optional<ScreenInsertions> {
        int index = -1;
        findPlan(m_dispatch.tasks(), taskId, planId, index);
        isTaken = index >= 0;
        return isTaken ? std::make_optional(m_dispatch.insertionsWith(request, isDelayed))
                       : std::nullopt;
    };
    StoreResult result = changeInsertions(cutIn);
    // Who heard of the insertion may have ended the schedule since.
    if (result && isTaken && !m_dispatch.insertions().empty()) {
        m_lastInsertion = m_dispatch.insertions().back().number;
    }
    return result;
}

StoreResult ScheduleInEffect::cancelInsertion()
{
    return changeInsertions([this]() -> std::optional<ScreenInsertions> {
        const ScreenInsertions& insertions = m_dispatch.insertions();
        const Instant moment = now();
        const bool isAny =
            std::any_of(insertions.begin(), insertions.end(), [moment](const ScreenInsertion& one) {
                return one.isWaitingAt(moment) || one.hasScreenAt(moment);
            });
        return isAny
                   ? std::make_optional(m_dispatch.timeline().withoutInsertion(insertions, moment))
                   : std::nullopt;
    });
}

StoreResult ScheduleInEffect::skipPlay()
{
    return changeInsertions([this] { return insertionsWithoutPlay(); });
}

std::optional<ScreenInsertions> ScheduleInEffect::insertionsWithoutPlay()
{
    const ScreenInsertions& insertions = m_dispatch.insertions();
    const Instant moment = now();
    const auto waiting =
        std::find_if(insertions.begin(), insertions.end(),
                     [moment](const ScreenInsertion& one) { return one.isWaitingAt(moment); });
    if (waiting != insertions.end()) {
        return m_dispatch.insertionsWith(*waiting, false);
    }
    const ScreenState state = m_dispatch.state();
    if (!isSkippable(state)) {
        return std::nullopt;
    }
    if (std::optional<ScreenInsertion> next = skippedPlay(state, whatPlays(state))) {
        next->askedBy = thisProgram();
        return m_dispatch.insertionsWith(*std::move(next), false);
    }
    return m_dispatch.timeline().withoutInsertion(insertions, moment);
}

ScreenInsertion ScheduleInEffect::whatPlays(const ScreenState& state) const
{
    const ScreenInsertion* inserted = insertionOnScreen(m_dispatch.insertions());
    if (state.isInserted() && inserted) {
        return *inserted;
    }
    ScreenInsertion plan;
    plan.taskId = state.taskId;
    plan.planId = state.planId;
    int index = -1;
    plan.plan = findPlan(m_dispatch.tasks(), state.taskId, state.planId, index);
    plan.original = plan.plan.programs;
    return plan;
}

StoreResult ScheduleInEffect::setOriginal(const std::vector<struProgInfo>& programs)
{
    return changeInsertions([&]() -> std::optional<ScreenInsertions> {
        ScreenInsertions insertions = m_dispatch.insertions();
        const auto last =
            std::find_if(insertions.begin(), insertions.end(), [this](const ScreenInsertion& one) {
                return one.number == m_lastInsertion;
            });
        if (last == insertions.end()) {
            return std::nullopt;
        }
        last->original = programs;
        return insertions;
    });
}

} // namespace trel::mediadispatch
