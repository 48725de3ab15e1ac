#include "Commands.h"

#include "Database.h"
#include "KnownContents.h"
#include "ProgramReport.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"
#include "text/SharedOptions.h"
#include "text/TextTable.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Programs = std::map<int, ProgramIten>;

/// A program with what is known of its file.
QJsonObject programJson(const ProgramIten& program, const ProgramContents& contents)
{
    QJsonObject object = console::programJson(program);
    const auto content = contents.find(program.progIndex);
    const bool isKnown = content != contents.end();
    object.insert(QStringLiteral("size"),
                  isKnown ? QJsonValue(content->second.size) : QJsonValue());
    object.insert(QStringLiteral("sha256"),
                  isKnown ? QJsonValue(QString::fromLatin1(content->second.sha256)) : QJsonValue());
    return object;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto database =
        openDatabase(invocation, Database::Access::Read, console, Database::Part::Catalogue);
    if (!database) {
        return Refused;
    }
    const Programs programs = database->programs();
    if (invocation.json) {
        const auto contents = knownContents(invocation, console);
        if (!contents) {
            return Refused;
        }
        QJsonArray array;
        for (const auto& [index, program] : programs) {
            array.append(programJson(program, *contents));
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
    console.write(table.text(0, tableColumns(invocation)));
    return Done;
}

} // namespace

Command programsCommand()
{
    return {"programs",
            "",
            0,
            0,
            true,
            "List the programs of the catalog",
            R"(Lists the programs with index, name, kind, length and file. A program whose file
is no longer there is marked as gone.)",
            run,
            true,
            {wideOption()}};
}

} // namespace trel::console
