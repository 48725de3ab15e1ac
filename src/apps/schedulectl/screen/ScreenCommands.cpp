#include "ScreenCommands.h"

#include "NowReport.h"
#include "ProgramChoice.h"
#include "ScheduleRun.h"
#include "StoredScreen.h"
#include "TimelineReport.h"
#include "VerdictReport.h"
#include "clock/Clock.h"
#include "common/ZoneError.h"
#include "text/Console.h"
#include "text/DisplayText.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

using namespace trel::mediadispatch;

namespace {

/// Hands every line of a list to a report, until the user has gone.
template <typename Report>
void writeLines(const StoredScreen& screen, Instant from, Instant to, TimelineReport::Lines lines,
                Report& report, const Console& console)
{
    const ScreenTimeline& timeline = screen.timeline();
    if (lines == TimelineReport::Lines::Plays) {
        timeline.visitPlays(from, to, {}, [&](const ScreenState& state) {
            report.write(state, {});
            return console.arrives();
        });
    } else {
        timeline.visitSpans(from, to, {}, [&](const ScreenState& state) {
            report.write(state, timeline.afterList(state, {}));
            return console.arrives();
        });
    }
}

void writeTimelineText(const StoredScreen& screen, Instant from, Instant to,
                       TimelineReport::Lines lines, Console& console)
{
    TimelineReport report(console, screen.words(), lines);
    report.writeTitles();
    writeLines(screen, from, to, lines, report, console);
}

void writeTimelineJson(const StoredScreen& screen, Instant from, Instant to,
                       TimelineReport::Lines lines, QJsonObject head, Console& console)
{
    TimelineJson report(console, screen.words(), lines);
    head.insert(QStringLiteral("from"), screen.words().jsonMoment(from));
    head.insert(QStringLiteral("to"), screen.words().jsonMoment(to));
    report.begin(head, lines == TimelineReport::Lines::Plays ? QStringLiteral("plays")
                                                             : QStringLiteral("spans"));
    writeLines(screen, from, to, lines, report, console);
    report.end();
}

/// False, and the user is told why, where the local time is not known.
bool knowsLocalTime(Console& console)
{
    const QString error = ZoneError::sentence();
    if (!error.isEmpty()) {
        console.tell(error);
    }
    return error.isEmpty();
}

/// Does with the screen what a command does at the moment of its option "--at".
template <typename Work>
ExitStatus atMoment(const Invocation& invocation, Console& console, const Work& work)
{
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const MomentFormat local(Clock::current().zone());
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
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const MomentFormat local(Clock::current().zone());
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
    const auto lines =
        invocation.has("--plays") ? TimelineReport::Lines::Plays : TimelineReport::Lines::Spans;
    if (invocation.json) {
        writeTimelineJson(screen, *from, *to, lines,
                          {{QStringLiteral("database"), database->path()}}, console);
    } else {
        writeTimelineText(screen, *from, *to, lines, console);
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
    if (!knowsLocalTime(console)) {
        return Refused;
    }
    const auto database = openDatabase(invocation, Database::Access::Change, console);
    if (!database) {
        return Refused;
    }
    return ScheduleRun(*database, invocation.json, console).run();
}
