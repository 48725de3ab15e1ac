#include "Commands.h"

#include "DifferenceWords.h"
#include "ScheduleSide.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "effect/StoredEffectWork.h"
#include "schedule/ScheduleWords.h"
#include "text/Console.h"
#include "trelprogramschedule/dispatch/ScreenDifferences.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QJsonArray>

#include <vector>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

constexpr Instant kDay = 24LL * 60 * 60 * 1000;
/// How far ahead screens are compared where nothing is said, and at most.
constexpr Instant kUsualStretch = 7 * kDay;
constexpr Instant kLongestStretch = 366 * kDay;

/// The two states, the former one first.
struct Sides
{
    ScheduleSide former;
    ScheduleSide later;
};

QJsonObject headJson(const Sides& sides, const Database& database)
{
    return {{QStringLiteral("database"), database.path()},
            {QStringLiteral("former"), sides.former.word},
            {QStringLiteral("later"), sides.later.word}};
}

ExitStatus tellDifferences(const Sides& sides, const Database& database,
                           const Invocation& invocation, Console& console)
{
    const auto differences = differencesOfNote(sides.former.tasks, sides.later.tasks);
    const auto programs = database.programs();
    if (invocation.json) {
        QJsonArray list;
        for (const ScheduleDifference& one : differences) {
            QJsonObject object = differenceJson(one);
            object.insert(QStringLiteral("text"), differenceText(one, programs));
            list.append(object);
        }
        QJsonObject object = headJson(sides, database);
        object.insert(QStringLiteral("differences"), list);
        console.writeJson(object);
        return Done;
    }
    console.writeLine(
        differences.empty()
            ? QStringLiteral("Nothing differs from %1 to %2.")
                  .arg(sides.former.text(), sides.later.text())
            : QStringLiteral("From %1 to %2:").arg(sides.former.text(), sides.later.text()));
    for (const ScheduleDifference& one : differences) {
        console.writeLine(differenceText(one, programs));
    }
    return Done;
}

/// "task 1, plan 4: News ×2, Weather", or what stays on screen where no plan has it.
QString stateText(const ScreenState& state, const ScreenReport& words)
{
    const PlayPlan* const plan = words.plan(state);
    if (!hasPlan(state) || plan == nullptr) {
        return words.pictureText(state);
    }
    return QStringLiteral("task %1, plan %2: %3")
        .arg(QString::number(state.taskId), QString::number(state.planId),
             entriesText(plan->programs, words.source().programs));
}

ExitStatus tellOnScreen(const Sides& sides, const Database& database, const MomentFormat& local,
                        Instant from, Instant to, const Invocation& invocation, Console& console)
{
    const auto programs = database.programs();
    const ScreenTimeline before(sides.former.tasks, programs, local.zone());
    const ScreenTimeline after(sides.later.tasks, programs, local.zone());
    const auto differences =
        screenDifferences({sides.former.tasks, before}, {sides.later.tasks, after}, from, to);
    const ScreenReport former({sides.former.tasks, programs, local});
    const ScreenReport later({sides.later.tasks, programs, local});
    if (invocation.json) {
        QJsonArray list;
        for (const ScreenDifference& one : differences) {
            list.append(QJsonObject{{QStringLiteral("from"), former.jsonMoment(one.from)},
                                    {QStringLiteral("to"), former.jsonMoment(one.to)},
                                    {QStringLiteral("former"), former.json(one.former)},
                                    {QStringLiteral("later"), later.json(one.later)}});
        }
        QJsonObject object = headJson(sides, database);
        object.insert(QStringLiteral("from"), former.jsonMoment(from));
        object.insert(QStringLiteral("to"), former.jsonMoment(to));
        object.insert(QStringLiteral("stretches"), list);
        console.writeJson(object);
        return Done;
    }
    console.writeLine(QStringLiteral("%1 %2 to %3 on the screen, from %4 to %5%6")
                          .arg(differences.empty() ? QStringLiteral("Nothing differs from")
                                                   : QStringLiteral("From"),
                               sides.former.text(), sides.later.text(), local.text(from),
                               local.text(to),
                               differences.empty() ? QStringLiteral(".") : QStringLiteral(":")));
    for (const ScreenDifference& one : differences) {
        console.writeLine(QStringLiteral("%1 to %2: %3 \u2192 %4")
                              .arg(local.text(one.from), local.text(one.to, one.from),
                                   stateText(one.former, former), stateText(one.later, later)));
    }
    return Done;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    const QStringList& words = invocation.arguments;
    for (const QString& word : words) {
        if (!isSide(word)) {
            console.tell(QStringLiteral("%1 is no version: a number, \"saved\" or \"effect\" is "
                                        "expected.")
                             .arg(inQuotes(printable(word))));
            return Misused;
        }
    }
    const auto work = [&](const Database& database, const MomentFormat& local) {
        const auto from = momentOption(invocation, "--from", local, DateAlone::StartOfDay, console);
        auto to = momentOption(invocation, "--to", local, DateAlone::StartOfDay, console);
        if (!from || !to) {
            return Misused;
        }
        if (!invocation.has("--to")) {
            to = *from + kUsualStretch;
        }
        if (*to <= *from || *to - *from > kLongestStretch) {
            console.tell(QStringLiteral("The moment of \"--to\" has to lie behind that of "
                                        "\"--from\", by 366 days at most."));
            return Misused;
        }
        const auto former = readSide(words.isEmpty() ? QString(kEffectSide) : words.first(),
                                     database, invocation, console);
        const auto later = readSide(words.size() < 2 ? QString(kSavedSide) : words.at(1), database,
                                    invocation, console);
        if (!former || !later) {
            return Refused;
        }
        const Sides sides{*former, *later};
        return invocation.has("--on-screen")
                   ? tellOnScreen(sides, database, local, *from, *to, invocation, console)
                   : tellDifferences(sides, database, invocation, console);
    };
    return onEffect(invocation, Database::Access::Read, console, work);
}

} // namespace

Command diffCommand()
{
    return {"diff",
            "[A [B]]",
            0,
            2,
            true,
            "Tell what differs between two states of the schedule",
            R"(Tells in words what has to be done to A to have B: task by task and field by field.
A and B are numbers of "schedulectl versions", "saved" for what is saved now, or
"effect" for what is in effect. Left out, B is what is saved, and A what is in
effect. Collisions and ends that follow from programs are no differences.

With --on-screen it tells what differs on the screen, stretch by stretch and without
insertions, for a week from now on where nothing else is said. Moments are written
as for "schedulectl now"; a date alone is the start of that day.)",
            run,
            true,
            {{"--on-screen", "", "Compare what is on the screen."},
             {"--from", "MOMENT", "With --on-screen: the first moment."},
             {"--to", "MOMENT",
              "With --on-screen: the moment before which it ends, 366\ndays "
              "later at most."}}};
}

} // namespace trel::console
