#include "PlayerLog.h"

#include "EventWords.h"
#include "clock/Clock.h"
#include "common/DisplayText.h"

#include <utility>

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
    using Kind = ScreenEvent::Kind;
    switch (event.kind) {
    case Kind::Shown:
        m_again = event.isAgain ? std::optional(event) : std::nullopt;
        if (!event.isAgain) {
            write(event);
        }
        return;
    case Kind::Recovered:
        if (m_again) {
            write(*std::exchange(m_again, std::nullopt));
        }
        write(event);
        return;
    case Kind::CorrectedBySpeed:
    case Kind::Sought:
        if (!m_again) {
            write(event);
        }
        return;
    case Kind::Left:
        m_again.reset();
        return;
    case Kind::Due:
    case Kind::StoodIn:
        // What comes instead, or the reason for it, says the same.
        return;
    case Kind::ScheduleTaken:
    case Kind::Late:
    case Kind::Fault:
    case Kind::ClockLeapt:
        write(event);
        return;
    }
}

void PlayerLog::write(const ScreenEvent& event)
{
    emit line(eventLine(event, MomentFormat(Clock::current().zone())));
}

void PlayerLog::tell(const QString& what)
{
    const MomentFormat local(Clock::current().zone());
    emit line(QStringLiteral("%1  %2").arg(local.text(Clock::current().msecsSinceEpoch()), what));
}

} // namespace trel::player
