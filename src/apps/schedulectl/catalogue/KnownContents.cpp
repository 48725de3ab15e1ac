#include "KnownContents.h"

#include "text/Console.h"
#include "text/FaultReport.h"
#include "trelprogramschedule/catalogue/StoredContents.h"

using namespace trel::mediadispatch;

namespace trel::console {

std::optional<ProgramContents> knownContents(const Invocation& invocation, Console& console)
{
    ProgramContents contents;
    const StoreResult result = readStoredContents(contents);
    if (result) {
        return contents;
    }
    console.tell(refusalText(result));
    if (invocation.json) {
        console.writeJson(refusalJson(result));
    }
    return std::nullopt;
}

} // namespace trel::console
