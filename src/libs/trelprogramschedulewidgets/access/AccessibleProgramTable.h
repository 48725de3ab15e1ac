#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QVector>

class QTableView;

namespace trel::mediadispatch {

/// A table of the chooser as a screen reader finds it: the cells of the columns that are shown, row
/// by row, under the labels that the header paints.
class AccessibleProgramTable : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit AccessibleProgramTable(QTableView& table);
    ~AccessibleProgramTable() override;
    Q_DISABLE_COPY(AccessibleProgramTable)

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override { return shownColumns().size(); }
    int rowCount() const override;
    // Rows are checked, not selected.
    int selectedCellCount() const override { return 0; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int /*row*/) const override { return false; }
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

private:
    QTableView& table() const;
    QVector<int> shownColumns() const;

    mutable QHash<int, QAccessible::Id> m_cells; ///< Of those that were asked for, by their place.
};

} // namespace trel::mediadispatch
