#include "ScreenCommands.h"

#include "Console.h"
#include "DisplayText.h"
#include "NowReport.h"
#include "ProgramChoice.h"
#include "ScheduleRun.h"
#include "StoredScreen.h"
#include "TimelineReport.h"
#include "VerdictReport.h"
#include "service/Clock.h"
#include "trelprogramschedule/ShownAddress.h"

using namespace trel::mediadispatch;

namespace {

void writeTimelineText(const StoredScreen& screen, Instant from, Instant to, bool hasPlays,
                       Console& console)
{
    using Lines = TimelineReport::Lines;
    TimelineReport report(console, screen.words(), hasPlays ? Lines::Plays : Lines::Spans);
    report.writeTitles();
    const auto write = [&](const ScreenState& state) {
        report.write(state);
        return console.arrives();
    };
    if (hasPlays) {
        screen.timeline().visitPlays(from, to, {}, write);
    } else {
        screen.timeline().visitSpans(from, to, {}, write);
    }
}

void writeTimelineJson(const StoredScreen& screen, Instant from, Instant to, bool hasPlays,
                       QJsonObject head, Console& console)
{
    TimelineJson report(console, screen.words());
    head.insert(QStringLiteral("from"), screen.words().jsonMoment(from));
    head.insert(QStringLiteral("to"), screen.words().jsonMoment(to));
    const auto write = [&](const ScreenState& state) {
        report.write(state);
        return console.arrives();
    };
    if (hasPlays) {
        report.begin(head, QStringLiteral("plays"));
        screen.timeline().visitPlays(from, to, {}, write);
    } else {
        report.begin(head, QStringLiteral("spans"));
        screen.timeline().visitSpans(from, to, {}, write);
    }
    report.end();
}

/// Does with the screen what a command does at the moment of its option "--at".
template <typename Work>
ExitStatus atMoment(const Invocation& invocation, Console& console, const Work& work)
{
    const LocalClock local(Clock::current().zone());
    const auto moment = momentOption(invocation, "--at", local, DateAlone::Refused, console);
    if (!moment) {
        return Misused;
    }
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    return work(*database, StoredScreen(*database, local), *moment);
}

/// The one program that a word means; none, and the user is told why, where it means another
/// number of them.
std::optional<int> chosenProgram(const ProgramChoice& choice, const QString& word,
                                 const Database& database, Console& console)
{
    const std::vector<int> found = choice.find(word);
    if (found.size() == 1) {
        return found.front();
    }
    if (found.empty()) {
        console.tell(QStringLiteral("There is no program %1 in %2; \"schedulectl programs\" lists "
                                    "the programs.")
                         .arg(quoted(shownAddress(word)), printable(database.path())));
        return {};
    }
    console.tell(QStringLiteral("Several programs are called %1; an index tells them apart:")
                     .arg(quoted(shownAddress(word))));
    for (const int progIndex : found) {
        console.tellLine(
            QStringLiteral("  %1  %2").arg(progIndex, 5).arg(printable(choice.name(progIndex))));
    }
    return {};
}

} // namespace

ExitStatus runNow(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const ScreenState state = screen.timeline().at(moment);
        const Upcoming next = upcoming(screen.timeline(), state);
        if (invocation.json) {
            QJsonObject object = nowJson(moment, state, next, screen.words());
            object.insert(QStringLiteral("database"), database.path());
            console.writeJson(object);
        } else {
            console.write(nowText(moment, state, next, screen.words()));
        }
        return Done;
    };
    return atMoment(invocation, console, work);
}

ExitStatus runTimeline(const Invocation& invocation, Console& console)
{
    const LocalClock local(Clock::current().zone());
    const auto from = momentOption(invocation, "--from", local, DateAlone::StartOfDay, console);
    const auto to = momentOption(invocation, "--to", local, DateAlone::StartOfDay, console);
    if (!from || !to) {
        return Misused;
    }
    if (*to <= *from) {
        console.tell(QStringLiteral("The moment of \"--to\", %1, does not lie behind that of "
                                    "\"--from\", %2.")
                         .arg(local.text(*to), local.text(*from)));
        return Misused;
    }
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    const StoredScreen screen(*database, local);
    const bool hasPlays = invocation.has("--plays");
    if (invocation.json) {
        writeTimelineJson(screen, *from, *to, hasPlays,
                          {{QStringLiteral("database"), database->path()}}, console);
    } else {
        writeTimelineText(screen, *from, *to, hasPlays, console);
    }
    return Done;
}

ExitStatus runWhy(const Invocation& invocation, Console& console)
{
    const auto work = [&](const Database& database, const StoredScreen& screen, Instant moment) {
        const ProgramChoice choice(database, screen.tasks(), screen.programs());
        const std::optional<int> progIndex =
            chosenProgram(choice, invocation.arguments.first(), database, console);
        if (!progIndex) {
            return Refused;
        }
        const ProgramVerdict verdict = programVerdict(screen.timeline(), screen.tasks(),
                                                      screen.programs(), {}, *progIndex, moment);
        const VerdictSubject subject{*progIndex, choice.name(*progIndex), moment, verdict};
        if (invocation.json) {
            QJsonObject object = verdictJson(subject, screen.words());
            object.insert(QStringLiteral("database"), database.path());
            console.writeJson(object);
        } else {
            console.write(verdictText(subject, screen.words()));
        }
        return Done;
    };
    return atMoment(invocation, console, work);
}

ExitStatus runSchedule(const Invocation& invocation, Console& console)
{
    const auto database = openDatabase(invocation, Database::Access::Read, console);
    if (!database) {
        return Refused;
    }
    return ScheduleRun(*database, invocation.json, console).run();
}
