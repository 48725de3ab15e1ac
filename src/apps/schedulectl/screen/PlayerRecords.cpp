#include "PlayerRecords.h"

#include "common/DefaultDatabase.h"
#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/store/StorePlace.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

bool refusesServer(const Invocation& invocation, Console& console, const QString& deed)
{
    const StorePlace place(invocation.database.isEmpty() ? defaultDatabasePath()
                                                         : invocation.database);
    if (!place.isOnServer()) {
        return false;
    }
    console.tell(QStringLiteral("%1 beside a file; for a schedule on a server there are none of "
                                "these records.")
                     .arg(deed));
    if (invocation.json) {
        console.writeJson(refusalJson({StoreProblem::FileMissing, place.text(), {}}));
    }
    return true;
}

} // namespace trel::console
