#include "Commands.h"

#include "Database.h"
#include "ScheduleReport.h"
#include "text/Console.h"

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
    const ScheduleCheck check = checkSchedule(tasks, database->catalogue());
    if (invocation.json) {
        QJsonObject object = checkJson(check, tasks);
        object.insert(QStringLiteral("database"), database->path());
        console.writeJson(object);
    } else {
        console.write(checkText(check, tasks));
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
            "Find what a save would refuse, and plans that collide",
            R"(Looks at the saved schedule and lists
  - the tasks whose periods overlap: the editor refuses to save them,
  - the plans that collide with an earlier plan of their task,
  - remarks: dates and times that are not in their form, periods that end
    before they begin, days, modes and end actions that are none, lists that
    run less than once.

The exit status is 0 when there are neither overlaps nor collisions, and 1
otherwise. Remarks do not count.)",
            run};
}

} // namespace trel::console
