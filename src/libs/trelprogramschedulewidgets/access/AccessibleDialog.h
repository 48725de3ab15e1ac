#pragma once

#include <QAccessibleWidget>

class QDialog;

namespace trel::mediadispatch {

/// A window that says whether the others wait for it, which the toolkit leaves unsaid.
class AccessibleDialog : public QAccessibleWidget
{
public:
    explicit AccessibleDialog(QDialog& dialog);

    QAccessible::State state() const override;
};

} // namespace trel::mediadispatch
