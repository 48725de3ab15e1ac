#pragma once

#include "access/AccessibleEditor.h"
#include "access/AccessibleText.h"

class QComboBox;

namespace trel::mediadispatch {

/// A box of a card from which one entry is chosen, or several days. It is named by what it is for,
/// and its value is what is chosen, uncut, which is its text as well: not every bus carries the
/// value of a box. Its one child is its list, once that has been opened.
class AccessibleChoice : public AccessibleEditor, public AccessibleText
{
public:
    explicit AccessibleChoice(QComboBox& box);

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    using AccessibleText::text;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& action) override;

protected:
    QString shownText() const override;

private:
    QComboBox& box() const;
    QWidget* list() const;
};

} // namespace trel::mediadispatch
