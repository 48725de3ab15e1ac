#include "Commands.h"

#include "Database.h"
#include "KnownContents.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/media/MediaFolder.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

#include <utility>
#include <vector>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Outcome = MediaFolder::Outcome;

/// A program with a file, and what became of that; none where nothing is known of its content.
struct PutProgram
{
    const ProgramIten* program = nullptr;
    bool isKnown = false;
    MediaFolder::Result result;

    bool isDone() const
    {
        return isKnown && (result.outcome == Outcome::Put || result.outcome == Outcome::WasThere);
    }
};

QString outcomeName(const PutProgram& put)
{
    if (!put.isKnown) {
        return QStringLiteral("contentNotKnown");
    }
    switch (put.result.outcome) {
    case Outcome::Put:
        return QStringLiteral("put");
    case Outcome::WasThere:
        return QStringLiteral("wasThere");
    case Outcome::Changed:
        return QStringLiteral("changed");
    case Outcome::NotReadable:
        return QStringLiteral("notReadable");
    case Outcome::NotWritable:
        break;
    }
    return QStringLiteral("notWritable");
}

QString reasonOf(const PutProgram& put)
{
    if (!put.isKnown) {
        return QStringLiteral("nothing is known of its content; import it once more");
    }
    switch (put.result.outcome) {
    case Outcome::Changed:
        return QStringLiteral(
            "it holds something else than when it was imported; import it once more");
    case Outcome::NotWritable:
        return QStringLiteral("the folder does not take it: %1")
            .arg(englishClause(put.result.fault));
    default:
        return englishClause(put.result.fault);
    }
}

std::vector<PutProgram> putAll(const std::map<int, ProgramIten>& programs,
                               const ProgramContents& contents, const MediaFolder& folder,
                               Console& console)
{
    std::vector<PutProgram> all;
    for (const auto& [index, program] : programs) {
        if (program.kind != ProgramKind::Live) {
            all.push_back({&program, false, {}});
        }
    }
    int done = 0;
    for (PutProgram& put : all) {
        console.showProgress(done++, static_cast<int>(all.size()),
                             printable(put.program->progName));
        const auto content = contents.find(put.program->progIndex);
        put.isKnown = content != contents.end();
        if (put.isKnown) {
            put.result =
                folder.put(QString::fromStdString(put.program->mediaPath), content->second);
        }
    }
    return all;
}

void writeAsJson(const std::vector<PutProgram>& all, const MediaFolder& folder, Console& console)
{
    QJsonArray array;
    for (const PutProgram& put : all) {
        array.append(QJsonObject{
            {QStringLiteral("index"), put.program->progIndex},
            {QStringLiteral("name"), QString::fromStdString(put.program->progName)},
            {QStringLiteral("outcome"), outcomeName(put)},
            {QStringLiteral("cause"),
             put.result.fault ? QJsonValue(faultJson(put.result.fault)) : QJsonValue()}});
    }
    console.writeJson(
        {{QStringLiteral("folder"), folder.path()}, {QStringLiteral("programs"), array}});
}

void writeAsText(const std::vector<PutProgram>& all, Console& console)
{
    int put = 0;
    int wereThere = 0;
    for (const PutProgram& one : all) {
        if (!one.isDone()) {
            console.tell(QStringLiteral("Program %1, %2, was not put there: %3.")
                             .arg(QString::number(one.program->progIndex),
                                  printable(one.program->progName), reasonOf(one)));
        } else if (one.result.outcome == Outcome::Put) {
            ++put;
        } else {
            ++wereThere;
        }
    }
    console.writeLine(QStringLiteral("%1 put there, %2 there before.")
                          .arg(counted(put, QStringLiteral("file")), QString::number(wereThere)));
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const MediaFolder folder(QDir::current().absoluteFilePath(invocation.arguments.first()));
    if (!folder.isThere()) {
        // To make it would fill the disk below a share that is not mounted.
        console.tell(QStringLiteral("There is no folder %1.").arg(printable(folder.path())));
        return Refused;
    }
    const auto database =
        openDatabase(invocation, Database::Access::Read, console, Database::Part::Catalogue);
    if (!database) {
        return Refused;
    }
    const auto contents = knownContents(invocation, console);
    if (!contents) {
        return Refused;
    }
    const std::map<int, ProgramIten> programs = database->programs();
    folder.removeLeftovers();
    const std::vector<PutProgram> all = putAll(programs, *contents, folder, console);
    if (invocation.json) {
        writeAsJson(all, folder, console);
    } else {
        writeAsText(all, console);
    }
    for (const PutProgram& put : all) {
        if (!put.isDone()) {
            return Refused;
        }
    }
    return Done;
}

} // namespace

Command mediaFolderCommand()
{
    return {"media-folder",
            "FOLDER",
            1,
            1,
            true,
            "Put the files of programs where screens fetch them",
            R"(Copies the file of each program of the catalog into FOLDER, under the hash of
what it holds. Screens on other machines fetch from there what they need: from
the folder itself where it is a share, or by the web server that hands it out.
A file that is there already is not copied again, and one appears whole or not
at all. FOLDER has to exist; files of programs that have left the catalog stay.

A file that holds something else than when it was imported, or of which nothing
is known, is not put there: import it once more. Live streams have no file. Each
program that was left out is named on the standard error, and the exit status
is 1.)",
            run};
}

} // namespace trel::console
