#include "access/AccessibleButton.h"

#include <QPushButton>

namespace trel::mediadispatch {

AccessibleButton::AccessibleButton(QPushButton& button)
    : AccessibleEditor(button, QAccessible::Button)
{}

QStringList AccessibleButton::actionNames() const
{
    QStringList names;
    if (widget()->isEnabled()) {
        names << pressAction();
    }
    return names << AccessibleEditor::actionNames();
}

void AccessibleButton::doAction(const QString& action)
{
    if (action == pressAction()) {
        later([](QWidget& editor) { static_cast<QPushButton&>(editor).click(); });
    } else {
        AccessibleEditor::doAction(action);
    }
}

} // namespace trel::mediadispatch
