#include "Commands.h"

#include "Database.h"
#include "ScheduleReport.h"
#include "text/Console.h"
#include "text/SharedOptions.h"

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
    if (invocation.json) {
        console.writeJson({{QStringLiteral("database"), database->path()},
                           {QStringLiteral("tasks"), tasksJson(tasks, catalogue)}});
    } else {
        console.write(tasksText(tasks, catalogue, tableColumns(invocation)));
    }
    return Done;
}

} // namespace

Command showCommand()
{
    return {"show",
            "",
            0,
            0,
            true,
            "Show the tasks and their plans",
            R"(Shows every task with its plans, as they were last saved. The end of a plan that
plays a number of times is worked out from its programs. A plan that collides
with an earlier plan of its task is marked.)",
            run,
            true,
            {wideOption()}};
}

} // namespace trel::console
