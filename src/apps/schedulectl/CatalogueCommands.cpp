#include "CatalogueCommands.h"

#include "Console.h"
#include "Database.h"
#include "DisplayText.h"
#include "ProgramReport.h"
#include "ScheduleWords.h"
#include "TextTable.h"
#include "trelprogramschedule/ProgramImporter.h"
#include "trelprogramschedule/ShownAddress.h"

#include <algorithm>

using namespace trel::mediadispatch;

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
        array.append(QJsonObject{{QStringLiteral("path"), refusal.path},
                                 {QStringLiteral("reason"), refusal.reason}});
    }
    return array;
}

/// How many plans have an entry of a program.
qint64 plansWith(int progIndex, const std::map<int, PlayTask>& tasks)
{
    const auto isProgram = [progIndex](const struProgInfo& entry) {
        return !entry.isInvalid && entry.progIndex == progIndex;
    };
    qint64 count = 0;
    for (const auto& [id, task] : tasks) {
        count += std::count_if(task.plans.begin(), task.plans.end(), [&](const PlayPlan& plan) {
            return std::any_of(plan.programs.begin(), plan.programs.end(), isProgram);
        });
    }
    return count;
}

} // namespace

ExitStatus runImport(const Invocation& invocation, Console& console)
{
    // Opened first, so that nobody waits for a long scan that has nowhere to go.
    const auto database = openDatabase(invocation, Database::Access::Write, console);
    if (!database) {
        return Refused;
    }
    const ImportScan scan =
        scanMedia(invocation.arguments, [&console](int done, int total, const QString& path) {
            console.showProgress(done + 1, total, shownAddress(path));
            return true;
        });
    for (const ImportRefusal& refusal : scan.refusals) {
        console.tell(
            QStringLiteral("%1: %2").arg(printable(shownAddress(refusal.path)), refusal.reason));
    }
    const ImportResult result = database->host().addPrograms(scan.sources);
    if (!result.store) {
        console.tell(result.store.message);
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

ExitStatus runPrograms(const Invocation& invocation, Console& console)
{
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    const Programs programs = database->programs();
    if (invocation.json) {
        QJsonArray array;
        for (const auto& [index, program] : programs) {
            array.append(programJson(program));
        }
        console.writeJson(
            {{QStringLiteral("database"), database->path()}, {QStringLiteral("programs"), array}});
        return Done;
    }
    if (programs.empty()) {
        console.writeLine(
            QStringLiteral("The catalogue is empty; \"schedulectl import\" fills it."));
        return Done;
    }
    TextTable table({{QStringLiteral("Index"), TextTable::Align::Right},
                     {QStringLiteral("Name")},
                     {QStringLiteral("Kind")},
                     {QStringLiteral("Length"), TextTable::Align::Right},
                     {QStringLiteral("File")}});
    for (const auto& [index, program] : programs) {
        const QString mark = program.isNull ? QStringLiteral(" (gone)") : QString();
        table.addRow({QString::number(index), printable(program.progName), kindText(program.kind),
                      programLength(program), programPath(program) + mark});
    }
    console.write(table.text());
    return Done;
}

ExitStatus runRemoveProgram(const Invocation& invocation, Console& console)
{
    const QString& text = invocation.arguments.first();
    bool isNumber = false;
    const int index = text.toInt(&isNumber);
    if (!isNumber) {
        console.tell(QStringLiteral("%1 is no index; \"schedulectl programs\" shows the indexes.")
                         .arg(quoted(shownAddress(text))));
        return Misused;
    }
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    const Programs programs = database->programs();
    const auto found = programs.find(index);
    if (found == programs.end()) {
        console.tell(QStringLiteral("There is no program %1 in %2.")
                         .arg(QString::number(index), printable(database->path())));
        return Refused;
    }
    const qint64 plans = plansWith(index, database->tasks());
    const StoreResult result = database->host().removeProgram(index);
    if (!result) {
        console.tell(result.message);
        return Refused;
    }
    console.writeLine(QStringLiteral("Program %1, %2, was removed.")
                          .arg(QString::number(index), printable(found->second.progName)));
    if (plans > 0) {
        console.writeLine(QStringLiteral("Its entries in %1 are invalid now.")
                              .arg(counted(plans, QStringLiteral("plan"))));
    }
    return Done;
}
