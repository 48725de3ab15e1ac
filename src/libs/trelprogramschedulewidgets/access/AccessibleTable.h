#pragma once

#include <QAccessibleWidget>

class QTableView;

namespace trel::mediadispatch {

/// A table of which nothing is selected: its rows are edited in place, or checked.
class AccessibleTable : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit AccessibleTable(QTableView& table);

    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
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
    /// What is handed out stands for a place, whatever the model has there.
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

protected:
    QTableView& table() const;
};

} // namespace trel::mediadispatch
