#include "access/AccessibleDialog.h"

#include <QDialog>

namespace trel::mediadispatch {

AccessibleDialog::AccessibleDialog(QDialog& dialog)
    : QAccessibleWidget(&dialog, QAccessible::Dialog)
{}

QAccessible::State AccessibleDialog::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.modal = widget()->isModal();
    return state;
}

} // namespace trel::mediadispatch
