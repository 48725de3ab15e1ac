#pragma once

#include "EditorKeys.h"

#include <QList>
#include <QObject>
#include <QPointer>

class PlanList;
class QModelIndex;
class QScrollArea;
class QTableView;

namespace trel::mediadispatch {

class PlanTaskWidget;

/// The keys of the panel, which work while the focus is anywhere in it: those of its own buttons,
/// and those of the card and the row that the focus is in. Each does what a click on its button
/// does, and nothing where there is no such card or row or the button is disabled.
///
/// The bar of a card takes no part in the order of Tab, but may have the focus all the same: that
/// is how a card is reached that is folded. The bar under the focus folds on Space.
///
/// Buttons raise prompts, and so does the field that loses the focus: card, list and panel may go
/// meanwhile, and this with the panel. What is left of the key's work is dropped then.
///
/// Panel and scroll area have to live as long as this does.
class CardKeyboard : public QObject
{
    Q_OBJECT

public:
    CardKeyboard(QWidget& panel, PlanList& list, QScrollArea& area);

private:
    template <typename Run>
    void add(EditorKey key, Run run);
    void addPanelKeys();
    void addCardKeys();
    void addPlanKeys();

    /// From top to bottom; none once the list has gone.
    QList<PlanTaskWidget*> cards() const;
    PlanTaskWidget* currentCard() const;
    QModelIndex currentCell() const;

    void goToNextCard();
    void goToPreviousCard();
    void goToAddedCard(int formerCount);
    void fold();
    void addTask();
    void copyTask();
    void deleteTask();
    void addPlan();
    void copyPlan();
    void deletePlan();
    void choosePrograms();

    void focusBar(const PlanTaskWidget& card);
    void giveFocus(QWidget& field);
    /// Gives the focus to the editor in a cell, or to the next one in its row that takes it.
    void focusCell(const QTableView& table, int row, int column);
    /// A deleted widget takes the focus with it, and without a focus no key works.
    void keepFocusInPanel();

    QWidget& m_panel;
    QPointer<PlanList> m_list;
    QScrollArea& m_area;
};

} // namespace trel::mediadispatch
