#pragma once

#include <QAccessibleInterface>
#include <QModelIndex>
#include <QPointer>

class QAbstractItemView;
class QWidget;

namespace trel::mediadispatch {

class MultiComboBox;

/// The box of days that a list belongs to; null for any other list.
MultiComboBox* boxOfDays(const QWidget& list);

/// An entry in the open list of a box of days: one that is checked or not, and nothing else.
class AccessibleDay : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleDay(QAbstractItemView& list, int number);

    int number() const { return m_number; }

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
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    /// Toggling does what a click on the entry does.
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    QModelIndex entry() const;

    QPointer<QAbstractItemView> m_list;
    int m_number;
};

} // namespace trel::mediadispatch
