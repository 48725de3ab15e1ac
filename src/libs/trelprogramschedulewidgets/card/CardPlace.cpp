#include "CardPlace.h"

#include "CardFields.h"
#include "PlanCells.h"
#include "PlanTaskWidget.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>

namespace trel::mediadispatch {

CardPlace::CardPlace(const PlanTaskWidget& card)
    : m_isFolded(card.isFolded())
    , m_scrolled(tableOf(card)->verticalScrollBar()->value())
{
    // That of the window, which has it again when the window does.
    const QWidget* const field = card.window()->focusWidget();
    m_hasFocus = field && card.isAncestorOf(field);
    if (m_hasFocus) {
        const QModelIndex cell = cellOf(*tableOf(card), field);
        m_row = cell.row();
        m_column = cell.column();
        m_field = field->objectName();
    }
}

void CardPlace::restore(const PlanTaskWidget& card) const
{
    tableOf(card)->verticalScrollBar()->setValue(m_scrolled);
    if (m_hasFocus) {
        giveFocus(card);
    }
}

void CardPlace::giveFocus(const PlanTaskWidget& card) const
{
    const QTableView& table = *tableOf(card);
    QWidget* field = nullptr;
    if (m_row >= 0) {
        // A folded card has no rows yet, and is not asked for them.
        field = m_isFolded
                    ? nullptr
                    : fieldIn(table, std::min(m_row, table.model()->rowCount() - 1), m_column);
    } else if (!m_field.isEmpty()) {
        field = card.findChild<QWidget*>(m_field);
    }
    if (!field) {
        field = barOf(card);
    }
    field->setFocus(Qt::OtherFocusReason);
}

} // namespace trel::mediadispatch
