#include "OffTimes.h"

#include <algorithm>

using trel::screen::ScreenEvent;

OffTimes::OffTimes(Instant moment)
    : m_offSince(moment)
    , m_wholeSince(moment)
{}

void OffTimes::note(const ScreenEvent& event)
{
    using Kind = ScreenEvent::Kind;
    switch (event.kind) {
    case Kind::Due:
    case Kind::StoodIn:
    case Kind::Left:
        m_offSince = m_offSince.value_or(event.moment);
        m_backAt.reset();
        return;
    case Kind::Shown:
        if (event.isAgain) {
            m_backAt = event.moment;
            m_backWith = event.play;
        } else {
            comeBack(event.moment);
        }
        return;
    case Kind::Recovered:
        // What is only loaded for later recovers as well.
        if (m_backAt && event.play.isSamePlay(m_backWith)) {
            comeBack(*m_backAt);
        }
        return;
    default:
        return;
    }
}

void OffTimes::setWhole(bool isWhole, Instant moment)
{
    if (isWhole) {
        m_wholeSince = m_wholeSince.value_or(moment);
    } else {
        m_longest = longest(m_backAt.value_or(moment));
        m_wholeSince.reset();
    }
}

qint64 OffTimes::longest(Instant moment) const
{
    if (!m_offSince || !m_wholeSince) {
        return m_longest;
    }
    return std::max(m_longest, moment - std::max(*m_offSince, *m_wholeSince));
}

void OffTimes::comeBack(Instant moment)
{
    m_longest = longest(moment);
    m_offSince.reset();
    m_backAt.reset();
}
