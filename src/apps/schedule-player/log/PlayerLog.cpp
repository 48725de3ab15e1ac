#include "PlayerLog.h"

#include "EventWords.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace trel::player {

void PlayerLog::note(const ScreenEvent& event)
{
    if (event.kind == ScreenEvent::Kind::Fault) {
        m_lastFault = QStringLiteral("%1: %2").arg(hosts::inQuotes(event.play.name),
                                                   faultSentence(event.fault));
        m_lastFaultAt = event.moment;
    }
    // What comes instead, or the reason for it, says the same.
    using Kind = ScreenEvent::Kind;
    if (event.kind != Kind::Left && event.kind != Kind::Due && event.kind != Kind::StoodIn) {
        emit line(eventLine(event, MomentFormat(Clock::current().zone())));
    }
}

void PlayerLog::tell(const QString& what)
{
    const MomentFormat local(Clock::current().zone());
    emit line(QStringLiteral("%1  %2").arg(local.text(Clock::current().msecsSinceEpoch()), what));
}

} // namespace trel::player
