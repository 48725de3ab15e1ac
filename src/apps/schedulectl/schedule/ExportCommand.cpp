#include "Commands.h"

#include "Database.h"
#include "ScheduleReport.h"
#include "common/DisplayText.h"
#include "text/Console.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QFileInfo>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

bool isSameFile(const QString& a, const QString& b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    const QString& file = invocation.arguments.first();
    const auto tasks = database->tasks();
    if (file == kStandardStream) {
        console.writeExport(scheduleToJson(tasks));
        return Done;
    }
    if (isSameFile(file, database->path())) {
        console.tell(QStringLiteral("%1 is the database itself and is not written over.")
                         .arg(printable(file)));
        return Refused;
    }
    if (const Fault fault = writeScheduleFile(file, tasks)) {
        console.tell(
            QStringLiteral("%1 cannot be written: %2.").arg(printable(file), englishClause(fault)));
        return Refused;
    }
    console.writeLine(QStringLiteral("%1 written to %2.").arg(sizeText(tasks), printable(file)));
    return Done;
}

} // namespace

Command exportCommand()
{
    return {"export",
            "FILE",
            1,
            1,
            false,
            "Write the schedule to a JSON file",
            R"(Writes all tasks, with every field, to FILE as JSON; "-" is the standard output.
A file that exists is replaced, in one step. The same schedule always gives the
same bytes. The catalog is not part of the file.)",
            run};
}

} // namespace trel::console
