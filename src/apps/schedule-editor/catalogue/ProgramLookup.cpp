#include "catalogue/ProgramLookup.h"

#include "clock/Clock.h"
#include "follow/ScheduleEdits.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <algorithm>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

using Tasks = std::map<int, PlayTask>;

/// So many entries are looked through, and put into a timeline, within a frame.
constexpr std::size_t kFewEntries = 500;
/// Of more programs than these the first on screen is not looked for: nobody waits for that.
constexpr std::size_t kMostSought = 100;

std::size_t entriesIn(const Tasks& tasks)
{
    std::size_t entries = 0;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            entries += 1 + plan.programs.size();
        }
    }
    return entries;
}

} // namespace

/// All that an answer follows from.
struct ProgramLookup::Question
{
    std::vector<int> programs;
    Tasks edited;
    Tasks inEffect;
    ScreenInsertions insertions;
    bool isInEffect = false;
    follow::SharedCatalogue catalogue;
    Instant moment = 0;
    QTimeZone zone;

    const Tasks& onScreen() const { return isInEffect ? inEffect : edited; }

    /// Whether the schedule can have one of them on screen at all. What is in no plan can still
    /// have been cut in.
    bool canBeOnScreen() const
    {
        return programs.size() <= kMostSought &&
               !(insertions.empty() && usesOf(onScreen(), programs).empty());
    }

    std::optional<ScreenState> next(const ScreenTimeline& timeline,
                                    const follow::Cancellation& cancellation) const
    {
        std::optional<ScreenState> first;
        for (const int program : programs) {
            if (cancellation.isCancelled()) {
                break;
            }
            const Instant bound = first ? first->since : kNever;
            const auto found = timeline.nextPlay(moment, bound, insertions, {program, false});
            if (found && (!first || found->since < first->since)) {
                first = found;
            }
        }
        return first;
    }

    bool wasOnScreen(const ScreenTimeline& timeline, const follow::Cancellation& cancellation) const
    {
        return std::any_of(programs.begin(), programs.end(), [&](int program) {
            return !cancellation.isCancelled() &&
                   timeline.nextPlay(kEver, moment, insertions, {program, false}).has_value();
        });
    }

    LookupAnswer answer(const follow::Cancellation& cancellation) const
    {
        LookupAnswer answer;
        answer.programs = programs;
        answer.uses = usesOf(edited, programs);
        for (const ProgramUse& use : answer.uses) {
            answer.tasks.emplace(use.taskId, edited.at(use.taskId));
        }
        if (canBeOnScreen()) {
            const ScreenTimeline timeline(onScreen(), *catalogue, zone);
            answer.next = next(timeline, cancellation);
            answer.wasOnScreen = !answer.next && wasOnScreen(timeline, cancellation);
        }
        answer.isInEffect = isInEffect;
        answer.moment = moment;
        answer.zone = zone;
        return answer;
    }
};

ProgramLookup::ProgramLookup(QObject* parent)
    : QObject(parent)
{}

ProgramLookup::~ProgramLookup() = default;

void ProgramLookup::ask(std::vector<int> programs)
{
    const ScheduleHost& host = ScheduleHost::instance();
    const ScreenDispatch& dispatch = ScheduleHost::instance().dispatch();
    auto question = std::make_shared<Question>();
    question->programs = std::move(programs);
    question->edited = host.workingSet();
    question->isInEffect = dispatch.isRunning();
    if (question->isInEffect) {
        question->inEffect = dispatch.tasks();
        question->insertions = dispatch.insertions();
    }
    question->catalogue = host.catalogue();
    question->moment = Clock::current().msecsSinceEpoch();
    question->zone = Clock::current().zone();
    const auto work =
        [this, question](const follow::Cancellation& cancellation) -> follow::NewestWork::Outcome {
        auto answer = std::make_shared<LookupAnswer>(question->answer(cancellation));
        // Runs in the thread of the windows, and not once this has gone.
        return [this, answer] { emit answered(*answer); };
    };
    if (!m_work.isBusy() &&
        entriesIn(question->edited) + entriesIn(question->inEffect) <= kFewEntries) {
        m_work.carryOut(work);
    } else {
        m_work.start(work);
    }
}

} // namespace trel::desktop
