#include "Commands.h"

#include "EffectReport.h"
#include "StoredEffectWork.h"
#include "clock/Clock.h"
#include "text/Console.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <algorithm>
#include <optional>

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// The insertion that goes: the one that waits, or else the one that has the screen.
std::optional<ScreenInsertion> goingAt(const ScreenInsertions& insertions, Instant moment)
{
    const auto find = [&](bool (ScreenInsertion::*isSo)(Instant) const) {
        return std::find_if(
            insertions.begin(), insertions.end(),
            [isSo, moment](const ScreenInsertion& one) { return (one.*isSo)(moment); });
    };
    auto found = find(&ScreenInsertion::isWaitingAt);
    if (found == insertions.end()) {
        found = find(&ScreenInsertion::hasScreenAt);
    }
    return found == insertions.end() ? std::nullopt : std::make_optional(*found);
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const MomentFormat& local) {
        const Instant moment = Clock::current().msecsSinceEpoch();
        const StoredScreen before(database, local);
        const auto going = goingAt(before.insertions(), moment);
        if (going) {
            if (const ExitStatus status =
                    tellOutcome(database.host().cancelInsertion(), invocation, console);
                status != Done) {
                return status;
            }
        }
        const StoredScreen after(database, local);
        // The insertion has ended since the moment above.
        const ScreenState state =
            after.timeline().at(Clock::current().msecsSinceEpoch(), after.insertions());
        if (invocation.json) {
            console.writeJson(
                {{QStringLiteral("database"), database.path()},
                 {QStringLiteral("canceled"),
                  going ? QJsonValue(insertionJson(*going, after.words())) : QJsonValue()},
                 {QStringLiteral("now"), after.words().json(state)}});
        } else if (going) {
            console.writeLine(QStringLiteral("Canceled: %1. The screen %2 until %3.")
                                  .arg(insertionText(*going, moment, after.words()),
                                       after.words().pictureText(state),
                                       after.words().untilText(state.until, moment)));
        } else {
            console.writeLine(QStringLiteral("Nothing is inserted."));
        }
        return Done;
    };
    return onEffect(invocation, Database::Access::Change, console, work);
}

} // namespace

Command cancelInsertionCommand()
{
    return {"cancel-insertion",
            "",
            0,
            0,
            true,
            "Take an insertion back",
            R"(Takes back the insertion that waits for the end of a play; where none waits, ends
the one that is on screen. Where neither is there, nothing is done.)",
            run};
}

} // namespace trel::console
