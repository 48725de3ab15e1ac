#pragma once

#include "service/ScheduleRecords.h"

#include <QString>
#include <QTime>

#include <string>

namespace trel::mediadispatch {

struct ProgramSuffixes;

/// What the row of a plan shows, whether its cells and editors are there or not.
struct PlanRowState
{
    /// What a new row shows of a plan. Asks the service for the names of its programs, and whether
    /// each has a length. What a row cannot show is corrected here and not in the plan.
    explicit PlanRowState(const PlayPlan& plan);
    /// The same for one of many, with the words that may follow the names.
    PlanRowState(const PlayPlan& plan, const ProgramSuffixes& suffixes);

    /// Corrects in a plan what its row cannot show: with a program that has no length of its own it
    /// goes to TimeMode, and days left empty become every day.
    void correct(PlayPlan& plan) const;

    int planId;
    QString programs;  ///< Their names, uncut.
    bool isModeLocked; ///< A program has no length of its own.
    int mode;
    QTime startTime;
    QTime endTime;
    int times;
    std::string weeks;
    int endAction;
    bool collides = false; ///< With an earlier plan.
};

} // namespace trel::mediadispatch
