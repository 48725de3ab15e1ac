#include "ExchangeCommands.h"

#include "Database.h"
#include "ScheduleReport.h"
#include "common/PatientFile.h"
#include "service/TaskPeriods.h"
#include "text/Console.h"
#include "text/DisplayText.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <cstdio>
#include <set>

using namespace trel::mediadispatch;

namespace {

const QLatin1String kStandardStream("-");

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
    PatientFile file(path, kPipePatience);
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

bool isSameFile(const QString& a, const QString& b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
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

/// Tells what the user should know about a schedule that was taken all the same.
void tellOddities(Console& console, const std::map<int, PlayTask>& tasks,
                  const std::map<int, ProgramIten>& programs)
{
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
}

} // namespace

ExitStatus runExport(const Invocation& invocation, Console& console)
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
    const QString error = writeScheduleFile(file, tasks);
    if (!error.isEmpty()) {
        console.tell(error);
        return Refused;
    }
    console.writeLine(QStringLiteral("%1 written to %2.").arg(sizeText(tasks), printable(file)));
    return Done;
}

ExitStatus runImportSchedule(const Invocation& invocation, Console& console)
{
    const QString& file = invocation.arguments.first();
    const FileContent content = readAll(file);
    if (!content.error.isEmpty()) {
        console.tell(QStringLiteral("%1 cannot be read: %2.").arg(shownName(file), content.error));
        return Refused;
    }
    const ScheduleFromJson schedule = scheduleFromJson(content.bytes);
    if (!schedule.error.isEmpty()) {
        console.tell(QStringLiteral("%1: %2.").arg(shownName(file), printable(schedule.error)));
        return Refused;
    }
    const auto database = openDatabase(invocation, Database::Access::Write, console);
    if (!database) {
        return Refused;
    }
    const QString before = sizeText(database->tasks());
    const StoreResult result = database->host().replaceSchedule(schedule.tasks);
    if (!result) {
        console.tell(result.message);
        return Refused;
    }
    tellOddities(console, schedule.tasks, database->programs());
    console.writeLine(QStringLiteral("%1 read from %2, in the place of %3.")
                          .arg(sizeText(schedule.tasks), shownName(file), before));
    return Done;
}
