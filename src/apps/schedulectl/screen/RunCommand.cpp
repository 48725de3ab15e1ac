#include "Commands.h"

#include "Database.h"
#include "ScheduleRun.h"
#include "StoredScreen.h"
#include "text/Console.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    // Only who could write is told when another program is about to commit.
    const auto database = openDatabase(invocation, Database::Access::Follow, console);
    if (!database) {
        return Refused;
    }
    return ScheduleRun(*database, invocation.json, console).run();
}

} // namespace

Command runCommand()
{
    return {"run",
            "",
            0,
            0,
            true,
            "Execute the schedule on the terminal",
            R"(Writes a line for each event of the schedule in effect: when it is, what is on
screen, until when, and the rule that makes it so. Where nothing is in effect at
first, the saved schedule plays, here alone, until something is. What another
program saves, starts, ends or inserts meanwhile is taken over at once.

Sleeps between the events. Ends with status 0 when it is interrupted or told to
terminate (SIGINT, SIGTERM). With --json each line is an object by itself.)",
            run};
}

} // namespace trel::console
