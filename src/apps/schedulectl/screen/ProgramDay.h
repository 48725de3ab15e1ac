#pragma once

#include "trelprogramschedule/dispatch/ProgramVerdict.h"

#include <QDate>
#include <QString>

#include <vector>

namespace trel::console {

class StoredScreen;

/// A program through a local day: when it is on screen, and what keeps the other plans that hold it
/// from showing it.
struct ProgramDay
{
    /// The plays of one plan while it keeps the screen.
    struct Stretch
    {
        trel::mediadispatch::Instant from = 0; ///< Of the first play, or of the day.
        trel::mediadispatch::Instant to = 0;   ///< Of the last one; not beyond the day.
        int plays = 0;
        int taskId = -1;
        int planId = -1;
        int planRow = -1;
        bool isInserted = false; ///< An insertion for that plan.
        /// When the plan loses the screen.
        trel::mediadispatch::Instant spanUntil = 0;
    };
    /// What there is to say about a plan that never shows the program on this day.
    struct Reason
    {
        /// When it was judged: at the start of its span, or at that of the day, where the rule
        /// holds for the whole day.
        trel::mediadispatch::Instant moment = 0;
        bool isForTheDay = false;
        trel::mediadispatch::ScreenState screen; ///< At that moment.
        trel::mediadispatch::PlanVerdict verdict;
    };

    int progIndex = -1;
    QString name; ///< As the catalogue or, failing that, a plan has it.
    QDate date;
    trel::mediadispatch::Instant from = 0; ///< Its first instant.
    bool isInAnyPlan = false;
    std::vector<Stretch> stretches; ///< In the order of time.
    std::vector<Reason> reasons;    ///< In the order of tasks and rows.
};

/// Looks at a day. Costs a step for each play, and a verdict for each plan that holds the program
/// and whose task is in effect.
ProgramDay programDay(const StoredScreen& screen, int progIndex, const QString& name,
                      const QDate& date);

} // namespace trel::console
