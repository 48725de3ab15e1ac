#pragma once

#include "ClockAlarm.h"
#include "schedulecontract_export.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTimeZone>

#include <functional>
#include <memory>

namespace trel::mediadispatch {

/// Where everybody asks for the time. Local time is the machine's.
///
/// An instance of a derived class takes the place of the machine's clock for as long as it lives;
/// instances nest and go in the reverse order of their making. GUI thread only.
class SCHEDULECONTRACT_EXPORT Clock
{
public:
    /// The clock in force.
    static const Clock& current();

    virtual ~Clock() = default;

    /// The moment, with local time and the zone.
    virtual QDateTime now() const;
    /// The zone whose time of day local time is. May change while the program runs.
    virtual QTimeZone zone() const;
    /// Milliseconds that a started timer has run.
    virtual qint64 elapsed(const QElapsedTimer& timer) const;
    /// An alarm that goes by this clock and calls back when it rings. Takes note of every leap from
    /// here on, also of those before it is first set. A clock that shows another time than the
    /// machine's gives out alarms of its own. The clock outlives its alarms.
    virtual std::unique_ptr<ClockAlarm> makeAlarm(std::function<void()> ring) const;

    /// The local date.
    QDate today() const { return now().date(); }
    /// The local time of day.
    QTime timeOfDay() const { return now().time(); }
    /// The moment in milliseconds since 1970, UTC.
    qint64 msecsSinceEpoch() const { return now().toMSecsSinceEpoch(); }

protected:
    Clock() = default;
    Q_DISABLE_COPY(Clock)

    /// Puts a clock in force and returns the one it takes the place of.
    static const Clock* install(const Clock* clock);
};

} // namespace trel::mediadispatch
