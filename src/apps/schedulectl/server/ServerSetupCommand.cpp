#include "Commands.h"

#include "common/DisplayText.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/store/StoreEngines.h"
#include "trelprogramschedule/store/StorePlace.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// Nothing is done at a place that is none, and it is not repeated: there may be a password in it.
bool isMisuse(const StoreResult& result)
{
    switch (result.cause.code) {
    case FaultCode::AddressPassword:
    case FaultCode::AddressUnfit:
    case FaultCode::ScheduleNameUnfit:
        return true;
    default:
        return false;
    }
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const QString& address = invocation.arguments.first();
    if (const StoreResult result = setUpStore(address); !result) {
        console.tell(englishText(result));
        if (invocation.json) {
            console.writeJson(refusalJson(result));
        }
        return isMisuse(result) ? Misused : Refused;
    }
    const StorePlace place(address);
    if (invocation.json) {
        console.writeJson({{QStringLiteral("database"), place.text()},
                           {QStringLiteral("roles"), QJsonArray{deskRole(), screenRole()}}});
        return Done;
    }
    console.writeLine(
        QStringLiteral("The schedule %1 is set up. Members of %2 write it, members of %3 read it.")
            .arg(inQuotes(printable(place.schedule())), deskRole(), screenRole()));
    return Done;
}

} // namespace

Command serverSetupCommand()
{
    return {"server-setup",
            "ADDRESS",
            1,
            1,
            true,
            "Make a schedule on a PostgreSQL server, or bring it up",
            R"(Makes what a schedule on a server needs: a schema of its own in the database,
its tables, and the roles schedule_desk, whose members write the schedule, and
schedule_screen, whose members read it. A schedule that is there stays as it is;
one that an older version made is brought up to this one, step by step, each of
them whole or not at all. What is not a schedule is refused and left alone.

ADDRESS is postgresql://[user@]host[:port]/database?schedule=NAME, as the
database of the other commands. The user must be one who may make schemas in the
database and, the first time on a server, roles. A password is none of the
address: it comes from ~/.pgpass or the environment, as PostgreSQL's own programs
take it, and an address with one is refused.)",
            run,
            false};
}

} // namespace trel::console
