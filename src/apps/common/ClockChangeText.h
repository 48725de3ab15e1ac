#pragma once

#include "trelprogramschedule/dispatch/ClockChanges.h"

#include <QCoreApplication>
#include <QString>

namespace trel::hosts {

/// What the programs say of a change of the clocks that touches a plan, in the same words: English,
/// or the language that a program has installed.
class ClockChangeText
{
    Q_DECLARE_TR_FUNCTIONS(ClockChangeText)

public:
    /// A sentence with its date, which is given as it may be shown.
    static QString sentence(const trel::mediadispatch::ClockChange& change, int taskId,
                            const trel::mediadispatch::TouchedPlan& plan, const QString& date);
    /// Such as "02:00:00", and "24:00:00" at the end of the day.
    static QString timeOfDay(int second);

private:
    /// The sentence for an effect, with places for the change (%1 to %3), the plan and its task
    /// (%4, %5), and where the effect has a time of day, for that (%6).
    static QString wordsFor(trel::mediadispatch::ClockChangeEffect effect);
};

} // namespace trel::hosts
