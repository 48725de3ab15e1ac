#pragma once

#include "ConflictPass.h"
#include "PlanRowState.h"
#include "PlanRowTexts.h"

#include <map>
#include <optional>
#include <unordered_set>
#include <vector>

namespace trel::mediadispatch {

/// The rows of a card whose table is still to be built. They follow all that reaches the card as
/// cells and editors would, so that a table that is built from them shows what one shows that was
/// there from the start, in the same words.
class FoldedRows
{
public:
    /// For about so many rows. Their words are those of the moment.
    explicit FoldedRows(std::size_t rows);

    /// Adds a row below the others and returns its number.
    int add(PlanRowState row);
    bool isRow(int number) const;
    const std::vector<PlanRowState>& rows() const { return m_rows; }

    /// Takes other words, as rows on show do. A day box keeps the text of its selection in the
    /// language in which the row was made.
    void translate(const PlanRowTexts& texts);
    /// Shows in each row whether the plan that it was given collides with an earlier one, in the
    /// words of the moment.
    void showStates(const std::unordered_set<int>& colliding,
                    const std::map<int, int>& planIdByRow);
    /// Shows an end. True when the row showed another one: its editor would now tell of a change. A
    /// time that is not valid changes nothing.
    bool setEndTime(int row, const QTime& time);

    /// The words in which the rows were made.
    const PlanRowTexts& firstTexts() const { return m_first; }
    /// Those that came in their place, if any did.
    const std::optional<PlanRowTexts>& laterTexts() const { return m_later; }
    /// What the rows show of their states.
    const PlanStateLook& stateLook() const { return m_look; }

private:
    std::vector<PlanRowState> m_rows;
    PlanRowTexts m_first;
    std::optional<PlanRowTexts> m_later;
    PlanStateLook m_look;
};

} // namespace trel::mediadispatch
