#pragma once

#include "service/ScheduleRecords.h"
#include "service/WeekDays.h"

#include <QString>

#include <array>
#include <string>

namespace trel::mediadispatch {

/// The words of plan rows, in the language that was selected when they were fetched. Many rows are
/// made with one set of them: to look up a text costs more than to show it.
struct PlanRowTexts
{
    /// Which rows the words are for. A title says whether its row has been through a change of
    /// language: it is set in by one blank more.
    enum Use {
        NewRows,
        RowsOnShow,
    };

    /// Fetches all of them.
    explicit PlanRowTexts(Use use);

    /// The title of a plan's row.
    QString title(int planId) const;
    /// The label of a day number; that of EveryDay for a number outside 0 to 7.
    const QString& day(int number) const;
    /// The labels of a `weeks` text, in its order, joined with commas.
    QString days(const std::string& weeks) const;

    QString plan;
    QString mode; ///< The captions, of which some name things in other places too.
    QString from;
    QString to;
    QString frequency;
    QString date;
    QString endAction;
    std::array<QString, 2> modes;      ///< By PlanMode.
    std::array<QString, 2> endActions; ///< By PlanEndAction.
    std::array<QString, WeekDayCount> weekDays;
    QString copy;
    QString remove;
    QString choosePrograms;

private:
    Use m_use;
};

} // namespace trel::mediadispatch
