#pragma once

#include <QDateTime>
#include <QElapsedTimer>

namespace trel::mediadispatch {

/// Where everybody asks for the time. Local time is the machine's.
///
/// An instance of a derived class takes the place of the machine's clock for as long as it lives;
/// instances nest and go in the reverse order of their making. GUI thread only.
class Clock
{
public:
    /// The clock in force.
    static const Clock& current();

    virtual ~Clock() = default;

    virtual QDateTime now() const;
    /// Milliseconds that a started timer has run.
    virtual qint64 elapsed(const QElapsedTimer& timer) const;

    QDate today() const { return now().date(); }
    QTime timeOfDay() const { return now().time(); }
    qint64 msecsSinceEpoch() const { return now().toMSecsSinceEpoch(); }

protected:
    Clock() = default;
    Q_DISABLE_COPY(Clock)

    /// Puts a clock in force and returns the one it takes the place of.
    static const Clock* install(const Clock* clock);
};

} // namespace trel::mediadispatch
