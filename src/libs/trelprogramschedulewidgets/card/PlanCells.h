#pragma once

#include <QModelIndex>

class QTableView;
class QWidget;

namespace trel::mediadispatch {

/// The cell that a widget lies in; invalid when it lies in none.
QModelIndex cellOf(const QTableView& table, const QWidget* inside);

} // namespace trel::mediadispatch
