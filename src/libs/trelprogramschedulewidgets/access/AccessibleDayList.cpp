#include "access/AccessibleDayList.h"

#include "MultiComboBox.h"
#include "access/AccessibleDay.h"

#include <QAbstractItemView>

namespace trel::mediadispatch {

AccessibleDayList::AccessibleDayList(QAbstractItemView& list)
    : QAccessibleWidget(&list, QAccessible::List)
{}

AccessibleDayList::~AccessibleDayList()
{
    for (const QAccessible::Id day : qAsConst(m_days)) {
        if (day != 0) {
            QAccessible::deleteAccessibleInterface(day);
        }
    }
}

QAccessibleInterface* AccessibleDayList::parent() const
{
    MultiComboBox* const box = boxOfDays(*widget());
    return box ? QAccessible::queryAccessibleInterface(box) : nullptr;
}

int AccessibleDayList::childCount() const
{
    const MultiComboBox* const box = boxOfDays(*widget());
    return box ? box->count() : 0;
}

QAccessibleInterface* AccessibleDayList::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    if (m_days.size() <= index) {
        m_days.resize(index + 1);
    }
    QAccessible::Id& day = m_days[index];
    if (day == 0) {
        auto& list = *static_cast<QAbstractItemView*>(object());
        day = QAccessible::registerAccessibleInterface(new AccessibleDay(list, index));
    }
    return QAccessible::accessibleInterface(day);
}

int AccessibleDayList::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const day = dynamic_cast<const AccessibleDay*>(child);
    return day && day->parent() == this && day->isValid() ? day->number() : -1;
}

QAccessibleInterface* AccessibleDayList::childAt(int x, int y) const
{
    for (int index = 0; index < childCount(); ++index) {
        if (child(index)->rect().contains(x, y)) {
            return child(index);
        }
    }
    return nullptr;
}

QString AccessibleDayList::text(QAccessible::Text kind) const
{
    const QAccessibleInterface* const box = parent();
    return kind == QAccessible::Name && box ? box->text(kind) : QAccessibleWidget::text(kind);
}

} // namespace trel::mediadispatch
