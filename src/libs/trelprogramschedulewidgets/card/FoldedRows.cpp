#include "FoldedRows.h"

#include <utility>

namespace trel::mediadispatch {

FoldedRows::FoldedRows(std::size_t rows)
    : m_first(PlanRowTexts::NewRows)
{
    m_rows.reserve(rows);
}

int FoldedRows::add(PlanRowState row)
{
    m_rows.push_back(std::move(row));
    return static_cast<int>(m_rows.size()) - 1;
}

bool FoldedRows::isRow(int number) const
{
    return number >= 0 && static_cast<std::size_t>(number) < m_rows.size();
}

void FoldedRows::translate(const PlanRowTexts& texts)
{
    m_later = texts;
}

void FoldedRows::showStates(const std::unordered_set<int>& colliding,
                            const std::map<int, int>& planIdByRow)
{
    m_look = PlanStateLook();
    for (const auto& [row, planId] : planIdByRow) {
        if (isRow(row)) {
            m_rows[static_cast<std::size_t>(row)].collides = colliding.count(planId) > 0;
        }
    }
}

bool FoldedRows::setEndTime(int row, const QTime& time)
{
    if (!isRow(row) || !time.isValid()) {
        return false;
    }
    return std::exchange(m_rows[static_cast<std::size_t>(row)].endTime, time) != time;
}

} // namespace trel::mediadispatch
