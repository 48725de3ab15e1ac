#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <QWidget>

namespace trel::desktop::access {

class SpokenParts;

/// One of the things that a widget paints, for screen readers. It stands for a place in their
/// order, and is not valid while there is nothing.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// The widget is one with parts; the interface may outlive it.
    AccessiblePart(QWidget& widget, int index);

    int index() const { return m_index; }
    bool isOf(const QWidget& widget) const { return m_widget == &widget; }

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
    /// Pressing does what a press on the part does, after the caller has its answer.
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    const SpokenParts* parts() const;

    QPointer<QWidget> m_widget;
    int m_index;
};

} // namespace trel::desktop::access
