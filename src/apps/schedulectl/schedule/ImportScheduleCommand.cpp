#include "Commands.h"

#include "Database.h"
#include "OtherNames.h"
#include "ScheduleReport.h"
#include "common/DisplayText.h"
#include "common/PatientFile.h"
#include "service/DateText.h"
#include "service/TaskPeriods.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QFile>

#include <chrono>
#include <cstdio>
#include <set>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

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

/// The programs that entries refer to and the catalogue lacks.
std::set<int> missingPrograms(const std::map<int, PlayTask>& tasks,
                              const std::map<int, ProgramIten>& programs)
{
    std::set<int> missing;
    for (const auto& [id, task] : tasks) {
        for (const PlayPlan& plan : task.plans) {
            for (const struProgInfo& entry : plan.programs) {
                if (!entry.isInvalid && programs.count(entry.progIndex) == 0) {
                    missing.insert(entry.progIndex);
                }
            }
        }
    }
    return missing;
}

QString numbersText(const std::set<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return texts.join(QStringLiteral(", "));
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
void tellOddities(Console& console, const std::map<int, PlayTask>& tasks,
                  const std::map<int, ProgramIten>& programs)
{
    tellDates(console, tasks);
    if (firstTaskOverlap(tasks)) {
        console.tell(QStringLiteral("Periods of tasks overlap, so the editor would refuse to save "
                                    "this schedule; see \"schedulectl check\"."));
    }
    const std::set<int> missing = missingPrograms(tasks, programs);
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

ExitStatus run(const Invocation& invocation, Console& console)
{
    const QString& file = invocation.arguments.first();
    const FileContent content = readAll(file);
    if (!content.error.isEmpty()) {
        console.tell(QStringLiteral("%1 cannot be read: %2.").arg(shownName(file), content.error));
        return Refused;
    }
    const ScheduleFromJson schedule = scheduleFromJson(content.bytes);
    if (schedule.fault) {
        console.tell(
            QStringLiteral("%1: %2.").arg(shownName(file), printable(englishText(schedule))));
        return Refused;
    }
    const auto database = openDatabase(invocation, Database::Access::Write, console);
    if (!database) {
        return Refused;
    }
    const QString before = sizeText(database->tasks());
    const StoreResult result = database->host().replaceSchedule(schedule.tasks);
    if (!result) {
        console.tell(refusalText(result));
        return Refused;
    }
    tellOddities(console, schedule.tasks, database->programs());
    console.writeLine(QStringLiteral("%1 read from %2, in the place of %3.")
                          .arg(sizeText(schedule.tasks), shownName(file), before));
    return Done;
}

} // namespace

Command importScheduleCommand()
{
    return {"import-schedule",
            "FILE",
            1,
            1,
            false,
            "Replace the schedule by one from a JSON file",
            R"(Reads the schedule in FILE, in the form that "schedulectl export" writes, and
puts it in the place of the one in the database; "-" is the standard input. The
database is made when it does not exist.

The file is read as a whole or not at all: what is wrong in it is named with its
place, and the database is left as it was. A schedule with overlapping tasks is
taken, since it can be put right in the editor; "schedulectl check" finds them.
Dates that are none are named with their task, and taken as well.
Entries of programs that the catalog does not have become invalid, so import
the programs first, in the order of their indexes. Programs that have another
name in the catalog than in FILE are named: the index counts.)",
            run};
}

} // namespace trel::console
