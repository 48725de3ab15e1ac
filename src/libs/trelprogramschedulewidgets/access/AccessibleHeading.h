#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <QTableView>

namespace trel::mediadispatch {

class SHeaderView;

/// The heading of a column in a table of the chooser. That of the marks is a check box, which is
/// named by the table and checks all of its rows; the others are the labels that the header paints.
class AccessibleHeading : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleHeading(QTableView& table, int column);

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

    QStringList actionNames() const override;
    /// Toggling does what a press on the mark does.
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& action) const override;

private:
    SHeaderView* header() const;
    bool isMark() const;

    QPointer<QTableView> m_table;
    int m_column;
};

} // namespace trel::mediadispatch
