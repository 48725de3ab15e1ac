#include "players/PlayerWords.h"

#include "DateWords.h"
#include "common/DisplayText.h"
#include "screen/ScreenFollower.h"
#include "screen/ScreenWords.h"

using namespace trel::mediadispatch;
using trel::hosts::printable;

namespace trel::desktop::players {

namespace {

QString textOf(Instant moment, const ScreenFollower& clock)
{
    return momentText(clock.timeText(moment), clock.local(moment).date(), clock.today());
}

} // namespace

QString PlayerWords::shown(const PlayerStatus& status)
{
    QString picture = ScreenWords::program(status.shown.picture, printable(status.program));
    if (!status.isStandIn) {
        return picture;
    }
    return status.keepsLastPicture ? tr("Stands still in: %1").arg(picture)
                                   : tr("Has no picture for: %1").arg(picture);
}

QString PlayerWords::heard(const PlayerStatus& status, Instant now, const ScreenFollower& clock)
{
    const QString moment = textOf(status.heard, clock);
    return isSilent(status, now) ? tr("Not since %1", "a moment").arg(moment) : moment;
}

QString PlayerWords::faults(const PlayerStatus& status, const ScreenFollower& clock)
{
    return status.faults == 0
               ? tr("None", "no faults")
               : tr("%1, the last at %2: %3", "a number, a moment, a sentence")
                     .arg(QString::number(status.faults), textOf(status.lastFaultAt, clock),
                          printable(status.lastFault));
}

QString PlayerWords::number(int players, int silent)
{
    return silent == 0 ? tr("Players: %1").arg(players)
                       : tr("Players: %1, silent: %2").arg(players).arg(silent);
}

} // namespace trel::desktop::players
