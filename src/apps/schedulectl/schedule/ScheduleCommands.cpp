#include "ScheduleCommands.h"

#include "Database.h"
#include "ScheduleCheck.h"
#include "ScheduleReport.h"
#include "text/Console.h"
#include "text/DisplayText.h"

using namespace trel::mediadispatch;

ExitStatus runShow(const Invocation& invocation, Console& console)
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
        console.write(tasksText(tasks, catalogue));
    }
    return Done;
}

ExitStatus runCheck(const Invocation& invocation, Console& console)
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
