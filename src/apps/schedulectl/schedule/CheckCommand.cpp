#include "Commands.h"

#include "ContentCheck.h"
#include "Database.h"
#include "ScheduleReport.h"
#include "catalogue/KnownContents.h"
#include "catalogue/ProgramReport.h"
#include "text/Console.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    const auto tasks = database->tasks();
    const Catalogue catalogue = database->catalogue();
    const ScheduleCheck check = checkSchedule(tasks, catalogue);
    const auto contents = knownContents(invocation, console);
    if (!contents) {
        return Refused;
    }
    const std::vector<int> changed = changedContents(
        catalogue.programs, *contents, [&](int done, int total, const QString& path) {
            console.showProgress(done + 1, total, shownAddress(path));
        });
    if (invocation.json) {
        QJsonObject object = checkJson(check, tasks);
        object.insert(QStringLiteral("database"), database->path());
        object.insert(QStringLiteral("changedFiles"), programsJson(changed, catalogue.programs));
        console.writeJson(object);
    } else {
        const QString inFiles = changedContentsText(changed, catalogue.programs);
        console.write(checkText(check, tasks));
        console.write(inFiles.isEmpty() ? inFiles : QLatin1Char('\n') + inFiles);
    }
    return check.isClean() ? Done : Refused;
}

} // namespace

Command checkCommand()
{
    return {"check",
            "",
            0,
            0,
            true,
            "Find what is wrong with the schedule, and what to do",
            R"(Looks at the saved schedule and lists what the editor's list of problems has,
in the same words, and in the same order:
  - what a save would be refused for: tasks whose periods overlap,
  - errors: plans that are in conflict, never play or are never on screen,
    entries that are invalid, files that are missing,
  - warnings: lists that are cut off when the plan or the day ends, or that
    would go on after midnight, entries that are never reached,
  - hints: hours without a picture, and changes of the clocks within two
    years that touch a plan,
  - remarks: dates and times that are not in their form, periods that end
    before they begin, days, modes and end actions that are none, lists that
    run less than once.
Tasks that are over are looked at as well.

Behind that it lists the programs whose files hold something else than when they
were imported, by size and SHA-256. A file is read for this only where its time
of change is another one.

The exit status is 0 when there are neither overlaps nor conflicts, and 1
otherwise. Nothing else counts.)",
            run};
}

} // namespace trel::console
