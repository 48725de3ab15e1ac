#pragma once

#include "service/ScheduleRecords.h"

#include <QList>

class QLabel;
class QStandardItem;
class QTableView;
class QWidget;

namespace bench {

/// Whether the boxes for days have the lists that they open. The editor makes each of them when it
/// is first opened; an ordinary box has its list from the start.
enum class DayLists { Made, NotMade };

/// The cells of a plan's row, with the same texts as in a card.
QList<QStandardItem*> makePlainCells(const trel::mediadispatch::PlayPlan& plan);

/// Puts the same widgets into a row as a card does, each made once and for good, and returns the
/// label of the state. Nothing is connected and nothing is looked up. owner is the parent that they
/// are made with: the viewport that they end up in costs least.
QLabel* addPlainEditors(QTableView& table, int row, const trel::mediadispatch::PlayPlan& plan,
                        QWidget* owner, DayLists dayLists = DayLists::Made);

/// The field that shows the names of the plan's programs.
QWidget* makePlainField(const trel::mediadispatch::PlayPlan& plan, QWidget* parent);

} // namespace bench
