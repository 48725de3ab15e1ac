#include "Commands.h"

#include "EffectReport.h"
#include "StoredEffectWork.h"
#include "text/Console.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const MomentFormat& local) {
        const auto ended = database.host().started();
        const StoredScreen screen(database, local);
        if (ended) {
            if (const ExitStatus status =
                    tellOutcome(database.host().stopSchedule(), invocation, console);
                status != Done) {
                return status;
            }
        }
        if (invocation.json) {
            console.writeJson({{QStringLiteral("database"), database.path()},
                               {QStringLiteral("ended"), startJson(ended, screen.words())}});
        } else {
            console.writeLine(ended ? QStringLiteral("What was in effect %1, has ended.")
                                          .arg(sinceText(*ended, local))
                                    : QStringLiteral("Nothing was in effect."));
        }
        return Done;
    };
    return onEffect(invocation, Database::Access::Change, console, work);
}

} // namespace

Command stopCommand()
{
    return {"stop",
            "",
            0,
            0,
            true,
            "End what is in effect",
            R"(Ends the schedule in effect, with what was inserted into it: from now on the
screen is black. What is saved stays. Where nothing is in effect, nothing is done.)",
            run};
}

} // namespace trel::console
