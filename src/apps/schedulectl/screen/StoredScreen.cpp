#include "StoredScreen.h"

#include "clock/Clock.h"
#include "common/ZoneError.h"
#include "text/Console.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr char kSaved[] = "--saved";

std::optional<EffectStart> startedIn(const Database& database, bool isSavedWanted)
{
    return isSavedWanted ? std::nullopt : database.host().started();
}

} // namespace

StoredScreen::StoredScreen(const Database& database, const MomentFormat& local, bool isSavedWanted)
    : m_started(startedIn(database, isSavedWanted))
    , m_insertions(m_started ? database.host().dispatch().insertions() : ScreenInsertions())
    , m_tasks(m_started ? database.host().dispatch().tasks() : database.tasks())
    , m_programs(database.programs())
    , m_timeline(m_tasks, m_programs, local.zone())
    , m_words({m_tasks, m_programs, local})
{}

std::optional<Instant> momentOption(const Invocation& invocation, const char* option,
                                    const MomentFormat& local, DateAlone dateAlone,
                                    Console& console)
{
    const Instant now = Clock::current().msecsSinceEpoch();
    if (!invocation.has(option)) {
        return now;
    }
    const MomentReading reading =
        readMoment(invocation.value(option), local, local.shownAt(now).date(), dateAlone);
    if (!reading.error.isEmpty() || !reading.remark.isEmpty()) {
        console.tell(reading.instant ? reading.remark : reading.error);
    }
    return reading.instant;
}

bool knowsLocalTime(Console& console)
{
    const QString error = hosts::ZoneError::sentence();
    if (!error.isEmpty()) {
        console.tell(error);
    }
    return error.isEmpty();
}

ExitStatus atMoment(const Invocation& invocation, Console& console, const ScreenWork& work)
{
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const MomentFormat local(Clock::current().zone());
    const auto moment = momentOption(invocation, "--at", local, DateAlone::Refused, console);
    if (!moment) {
        return Misused;
    }
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    return work(*database, StoredScreen(*database, local, invocation.has(kSaved)), *moment);
}

CommandOption savedOption()
{
    return {kSaved, "", "Show the saved schedule, whatever is in effect."};
}

} // namespace trel::console
