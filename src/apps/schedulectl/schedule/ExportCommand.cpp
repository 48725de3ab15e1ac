#include "Commands.h"

#include "Database.h"
#include "ScheduleReport.h"
#include "catalogue/KnownContents.h"
#include "common/DisplayText.h"
#include "text/Console.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/NamedSchedule.h"
#include "trelprogramschedule/json/ProgramMatch.h"

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
    const auto contents = knownContents(invocation, console);
    if (!contents) {
        return Refused;
    }
    const auto tasks = database->tasks();
    const std::vector<NamedProgram> programs =
        namedPrograms(programsInEntries(tasks), database->programs(), *contents);
    if (file == kStandardStream) {
        console.writeExport(namedScheduleToJson(tasks, programs));
        return Done;
    }
    if (isSameFile(file, database->path())) {
        console.tell(QStringLiteral("%1 is the database itself and is not written over.")
                         .arg(printable(file)));
        return Refused;
    }
    if (const Fault fault = writeNamedScheduleFile(file, tasks, programs)) {
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
same bytes. The programs that it plays are named, with all by which they can be
found in another catalog. Their media are not part of the file.)",
            run};
}

} // namespace trel::console
