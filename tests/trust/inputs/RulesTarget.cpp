#include "FuzzTarget.h"
#include "TextTargets.h"

#include "schedule/ScheduleCheck.h"
#include "trelprogramschedule/dispatch/ProgramVerdict.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QTimeZone>

using namespace trel::console;
using namespace trel::mediadispatch;

namespace trust {

namespace {

/// A film, an image and a live source, and a film that is over before it has begun.
std::map<int, ProgramIten> programs()
{
    std::map<int, ProgramIten> programs;
    constexpr double lengths[] = {90500.0, 0.0, 0.0, 0.25};
    constexpr ProgramKind kinds[] = {ProgramKind::Video, ProgramKind::Image, ProgramKind::Live,
                                     ProgramKind::Audio};
    for (int index = 1; index <= 4; ++index) {
        ProgramIten program;
        program.progIndex = index;
        program.durationMs = lengths[index - 1];
        program.kind = kinds[index - 1];
        programs.emplace(index, program);
    }
    return programs;
}

constexpr Instant kDay = 24 * 3600 * 1000;
constexpr int kMostStates = 500;

/// States come in order, and each holds until the next one begins.
class InOrder
{
public:
    bool operator()(const ScreenState& state)
    {
        expect(m_count == 0 || state.since >= m_last, "states come in order");
        expect(state.until > state.since, "a state lasts");
        m_last = state.since;
        return ++m_count < kMostStates;
    }

private:
    int m_count = 0;
    Instant m_last = 0;
};

} // namespace

void tryRules(const QByteArray& input)
{
    static const std::map<int, ProgramIten> catalogue = programs();
    const ScheduleFromJson schedule = scheduleFromJson(input);
    if (schedule.fault) {
        return;
    }
    const auto hasNoDuration = [](int index) {
        const auto found = catalogue.find(index);
        return found == catalogue.end() || !hasOwnLength(found->second);
    };
    const ScheduleCheck check = checkSchedule(schedule.tasks, {catalogue, hasNoDuration});
    expect(check.overlaps.empty() != firstTaskOverlap(schedule.tasks).has_value(),
           "a first overlap is one of all");

    const ScreenTimeline timeline(schedule.tasks, catalogue, QTimeZone("Europe/Berlin"));
    // A Sunday on which the clock is put forward, from midnight on.
    const Instant begin = timeline.instant(QDate(2024, 3, 31), QTime(0, 0));
    for (const Instant moment : {begin, begin + kDay / 3, begin + kDay * 200}) {
        const ScreenState state = timeline.at(moment);
        expect(state.since <= moment && state.until > moment, "a state holds its moment");
        const ScreenState same = timeline.at(state.since);
        expect(state.since != same.since || same.planRow == state.planRow,
               "a state is the same at its beginning");
        for (const auto& [index, program] : catalogue) {
            const ProgramVerdict verdict =
                programVerdict(timeline, schedule.tasks, catalogue, {}, index, moment);
            expect(!verdict.plays() || verdict.screen.progIndex == index,
                   "what plays is on screen");
            expect(verdict.plays() || !verdict.screen.isPlaying() ||
                       verdict.screen.progIndex != index,
                   "what is on screen plays");
        }
    }
    timeline.visitSpans(begin, begin + 2 * kDay, {}, InOrder());
    timeline.visitPlays(begin, begin + kDay, {}, InOrder());
}

} // namespace trust
