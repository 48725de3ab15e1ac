#pragma once

#include "access/AccessibleTable.h"

#include <QVector>

namespace trel::mediadispatch {

/// The plan table of a card as a screen reader finds it: a row for each plan, and in it the
/// editors, from left to right. Captions are no cells: each names the column behind it. The table
/// of a card that has never been unfolded is empty.
class AccessiblePlanTable : public AccessibleTable
{
public:
    explicit AccessiblePlanTable(QTableView& table);
    ~AccessiblePlanTable() override;
    Q_DISABLE_COPY(AccessiblePlanTable)

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override;
    int rowCount() const override { return childCount(); }

private:
    mutable QVector<QAccessible::Id> m_rows; ///< Of those that were asked for, by their place.
};

} // namespace trel::mediadispatch
