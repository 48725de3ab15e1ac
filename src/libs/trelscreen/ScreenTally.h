#pragma once

#include "trelscreen/ScreenLog.h"

#include <QtGlobal>

#include <map>
#include <optional>
#include <vector>

namespace trel::screen {

/// What a screen has to say of itself in numbers. Takes the same room however long it counts.
class ScreenTally
{
public:
    ScreenTally();

    void note(const ScreenEvent& event);
    /// Whether the screen shows what the timeline has, from a moment on. Moments are milliseconds
    /// that never leap.
    void setOnTimeline(bool isOn, qint64 moment);

    /// Changes of the picture that came at their time.
    qint64 switches() const { return m_switches; }
    /// The lateness, in milliseconds, that so many percent of the switches do not exceed: exact
    /// below a second, and above rounded up to twice as much at most; 0 without a switch.
    qint64 lateness(int percent) const;
    qint64 worstLateness() const { return m_worstLateness; }

    qint64 speedCorrections() const { return m_speedCorrections; }
    qint64 seeks() const { return m_seeks; }
    qint64 leaps() const { return m_leaps; }
    /// How many were not ready when their time came.
    qint64 lates() const { return m_lates; }
    qint64 faults(DeckTrouble trouble) const;
    qint64 faults() const;
    /// The longest time without what the timeline has, in milliseconds; with the one that has not
    /// ended at a moment.
    qint64 longestOff(qint64 moment) const;

private:
    void countLateness(qint64 lateness);

    qint64 m_switches = 0;
    std::vector<qint64> m_lateness; ///< Counts of each millisecond, then of each doubling.
    qint64 m_worstLateness = 0;
    qint64 m_speedCorrections = 0;
    qint64 m_seeks = 0;
    qint64 m_leaps = 0;
    qint64 m_lates = 0;
    std::map<DeckTrouble, qint64> m_faults;
    std::optional<qint64> m_offSince;
    qint64 m_longestOff = 0;
};

} // namespace trel::screen
