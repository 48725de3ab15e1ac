#pragma once

#include "access/AccessibleTable.h"

#include <QHash>
#include <QVector>

namespace trel::mediadispatch {

/// A table of the chooser as a screen reader finds it: the headings of the columns that are shown,
/// then their cells row by row. It has the focus in the mark of the row that the keys act on.
class AccessibleProgramTable : public AccessibleTable
{
public:
    explicit AccessibleProgramTable(QTableView& table);
    ~AccessibleProgramTable() override;
    Q_DISABLE_COPY(AccessibleProgramTable)

    int childCount() const override { return (rowCount() + 1) * columnCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override { return shownColumns().size(); }
    int rowCount() const override;

    /// The heading over a column of those that are shown; null where there is none.
    QAccessibleInterface* heading(int column) const;

private:
    QVector<int> shownColumns() const;

    mutable QHash<int, QAccessible::Id> m_cells; ///< Of those that were asked for, by their place.
    mutable QHash<int, QAccessible::Id> m_headings; ///< By their columns.
};

} // namespace trel::mediadispatch
