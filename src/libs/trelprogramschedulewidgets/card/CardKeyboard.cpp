#include "CardKeyboard.h"

#include "CardFields.h"
#include "PlanCells.h"
#include "PlanColumns.h"
#include "PlanList.h"
#include "PlanTaskWidget.h"

#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTableView>

namespace trel::mediadispatch {

namespace {

/// A click, which a disabled button refuses by itself.
void press(const QWidget* where, const char* name)
{
    if (auto* const button = where->findChild<QPushButton*>(QLatin1String(name))) {
        button->click();
    }
}

/// The same for the button in a cell of the row that another cell is in.
void pressInRow(const QTableView& table, const QModelIndex& cell, PlanColumn column)
{
    const QWidget* const holder = table.indexWidget(cell.siblingAtColumn(column));
    auto* const button = holder ? holder->findChild<QPushButton*>() : nullptr;
    if (button) {
        button->click();
    }
}

} // namespace

CardKeyboard::CardKeyboard(QWidget& panel, PlanList& list, QScrollArea& area)
    : m_panel(panel)
    , m_list(&list)
    , m_area(area)
{
    addPanelKeys();
    addCardKeys();
    addPlanKeys();
    connect(&list, &PlanList::sigGetMapCount, this, &CardKeyboard::keepFocusInPanel);
}

template <typename Run>
void CardKeyboard::add(EditorKey key, Run run)
{
    const QList<QKeySequence> keys = keysOf(key);
    for (const QKeySequence& sequence : keys) {
        auto* const shortcut = new QShortcut(&m_panel);
        shortcut->setKey(sequence);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        // A key that is held down would go on to delete.
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, run] {
            if (!isBehindPrompt(*m_panel.window())) {
                run();
            }
        });
    }
}

void CardKeyboard::addPanelKeys()
{
    add(EditorKey::AddTask, [this] { addTask(); });
    add(EditorKey::Save, [this] { press(&m_panel, "pushButtonSave"); });
    add(EditorKey::Start, [this] { press(&m_panel, "pushButtonStart"); });
    add(EditorKey::Cancel, [this] { press(&m_panel, "pushButtonClose"); });
}

void CardKeyboard::addCardKeys()
{
    add(EditorKey::NextCard, [this] { goToNextCard(); });
    add(EditorKey::PreviousCard, [this] { goToPreviousCard(); });
    add(EditorKey::Fold, [this] { fold(); });
    add(EditorKey::CopyTask, [this] { copyTask(); });
    add(EditorKey::DeleteTask, [this] { deleteTask(); });
}

void CardKeyboard::addPlanKeys()
{
    add(EditorKey::AddPlan, [this] { addPlan(); });
    add(EditorKey::CopyPlan, [this] { copyPlan(); });
    add(EditorKey::DeletePlan, [this] { deletePlan(); });
    add(EditorKey::ChoosePrograms, [this] { choosePrograms(); });
}

QList<PlanTaskWidget*> CardKeyboard::cards() const
{
    return m_list ? m_list->cards() : QList<PlanTaskWidget*>();
}

PlanTaskWidget* CardKeyboard::currentCard() const
{
    QWidget* above = QApplication::focusWidget();
    while (above && above->parentWidget() != m_list) {
        above = above->parentWidget();
    }
    return qobject_cast<PlanTaskWidget*>(above);
}

QModelIndex CardKeyboard::currentCell() const
{
    const PlanTaskWidget* const card = currentCard();
    const QTableView* const table = card ? tableOf(*card) : nullptr;
    return table ? cellOf(*table, QApplication::focusWidget()) : QModelIndex();
}

void CardKeyboard::goToNextCard()
{
    const QList<PlanTaskWidget*> all = cards();
    // Before the first one when the focus is in no card.
    const int next = all.indexOf(currentCard()) + 1;
    if (next < all.size()) {
        focusBar(*all.at(next));
    }
}

void CardKeyboard::goToPreviousCard()
{
    const QList<PlanTaskWidget*> all = cards();
    PlanTaskWidget* const current = currentCard();
    if (!current) {
        return;
    }
    // From inside a card its own bar comes first.
    const bool isOnBar = barOf(*current)->hasFocus();
    const int previous = all.indexOf(current) - (isOnBar ? 1 : 0);
    if (previous >= 0) {
        focusBar(*all.at(previous));
    }
}

