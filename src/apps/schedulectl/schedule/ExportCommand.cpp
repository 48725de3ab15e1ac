#include "Commands.h"

#include "BundleExport.h"
#include "Database.h"
#include "ScheduleReport.h"
#include "catalogue/KnownContents.h"
#include "common/DisplayText.h"
#include "text/Console.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/NamedSchedule.h"
#include "trelprogramschedule/json/ProgramMatch.h"

#include <QFileInfo>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr char kBundle[] = "--bundle";
constexpr char kUsed[] = "--used";
constexpr char kKeepMissing[] = "--keep-missing";

bool isSameFile(const QString& a, const QString& b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

std::set<int> indexesOf(const std::map<int, ProgramIten>& catalogue)
{
    std::set<int> indexes;
    for (const auto& [index, program] : catalogue) {
        indexes.insert(indexes.end(), index);
    }
    return indexes;
}

ExitStatus exportBundle(const Invocation& invocation, Console& console, const Database& database,
                        const ProgramContents& contents)
{
    const auto showProgress = [&console](int done, int total, const QString& path) {
        console.showProgress(done + 1, total, shownAddress(path));
        return true;
    };
    const QString& file = invocation.arguments.first();
    const auto tasks = database.tasks();
    const auto catalogue = database.programs();
    const BundleExport bundle =
        bundleOf(tasks, invocation.has(kUsed) ? programsInEntries(tasks) : indexesOf(catalogue),
                 catalogue, contents, showProgress);
    for (const QString& text : missingFilesTexts(bundle)) {
        console.tell(text);
    }
    if (!bundle.missing.empty() && !invocation.has(kKeepMissing)) {
        console.tell(QStringLiteral("Nothing was written. Bring the files back first, or give "
                                    "--keep-missing, which leaves them out."));
        return Refused;
    }
    if (const BundleFault fault = writeBundle(file, bundle.contents, showProgress)) {
        console.tell(
            QStringLiteral("%1: %2.").arg(printable(file), printable(englishClause(fault))));
        return Refused;
    }
    console.writeLine(QStringLiteral("%1, %2 and %3 written to %4.")
                          .arg(sizeText(tasks),
                               counted(static_cast<qint64>(bundle.contents.programs.size()),
                                       QStringLiteral("program")),
                               counted(static_cast<qint64>(bundle.contents.files.size()),
                                       QStringLiteral("media file")),
                               printable(file)));
    return Done;
}

/// What the options ask for that does not go together; empty for nothing.
QString contradictionOf(const Invocation& invocation)
{
    if (!invocation.has(kBundle) && (invocation.has(kUsed) || invocation.has(kKeepMissing))) {
        return QStringLiteral("--used and --keep-missing are for a bundle alone.");
    }
    return invocation.has(kBundle) && invocation.arguments.first() == kStandardStream
               ? QStringLiteral("A bundle is written to a file, not to the standard output.")
               : QString();
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const QString contradiction = contradictionOf(invocation);
    if (!contradiction.isEmpty()) {
        console.tell(contradiction);
        return Misused;
    }
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
    if (invocation.has(kBundle)) {
        return exportBundle(invocation, console, *database, *contents);
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
    Command command = {
        "export",
        "FILE",
        1,
        1,
        false,
        "Write the schedule to a JSON file or, with its media, to a bundle",
        R"(Writes all tasks, with every field, to FILE as JSON; "-" is the standard output.
A file that exists is replaced, in one step. The same schedule always gives the
same bytes. The programs that it plays are named, with all by which they can be
found in another catalog. Their media are not part of the file.

With --bundle, FILE is an archive that holds the schedule, the programs of the
catalog, and their media with size and SHA-256. Where a file is not there
nothing is written, and the exit status is 1. Passwords and the like in the
addresses of live sources are left out.

Progress is shown only on a terminal.)",
        run};
    command.options = {{kBundle, "", "Writes a bundle, with the programs and their media."},
                       {kUsed, "", "With --bundle: only programs that the schedule plays."},
                       {kKeepMissing, "", "With --bundle: leaves out files that are not there."}};
    return command;
}

} // namespace trel::console
