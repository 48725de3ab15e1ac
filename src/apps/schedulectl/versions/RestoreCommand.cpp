#include "Commands.h"

#include "VersionReport.h"
#include "common/DisplayText.h"
#include "effect/StoredEffectWork.h"
#include "schedule/ScheduleReport.h"
#include "service/InvalidEntries.h"
#include "text/Console.h"

#include <QStringList>

#include <map>
#include <string>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr char kDespite[] = "--despite-lost-programs";
constexpr int kMostNames = 5;

QString namesText(const std::map<int, std::string>& lost)
{
    QStringList names;
    for (const auto& [index, name] : lost) {
        names.append(inQuotes(printable(name)));
    }
    const QString shown = QStringList(names.mid(0, kMostNames)).join(QLatin1String(", "));
    return names.size() > kMostNames
               ? QStringLiteral("%1 and %2 more").arg(shown).arg(names.size() - kMostNames)
               : shown;
}

ExitStatus carryOut(qint64 number, const Invocation& invocation, const Database& database,
                    Console& console)
{
    std::map<int, PlayTask> tasks;
    if (const ExitStatus status =
            tellOutcome(database.host().versionTasks(number, tasks), invocation, console);
        status != Done) {
        return status;
    }
    const std::map<int, std::string> lost = lostPrograms(tasks, database.programs());
    if (!lost.empty() && !invocation.has(kDespite)) {
        console.tell(QStringLiteral("Version %1 is not restored, for the catalog no longer has %2; "
                                    "with \"%3\" it is, and their entries do not play.")
                         .arg(QString::number(number), namesText(lost), QLatin1String(kDespite)));
        return Refused;
    }
    if (const ExitStatus status =
            tellOutcome(database.host().restoreVersion(number), invocation, console);
        status != Done) {
        return status;
    }
    std::vector<ScheduleVersion> versions;
    if (const ExitStatus status =
            tellOutcome(database.host().versions(versions), invocation, console);
        status != Done || versions.empty()) {
        return status;
    }
    const qint64 saved = versions.front().number;
    if (invocation.json) {
        console.writeJson({{QStringLiteral("database"), database.path()},
                           {QStringLiteral("restored"), number},
                           {QStringLiteral("save"), saved},
                           {QStringLiteral("lostPrograms"), static_cast<int>(lost.size())}});
    } else {
        console.writeLine(QStringLiteral("Version %1 is saved, as %2: %3.")
                              .arg(QString::number(number), QString::number(saved),
                                   sizeText(database.host().workingSet())));
    }
    return Done;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto number = versionNumber(invocation.arguments.first());
    if (!number) {
        console.tell(QStringLiteral("%1 is no number of a version.")
                         .arg(inQuotes(printable(invocation.arguments.first()))));
        return Misused;
    }
    return onEffect(invocation, Database::Access::Change, console,
                    [&](const Database& database, const MomentFormat&) {
                        return carryOut(*number, invocation, database, console);
                    });
}

} // namespace

Command restoreCommand()
{
    return {"restore",
            "NUMBER",
            1,
            1,
            true,
            "Save a version once more",
            R"(Saves the schedule as it is in a version that "schedulectl versions" lists. That is
a save like any other: what was saved before becomes a version itself, and can be
restored in turn. What is in effect stays until the next start.

Refused where the version plays programs that the catalog no longer has.)",
            run,
            true,
            {{kDespite, "", "Restore it all the same; their entries do not play."}}};
}

} // namespace trel::console