void CardKeyboard::fold()
{
    const QPointer<PlanTaskWidget> card = currentCard();
    if (!card) {
        return;
    }
    // First, as what is hidden cannot keep it.
    focusBar(*card);
    if (card) {
        barOf(*card)->click();
    }
}

void CardKeyboard::copyTask()
{
    const PlanTaskWidget* const card = currentCard();
    if (!card) {
        return;
    }
    const QPointer<CardKeyboard> self(this);
    const int count = cards().size();
    press(card, "pbtCreatCopy");
    if (self) {
        goToAddedCard(count);
    }
}

void CardKeyboard::addTask()
{
    const QPointer<CardKeyboard> self(this);
    const int count = cards().size();
    press(&m_panel, "pushButtonAddTask");
    if (self) {
        goToAddedCard(count);
    }
}

void CardKeyboard::goToAddedCard(int formerCount)
{
    const QList<PlanTaskWidget*> all = cards();
    if (all.size() > formerCount) {
        focusBar(*all.last());
    }
}

void CardKeyboard::deleteTask()
{
    const QPointer<PlanTaskWidget> card = currentCard();
    if (!card) {
        return;
    }
    const QPointer<CardKeyboard> self(this);
    const int index = cards().indexOf(card);
    press(card, "pushButtonDelete");
    if (card || !self) {
        return;
    }
    // What was answered meanwhile may have taken other cards along.
    const QList<PlanTaskWidget*> rest = cards();
    if (!rest.isEmpty()) {
        focusBar(*rest.at(qMin(index, rest.size() - 1)));
    }
}

void CardKeyboard::addPlan()
{
    const QPointer<PlanTaskWidget> card = currentCard();
    if (!card) {
        return;
    }
    card->setFolded(false);
    const QTableView* const table = tableOf(*card);
    const int rows = table->model()->rowCount();
    press(card, "pushButtonAdd");
    if (card && table->model()->rowCount() > rows) {
        focusCell(*table, rows, ModeColumn);
    }
}

void CardKeyboard::copyPlan()
{
    const QModelIndex cell = currentCell();
    if (!cell.isValid()) {
        return;
    }
    const QTableView* const table = tableOf(*currentCard());
    const int rows = table->model()->rowCount();
    const int column = cell.column();
    pressInRow(*table, cell, CopyColumn);
    if (table->model()->rowCount() > rows) {
        focusCell(*table, rows, column);
    }
}

void CardKeyboard::deletePlan()
{
    const QModelIndex cell = currentCell();
    if (!cell.isValid()) {
        return;
    }
    const QPointer<PlanTaskWidget> card = currentCard();
    const QTableView* const table = tableOf(*card);
    const int rows = table->model()->rowCount();
    const int row = cell.row();
    const int column = cell.column();
    pressInRow(*table, cell, DeleteColumn);
    if (!card || table->model()->rowCount() >= rows) {
        return;
    }
    if (rows == 1) {
        focusBar(*card);
    } else {
        focusCell(*table, qMin(row, table->model()->rowCount() - 1), column);
    }
}

void CardKeyboard::choosePrograms()
{
    const QModelIndex cell = currentCell();
    if (cell.isValid()) {
        pressInRow(*tableOf(*currentCard()), cell, ProgramsColumn);
    }
}

void CardKeyboard::focusBar(const PlanTaskWidget& card)
{
    giveFocus(*barOf(card));
}

void CardKeyboard::giveFocus(QWidget& field)
{
    const QPointer<CardKeyboard> self(this);
    const QPointer<QWidget> target(&field);
    field.setFocus(Qt::ShortcutFocusReason);
    if (self && target && m_area.isAncestorOf(target)) {
        m_area.ensureWidgetVisible(target);
    }
}

void CardKeyboard::focusCell(const QTableView& table, int row, int column)
{
    if (QWidget* const field = fieldNear(table, row, column)) {
        giveFocus(*field);
    }
}

void CardKeyboard::keepFocusInPanel()
{
    const QWidget* const window = m_panel.window();
    if (window->isActiveWindow() && !QApplication::focusWidget()) {
        m_area.setFocus();
    }
}

} // namespace trel::mediadispatch
