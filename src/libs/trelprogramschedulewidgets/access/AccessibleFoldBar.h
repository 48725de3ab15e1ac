#pragma once

#include "access/AccessibleButton.h"

namespace trel::mediadispatch {

/// The bar over a card, with which it is opened and folded.
class AccessibleFoldBar : public AccessibleButton
{
public:
    explicit AccessibleFoldBar(QPushButton& bar);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
};

} // namespace trel::mediadispatch
