#pragma once

#include "ChooserColumns.h"
#include "service/ScheduleRecords.h"

#include <vector>

class QAbstractItemModel;

namespace trel::mediadispatch {

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

/// Removes the entries at these rows, given from the top. A row past the end is passed over.
void removeEntries(std::vector<struProgInfo>& entries, const std::vector<int>& rows);

/// Where the rows to move, given from the top and at least one, are put in again to move by one
/// place in a table of this size. At the ends of the table they stay where they are.
int moveTarget(const std::vector<int>& rows, bool up, int rowCount);

/// The length of the whole right table in milliseconds: of each row the length of one play, times
/// its play count. The row being edited counts with the editor's count instead of its own, and for
/// nothing when that is 0 or less; -1 when no row is. Asks for the length once for each row.
double totalDuration(const QAbstractItemModel& model, int editedRow, int editedCount,
                     double (*length)(int progIndex));

} // namespace trel::mediadispatch
