#include "Commands.h"

#include "Database.h"
#include "StoredScreen.h"
#include "TimelineReport.h"
#include "clock/Clock.h"
#include "effect/EffectReport.h"
#include "text/Console.h"

using namespace trel::mediadispatch;

namespace trel::console {

namespace {

/// Hands every line of a list to a report, until the user has gone.
template <typename Report>
void writeLines(const StoredScreen& screen, Instant from, Instant to, TimelineReport::Lines lines,
                Report& report, const Console& console)
{
    const ScreenTimeline& timeline = screen.timeline();
    if (lines == TimelineReport::Lines::Plays) {
        timeline.visitPlays(from, to, screen.insertions(), [&](const ScreenState& state) {
            report.write(state, {});
            return console.arrives();
        });
    } else {
        timeline.visitSpans(from, to, screen.insertions(), [&](const ScreenState& state) {
            report.write(state, timeline.afterList(state, screen.insertions()));
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

ExitStatus run(const Invocation& invocation, Console& console)
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
    const StoredScreen screen(*database, local, invocation.has("--saved"));
    const auto lines =
        invocation.has("--plays") ? TimelineReport::Lines::Plays : TimelineReport::Lines::Spans;
    if (invocation.json) {
        writeTimelineJson(screen, *from, *to, lines,
                          {{QStringLiteral("database"), database->path()},
                           {QStringLiteral("effect"), startJson(screen.started(), screen.words())}},
                          console);
    } else {
        writeTimelineText(screen, *from, *to, lines, console);
    }
    return Done;
}

} // namespace

Command timelineCommand()
{
    return {"timeline",
            "",
            0,
            0,
            true,
            "List what is on screen from one moment to another",
            R"(Lists what the schedule in effect has on screen from one moment to another: a
line for each time that a plan or an insertion is on screen without a break, and
one for each stretch between. The first line starts when its state began, even
before --from, and the last line ends when its state ends. Where nothing is in
effect, it lists the saved schedule.

Moments are written as for "schedulectl now"; a date alone is the start of that
day.)",
            run,
            true,
            {{"--from", "MOMENT", "The first moment.", true},
             {"--to", "MOMENT", "The moment before which the list ends.", true},
             {"--plays", "", "A line for each play of a program."},
             savedOption()}};
}

} // namespace trel::console
