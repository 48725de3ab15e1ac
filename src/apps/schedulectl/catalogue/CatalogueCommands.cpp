#include "CatalogueCommands.h"

#include "Database.h"
#include "ProgramReport.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"
#include "text/DisplayText.h"
#include "text/TextTable.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

#include <optional>
#include <set>

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

/// The arguments as indexes, each once, in their order. Nothing, and the user is told why, when one
/// of them is none.
std::optional<std::vector<int>> indexesOf(const QStringList& arguments, Console& console)
{
    std::vector<int> indexes;
    std::set<int> known;
    for (const QString& text : arguments) {
        bool isNumber = false;
        const int index = text.toInt(&isNumber);
        if (!isNumber) {
            console.tell(
                QStringLiteral("%1 is not an index; \"schedulectl programs\" shows the indexes.")
                    .arg(quoted(shownAddress(text))));
            return std::nullopt;
        }
        if (known.insert(index).second) {
            indexes.push_back(index);
        }
    }
    return indexes;
}

/// Whether the catalogue has all of them; the user is told of those that it has not.
bool areKnown(const std::vector<int>& indexes, const Programs& programs, const QString& path,
              Console& console)
{
    bool known = true;
    for (const int index : indexes) {
        if (programs.count(index) == 0) {
            console.tell(QStringLiteral("There is no program %1 in %2.")
                             .arg(QString::number(index), printable(path)));
            known = false;
        }
    }
    if (!known && indexes.size() > 1) {
        console.tell(QStringLiteral("Nothing was removed."));
    }
    return known;
}

void writeRemoval(Console& console, const std::vector<int>& indexes, const Programs& programs,
                  int plans)
{
    for (const int index : indexes) {
        console.writeLine(QStringLiteral("Program %1, %2, was removed.")
                              .arg(QString::number(index), printable(programs.at(index).progName)));
    }
    if (plans > 0) {
        const QString whose =
            indexes.size() == 1 ? QStringLiteral("Its entries") : QStringLiteral("Their entries");
        console.writeLine(QStringLiteral("%1 in %2 are invalid now.")
                              .arg(whose, counted(plans, QStringLiteral("plan"))));
    }
}

} // namespace

ExitStatus runImport(const Invocation& invocation, Console& console)
{
    // Opened first, so that no long scan runs that has nowhere to go.
    const auto database =
        openDatabase(invocation, Database::Access::Write, console, Database::Part::Catalogue);
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
    const auto database =
        openDatabase(invocation, Database::Access::Read, console, Database::Part::Catalogue);
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
        console.writeLine(QStringLiteral("The catalog is empty; \"schedulectl import\" fills it."));
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
    const auto indexes = indexesOf(invocation.arguments, console);
    if (!indexes) {
        return Misused;
    }
    const auto database =
        openDatabase(invocation, Database::Access::Change, console, Database::Part::Catalogue);
    if (!database) {
        return Refused;
    }
    const Programs programs = database->programs();
    if (!areKnown(*indexes, programs, database->path(), console)) {
        return Refused;
    }
    const int plans = database->host().plansWith(*indexes);
    const StoreResult result = database->host().removePrograms(*indexes);
    if (!result) {
        console.tell(result.message);
        return Refused;
    }
    writeRemoval(console, *indexes, programs, plans);
    return Done;
}
