#include "Commands.h"

#include "VersionReport.h"
#include "common/DisplayText.h"
#include "effect/StoredEffectWork.h"
#include "text/Console.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto number = versionNumber(invocation.arguments.first());
    if (!number) {
        console.tell(QStringLiteral("%1 is no number of a version.")
                         .arg(inQuotes(printable(invocation.arguments.first()))));
        return Misused;
    }
    const QString name = invocation.arguments.value(1);
    const QString note = invocation.value("--note");
    const auto work = [&](const Database& database, const MomentFormat&) {
        if (const ExitStatus status =
                tellOutcome(database.host().nameVersion(*number, name, note), invocation, console);
            status != Done) {
            return status;
        }
        if (invocation.json) {
            console.writeJson({{QStringLiteral("database"), database.path()},
                               {QStringLiteral("number"), *number},
                               {QStringLiteral("name"), name},
                               {QStringLiteral("note"), note}});
        } else {
            console.writeLine(name.isEmpty()
                                  ? QStringLiteral("Version %1 has no name.").arg(*number)
                                  : QStringLiteral("Version %1 is %2.")
                                        .arg(QString::number(*number), inQuotes(printable(name))));
        }
        return Done;
    };
    return onEffect(invocation, Database::Access::Change, console, work);
}

} // namespace

Command nameVersionCommand()
{
    return {"name-version",
            "NUMBER [NAME]",
            1,
            2,
            true,
            "Give a version a name, so that it stays",
            R"(Gives a version that "schedulectl versions" lists a name of up to 80 characters,
and a note of up to 1,000, in the place of those that it had. A version with a
name is kept for good. Without NAME it has none any more.)",
            run,
            true,
            {{"--note", "TEXT", "What else should be known of it."}}};
}

} // namespace trel::console
