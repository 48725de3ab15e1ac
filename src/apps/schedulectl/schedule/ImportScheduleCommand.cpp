#include "Commands.h"

#include "BundleImport.h"
#include "Database.h"
#include "FoundPrograms.h"
#include "OtherNames.h"
#include "ScheduleReport.h"
#include "catalogue/KnownContents.h"
#include "common/DisplayText.h"
#include "common/PatientFile.h"
#include "service/DateText.h"
#include "service/TaskPeriods.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/ScheduleImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/NamedSchedule.h"

#include <QFile>

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <set>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr char kKeepMissing[] = "--keep-missing";
constexpr char kMedia[] = "--media";

/// How long a pipe that a schedule is read from may be silent.
constexpr std::chrono::seconds kPipePatience{10};

/// Everything that a file or the standard input holds, or why it could not be read.
struct FileContent
{
    QByteArray bytes;
    QString error;
};

FileContent readAll(const QString& path)
{
    FileContent content;
    if (path == kStandardStream) {
        QFile stream;
        if (stream.open(stdin, QIODevice::ReadOnly)) {
            content.bytes = readScheduleJson(stream);
        }
        content.error = stream.error() == QFileDevice::NoError ? QString() : stream.errorString();
        return content;
    }
    hosts::PatientFile file(path, kPipePatience);
    if (file.open(QIODevice::ReadOnly)) {
        content.bytes = readScheduleJson(file);
    }
    content.error = file.hasFailed() ? file.errorString() : QString();
    return content;
}

QString shownName(const QString& path)
{
    return path == kStandardStream ? QStringLiteral("the standard input") : printable(path);
}

/// Names the dates that are none, with their places: such a task is never valid.
void tellDates(Console& console, const std::map<int, PlayTask>& tasks)
{
    const auto tellIfNone = [&console](int taskId, const char* field, const std::string& date) {
        if (!dateFromText(date).isValid()) {
            console.tell(QStringLiteral("Task %1, %2: %3 is not a date in the form %4, so the task "
                                        "is never valid.")
                             .arg(QString::number(taskId), QLatin1String(field),
                                  inQuotes(QString::fromStdString(date)), kDateFormat));
        }
    };
    for (const auto& [id, task] : tasks) {
        tellIfNone(id, "startDate", task.startDate);
        tellIfNone(id, "endDate", task.endDate);
    }
}

/// Tells what the user should know about a schedule that was taken all the same.
void tellOddities(Console& console, const std::map<int, PlayTask>& tasks)
{
    tellDates(console, tasks);
    if (firstTaskOverlap(tasks)) {
        console.tell(QStringLiteral("Periods of tasks overlap, so the editor would refuse to save "
                                    "this schedule; see \"schedulectl check\"."));
    }
}

QString numbersText(const std::set<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return texts.join(QStringLiteral(", "));
}

/// The same of a file that does not name its programs, so that their numbers count.
void tellNumbers(Console& console, const std::map<int, PlayTask>& tasks,
                 const std::map<int, ProgramIten>& programs)
{
    std::set<int> missing = programsInEntries(tasks);
    for (const auto& [index, program] : programs) {
        missing.erase(index);
    }
    if (!missing.empty()) {
        console.tell(
            QStringLiteral("Plans refer to programs that the catalog does not have, so their "
                           "entries are invalid: %1.")
                .arg(numbersText(missing)));
    }
    for (const QString& text : otherNamesTexts(otherNames(tasks, programs))) {
        console.tell(text);
    }
}

void tellAll(Console& console, const QStringList& sentences)
{
    for (const QString& sentence : sentences) {
        console.tell(sentence);
    }
}

/// What a command has read, and what comes of it.
struct ReadSchedule
{
    const Invocation& invocation;
    QString file;
    NamedScheduleFromJson schedule;
    std::vector<FoundProgram> programs;   ///< Of a file that names them.
    std::unique_ptr<BundleImport> bundle; ///< Null for a file that is none.
};

void writeReport(Console& console, const ReadSchedule& read, const Database& database,
                 bool isImported)
{
    console.writeJson(
        {{QStringLiteral("database"), database.path()},
         {QStringLiteral("isImported"), isImported},
         {QStringLiteral("tasks"), static_cast<int>(read.schedule.tasks.size())},
         {QStringLiteral("programs"), foundJson(read.programs, database.programs())}});
}

/// Nothing is written while a program is missing, unless that is asked for.
bool mayImport(Console& console, const ReadSchedule& read, const Database& database)
{
    const std::vector<FoundProgram> missing = missingPrograms(read.programs);
    if (missing.empty() || read.invocation.has(kKeepMissing)) {
        return true;
    }
    tellAll(console, missingTexts(missing));
    console.tell(QStringLiteral("Nothing was written. Import what is missing first, or give "
                                "--keep-missing, which makes its entries invalid."));
    if (read.invocation.json) {
        writeReport(console, read, database, false);
    }
    return false;
}

/// Has a bundle bring what the catalogue lacks. False where that has come to nothing.
bool bring(Console& console, ReadSchedule& read, ScheduleImport& import)
{
    if (!read.bundle) {
        return true;
    }
    return read.bundle->bring(read.invocation.value(kMedia), read.programs, import, console);
}

