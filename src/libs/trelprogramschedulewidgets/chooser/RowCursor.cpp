#include "RowCursor.h"

#include "CheckBoxDelegate.h"
#include "ChooserColumns.h"
#include "SHeaderView.h"
#include "access/SpokenNote.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTableView>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

bool isPlain(const QKeyEvent& key)
{
    return (key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == 0;
}

bool isWith(const QKeyEvent& key, Qt::KeyboardModifier modifier)
{
    return (key.modifiers() & ~Qt::KeypadModifier) == modifier;
}

/// Tells a screen reader that a check box has another mark.
void tellChecked(QAccessibleInterface& box)
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(&box, changed);
    QAccessible::updateAccessibility(&event);
}

bool isOneLetter(const QString& text)
{
    return text.size() == 1 && text.front().isPrint() && !text.front().isSpace();
}

} // namespace

RowCursor::RowCursor(QTableView& table, SHeaderView& header)
    : QWidget(&table)
    , m_table(table)
    , m_header(header)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(table.viewport()->geometry());
    table.viewport()->installEventFilter(this);
    // Otherwise Tab goes round in the cells of the table and never out of it.
    table.setTabKeyNavigation(false);
}

RowCursor* RowCursor::of(const QTableView& table)
{
    return table.findChild<RowCursor*>(QString(), Qt::FindDirectChildrenOnly);
}

// Rows come and go below the place that was last gone to.
int RowCursor::row() const
{
    return m_table.model() ? std::min(m_row, m_table.model()->rowCount() - 1) : -1;
}

void RowCursor::setRow(int row)
{
    place(row);
    scrollToRow();
    tellRow();
}

void RowCursor::place(int row)
{
    m_row = std::max(row, 0);
    m_row = std::max(this->row(), 0);
    update();
}

void RowCursor::scrollToRow()
{
    if (row() >= 0) {
        m_table.scrollTo(m_table.model()->index(row(), OfferNameColumn));
    }
}

