#pragma once

#include "week/moves/PlanMove.h"

#include <QCoreApplication>
#include <QStringList>

class QDate;
class QLocale;

namespace trel::desktop::week {

/// What the picture says of a move, in the language in use.
class MoveWords
{
    Q_DECLARE_TR_FUNCTIONS(MoveWords)

public:
    /// "Plan 3: Monday, Tuesday, 09:00 to 10:00".
    static QString moved(const trel::mediadispatch::PlayPlan& plan, const Programs& programs,
                         const QLocale& locale);
    /// "New plan in task 1: Monday, 09:00 to 10:00".
    static QString planned(int taskId, const trel::mediadispatch::PlayPlan& plan,
                           const Programs& programs, const QLocale& locale);
    /// Which of several tasks it is; empty for one.
    static QString ofSeveral(int tasks);
    /// Why a move leads to nothing.
    static QString refusal(MoveRefusal refusal);
    /// "Conflicts with plan 4, 09:30 to 12:00."; empty for no rows.
    static QString collisions(const trel::mediadispatch::PlayTask& task,
                              const std::vector<int>& rows, const Programs& programs);
    static QString noTask();
    static QString noPlan();
    /// "Copy the plans of Monday, 2024.03.04…", for a menu and for what it opens.
    static QString copyDay(const QDate& day, const QLocale& locale);
};

} // namespace trel::desktop::week