/// Tells what becomes of the programs before anything is written.
void choose(Console& console, ReadSchedule& read)
{
    if (read.bundle && read.bundle->choose(read.programs, read.invocation.has(kMedia))) {
        console.tell(QStringLiteral("Media of programs that the catalog does not have are in the "
                                    "bundle; --media FOLDER says where they go."));
    }
}

void tellResult(Console& console, const ReadSchedule& read, const Database& database,
                const QString& before)
{
    tellOddities(console, read.schedule.tasks);
    if (read.schedule.isNamed) {
        tellAll(console, missingTexts(missingPrograms(read.programs)));
        tellAll(console, doubtTexts(read.programs, database.programs()));
    } else {
        tellNumbers(console, read.schedule.tasks, database.programs());
    }
    if (read.invocation.json) {
        writeReport(console, read, database, true);
        return;
    }
    for (const QString& line :
         {foundText(read.programs), read.bundle ? read.bundle->filesText() : QString()}) {
        if (!line.isEmpty()) {
            console.writeLine(line);
        }
    }
    console.writeLine(QStringLiteral("%1 read from %2, in the place of %3.")
                          .arg(sizeText(read.schedule.tasks), shownName(read.file), before));
}

/// Replaces the schedule, and tells what has come of it.
ExitStatus replace(ReadSchedule& read, const Database& database, Console& console,
                   const std::function<StoreResult()>& work)
{
    const QString before = sizeText(database.tasks());
    const StoreResult result = work();
    if (!result) {
        console.tell(refusalText(result));
        if (read.invocation.json) {
            console.writeJson(refusalJson(result));
        }
        return Refused;
    }
    if (read.bundle) {
        read.bundle->keep();
    }
    tellResult(console, read, database, before);
    return Done;
}

ExitStatus import(ReadSchedule& read, Console& console)
{
    const auto database = openDatabase(read.invocation, Database::Access::Write, console);
    if (!database) {
        return Refused;
    }
    const auto contents = knownContents(read.invocation, console);
    if (!contents) {
        return Refused;
    }
    if (!read.schedule.isNamed) {
        return replace(read, *database, console,
                       [&] { return database->host().replaceSchedule(read.schedule.tasks); });
    }
    read.programs =
        findPrograms(read.schedule.tasks, read.schedule.programs, database->programs(), *contents);
    choose(console, read);
    ScheduleImport import;
    // Where a program is missing in any case, no media are put anywhere.
    if (!mayImport(console, read, *database) || !bring(console, read, import) ||
        !mayImport(console, read, *database)) {
        return Refused;
    }
    import.tasks = read.schedule.tasks;
    import.known = foundIndexes(read.programs);
    return replace(read, *database, console, [&] { return importSchedule(import); });
}

ExitStatus importBundle(ReadSchedule& read, Console& console)
{
    read.bundle = std::make_unique<BundleImport>(read.file);
    const QString error = read.bundle->open();
    if (!error.isEmpty()) {
        console.tell(QStringLiteral("%1: %2.").arg(printable(read.file), printable(error)));
        return Refused;
    }
    read.schedule = read.bundle->schedule();
    return import(read, console);
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    ReadSchedule read = {invocation, invocation.arguments.first(), {}, {}, {}};
    if (read.file != kStandardStream && BundleImport::isBundle(read.file)) {
        return importBundle(read, console);
    }
    if (invocation.has(kMedia)) {
        console.tell(QStringLiteral("%1 is no bundle, so there are no media to put anywhere.")
                         .arg(shownName(read.file)));
        return Refused;
    }
    const FileContent content = readAll(read.file);
    if (!content.error.isEmpty()) {
        console.tell(
            QStringLiteral("%1 cannot be read: %2.").arg(shownName(read.file), content.error));
        return Refused;
    }
    read.schedule = namedScheduleFromJson(content.bytes);
    if (read.schedule.fault) {
        console.tell(QStringLiteral("%1: %2.").arg(shownName(read.file),
                                                   printable(englishText(read.schedule))));
        return Refused;
    }
    return import(read, console);
}

} // namespace

Command importScheduleCommand()
{
    Command command = {
        "import-schedule",
        "FILE",
        1,
        1,
        true,
        "Replace the schedule by one from a JSON file or a bundle",
        R"(Reads the schedule in FILE, in a form that "schedulectl export" writes, and puts
it in the place of the one in the database; "-" is the standard input, for JSON
alone. The database is made when it does not exist.

The file is read as a whole or not at all: what is wrong in it is named with its
place, and the database is left as it was. A schedule with overlapping tasks is
taken, since it can be put right in the editor; "schedulectl check" finds them.
Dates that are none are named with their task, and taken as well.

Each program that the schedule plays is looked for in the catalog: by what its
file holds, or else by its path, or else by its name with its length. What was
taken is told. When one is not found nothing is written, and the exit status is
1. A bundle brings programs that are not found by their content: their media are
put into FOLDER, under their names, and into the catalog. A file there that has
the same content is taken, and none is written over. Programs and schedule are
one change of the database.

A file of version 1 does not name its programs, so their indexes count: programs
that have another name in the catalog than in FILE are named.

Progress is shown only on a terminal.)",
        run};
    command.options = {{kKeepMissing, "",
                        "Takes the schedule without the programs that are not found;\n"
                        "their entries become invalid."},
                       {kMedia, "FOLDER", "Where the media of a bundle go; it may be a new one."}};
    return command;
}

} // namespace trel::console
