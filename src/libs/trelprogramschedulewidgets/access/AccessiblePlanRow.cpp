#include "access/AccessiblePlanRow.h"

#include "access/CollisionText.h"
#include "card/PlanCells.h"
#include "card/PlanColumns.h"

#include <QStringBuilder>

namespace trel::mediadispatch {

AccessiblePlanRow::AccessiblePlanRow(QTableView& table, int number)
    : m_table(&table)
    , m_number(number)
{}

const QVector<int>& AccessiblePlanRow::columns()
{
    static const QVector<int> columns{ProgramsColumn, ModeColumn,  StartTimeColumn, EndTimeColumn,
                                      TimesColumn,    WeeksColumn, EndActionColumn, StateColumn,
                                      CopyColumn,     DeleteColumn};
    return columns;
}

bool AccessiblePlanRow::isValid() const
{
    return m_table && cell(TitleColumn).isValid();
}

QAccessibleInterface* AccessiblePlanRow::parent() const
{
    return m_table ? QAccessible::queryAccessibleInterface(m_table) : nullptr;
}

int AccessiblePlanRow::childCount() const
{
    return isValid() ? columns().size() : 0;
}

QAccessibleInterface* AccessiblePlanRow::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    QWidget* const editor = editorIn(*m_table, cell(columns().at(index)));
    return editor ? QAccessible::queryAccessibleInterface(editor) : nullptr;
}

int AccessiblePlanRow::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* const editor = child ? qobject_cast<const QWidget*>(child->object()) : nullptr;
    const QModelIndex place = editor && isValid() ? cellOf(*m_table, editor) : QModelIndex();
    return place.isValid() && place.row() == m_number ? columns().indexOf(place.column()) : -1;
}

QAccessibleInterface* AccessiblePlanRow::childAt(int x, int y) const
{
    for (int index = 0; index < childCount(); ++index) {
        QAccessibleInterface* const editor = child(index);
        if (editor && editor->rect().contains(x, y)) {
            return editor;
        }
    }
    return nullptr;
}

QString AccessiblePlanRow::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Description && isValid()) {
        return collisionText(*m_table, cell(TitleColumn));
    }
    if (kind != QAccessible::Name || !isValid()) {
        return QString();
    }
    return m_table->accessibleName() % QLatin1String(", ") %
           cell(TitleColumn).data().toString().trimmed();
}

QRect AccessiblePlanRow::rect() const
{
    if (!isValid()) {
        return QRect();
    }
    const QRect all =
        m_table->visualRect(cell(TitleColumn)) | m_table->visualRect(cell(PlanColumnCount - 1));
    return QRect(m_table->viewport()->mapToGlobal(all.topLeft()), all.size());
}

QAccessible::State AccessiblePlanRow::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_table || !m_table->isVisible();
    state.disabled = !m_table || !m_table->isEnabled();
    state.selectable = isValid();
    state.selected = isValid() && m_table->selectionModel()->isRowSelected(m_number, QModelIndex());
    if (isValid() && !state.invisible) {
        const QRect row = m_table->visualRect(cell(TitleColumn));
        state.offscreen = !row.intersects(m_table->viewport()->rect());
    }
    return state;
}

QModelIndex AccessiblePlanRow::cell(int column) const
{
    return m_table && m_table->model() ? m_table->model()->index(m_number, column) : QModelIndex();
}

} // namespace trel::mediadispatch
