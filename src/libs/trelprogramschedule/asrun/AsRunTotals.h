#pragma once

#include "trelprogramschedule/asrun/AsRunComparison.h"
#include "trelprogramschedule_export.h"

#include <QString>

#include <map>
#include <tuple>

namespace trel::mediadispatch {

/// What became of a program in a time; lengths in milliseconds.
struct AsRunTotal
{
    QString program; ///< The name that it had last.
    qint64 plannedTimes = 0;
    qint64 plannedLength = 0;
    /// How often and for how long it played on screen. A play that went on after a fault is one.
    qint64 shownTimes = 0;
    qint64 shownLength = 0;
    qint64 stoodInLength = 0; ///< For which another picture stood in its place.
    qint64 gapLength = 0;     ///< For which it was planned, and no player had the screen.
};

/// Adds up how often and how long each program was planned and on screen.
class TRELPROGRAMSCHEDULE_EXPORT AsRunTotals
{
public:
    /// The next stretch of a comparison that gives gaps by play.
    void add(const AsRunStretch& stretch);

    /// By index of the program.
    const std::map<int, AsRunTotal>& programs() const { return m_programs; }

private:
    using Play = std::tuple<int, int, int, int, int, qint64, qint64, Instant>;

    std::map<int, AsRunTotal> m_programs;
    Play m_planned = Play(-1, -1, -1, -1, -1, -1, -1, 0);
    Play m_shown = m_planned;
};

} // namespace trel::mediadispatch
