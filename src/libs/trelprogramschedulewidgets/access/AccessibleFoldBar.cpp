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

QAccessible::State AccessibleFoldBar::state() const
{
    QAccessible::State state = AccessibleButton::state();
    state.focusable = true;
    state.expandable = true;
    state.collapsed = isFolded(*widget());
    state.expanded = !state.collapsed;
    return state;
}

QStringList AccessibleFoldBar::actionNames() const
{
    return QStringList{pressAction(), setFocusAction()};
}

QAccessibleInterface* AccessibleFoldBar::child(int index) const
{
    return shownChildren().value(index);
}

int AccessibleFoldBar::indexOfChild(const QAccessibleInterface* child) const
{
    return shownChildren().indexOf(const_cast<QAccessibleInterface*>(child));
}

QList<QAccessibleInterface*> AccessibleFoldBar::shownChildren() const
{
    QList<QAccessibleInterface*> shown;
    const int count = AccessibleButton::childCount();
    for (int i = 0; i < count; ++i) {
        QAccessibleInterface* const child = AccessibleButton::child(i);
        const bool isPicture = child && child->role() == QAccessible::StaticText &&
                               child->text(QAccessible::Name).trimmed().isEmpty();
        if (child && !isPicture) {
            shown.append(child);
        }
    }
    return shown;
}

} // namespace trel::mediadispatch
