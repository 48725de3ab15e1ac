#pragma once

#include "ChooserColumns.h"
#include "service/ScheduleRecords.h"

#include <QBrush>
#include <QList>
#include <QString>

#include <vector>

class QAbstractItemModel;
class QStandardItem;
class QStandardItemModel;

namespace trel::mediadispatch {

/// What a row of the chooser's right table is made of.
struct ChoiceRow
{
    int number = 0; ///< From 1; 0 leaves the cell empty, to be numbered with all the others.
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

/// The unchecked cells of a program on offer. The caller owns them.
QList<QStandardItem*> makeOfferCells(const QString& name);
/// The unchecked cells of a program of the plan. The caller owns them.
QList<QStandardItem*> makeChoiceCells(const ChoiceRow& row);

/// Appends rows of cells, all of one length, and tells the views of them once. The model owns the
/// cells from here on.
void appendRows(QStandardItemModel& model, const std::vector<QList<QStandardItem*>>& rows);

/// Whether a row of either table is checked.
bool isRowChecked(const QAbstractItemModel& model, int row);
void setRowChecked(QAbstractItemModel& model, int row, bool checked);
/// The checked rows, from the top.
std::vector<int> checkedRows(const QAbstractItemModel& model);
/// The number of checked rows.
int countCheckedRows(const QAbstractItemModel& model);

/// Reads a row of the right table: progIndex, name as it is shown, and play count. isInvalid is
/// false. A row that does not exist reads as index 0 and an empty name.
struProgInfo choiceAt(const QAbstractItemModel& model, int row);
/// As choiceAt, the numbers alone.
int choiceIndexAt(const QAbstractItemModel& model, int row);
int choiceCountAt(const QAbstractItemModel& model, int row);
/// Whether the row was added since the dialog opened.
bool isNewChoice(const QAbstractItemModel& model, int row);

/// Removes these rows, given from the top. A few go one by one; when they are many, the rows that
/// stay behind the first of them are taken out and put back, which tells the views of two changes
/// and ends the editing of a cell among them.
void removeRows(QStandardItemModel& model, const std::vector<int>& rows);
/// Removes the entries at these rows, given from the top. A row past the end is passed over.
void removeEntries(std::vector<struProgInfo>& entries, const std::vector<int>& rows);

/// The length of the whole right table in milliseconds: of each row the length of one play, times
/// its play count. The row being edited counts with the editor's count instead of its own, and for
/// nothing when that is 0 or less; -1 when no row is. Asks for the length once for each row.
double totalDuration(const QAbstractItemModel& model, int editedRow, int editedCount,
                     double (*length)(int progIndex));

} // namespace trel::mediadispatch
