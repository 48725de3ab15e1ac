#pragma once

#include <QAccessibleWidget>
#include <QVector>

class QTableView;

namespace trel::mediadispatch {

/// The plan table of a card as a screen reader finds it: a row for each plan, and in it the
/// editors, from left to right. Captions are no cells: each names the column behind it.
class AccessiblePlanTable : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit AccessiblePlanTable(QTableView& table);
    ~AccessiblePlanTable() override;
    Q_DISABLE_COPY(AccessiblePlanTable)

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override;
    int rowCount() const override { return childCount(); }
    // Nobody selects rows: they are edited in place.
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

    mutable QVector<QAccessible::Id> m_rows; ///< Of those that were asked for, by their place.
};

} // namespace trel::mediadispatch
