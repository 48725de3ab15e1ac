#include "access/AccessibleFoldBar.h"

#include "PlanTaskWidget.h"

#include <QPushButton>

namespace trel::mediadispatch {

namespace {

bool isFolded(const QWidget& bar)
{
    const QWidget* above = bar.parentWidget();
    while (above && !qobject_cast<const PlanTaskWidget*>(above)) {
        above = above->parentWidget();
    }
    return above && static_cast<const PlanTaskWidget*>(above)->isFolded();
}

} // namespace

AccessibleFoldBar::AccessibleFoldBar(QPushButton& bar)
    : AccessibleButton(bar)
{}

// The blanks at the end of what is shown keep the arrow off it.
QString AccessibleFoldBar::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? static_cast<QPushButton*>(object())->text().trimmed()
                                     : AccessibleButton::text(kind);
}

QAccessible::State AccessibleFoldBar::state() const
{
    QAccessible::State state = AccessibleButton::state();
    state.expandable = true;
    state.collapsed = isFolded(*widget());
    state.expanded = !state.collapsed;
    return state;
}

} // namespace trel::mediadispatch
