#include "Commands.h"

#include "EffectReport.h"
#include "StoredEffectWork.h"
#include "schedule/ScheduleReport.h"
#include "text/Console.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const MomentFormat& local) {
        if (const ExitStatus status =
                tellOutcome(database.host().startSchedule(), invocation, console);
            status != Done) {
            return status;
        }
        const StoredScreen screen(database, local);
        if (invocation.json) {
            console.writeJson(
                {{QStringLiteral("database"), database.path()},
                 {QStringLiteral("effect"), startJson(screen.started(), screen.words())}});
        } else {
            console.writeLine(
                QStringLiteral("%1 in effect %2.")
                    .arg(sizeText(screen.tasks()), sinceText(*screen.started(), local)));
        }
        return Done;
    };
    return onEffect(invocation, Database::Access::Change, console, work);
}

} // namespace

Command startCommand()
{
    return {"start",
            "",
            0,
            0,
            true,
            "Put the saved schedule into effect",
            R"(Puts the schedule into effect as it is saved now. It stays in effect, whatever is
saved later and whether programs run or not, until another start or a stop. What
was in effect before ends, with what was inserted into it.)",
            run};
}

} // namespace trel::console
