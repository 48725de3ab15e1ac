#pragma once

#include "catalogue/ProgramLookup.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace trel::desktop {

/// What is said of the plans that play a program, in the language in use.
class UseWords
{
    Q_DECLARE_TR_FUNCTIONS(UseWords)

public:
    /// "2024.01.01 – 2024.01.31", read from the left, as all that follows has it.
    static QString validity(const trel::mediadispatch::PlayTask& task);
    /// "08:00:00 – 09:00:00"
    static QString span(const trel::mediadispatch::PlayPlan& plan);
    /// The days of a plan by their names in the language: "every day", "Mon–Fri" or "Mon, Wed".
    static QString days(const trel::mediadispatch::PlayPlan& plan, const QLocale& locale);
    /// "Task 1 (2024.01.01 – 2024.01.31), plan 2, Mon, Wed 08:00:00 – 09:00:00"; rows count from 1.
    static QString plan(const trel::mediadispatch::ProgramUse& use,
                        const trel::mediadispatch::PlayTask& task, const QLocale& locale);
    /// When one of the programs is on screen next, as a sentence.
    static QString next(const LookupAnswer& answer);
    /// What a removal of the programs breaks, in lines; empty where it breaks nothing.
    static QStringList removal(const LookupAnswer& answer, const QLocale& locale);
};

} // namespace trel::desktop
