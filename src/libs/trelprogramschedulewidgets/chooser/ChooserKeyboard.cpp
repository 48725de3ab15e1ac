#include "ChooserKeyboard.h"

#include "CheckBoxDelegate.h"
#include "ChooserForm.h"
#include "ChooserRows.h"
#include "RowCursor.h"
#include "SHeaderView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSpinBox>

namespace trel::mediadispatch {

namespace {

/// Presses a button for the checked rows, or for the row of the cursor when none is checked: its
/// mark is set meanwhile, and taken away where the row is still there. Where it has gone, the mark
/// of the header stays what it was: the last row would leave it set over an empty table.
void pressForRows(RowCursor& cursor, QPushButton& button, bool isRowKept)
{
    QTableView& table = cursor.table();
    auto* const marks =
        qobject_cast<CheckBoxDelegate*>(table.itemDelegateForColumn(ChoiceCheckColumn));
    const int row = cursor.row();
    const bool isByMark = countCheckedRows(*table.model()) > 0;
    if (row < 0 || !marks || isByMark) {
        button.click();
        return;
    }
    auto* const header = qobject_cast<SHeaderView*>(table.horizontalHeader());
    const bool areAllChecked = header && header->isChecked();
    const QPersistentModelIndex mark = table.model()->index(row, ChoiceCheckColumn);
    cursor.setTellsMarks(false);
    marks->toggle(*table.model(), mark);
    button.click();
    if (isRowKept) {
        marks->toggle(*table.model(), mark);
    } else if (header && !mark.isValid()) {
        header->setChecked(areAllChecked);
    }
    cursor.setTellsMarks(true);
}

} // namespace

ChooserKeyboard::ChooserKeyboard(ChooserForm& form, SHeaderView& offers, SHeaderView& choices)
    : m_form(form)
    , m_offers(*new RowCursor(*form.tableViewProgramList, offers))
    , m_choices(*new RowCursor(*form.tableViewChoonse, choices))
{
    connect(&m_offers, &RowCursor::commandGiven, this,
            [this](RowCommand command) { workOffers(command); });
    connect(&m_choices, &RowCursor::commandGiven, this, &ChooserKeyboard::workChoices);
    // The view has put the editor away by then.
    connect(form.tableViewChoonse->itemDelegateForColumn(ChoiceCountColumn),
            &QAbstractItemDelegate::closeEditor, this, &ChooserKeyboard::comeBack);
    orderTabs();
}

void ChooserKeyboard::begin()
{
    m_offers.setFocus();
}

void ChooserKeyboard::follow(int row)
{
    m_choices.setRow(row);
}

void ChooserKeyboard::workOffers(RowCommand command)
{
    if (command == RowCommand::Take) {
        pressForRows(m_offers, *m_form.pushButtonChonse, true);
    }
}

void ChooserKeyboard::workChoices(RowCommand command, const QString& typed)
{
    const int row = m_choices.row();
    if (row < 0) {
        return;
    }
    switch (command) {
    case RowCommand::Take:
    case RowCommand::Count:
        openCount(typed);
        break;
    case RowCommand::Drop:
        pressForRows(m_choices, *m_form.pushButtonDelete, false);
        m_choices.setRow(m_choices.row());
        break;
    case RowCommand::Raise:
    case RowCommand::Lower:
        emit moveWanted(row, command == RowCommand::Raise);
        break;
    }
}

void ChooserKeyboard::openCount(const QString& typed)
{
    QTableView& table = *m_form.tableViewChoonse;
    const QModelIndex cell = table.model()->index(m_choices.row(), ChoiceCountColumn);
    // A box opens where its cell is, in sight or not.
    table.scrollTo(cell);
    table.edit(cell);
    auto* const box = qobject_cast<QSpinBox*>(table.indexWidget(cell));
    if (box && !typed.isEmpty()) {
        box->setValue(typed.toInt());
        // What is typed next stands behind it.
        QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
        QApplication::sendEvent(box, &end);
    }
}

// The table takes no focus when its editor closes, and without one no key works.
void ChooserKeyboard::comeBack()
{
    if (!m_choices.window()->focusWidget()) {
        m_choices.setFocus();
    }
}

void ChooserKeyboard::orderTabs()
{
    QWidget* last = &m_offers;
    for (QWidget* const next : std::initializer_list<QWidget*>{
             m_form.pushButtonChonse, m_form.UpBtn, m_form.DownBtn, m_form.pushButtonDelete,
             &m_choices, m_form.cancelBtn, m_form.okBtn}) {
        QWidget::setTabOrder(last, next);
        last = next;
    }
}

} // namespace trel::mediadispatch
