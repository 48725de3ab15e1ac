#include "Commands.h"

#include "EffectReport.h"
#include "StoredEffectWork.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleReport.h"
#include "text/Console.h"

#include <set>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// Those that are over are no business of anybody's any more.
ScreenInsertions openInsertions(const ScreenInsertions& insertions, Instant moment)
{
    ScreenInsertions open;
    for (const ScreenInsertion& insertion : insertions) {
        if (insertion.isWaitingAt(moment) || insertion.hasScreenAt(moment)) {
            open.push_back(insertion);
        }
    }
    return open;
}

QString differenceText(const std::set<int>& others)
{
    if (others.empty()) {
        return QStringLiteral("What is saved is what is in effect.\n");
    }
    return QStringLiteral("What is saved differs in %1: %2.\n")
        .arg(counted(static_cast<qint64>(others.size()), QStringLiteral("task")),
             taskIdsText(others));
}

void write(const StoredScreen& screen, const std::set<int>& others, Instant moment,
           Console& console)
{
    if (!screen.started()) {
        console.writeLine(QStringLiteral("Nothing is in effect."));
        return;
    }
    console.writeLine(QStringLiteral("%1 in effect %2.")
                          .arg(sizeText(screen.tasks()),
                               sinceText(*screen.started(), screen.words().source().local)));
    console.write(differenceText(others));
    for (const ScreenInsertion& insertion : openInsertions(screen.insertions(), moment)) {
        console.writeLine(
            QStringLiteral("Inserted: %1").arg(insertionText(insertion, moment, screen.words())));
    }
}

QJsonObject effectJson(const StoredScreen& screen, const std::set<int>& others, Instant moment)
{
    QJsonObject object{{QStringLiteral("effect"), startJson(screen.started(), screen.words())}};
    if (screen.started()) {
        QJsonArray insertions;
        for (const ScreenInsertion& insertion : openInsertions(screen.insertions(), moment)) {
            insertions.append(insertionJson(insertion, screen.words()));
        }
        object.insert(QStringLiteral("tasksSavedOtherwise"), taskIdsJson(others));
        object.insert(QStringLiteral("insertions"), insertions);
    }
    return object;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const MomentFormat& local) {
        std::set<int> others;
        if (const ExitStatus status =
                tellOutcome(database.host().tasksNotInEffect(others), invocation, console);
            status != Done) {
            return status;
        }
        const Instant moment = Clock::current().msecsSinceEpoch();
        const StoredScreen screen(database, local);
        if (invocation.json) {
            QJsonObject object = effectJson(screen, others, moment);
            object.insert(QStringLiteral("database"), database.path());
            console.writeJson(object);
        } else {
            write(screen, others, moment, console);
        }
        return Done;
    };
    return onEffect(invocation, Database::Access::Read, console, work);
}

} // namespace

Command effectCommand()
{
    return {"effect",
            "",
            0,
            0,
            true,
            "Show what is in effect, and since when",
            R"(Shows which schedule is in effect: since when, which save of it, who started it,
in which tasks the saved schedule differs from it, and what is inserted.
"schedulectl now" shows what it has on screen.)",
            run};
}

} // namespace trel::console
