#include "Commands.h"

#include "Database.h"
#include "ProgramChoice.h"
#include "StoredScreen.h"
#include "VerdictReport.h"
#include "clock/Clock.h"
#include "effect/EffectReport.h"
#include "text/Console.h"

#include <optional>

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// The day that is asked for where a date stands without a time; an invalid one otherwise.
QDate askedDay(const Invocation& invocation)
{
    constexpr int kLengthOfDate = 10;
    const QString moment = invocation.value("--at");
    return moment.size() == kLengthOfDate ? QDate::fromString(moment, Qt::ISODate) : QDate();
}

ExitStatus tellDay(const Invocation& invocation, Console& console, const QDate& date)
{
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    const MomentFormat local(Clock::current().zone());
    const StoredScreen screen(*database, local, invocation.has("--saved"));
    const ProgramChoice choice(*database, screen.tasks(), screen.programs());
    const std::optional<int> progIndex =
        chosenProgram(choice, invocation.arguments.first(), *database, console);
    if (!progIndex) {
        return Refused;
    }
    const ProgramDay day = programDay(screen, *progIndex, choice.name(*progIndex), date);
    if (invocation.json) {
        QJsonObject object = dayJson(day, screen.words());
        object.insert(QStringLiteral("database"), database->path());
        object.insert(QStringLiteral("effect"), startJson(screen.started(), screen.words()));
        console.writeJson(object);
    } else {
        console.write(dayText(day, screen.words()));
    }
    return Done;
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    if (const QDate date = askedDay(invocation); date.isValid()) {
        return tellDay(invocation, console, date);
    }
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const ProgramChoice choice(database, screen.tasks(), screen.programs());
        const std::optional<int> progIndex =
            chosenProgram(choice, invocation.arguments.first(), database, console);
        if (!progIndex) {
            return Refused;
        }
        const ProgramVerdict verdict =
            programVerdict(screen.timeline(), screen.tasks(), screen.programs(),
                           screen.insertions(), *progIndex, moment);
        const VerdictSubject subject{*progIndex, choice.name(*progIndex), moment, verdict};
        if (invocation.json) {
            QJsonObject object = verdictJson(subject, screen.words());
            object.insert(QStringLiteral("database"), database.path());
            object.insert(QStringLiteral("effect"), startJson(screen.started(), screen.words()));
            console.writeJson(object);
        } else {
            console.write(verdictText(subject, screen.words()));
        }
        return Done;
    };
    return atMoment(invocation, console, work);
}

} // namespace

Command whyCommand()
{
    return {"why",
            "PROGRAM",
            1,
            1,
            true,
            "Tell why a program plays, or what keeps it away",
            R"(Tells whether the schedule in effect shows a program at a moment. If not, it
names for every plan that holds the program the rule that kept it away, and what
is on screen instead. Where nothing is in effect, it looks at what is saved.

PROGRAM is an index, a name, or a part of a name that only one program has.
Moments are written as for "schedulectl now". A date without a time stands for
the whole day: when the program is on screen, and why the other plans that hold
it do not show it.)",
            run,
            true,
            {{"--at", "MOMENT", "The moment, or the day; defaults to now."}, savedOption()}};
}

} // namespace trel::console
