#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <QTableView>

namespace trel::mediadispatch {

/// A cell in a table of the chooser, for screen readers. The mark of a row is a check box that is
/// named by the program, and says its place among the checked ones or in the plan; a play count is
/// a number from 1 to 999 that can be set; the others are their text. It stands for a place in the
/// table, and is not valid while there is nothing.
class AccessibleProgramCell : public QAccessibleInterface,
                              public QAccessibleActionInterface,
                              public QAccessibleTableCellInterface,
                              public QAccessibleValueInterface
{
public:
    AccessibleProgramCell(QTableView& table, int row, int column);

    int row() const { return m_row; }
    int column() const { return m_column; }
    bool isOf(const QTableView& table) const { return m_table == &table; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    int columnExtent() const override { return 1; }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    int columnIndex() const override;
    int rowExtent() const override { return 1; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int rowIndex() const override { return m_row; }
    bool isSelected() const override { return false; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override;
    /// Toggling does what a press on the mark does; the focus goes to the row.
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

    QVariant currentValue() const override;
    /// What is no number changes nothing, and one out of the range is brought into it.
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

private:
    QModelIndex cell(int column) const;
    bool isMark() const;
    bool isCount() const;
    bool canBeWorked() const;
    QString place() const;

    QPointer<QTableView> m_table;
    int m_row;
    int m_column;
};

} // namespace trel::mediadispatch
