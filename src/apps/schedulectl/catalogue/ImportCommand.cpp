#include "Commands.h"

#include "Database.h"
#include "ProgramReport.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "text/TextTable.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"
#include "trelprogramschedule/catalogue/StoredContents.h"
#include "trelprogramschedule/faults/FaultWords.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Programs = std::map<int, ProgramIten>;

void addImported(TextTable& table, const QString& what, const std::vector<int>& indexes,
                 const Programs& programs)
{
    for (const int index : indexes) {
        const auto found = programs.find(index);
        if (found != programs.end()) {
            const ProgramIten& program = found->second;
            table.addRow({what, QString::number(index), printable(program.progName),
                          kindText(program.kind), programLength(program), programPath(program)});
        }
    }
}

void writeImport(Console& console, const ImportResult& result, const ImportScan& scan,
                 const Programs& programs)
{
    TextTable table({{QString()},
                     {QStringLiteral("Index"), TextTable::Align::Right},
                     {QStringLiteral("Name")},
                     {QStringLiteral("Kind")},
                     {QStringLiteral("Length"), TextTable::Align::Right},
                     {QStringLiteral("File")}});
    addImported(table, QStringLiteral("added"), result.added, programs);
    addImported(table, QStringLiteral("updated"), result.updated, programs);
    console.write(table.text());
    console.writeLine(
        QStringLiteral("%1 added, %2 updated, %3 refused.")
            .arg(counted(static_cast<qint64>(result.added.size()), QStringLiteral("program")))
            .arg(result.updated.size())
            .arg(scan.refusals.size()));
}

QJsonArray refusalsJson(const std::vector<ImportRefusal>& refusals)
{
    QJsonArray array;
    for (const ImportRefusal& refusal : refusals) {
        QJsonObject refused = faultJson(refusal.fault);
        refused.insert(QStringLiteral("path"), refusal.path);
        array.append(refused);
    }
    return array;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    // Opened first, so that no long scan runs that has nowhere to go.
    const auto database =
        openDatabase(invocation, Database::Access::Write, console, Database::Part::Catalogue);
    if (!database) {
        return Refused;
    }
    const ImportScan scan = scanMedia(
        invocation.arguments,
        [&console](int done, int total, const QString& path) {
            console.showProgress(done + 1, total, shownAddress(path));
            return true;
        },
        {}, {}, storedFileContents());
    for (const ImportRefusal& refusal : scan.refusals) {
        console.tell(QStringLiteral("%1: %2").arg(printable(shownAddress(refusal.path)),
                                                  englishSentence(refusal.fault)));
    }
    const ImportResult result = database->host().addPrograms(scan.sources);
    if (!result.store) {
        console.tell(englishText(result.store));
        if (invocation.json) {
            console.writeJson(refusalJson(result.store));
        }
        return Refused;
    }
    const Programs programs = database->programs();
    if (invocation.json) {
        console.writeJson({{QStringLiteral("database"), database->path()},
                           {QStringLiteral("added"), programsJson(result.added, programs)},
                           {QStringLiteral("updated"), programsJson(result.updated, programs)},
                           {QStringLiteral("refused"), refusalsJson(scan.refusals)}});
    } else {
        writeImport(console, result, scan, programs);
    }
    return scan.refusals.empty() ? Done : Refused;
}

} // namespace

Command importCommand()
{
    return {"import",
            "PATH...",
            1,
            Command::kAnyNumber,
            true,
            "Put media files and folders into the catalog",
            R"(Puts media into the catalog of programs. PATH is a media file, a folder, from
which every media file is taken with everything below it, or the address of a
live source such as rtsp://host/stream. A file that is in the catalog already
is read again and keeps its index, so importing a folder twice is harmless.
Size and SHA-256 of each file are kept with its program; what has the size and
the time of change that it had then is not read for them again.
The database is made when it does not exist.

What cannot become a program is refused: it is listed on the standard error with
the reason, everything else is imported, and the exit status is 1. Files in a
folder whose names do not look like media are skipped silently. Nothing is
written until all paths have been looked at, so an import that is interrupted
leaves the catalog as it was.

Progress is shown only on a terminal.)",
            run};
}

} // namespace trel::console
