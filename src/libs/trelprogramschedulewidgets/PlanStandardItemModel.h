#pragma once

#include <QStandardItemModel>

namespace trel::mediadispatch {

/// The model of a plan table: a standard item model whose rows can be moved onto one another.
///
/// A move carries the number of its source row in the mime format "row". It reorders the rows of
/// the model and nothing else; a host that turns dragging on has to make the plans follow.
class PlanStandardItemModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit PlanStandardItemModel(QObject* parent = nullptr);

    /// The row of the first index stands for the drag. Null for an empty list.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    /// Moves the dragged row to the row of parent. Only a move onto an existing row counts: row
    /// and column, which tell a gap between rows, are not read.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::DropActions supportedDropActions() const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
};

} // namespace trel::mediadispatch
