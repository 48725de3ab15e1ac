#include "CheckOrder.h"

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr int kNoneChecked = -1;

} // namespace

QString formatRowNumber(int number)
{
    const QString digits = QString::number(number);
    return number <= 9 ? QLatin1Char('0') + digits : digits;
}

std::vector<int> CheckOrder::rows() const
{
    QMap<int, int> rowByPlace;
    for (auto it = m_checkOrder.cbegin(); it != m_checkOrder.cend(); ++it) {
        rowByPlace.insert(it.value(), it.key());
    }
    return {rowByPlace.cbegin(), rowByPlace.cend()};
}

int CheckOrder::check(int row)
{
    m_checkedCount = std::max(m_checkedCount, 0) + 1;
    m_checkOrder[row] = m_checkedCount;
    return m_checkedCount;
}

std::vector<CheckedRow> CheckOrder::uncheck(int row)
{
    m_checkedCount = std::max(m_checkedCount, 0) - 1;
    const int oldPlace = m_checkOrder.take(row);

    std::vector<CheckedRow> moved;
    for (auto it = m_checkOrder.begin(); it != m_checkOrder.end(); ++it) {
        if (it.value() > oldPlace) {
            --it.value();
            moved.push_back({it.key(), it.value()});
        }
    }
    return moved;
}

void CheckOrder::checkAll(int rowCount)
{
    m_checkedCount = rowCount;
    m_checkOrder.clear();
    for (int row = 0; row < rowCount; ++row) {
        m_checkOrder.insert(m_checkOrder.cend(), row, row + 1);
    }
}

void CheckOrder::clearAll(int rowCount)
{
    if (rowCount == 0) {
        return;
    }
    m_checkedCount = std::max(std::max(m_checkedCount, 0) - rowCount, kNoneChecked);
    m_checkOrder.clear();
}

} // namespace trel::mediadispatch
