#include "Commands.h"

#include "Database.h"
#include "ProgramChoice.h"
#include "StoredScreen.h"
#include "VerdictReport.h"
#include "effect/EffectReport.h"
#include "text/Console.h"

#include <optional>

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const ProgramChoice choice(database, screen.tasks(), screen.programs());
        const std::optional<int> progIndex =
            chosenProgram(choice, invocation.arguments.first(), database, console);
        if (!progIndex) {
            return Refused;
        }
        const ProgramVerdict verdict =
            programVerdict(screen.timeline(), screen.tasks(), screen.programs(),
                           screen.insertions(), *progIndex, moment);
        const VerdictSubject subject{*progIndex, choice.name(*progIndex), moment, verdict};
        if (invocation.json) {
            QJsonObject object = verdictJson(subject, screen.words());
            object.insert(QStringLiteral("database"), database.path());
            object.insert(QStringLiteral("effect"), startJson(screen.started(), screen.words()));
            console.writeJson(object);
        } else {
            console.write(verdictText(subject, screen.words()));
        }
        return Done;
    };
    return atMoment(invocation, console, work);
}

} // namespace

Command whyCommand()
{
    return {"why",
            "PROGRAM",
            1,
            1,
            true,
            "Tell why a program plays, or what keeps it away",
            R"(Tells whether the schedule in effect shows a program at a moment. If not, it
names for every plan that holds the program the rule that kept it away, and what
is on screen instead. Where nothing is in effect, it looks at what is saved.

PROGRAM is an index, a name, or a part of a name that only one program has.
Moments are written as for "schedulectl now".)",
            run,
            true,
            {{"--at", "MOMENT", "The moment; defaults to now."}, savedOption()}};
}

} // namespace trel::console
