#include "StoredEffectWork.h"

#include "clock/Clock.h"
#include "text/Console.h"
#include "text/FaultReport.h"

using namespace trel::mediadispatch;

namespace trel::console {

ExitStatus onEffect(const Invocation& invocation, Database::Access access, Console& console,
                    const EffectWork& work)
{
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const auto database = openDatabase(invocation, access, console);
    return database ? work(*database, MomentFormat(Clock::current().zone())) : Refused;
}

ExitStatus tellOutcome(const StoreResult& result, const Invocation& invocation, Console& console)
{
    if (result) {
        return Done;
    }
    console.tell(refusalText(result));
    if (invocation.json) {
        console.writeJson(refusalJson(result));
    }
    return Refused;
}

} // namespace trel::console
