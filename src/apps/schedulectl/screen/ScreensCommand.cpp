#include "Commands.h"

#include "Database.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"
#include "schedule/ScheduleReport.h"
#include "screen/PlayerRecords.h"
#include "screen/StoredScreen.h"
#include "text/Console.h"
#include "text/SharedOptions.h"
#include "text/TextTable.h"
#include "trelprogramschedule/screens/PlayerStatusFolder.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

QString shownText(const PlayerStatus& status)
{
    const QString name = printable(status.program);
    QString shown;
    switch (status.shown.picture) {
    case ScreenPicture::Black:
        shown = QStringLiteral("black screen");
        break;
    case ScreenPicture::Playing:
        shown = QStringLiteral("plays %1").arg(name);
        break;
    case ScreenPicture::Frozen:
        shown = QStringLiteral("last frame of %1").arg(name);
        break;
    }
    if (!status.isStandIn) {
        return shown;
    }
    return status.keepsLastPicture ? QStringLiteral("stands still in: %1").arg(shown)
                                   : QStringLiteral("has no picture for: %1").arg(shown);
}

QString heardText(const PlayerStatus& status, Instant now, const MomentFormat& local)
{
    const QString moment = local.text(status.heard, now);
    return isSilent(status, now) ? QStringLiteral("not since %1").arg(moment) : moment;
}

QString latenessText(const PlayerStatus& status)
{
    return status.switches == 0 ? QStringLiteral("-")
                                : QStringLiteral("%1 / %2 ms")
                                      .arg(status.medianLateness, 0, 'f', 1)
                                      .arg(status.worstLateness, 0, 'f', 1);
}

QString faultsText(const PlayerStatus& status, Instant now, const MomentFormat& local)
{
    return status.faults == 0
               ? QStringLiteral("none")
               : QStringLiteral("%1, the last at %2: %3")
                     .arg(QString::number(status.faults), local.text(status.lastFaultAt, now),
                          printable(status.lastFault));
}

void write(const std::vector<PlayerStatus>& screens, Instant now, const MomentFormat& local,
           Console& console, int columns)
{
    TextTable table({{QStringLiteral("Screen")},
                     {QStringLiteral("Shows")},
                     {QStringLiteral("Heard")},
                     {QStringLiteral("Switches"), TextTable::Align::Right},
                     {QStringLiteral("Late")},
                     {QStringLiteral("Faults")}});
    for (const PlayerStatus& status : screens) {
        table.addRow({printable(status.screen), shownText(status), heardText(status, now, local),
                      QString::number(status.switches), latenessText(status),
                      faultsText(status, now, local)});
    }
    if (table.isEmpty()) {
        console.writeLine(QStringLiteral("No player follows this database."));
    } else {
        console.write(table.text(0, columns));
    }
}

QJsonObject screenJson(const PlayerStatus& status, Instant now, const ScreenReport& words)
{
    QJsonObject shown = words.json(status.shown);
    shown.insert(QStringLiteral("name"), status.program.isEmpty() ? QJsonValue(QJsonValue::Null)
                                                                  : QJsonValue(status.program));
    return {
        {QStringLiteral("screen"), status.screen},
        {QStringLiteral("player"), status.player},
        {QStringLiteral("started"), words.jsonMoment(status.started)},
        {QStringLiteral("heard"), words.jsonMoment(status.heard)},
        {QStringLiteral("silent"), isSilent(status, now)},
        {QStringLiteral("shows"), shown},
        {QStringLiteral("standIn"), status.isStandIn},
        {QStringLiteral("lastPicture"), status.keepsLastPicture},
        {QStringLiteral("switches"), status.switches},
        {QStringLiteral("medianLatenessMs"), status.medianLateness},
        {QStringLiteral("worstLatenessMs"), status.worstLateness},
        {QStringLiteral("faults"), status.faults},
        {QStringLiteral("lastFault"),
         status.faults == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(status.lastFault)},
        {QStringLiteral("lastFaultAt"),
         status.faults == 0 ? QJsonValue(QJsonValue::Null) : words.jsonMoment(status.lastFaultAt)},
    };
}

ExitStatus run(const Invocation& invocation, Console& console)
{
    if (refusesServer(invocation, console, QStringLiteral("Players tell of themselves"))) {
        return Refused;
    }
    const auto database =
        openDatabase(invocation, Database::Access::Read, console, Database::Part::Catalogue);
    if (!database) {
        return Refused;
    }
    const Instant now = Clock::current().msecsSinceEpoch();
    const MomentFormat local(Clock::current().zone());
    const std::vector<PlayerStatus> screens = PlayerStatusFolder(database->path()).read();
    if (invocation.json) {
        // The states speak of the schedule that each player has, which need not be the one here.
        const std::map<int, PlayTask> noTasks;
        const std::map<int, ProgramIten> noPrograms;
        const ScreenReport words({noTasks, noPrograms, local});
        QJsonArray list;
        for (const PlayerStatus& status : screens) {
            list.append(screenJson(status, now, words));
        }
        console.writeJson(QJsonObject{{QStringLiteral("database"), database->path()},
                                      {QStringLiteral("screens"), list}});
    } else {
        write(screens, now, local, console, tableColumns(invocation));
    }
    return Done;
}

} // namespace

Command screensCommand()
{
    return {"screens",
            "",
            0,
            0,
            true,
            "List the players that show this schedule",
            R"(Lists the screens whose players follow the database: what each shows, when it was
last heard, how often it has changed its picture and how late it did so (in the
middle and at worst), and what went wrong.

A player tells of itself every ten seconds. One that was not heard for half a
minute is marked with when it last was: it was killed, or its machine is off. A
player that was told to end leaves the list.)",
            run,
            true,
            {wideOption()}};
}

} // namespace trel::console
