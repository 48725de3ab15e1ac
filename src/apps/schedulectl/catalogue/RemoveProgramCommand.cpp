#include "Commands.h"

#include "Database.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <optional>
#include <set>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Programs = std::map<int, ProgramIten>;

/// The arguments as indexes, each once, in their order. Nothing, and the user is told why, when one
/// of them is none.
std::optional<std::vector<int>> indexesOf(const QStringList& arguments, Console& console)
{
    std::vector<int> indexes;
    std::set<int> known;
    for (const QString& text : arguments) {
        bool isNumber = false;
        const int index = text.toInt(&isNumber);
        if (!isNumber) {
            console.tell(
                QStringLiteral("%1 is not an index; \"schedulectl programs\" shows the indexes.")
                    .arg(inQuotes(shownAddress(text))));
            return std::nullopt;
        }
        if (known.insert(index).second) {
            indexes.push_back(index);
        }
    }
    return indexes;
}

/// Whether the catalogue has all of them; the user is told of those that it has not.
bool areKnown(const std::vector<int>& indexes, const Programs& programs, const QString& path,
              Console& console)
{
    bool known = true;
    for (const int index : indexes) {
        if (programs.count(index) == 0) {
            console.tell(QStringLiteral("There is no program %1 in %2.")
                             .arg(QString::number(index), printable(path)));
            known = false;
        }
    }
    if (!known && indexes.size() > 1) {
        console.tell(QStringLiteral("Nothing was removed."));
    }
    return known;
}

/// Asks without a right to write, and without waiting for a program that writes: a refusal needs
/// neither.
bool canBeRemoved(const std::vector<int>& indexes, const Invocation& invocation, Console& console)
{
    const auto database =
        openDatabase(invocation, Database::Access::Read, console, Database::Part::Catalogue);
    return database && areKnown(indexes, database->programs(), database->path(), console);
}

void writeRemoval(Console& console, const std::vector<int>& indexes, const Programs& programs,
                  int plans)
{
    for (const int index : indexes) {
        console.writeLine(QStringLiteral("Program %1, %2, was removed.")
                              .arg(QString::number(index), printable(programs.at(index).progName)));
    }
    if (plans > 0) {
        const QString whose =
            indexes.size() == 1 ? QStringLiteral("Its entries") : QStringLiteral("Their entries");
        console.writeLine(QStringLiteral("%1 in %2 are invalid now.")
                              .arg(whose, counted(plans, QStringLiteral("plan"))));
    }
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto indexes = indexesOf(invocation.arguments, console);
    if (!indexes) {
        return Misused;
    }
    if (!canBeRemoved(*indexes, invocation, console)) {
        return Refused;
    }
    const auto database =
        openDatabase(invocation, Database::Access::Change, console, Database::Part::Catalogue);
    if (!database) {
        return Refused;
    }
    // Another program may have removed one of them meanwhile.
    const Programs programs = database->programs();
    if (!areKnown(*indexes, programs, database->path(), console)) {
        return Refused;
    }
    const int plans = database->host().plansWith(*indexes);
    const StoreResult result = database->host().removePrograms(*indexes);
    if (!result) {
        console.tell(englishText(result));
        return Refused;
    }
    writeRemoval(console, *indexes, programs, plans);
    return Done;
}

} // namespace

Command removeProgramCommand()
{
    return {"remove-program",
            "INDEX...",
            1,
            Command::kAnyNumber,
            false,
            "Take programs out of the catalog",
            R"(Takes the programs of these indexes out of the catalog; their files are left
alone. "schedulectl programs" shows the indexes. Plans that use the programs
keep their entries, which are marked as invalid from then on. The indexes are
never given out again.

All of them are removed, or none: where the catalog does not have one of them,
it is named on the standard error, and the exit status is 1.)",
            run};
}

} // namespace trel::console
