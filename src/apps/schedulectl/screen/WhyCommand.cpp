#include "Commands.h"

#include "Database.h"
#include "ProgramChoice.h"
#include "StoredScreen.h"
#include "VerdictReport.h"
#include "text/Console.h"
#include "text/DisplayText.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

#include <optional>

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// The one program that a word means; none, and the user is told why, where it means another
/// number of them.
std::optional<int> chosenProgram(const ProgramChoice& choice, const QString& word,
                                 const Database& database, Console& console)
{
    const std::vector<int> found = choice.find(word);
    if (found.size() == 1) {
        return found.front();
    }
    if (found.empty()) {
        console.tell(QStringLiteral("There is no program %1 in %2; \"schedulectl programs\" lists "
                                    "the programs.")
                         .arg(inQuotes(shownAddress(word)), printable(database.path())));
        return {};
    }
    console.tell(QStringLiteral("Several programs are called %1; an index tells them apart:")
                     .arg(inQuotes(shownAddress(word))));
    for (const int progIndex : found) {
        console.tellLine(
            QStringLiteral("  %1  %2").arg(progIndex, 5).arg(printable(choice.name(progIndex))));
    }
    return {};
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const ProgramChoice choice(database, screen.tasks(), screen.programs());
        const std::optional<int> progIndex =
            chosenProgram(choice, invocation.arguments.first(), database, console);
        if (!progIndex) {
            return Refused;
        }
        const ProgramVerdict verdict = programVerdict(screen.timeline(), screen.tasks(),
                                                      screen.programs(), {}, *progIndex, moment);
        const VerdictSubject subject{*progIndex, choice.name(*progIndex), moment, verdict};
        if (invocation.json) {
            QJsonObject object = verdictJson(subject, screen.words());
            object.insert(QStringLiteral("database"), database.path());
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
            R"(Tells whether the saved schedule shows a program at a moment. If not, it names
for every plan that holds the program the rule that kept it away, and what is on
screen instead.

PROGRAM is an index, a name, or a part of a name that only one program has.
Moments are written as for "schedulectl now".)",
            run,
            true,
            {{"--at", "MOMENT", "The moment; defaults to now."}}};
}

} // namespace trel::console
