#include "Commands.h"

#include "EffectReport.h"
#include "StoredEffectWork.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "screen/ProgramChoice.h"
#include "service/PlanInsertion.h"
#include "service/scheduleManage.h"
#include "text/Console.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// What is to be cut in, and for which plan in effect.
struct Request
{
    int taskId = 0;
    PlayPlan plan;
};

bool holds(const PlayPlan& plan, int progIndex)
{
    return std::any_of(
        plan.programs.begin(), plan.programs.end(),
        [progIndex](const struProgInfo& entry) { return entry.progIndex == progIndex; });
}

/// The plan that a program on its own stands for: of those that hold it the one on screen, or else
/// the first; where none holds it, the one on screen, or else the first of all.
std::optional<Request> standIn(const StoredScreen& screen, const ScreenState& now, int progIndex)
{
    std::optional<Request> best;
    int bestRank = -1;
    for (const auto& [id, task] : screen.tasks()) {
        for (const PlayPlan& plan : task.plans) {
            const bool isShown = id == now.taskId && plan.id == now.planId;
            const int rank = (holds(plan, progIndex) ? 2 : 0) + (isShown ? 1 : 0);
            if (rank > bestRank) {
                bestRank = rank;
                best = Request{id, plan};
            }
        }
    }
    return best;
}

std::optional<Request> programRequest(const QString& word, const Database& database,
                                      const StoredScreen& screen, const ScreenState& now,
                                      Console& console)
{
    const ProgramChoice choice(database, screen.tasks(), screen.programs());
    const auto progIndex = chosenProgram(choice, word, database, console);
    if (!progIndex) {
        return std::nullopt;
    }
    const auto program = screen.programs().find(*progIndex);
    if (program == screen.programs().end() || program->second.isNull) {
        console.tell(QStringLiteral("%1 cannot play: it has left the catalog, or its file is not "
                                    "there.")
                         .arg(inQuotes(printable(choice.name(*progIndex)))));
        return std::nullopt;
    }
    auto request = standIn(screen, now, *progIndex);
    if (!request) {
        console.tell(QStringLiteral("The schedule in effect has no plan that could give way."));
        return std::nullopt;
    }
    struProgInfo entry;
    entry.progIndex = *progIndex;
    entry.progName = program->second.progName;
    entry.playCount = 1;
    request->plan = insertedPlan(request->plan, {entry}, InsertionScope::OneProgram);
    return request;
}

std::optional<Request> planRequest(int taskId, int planId, const StoredScreen& screen,
                                   Console& console)
{
    const auto task = screen.tasks().find(taskId);
    const auto& plans = task == screen.tasks().end() ? std::vector<PlayPlan>() : task->second.plans;
    const auto plan = std::find_if(plans.begin(), plans.end(),
                                   [planId](const PlayPlan& one) { return one.id == planId; });
    if (plan == plans.end()) {
        console.tell(QStringLiteral("Task %1 with plan %2 is not in effect.")
                         .arg(QString::number(taskId), QString::number(planId)));
        return std::nullopt;
    }
    scheduleManage& service = scheduleManage::getInstance();
    const InsertionScope scope = insertionScope(service.comparisionDate(task->second.endDate),
                                                service.comparisonTime(plan->endTime));
    if (scope == InsertionScope::Refused) {
        console.tell(QStringLiteral("Task %1 with plan %2 will not run again.")
                         .arg(QString::number(taskId), QString::number(planId)));
        return std::nullopt;
    }
    return Request{taskId, insertedPlan(*plan, plan->programs, scope)};
}

std::optional<Request> requestOf(const QString& what, const Database& database,
                                 const StoredScreen& screen, const ScreenState& now,
                                 Console& console)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,9})/(\\d{1,9})$"));
    const QRegularExpressionMatch match = form.match(what);
    return match.hasMatch()
               ? planRequest(match.captured(1).toInt(), match.captured(2).toInt(), screen, console)
               : programRequest(what, database, screen, now, console);
}

/// What the insertion cuts off or waits for, and what comes behind it.
QString outcomeText(const ScreenInsertion& taken, const ScreenState& before,
                    const ScreenState& after, const ScreenReport& words)
{
    const QString begins =
        taken.begins > taken.requested
            ? QStringLiteral("It waits for the end of what the screen shows: %1.")
            : QStringLiteral("It takes the screen from what it shows: %1.");
    QString text = QStringLiteral("Inserted: %1.\n%2\n")
                       .arg(insertionText(taken, taken.requested, words),
                            begins.arg(words.pictureText(before)));
    if (taken.ends == taken.begins) {
        text += QStringLiteral("It has nothing to play, and changes nothing.\n");
    } else if (taken.ends != kNever) {
        text += QStringLiteral("At %1 comes: %2.\n")
                    .arg(words.untilText(taken.ends, taken.requested), words.pictureText(after));
    }
    return text;
}

ExitStatus carryOut(const Invocation& invocation, const Database& database,
                    const MomentFormat& local, Console& console)
{
    const Instant moment = Clock::current().msecsSinceEpoch();
    const StoredScreen before(database, local);
    if (!before.started()) {
        console.tell(QStringLiteral("Nothing is in effect; \"schedulectl start\" puts the saved "
                                    "schedule into effect."));
        return Refused;
    }
    if (scheduleManage::getInstance().getScheduleState()) {
        console.tell(QStringLiteral("An insertion waits already; \"schedulectl cancel-insertion\" "
                                    "takes it back."));
        return Refused;
    }
    const ScreenState shown = before.timeline().at(moment, before.insertions());
    const auto request = requestOf(invocation.arguments.first(), database, before, shown, console);
    if (!request) {
        return Refused;
    }
    const StoreResult result = database.host().insertPlan(
        request->taskId, request->plan.id, request->plan, invocation.has("--delayed"));
    if (const ExitStatus status = tellOutcome(result, invocation, console); status != Done) {
        return status;
    }
    const StoredScreen after(database, local);
    if (after.insertions().empty()) {
        // Another program has started another schedule in between, without this plan.
        console.tell(QStringLiteral("Task %1 with plan %2 is not in effect any more.")
                         .arg(request->taskId)
                         .arg(request->plan.id));
        return Refused;
    }
    const ScreenInsertion& taken = after.insertions().back();
    const ScreenState next = after.timeline().at(taken.ends, after.insertions());
    if (invocation.json) {
        console.writeJson({{QStringLiteral("database"), database.path()},
                           {QStringLiteral("insertion"), insertionJson(taken, after.words())},
                           {QStringLiteral("before"), before.words().json(shown)},
                           {QStringLiteral("after"), after.words().json(next)}});
    } else {
        console.write(outcomeText(taken, shown, next, after.words()));
    }
    return Done;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    return onEffect(invocation, Database::Access::Change, console,
                    [&](const Database& database, const MomentFormat& local) {
                        return carryOut(invocation, database, local, console);
                    });
}

} // namespace

Command insertCommand()
{
    return {"insert",
            "PROGRAM|TASK/PLAN",
            1,
            1,
            true,
            "Cut a program or a plan into what is on screen",
            R"(Cuts something into the schedule in effect: a program, which plays once, or a
plan that is in effect, by the ids of its task and its own, such as 3/1, which
plays until its end of that day, or once where that has passed. Then the schedule
is on screen again.

PROGRAM is an index, a name, or a part of a name that only one program has.
Refused while an insertion waits for its turn.)",
            run,
            true,
            {{"--delayed", "", "Let what plays now come to its end first."}}};
}

} // namespace trel::console
