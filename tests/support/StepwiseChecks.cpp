#include "support/StepwiseChecks.h"

namespace {

QString numberText(int number)
{
    return QString::number(number).rightJustified(2, QLatin1Char('0'));
}

} // namespace

StepwiseChecks::StepwiseChecks(int rowCount)
    : m_rows(static_cast<std::size_t>(rowCount))
{}

void StepwiseChecks::checkRow(int row, bool check)
{
    m_rows[static_cast<std::size_t>(row)].checked = check;
    updateOrder(row, check);
}

void StepwiseChecks::checkAll(bool check)
{
    if (check) {
        m_count = 0;
    }
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        checkRow(static_cast<int>(row), check);
    }
}

void StepwiseChecks::updateOrder(int row, bool check)
{
    const int count = m_count == -1 ? 0 : m_count;
    Row& changed = m_rows[static_cast<std::size_t>(row)];
    if (check) {
        m_count = count + 1;
        changed.number = numberText(m_count);
        m_places[row] = m_count;
        if (static_cast<int>(m_rows.size()) == m_count) {
            m_header = true;
        }
        return;
    }
    m_count = count - 1;
    const int oldNumber = changed.number.toInt();
    changed.number.clear();
    m_places.remove(row);
    for (std::size_t r = 0; r < m_rows.size(); ++r) {
        const int key = static_cast<int>(r);
        const int number = m_rows[r].number.toInt();
        if (m_rows[r].checked && number > oldNumber && m_places.contains(key) &&
            m_places[key] == number) {
            m_rows[r].number = numberText(number - 1);
            m_places[key] = number - 1;
        }
    }
    m_header = false;
}

QStringList StepwiseChecks::lines() const
{
    QStringList texts;
    for (const Row& row : m_rows) {
        texts.append(row.number + QLatin1String(row.checked ? "*" : ""));
    }
    return texts;
}
