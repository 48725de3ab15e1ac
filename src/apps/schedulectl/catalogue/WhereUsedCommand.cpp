#include "Commands.h"

#include "Database.h"
#include "common/DisplayText.h"
#include "effect/EffectReport.h"
#include "schedule/ScheduleWords.h"
#include "screen/ProgramChoice.h"
#include "screen/StoredScreen.h"
#include "service/ProgramUses.h"
#include "text/Console.h"
#include "text/TextTable.h"

#include <QJsonArray>

#include <optional>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Tasks = std::map<int, PlayTask>;

/// A program, the plans of the saved schedule that play it, and when the screen shows it next.
struct Finding
{
    int progIndex = -1;
    QString name;
    std::vector<ProgramUse> uses;
    std::optional<ScreenState> next;
    bool wasOnScreen = false; ///< At some time before, where none comes.
};

const PlayPlan& planOf(const ProgramUse& use, const Tasks& tasks)
{
    return tasks.at(use.taskId).plans[use.row];
}

QString usesText(const Finding& finding, const Tasks& tasks)
{
    TextTable table({{QStringLiteral("Task"), TextTable::Align::Right},
                     {QStringLiteral("Valid")},
                     {QStringLiteral("Row"), TextTable::Align::Right},
                     {QStringLiteral("Plan"), TextTable::Align::Right},
                     {QStringLiteral("Days")},
                     {QStringLiteral("From")},
                     {QStringLiteral("To")},
                     {QStringLiteral("Besides")}});
    for (const ProgramUse& use : finding.uses) {
        const PlayPlan& plan = planOf(use, tasks);
        table.addRow({QString::number(use.taskId), periodText(tasks.at(use.taskId)),
                      QString::number(use.row + 1), QString::number(use.planId),
                      daysText(plan.weeks), printable(plan.startTime), printable(plan.endTime),
                      use.isAll ? QStringLiteral("nothing else") : QStringLiteral("others")});
    }
    return table.text();
}

QString nextText(const Finding& finding, const StoredScreen& screen, Instant moment)
{
    if (!finding.next) {
        return finding.wasOnScreen ? QStringLiteral("It does not come on screen any more.")
                                   : QStringLiteral("It never comes on screen.");
    }
    const ScreenState& state = *finding.next;
    const MomentFormat& local = screen.words().source().local;
    const QString where = ScreenReport::planText(state.taskId, state.planRow, state.planId);
    return state.since <= moment
               ? QStringLiteral("It is on screen since %1, by %2.")
                     .arg(local.text(state.since), where)
               : QStringLiteral("Next on screen at %1, by %2.").arg(local.text(state.since), where);
}

void write(Console& console, const Finding& finding, const Tasks& tasks, const StoredScreen& screen,
           Instant moment)
{
    const QString program = QStringLiteral("Program %1, %2,")
                                .arg(QString::number(finding.progIndex), printable(finding.name));
    if (finding.uses.empty()) {
        console.writeLine(QStringLiteral("%1 is in no plan.").arg(program));
    } else {
        console.writeLine(QStringLiteral("%1 is in %2:")
                              .arg(program, counted(static_cast<qint64>(finding.uses.size()),
                                                    QStringLiteral("plan"))));
        console.write(usesText(finding, tasks));
    }
    console.writeLine(nextText(finding, screen, moment));
}

QJsonArray usesJson(const Finding& finding, const Tasks& tasks)
{
    QJsonArray array;
    for (const ProgramUse& use : finding.uses) {
        const PlayTask& task = tasks.at(use.taskId);
        const PlayPlan& plan = planOf(use, tasks);
        array.append(
            QJsonObject{{QStringLiteral("task"), use.taskId},
                        {QStringLiteral("startDate"), QString::fromStdString(task.startDate)},
                        {QStringLiteral("endDate"), QString::fromStdString(task.endDate)},
                        {QStringLiteral("row"), static_cast<int>(use.row) + 1},
                        {QStringLiteral("plan"), use.planId},
                        {QStringLiteral("startTime"), QString::fromStdString(plan.startTime)},
                        {QStringLiteral("endTime"), QString::fromStdString(plan.endTime)},
                        {QStringLiteral("playsNothingElse"), use.isAll}});
    }
    return array;
}

void writeJson(Console& console, const Finding& finding, const Tasks& tasks,
               const StoredScreen& screen, Instant moment, const QString& path)
{
    const auto known = screen.programs().find(finding.progIndex);
    const bool isGone = known == screen.programs().end() || known->second.isNull;
    console.writeJson({
        {QStringLiteral("database"), path},
        {QStringLiteral("effect"), startJson(screen.started(), screen.words())},
        {QStringLiteral("moment"), screen.words().jsonMoment(moment)},
        {QStringLiteral("program"), QJsonObject{{QStringLiteral("index"), finding.progIndex},
                                                {QStringLiteral("isGone"), isGone},
                                                {QStringLiteral("name"), finding.name}}},
        {QStringLiteral("plans"), usesJson(finding, tasks)},
        {QStringLiteral("next"), finding.next ? QJsonValue(screen.words().json(*finding.next))
                                              : QJsonValue(QJsonValue::Null)},
    });
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const Tasks tasks = database.tasks();
        const ProgramChoice choice(database, tasks, screen.programs());
        const std::optional<int> progIndex =
            chosenProgram(choice, invocation.arguments.first(), database, console);
        if (!progIndex) {
            return Refused;
        }
        const auto playWithin = [&](Instant from, Instant to) {
            return screen.timeline().nextPlay(from, to, screen.insertions(), {*progIndex, false});
        };
        Finding finding{*progIndex, choice.name(*progIndex), usesOf(tasks, {*progIndex}),
                        playWithin(moment, kNever), false};
        finding.wasOnScreen = !finding.next && playWithin(kEver, moment);
        if (invocation.json) {
            writeJson(console, finding, tasks, screen, moment, database.path());
        } else {
            write(console, finding, tasks, screen, moment);
        }
        return Done;
    };
    return atMoment(invocation, console, work);
}

} // namespace

Command whereUsedCommand()
{
    return {"where-used",
            "PROGRAM",
            1,
            1,
            true,
            "List the plans that play a program, and when it is on next",
            R"(Lists the plans of the saved schedule that play a program, with the validity of
their tasks, and tells of each whether it plays anything else besides. Removing
the program from the catalog makes its entries in these plans invalid. Then it
tells when the program is on screen next in the schedule in effect or, where
nothing is in effect, in the saved one. Entries that are invalid play nothing
and are left out.

PROGRAM is an index, a name, or a part of a name that only one program has.
Moments are written as for "schedulectl now".)",
            run,
            true,
            {{"--at", "MOMENT", "The moment to look ahead from; defaults to now."}, savedOption()}};
}

} // namespace trel::console
