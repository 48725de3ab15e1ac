#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include "clock/Clock.h"
#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/ProgramFacts.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <tuple>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// A picture with what follows it: what there is to tell.
struct Outlook
{
    ScreenState now;
    ScreenState next;
};

/// The state as it was when its picture began. Two moments of one picture have this in common.
ScreenState fromItsBeginning(ScreenState state, Instant moment)
{
    if (state.isPlaying()) {
        state.position -= moment - state.since;
    }
    return state;
}

auto everythingOf(const ScreenState& state)
{
    return std::tie(state.picture, state.reason, state.taskId, state.planId, state.planRow,
                    state.entry, state.progIndex, state.play, state.run, state.position,
                    state.since, state.until, state.spanUntil);
}

bool operator==(const Outlook& a, const Outlook& b)
{
    return everythingOf(a.now) == everythingOf(b.now) &&
           everythingOf(a.next) == everythingOf(b.next);
}

} // namespace

class ScreenDispatch::Private
{
public:
    explicit Private(const std::map<int, ProgramIten>& catalogue)
        : programs(catalogue)
    {
        build();
    }

    ScreenState at(Instant moment) const
    {
        return isRunning ? timeline->at(moment, insertions) : ScreenState();
    }

    Outlook outlook(const ScreenState& now, Instant moment) const
    {
        Outlook outlook = {fromItsBeginning(now, moment), {}};
        if (now.until != kNever) {
            outlook.next = fromItsBeginning(at(now.until), now.until);
        }
        return outlook;
    }

    void build()
    {
        zone = Clock::current().zone();
        // The former one stays for as long as it takes, so that no two in a row share an address.
        auto built = std::make_unique<ScreenTimeline>(tasks, programs, zone);
        timeline = std::move(built);
        isCatalogueNew = false;
        facts = ProgramFacts(tasks, insertions, programs);
    }

    const std::map<int, ProgramIten>& programs;
    bool isRunning = false;
    std::map<int, PlayTask> tasks;
    ScreenInsertions insertions;
    std::unique_ptr<const ScreenTimeline> timeline;
    QTimeZone zone;
    ProgramFacts facts;
    bool isCatalogueNew = false; ///< Programs that nothing in effect uses are others than it knows.
    std::unique_ptr<ClockAlarm> alarm;
    Outlook told;
};

ScreenDispatch::ScreenDispatch(const std::map<int, ProgramIten>& programs)
    : d(std::make_unique<Private>(programs))
{
    qRegisterMetaType<ScreenState>();
}

ScreenDispatch::~ScreenDispatch() = default;

bool ScreenDispatch::isRunning() const
{
    return d->isRunning;
}

ScreenState ScreenDispatch::state() const
{
    return d->at(Clock::current().msecsSinceEpoch());
}

const ScreenTimeline& ScreenDispatch::timeline() const
{
    return *d->timeline;
}

const std::map<int, PlayTask>& ScreenDispatch::tasks() const
{
    return d->tasks;
}

const ScreenInsertions& ScreenDispatch::insertions() const
{
    return d->insertions;
}

void ScreenDispatch::start(const std::map<int, PlayTask>& tasks, ScreenInsertions insertions)
{
    d->isRunning = true;
    d->tasks = tasks;
    d->insertions = std::move(insertions);
    // Made before the clock is looked at, so that no leap in between is missed.
    d->alarm = Clock::current().makeAlarm([this] { wake(); });
    d->build();
    follow(true);
}

void ScreenDispatch::stop()
{
    if (!d->isRunning) {
        return;
    }
    d->isRunning = false;
    d->tasks.clear();
    d->insertions.clear();
    d->alarm.reset();
    d->build();
    follow(true);
}

void ScreenDispatch::updatePrograms()
{
    d->isCatalogueNew = true;
    if (d->facts != ProgramFacts(d->tasks, d->insertions, d->programs)) {
        d->build();
        follow(true);
    }
}

ScreenInsertions ScreenDispatch::insertionsWith(ScreenInsertion request, bool isDelayed)
{
    if (d->isCatalogueNew) {
        d->build();
    }
    return d->timeline->withInsertion(d->insertions, std::move(request),
                                      Clock::current().msecsSinceEpoch(), isDelayed);
}

void ScreenDispatch::setInsertions(ScreenInsertions insertions)
{
    const bool isAnew = d->isCatalogueNew;
    if (isAnew) {
        d->build();
    }
    d->insertions = std::move(insertions);
    d->facts = ProgramFacts(d->tasks, d->insertions, d->programs);
    follow(isAnew);
}

void ScreenDispatch::wake()
{
    const bool isAnew = Clock::current().zone() != d->zone;
    if (isAnew) {
        d->build();
    }
    follow(isAnew);
}

void ScreenDispatch::follow(bool isAnew)
{
    const Instant moment = Clock::current().msecsSinceEpoch();
    const ScreenState now = d->at(moment);
    const Outlook outlook = d->outlook(now, moment);
    const bool isNew = !(std::exchange(d->told, outlook) == outlook);
    if (d->alarm) {
        d->alarm->set(now.until);
    }
    if (isNew || isAnew) {
        emit changed(now);
    }
}

} // namespace trel::mediadispatch
