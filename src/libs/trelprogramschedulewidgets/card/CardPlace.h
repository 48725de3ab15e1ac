#pragma once

#include <QString>

namespace trel::mediadispatch {

class PlanTaskWidget;

/// What the operator has in hand of a card, to be found again when the card has been built anew:
/// whether it is folded, how far its table is scrolled, and the field that has the focus.
class CardPlace
{
public:
    explicit CardPlace(const PlanTaskWidget& card);

    bool isFolded() const { return m_isFolded; }

    /// Scrolls the table of another card of the task as far, and gives the focus to the same field.
    /// Where the row has gone, that is the one of the last row; where the field takes no focus, the
    /// bar of the card. The card has to be laid out, and folded as isFolded() tells.
    void restore(const PlanTaskWidget& card) const;

private:
    void giveFocus(const PlanTaskWidget& card) const;

    bool m_isFolded;
    int m_scrolled;
    bool m_hasFocus = false;
    int m_row = -1; ///< Of the field with the focus; -1 outside the table.
    int m_column = -1;
    QString m_field; ///< The name of a field outside the table.
};

} // namespace trel::mediadispatch
