#include "versions/StateComparison.h"

#include "service/InvalidEntries.h"
#include "trelprogramschedule/history/VersionReader.h"

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

StoreResult readState(const ComparisonQuestion& question, const follow::Cancellation& cancellation,
                      ComparedState& state)
{
    VersionReader reader(question.store);
    reader.endWhen([&cancellation] { return cancellation.isCancelled(); });
    switch (state.state.kind) {
    case ScheduleState::Version:
        return reader.tasks(state.state.number, state.tasks);
    case ScheduleState::Saved:
        return reader.tasks(kNoVersion, state.tasks);
    case ScheduleState::InEffect:
        break;
    }
    if (question.inEffect != nullptr) {
        state.tasks = *question.inEffect;
        // It was put there before programs left the catalog; all other states have been read since.
        markLostEntries(state.tasks, *question.catalogue);
    }
    return {};
}

week::WeekPicture pictureOf(const week::WeekSchedule::Tasks& tasks,
                            const ComparisonQuestion& question,
                            const follow::Cancellation& cancellation)
{
    const auto schedule = std::make_shared<const week::WeekSchedule>(
        tasks, *question.catalogue, ScreenInsertions(), question.zone);
    return {schedule, std::make_shared<const week::WeekLayout>(
                          schedule->layout(question.firstDay, cancellation))};
}

} // namespace

std::shared_ptr<const StateComparison> compareStates(const ComparisonQuestion& question,
                                                     const follow::Cancellation& cancellation)
{
    auto made = std::make_shared<StateComparison>();
    made->former.state = question.former;
    made->later.state = question.later;
    made->catalogue = question.catalogue;
    for (ComparedState* state : {&made->former, &made->later}) {
        if (!made->result || cancellation.isCancelled()) {
            return made;
        }
        made->result = readState(question, cancellation, *state);
    }
    if (!made->result) {
        return made;
    }
    made->differences = differencesOfNote(made->former.tasks, made->later.tasks);
    for (ComparedState* state : {&made->former, &made->later}) {
        if (cancellation.isCancelled()) {
            return made;
        }
        state->picture = pictureOf(state->tasks, question, cancellation);
    }
    return made;
}

WeekOnScreen compareOnScreen(const StateComparison& states, const QDate& firstDay)
{
    const auto& former = *states.former.picture.schedule;
    const auto& later = *states.later.picture.schedule;
    const QTimeZone zone = former.zone();
    const week::LocalDays days(firstDay, week::kDays, zone);
    return {firstDay, zone,
            screenDifferences({states.former.tasks, former.timeline()},
                              {states.later.tasks, later.timeline()}, days.begin(), days.end())};
}

} // namespace trel::desktop::versions
