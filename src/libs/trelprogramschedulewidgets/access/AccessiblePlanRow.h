#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <QTableView>
#include <QVector>

namespace trel::mediadispatch {

/// A row of a plan table, for screen readers: it is named by task and plan, and its children are
/// its editors. Its description says with which plan it collides. It is selected where the operator
/// was led to it. It stands for a place in the
/// table, whichever plan is there, and is not valid while there is none.
class AccessiblePlanRow : public QAccessibleInterface
{
public:
    AccessiblePlanRow(QTableView& table, int number);

    /// The columns that have an editor, of PlanColumn, in the order of the children.
    static const QVector<int>& columns();

    int number() const { return m_number; }
    bool isOf(const QTableView& table) const { return m_table == &table; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Row; }
    QAccessible::State state() const override;

private:
    QModelIndex cell(int column) const;

    QPointer<QTableView> m_table;
    int m_number;
};

} // namespace trel::mediadispatch
