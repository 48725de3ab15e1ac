#include "access/AccessibleEditor.h"

#include "PlanStandardItemModel.h"
#include "access/AccessiblePlanTable.h"
#include "access/CollisionText.h"
#include "card/PlanCells.h"
#include "card/PlanColumns.h"

#include <QLabel>
#include <QPushButton>
#include <QStringBuilder>
#include <QTableView>

#include <utility>

namespace trel::mediadispatch {

QTableView* planTableAbove(const QWidget& widget)
{
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        auto* const table = qobject_cast<QTableView*>(above);
        if (table && qobject_cast<PlanStandardItemModel*>(table->model())) {
            return table;
        }
    }
    return nullptr;
}

AccessibleEditor::AccessibleEditor(QWidget& editor, QAccessible::Role role)
    : QAccessibleWidget(&editor, role)
{}

QAccessibleInterface* AccessibleEditor::parent() const
{
    QTableView* const table = planTableAbove(*widget());
    if (table) {
        auto* const rows =
            dynamic_cast<AccessiblePlanTable*>(QAccessible::queryAccessibleInterface(table));
        const QModelIndex cell = cellOf(*table, widget());
        if (rows && cell.isValid()) {
            return rows->child(cell.row());
        }
    }
    return QAccessibleWidget::parent();
}

QString AccessibleEditor::text(QAccessible::Text kind) const
{
    const QTableView* const table = planTableAbove(*widget());
    if (table && kind == QAccessible::Description && role() == QAccessible::StaticText) {
        return collisionText(*table, cellOf(*table, widget()));
    }
    if (!table || kind != QAccessible::Name) {
        return QAccessibleWidget::text(kind);
    }
    QString name = widget()->accessibleName();
    if (const auto* const label = qobject_cast<const QLabel*>(widget())) {
        const QModelIndex cell = cellOf(*table, label).siblingAtColumn(TitleColumn);
        name = cell.data().toString().trimmed() % QLatin1Char(' ') % label->text();
    }
    const auto* const button = qobject_cast<const QPushButton*>(widget());
    if (button && name.isEmpty()) {
        name = button->text().trimmed();
    }
    return table->accessibleName() % QLatin1String(", ") % name;
}

void AccessibleEditor::later(std::function<void(QWidget&)> work) const
{
    QWidget* const editor = widget();
    QMetaObject::invokeMethod(
        editor,
        [editor, work = std::move(work)] {
            if (editor->isEnabled() && editor->isVisible() && !isBehindPrompt(*editor->window())) {
                work(*editor);
            }
        },
        Qt::QueuedConnection);
}

} // namespace trel::mediadispatch
