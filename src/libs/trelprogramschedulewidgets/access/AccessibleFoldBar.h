#pragma once

#include "access/AccessibleButton.h"

namespace trel::mediadispatch {

/// The bar over a card, with which it is opened and folded. It takes the focus, though Tab passes
/// over it. The picture of the arrow on it is told by its state, and is no child.
class AccessibleFoldBar : public AccessibleButton
{
public:
    explicit AccessibleFoldBar(QPushButton& bar);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    int childCount() const override { return shownChildren().size(); }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    /// Those that say something.
    QList<QAccessibleInterface*> shownChildren() const;
};

} // namespace trel::mediadispatch