bool RowCursor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        setGeometry(m_table.viewport()->geometry());
    } else if (event->type() == QEvent::MouseButtonPress) {
        const QModelIndex pressed = m_table.indexAt(static_cast<QMouseEvent*>(event)->pos());
        if (pressed.isValid() && pressed.row() != row()) {
            place(pressed.row());
            tellRow();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void RowCursor::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    if (!goByKey(*event) && !markByKey(*event) && !commandByKey(*event) &&
        !(isPlain(*event) && goToName(event->text()))) {
        passOn(*event);
    }
}

// Past the table: it would go to another cell of its own by the key, and scroll, with nothing that
// shows it and the row of the keys left out of sight.
void RowCursor::passOn(QKeyEvent& key) const
{
    QCoreApplication::sendEvent(m_table.parentWidget(), &key);
    key.accept();
}

bool RowCursor::goByKey(const QKeyEvent& key)
{
    if (!isPlain(key)) {
        return false;
    }
    switch (key.key()) {
    case Qt::Key_Up:
        setRow(row() - 1);
        return true;
    case Qt::Key_Down:
        setRow(row() + 1);
        return true;
    case Qt::Key_PageUp:
        setRow(row() - rowsOfPage());
        return true;
    case Qt::Key_PageDown:
        setRow(row() + rowsOfPage());
        return true;
    case Qt::Key_Home:
        setRow(0);
        return true;
    case Qt::Key_End:
        setRow(m_table.model()->rowCount() - 1);
        return true;
    default:
        return false;
    }
}

bool RowCursor::markByKey(const QKeyEvent& key)
{
    // Held down, it would leave the mark to chance.
    if (key.key() == Qt::Key_Space && isPlain(key)) {
        auto* const marks =
            qobject_cast<CheckBoxDelegate*>(m_table.itemDelegateForColumn(OfferCheckColumn));
        if (marks && row() >= 0 && !key.isAutoRepeat()) {
            marks->toggle(*m_table.model(), m_table.model()->index(row(), OfferCheckColumn));
        }
        return true;
    }
    if (key.key() == Qt::Key_A && isWith(key, Qt::ControlModifier)) {
        if (!key.isAutoRepeat()) {
            m_header.toggle();
        }
        return true;
    }
    return false;
}

bool RowCursor::commandByKey(const QKeyEvent& key)
{
    const bool isRaise = key.key() == Qt::Key_Up;
    if ((isRaise || key.key() == Qt::Key_Down) && isWith(key, Qt::AltModifier)) {
        emit commandGiven(isRaise ? RowCommand::Raise : RowCommand::Lower, QString());
        return true;
    }
    if (!isPlain(key)) {
        return false;
    }
    const bool isDigit = key.key() >= Qt::Key_1 && key.key() <= Qt::Key_9 &&
                         m_table.model()->columnCount() > ChoiceCountColumn;
    if (isDigit || key.key() == Qt::Key_F2) {
        emit commandGiven(RowCommand::Count, isDigit ? key.text() : QString());
        return true;
    }
    const bool isTake = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if ((isTake || key.key() == Qt::Key_Delete) && !key.isAutoRepeat()) {
        emit commandGiven(isTake ? RowCommand::Take : RowCommand::Drop, QString());
    }
    return isTake || key.key() == Qt::Key_Delete;
}

bool RowCursor::goToName(const QString& typed)
{
    if (!isOneLetter(typed) || row() < 0) {
        return false;
    }
    const QAbstractItemModel& model = *m_table.model();
    const int next = (row() + 1) % model.rowCount();
    const QModelIndexList found = model.match(model.index(next, OfferNameColumn), Qt::DisplayRole,
                                              typed, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    if (!found.isEmpty()) {
        setRow(found.front().row());
    }
    return true;
}

int RowCursor::rowsOfPage() const
{
    return std::max(1, height() / std::max(1, m_table.rowHeight(std::max(row(), 0))) - 1);
}

void RowCursor::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    scrollToRow();
    update();
    // The toolkit tells of the table when this has returned; the row comes after it.
    QMetaObject::invokeMethod(this, &RowCursor::tellRow, Qt::QueuedConnection);
}

void RowCursor::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void RowCursor::paintEvent(QPaintEvent* /*event*/)
{
    if (!hasFocus()) {
        return;
    }
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange;
    option.backgroundColor = palette().color(QPalette::Base);
    option.rect = frame();
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

/// Around the row; around all of the table while it has none.
QRect RowCursor::frame() const
{
    if (row() < 0) {
        return rect();
    }
    const int y = m_table.rowViewportPosition(row());
    return {0, y, width(), m_table.rowHeight(row())};
}

void RowCursor::tellRow() const
{
    if (!QAccessible::isActive() || !hasFocus()) {
        return;
    }
    if (QAccessibleInterface* const mark = markOf(row())) {
        QAccessibleEvent event(mark, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void RowCursor::tellMark(int row) const
{
    QAccessibleInterface* const mark = QAccessible::isActive() ? markOf(row) : nullptr;
    if (mark && m_tellsMarks) {
        tellChecked(*mark);
    }
}

void RowCursor::tellHeader()
{
    if (!m_tellsMarks || m_header.isChecked() == m_isHeaderTold) {
        return;
    }
    m_isHeaderTold = m_header.isChecked();
    const QAccessibleInterface* const table = QAccessible::isActive() ? spokenTable() : nullptr;
    // The headings are the first children of the table, and that of the marks the first of them.
    QAccessibleInterface* const mark = table ? table->child(OfferCheckColumn) : nullptr;
    if (mark) {
        tellChecked(*mark);
    }
}

void RowCursor::announce(int row) const
{
    QAccessibleInterface* const mark = QAccessible::isActive() ? markOf(row) : nullptr;
    if (mark) {
        QAccessibleEvent event(mark, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
        SpokenNote::say(*m_table.parentWidget(), *mark);
    }
}

QAccessibleInterface* RowCursor::spokenTable() const
{
    return QAccessible::queryAccessibleInterface(&m_table);
}

QAccessibleInterface* RowCursor::markOf(int row) const
{
    QAccessibleInterface* const table = spokenTable();
    const auto* const cells = table ? table->tableInterface() : nullptr;
    return cells ? cells->cellAt(row, OfferCheckColumn) : nullptr;
}

} // namespace trel::mediadispatch
