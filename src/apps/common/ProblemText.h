#pragma once

#include "trelprogramschedule/problems/ScheduleProblem.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>

namespace trel::hosts {

/// What the programs say of what is wrong with a schedule, in the same words: English, or the
/// language that a program has installed. Dates stand as the editor writes them.
class ProblemText
{
    Q_DECLARE_TR_FUNCTIONS(ProblemText)

public:
    /// The place, such as "Task 3, row 2".
    static QString place(const trel::mediadispatch::ScheduleProblem& problem);
    /// The first day on which it shows; empty where there is none.
    static QString date(const trel::mediadispatch::ScheduleProblem& problem);
    /// What is wrong, as a sentence; the locale has the names of the days.
    static QString wrong(const trel::mediadispatch::ScheduleProblem& problem,
                         const QLocale& locale);
    /// What to do about it, as a sentence.
    static QString remedy(const trel::mediadispatch::ScheduleProblem& problem);

private:
    static QString wrongEntry(const trel::mediadispatch::ScheduleProblem& problem);
    static QString wrongTime(const trel::mediadispatch::ScheduleProblem& problem,
                             const QLocale& locale);
};

} // namespace trel::hosts
