#pragma once

#include "trelscreen/ScreenLog.h"

#include <optional>

/// How long a screen stays off the timeline although all that it plays is whole: the time from the
/// end of a fault, or from the loss of the picture where that comes later, until the picture is
/// right again and stays so.
class OffTimes : public trel::screen::ScreenLog
{
public:
    using Instant = trel::mediadispatch::Instant;

    /// The screen is off from that moment on, and all is whole. In milliseconds, as those of the
    /// events.
    explicit OffTimes(Instant moment);

    void note(const trel::screen::ScreenEvent& event) override;
    /// From a moment on something is broken, or all is whole again.
    void setWhole(bool isWhole, Instant moment);

    /// In milliseconds, with the one that has not ended at a moment.
    qint64 longest(Instant moment) const;

private:
    void comeBack(Instant moment);

    std::optional<Instant> m_offSince;
    std::optional<Instant> m_backAt; ///< It may break again at once.
    trel::screen::ScreenPlay m_backWith;
    std::optional<Instant> m_wholeSince;
    qint64 m_longest = 0;
};
