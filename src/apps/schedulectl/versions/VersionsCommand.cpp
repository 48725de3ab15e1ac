#include "Commands.h"

#include "VersionReport.h"
#include "effect/StoredEffectWork.h"
#include "text/Console.h"
#include "text/SharedOptions.h"

#include <QJsonArray>

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const MomentFormat& local) {
        std::vector<ScheduleVersion> versions;
        if (const ExitStatus status =
                tellOutcome(database.host().versions(versions), invocation, console);
            status != Done) {
            return status;
        }
        if (invocation.json) {
            QJsonArray list;
            for (const ScheduleVersion& version : versions) {
                list.append(versionJson(version, local));
            }
            console.writeJson({{QStringLiteral("database"), database.path()},
                               {QStringLiteral("versions"), list}});
        } else if (versions.empty()) {
            console.writeLine(QStringLiteral("No versions are kept yet."));
        } else {
            console.write(versionsText(versions, local, tableColumns(invocation)));
        }
        return Done;
    };
    return onEffect(invocation, Database::Access::Read, console, work);
}

} // namespace

Command versionsCommand()
{
    return {"versions",
            "",
            0,
            0,
            true,
            "List the states of the schedule that were saved",
            R"(Lists what was saved, the newest first, which is what is saved now: the number
of each save, when and by which program it was made, which tasks it made others,
and the name and the note that it was given. The last 200 are kept, and all that
have a name; the others thin out with their age.)",
            run,
            true,
            {wideOption()}};
}

} // namespace trel::console
