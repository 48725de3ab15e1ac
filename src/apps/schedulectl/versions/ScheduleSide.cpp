#include "ScheduleSide.h"

#include "VersionReport.h"
#include "effect/StoredEffectWork.h"
#include "service/InvalidEntries.h"
#include "text/Console.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

using namespace trel::mediadispatch;

namespace trel::console {

QString ScheduleSide::text() const
{
    if (word == kSavedSide) {
        return QStringLiteral("what is saved");
    }
    return word == kEffectSide ? QStringLiteral("what is in effect")
                               : QStringLiteral("version %1").arg(word);
}

bool isSide(const QString& word)
{
    return word == kSavedSide || word == kEffectSide || versionNumber(word);
}

std::optional<ScheduleSide> readSide(const QString& word, const Database& database,
                                     const Invocation& invocation, Console& console)
{
    ScheduleSide side{word, {}};
    if (word == kSavedSide) {
        side.tasks = database.tasks();
    } else if (word == kEffectSide) {
        if (!database.host().started()) {
            console.tell(QStringLiteral("Nothing is in effect; \"schedulectl diff NUMBER\" "
                                        "compares what is saved with a version."));
            return std::nullopt;
        }
        side.tasks = database.host().dispatch().tasks();
        // It was put there before programs left the catalog; all other states have been read since.
        markLostEntries(side.tasks, database.programs());
    } else if (tellOutcome(database.host().versionTasks(versionNumber(word).value_or(kNoVersion),
                                                        side.tasks),
                           invocation, console) != Done) {
        return std::nullopt;
    }
    return side;
}

} // namespace trel::console
