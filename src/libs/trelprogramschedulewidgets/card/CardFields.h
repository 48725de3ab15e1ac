#pragma once

class QPushButton;
class QTableView;
class QWidget;

namespace trel::mediadispatch {

class PlanTaskWidget;

/// The bar of a card, by which it folds; null while a card has none.
QPushButton* barOf(const PlanTaskWidget& card);
/// The plan table of a card.
QTableView* tableOf(const PlanTaskWidget& card);
/// The widget in a cell that Tab reaches and that can be worked now; null where there is none.
QWidget* fieldIn(const QTableView& table, int row, int column);
/// That one, or else the first such widget of the row; null where the row has none.
QWidget* fieldNear(const QTableView& table, int row, int column);

} // namespace trel::mediadispatch
