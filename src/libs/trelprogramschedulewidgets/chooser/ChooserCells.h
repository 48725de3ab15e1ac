#pragma once

#include "service/ScheduleRecords.h"

#include <QBrush>
#include <QString>

#include <vector>

class QStandardItemModel;

namespace trel::mediadispatch {

/// What a row of the chooser's right table is made of.
struct ChoiceRow
{
    int number = 0; ///< From 1.
    QString name;
    QString toolTip;
    QBrush foreground; ///< Of the name; the one of the view when it has no style.
    int playCount = 1;
    int progIndex = -1;
    bool isNew = false; ///< Added since the dialog opened.
};

/// The row of an entry that the plan holds already, with its name for a tool tip, but without a
/// number: under its own name in red when it has gone bad, else under the name that the program has
/// now; when that no longer exists, with the suffix and in yellow.
ChoiceRow choiceRowOf(const struProgInfo& entry, ProgramIten (*lookup)(int progIndex),
                      const QString& nullSuffix);
/// The row of a program that is being added, with this number and no tool tip.
ChoiceRow addedRowOf(const struProgInfo& program, int number);

/// Appends an unchecked row to the left table for each program, and tells the views of them once.
void appendOffers(QStandardItemModel& model, const std::vector<struProgInfo>& programs);
/// Appends unchecked rows to the right table, and tells the views of them once.
void appendChoices(QStandardItemModel& model, const std::vector<ChoiceRow>& rows);

/// Removes these rows, given from the top, first to last. They go one by one, and the views are
/// told of each; where that would take longer than about a tenth of a second, neighbours go at
/// once. Rows that stay are not touched: an editor that is open in one of them stays open.
void removeRows(QStandardItemModel& model, const std::vector<int>& rows);

} // namespace trel::mediadispatch
