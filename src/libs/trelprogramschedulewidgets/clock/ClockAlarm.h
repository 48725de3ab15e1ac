#pragma once

#include "schedulecontract_export.h"

#include <QtGlobal>

namespace trel::mediadispatch {

/// Rings when its clock comes to a moment, and early when that clock leaps: because it was set,
/// forwards or backwards, because the machine slept, or because the time zone was changed. The
/// receiver looks at the clock again and sets the alarm again.
///
/// Rings once for each call of set(), from the event loop and never from inside set(). GUI thread
/// only; may outlive its clock, and is silent from then on.
class SCHEDULECONTRACT_EXPORT ClockAlarm
{
public:
    virtual ~ClockAlarm() = default;

    /// The moment to ring at, in milliseconds since the epoch, instead of any former one. One that
    /// has passed rings at once; at the largest number it rings only when the clock leaps.
    virtual void set(qint64 moment) = 0;

protected:
    ClockAlarm() = default;
    Q_DISABLE_COPY(ClockAlarm)
};

} // namespace trel::mediadispatch
