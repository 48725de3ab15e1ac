#include "Commands.h"

#include "Database.h"
#include "NowReport.h"
#include "StoredScreen.h"
#include "effect/EffectReport.h"
#include "text/Console.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const ScreenState state = screen.timeline().at(moment, screen.insertions());
        const Upcoming next = upcoming(screen.timeline(), screen.insertions(), state);
        if (invocation.json) {
            QJsonObject object = nowJson(moment, state, next, screen.words());
            object.insert(QStringLiteral("database"), database.path());
            object.insert(QStringLiteral("effect"), startJson(screen.started(), screen.words()));
            console.writeJson(object);
        } else {
            console.write(nowText(moment, state, next, screen.started(), screen.words()));
        }
        return Done;
    };
    return atMoment(invocation, console, work);
}

} // namespace

Command nowCommand()
{
    return {"now",
            "",
            0,
            0,
            true,
            "Show what is on screen, and what comes next",
            R"(Shows what the schedule in effect has on screen at a moment: the program, with
the position in it, its entry, play and run, the plan, until when, and the rule
that makes it so; and the next program and the next plan with their moments.
Where nothing is in effect, what the saved schedule would show.

A moment is a date and a time of day, such as "2024-03-31 08:00:00" or
2024-03-31T08:00; the seconds may be left out, and a time alone is one of today.
Times are local unless an offset such as +01:00, or Z, follows. A time that the
clock skips is taken as the first moment after the gap, one that occurs twice as
the first of the two; either is reported on standard error.)",
            run,
            true,
            {{"--at", "MOMENT", "The moment; defaults to now."}, savedOption()}};
}

} // namespace trel::console
