#include "CardFields.h"

#include "PlanColumns.h"
#include "PlanTaskWidget.h"

#include <QPushButton>
#include <QTableView>

namespace trel::mediadispatch {

QPushButton* barOf(const PlanTaskWidget& card)
{
    return card.findChild<QPushButton*>(QStringLiteral("title"));
}

QTableView* tableOf(const PlanTaskWidget& card)
{
    return card.findChild<QTableView*>(QStringLiteral("schedule"));
}

QWidget* fieldIn(const QTableView& table, int row, int column)
{
    const QWidget* const holder = table.indexWidget(table.model()->index(row, column));
    if (!holder) {
        return nullptr;
    }
    const auto widgets = holder->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* const widget : widgets) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            return widget;
        }
    }
    return nullptr;
}

QWidget* fieldNear(const QTableView& table, int row, int column)
{
    QWidget* field = fieldIn(table, row, column);
    for (int other = ModeColumn; !field && other <= EndActionColumn; ++other) {
        field = fieldIn(table, row, other);
    }
    return field;
}

} // namespace trel::mediadispatch
