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

CheckOrder::CheckOrder(int& count, QMap<int, int>& places)
    : m_count(count)
    , m_places(places)
{}

std::vector<int> CheckOrder::rows() const
{
    QMap<int, int> rowByPlace;
    for (auto it = m_places.cbegin(); it != m_places.cend(); ++it) {
        rowByPlace.insert(it.value(), it.key());
    }
    return {rowByPlace.cbegin(), rowByPlace.cend()};
}

int CheckOrder::check(int row)
{
    m_count = std::max(m_count, 0) + 1;
    m_places[row] = m_count;
    return m_count;
}

std::vector<CheckedRow> CheckOrder::uncheck(int row)
{
    m_count = std::max(m_count, 0) - 1;
    const int oldPlace = m_places.take(row);

    std::vector<CheckedRow> moved;
    for (auto it = m_places.begin(); it != m_places.end(); ++it) {
        if (it.value() > oldPlace) {
            --it.value();
            moved.push_back({it.key(), it.value()});
        }
    }
    return moved;
}

void CheckOrder::checkAll(int rowCount)
{
    m_count = rowCount;
    m_places.clear();
    for (int row = 0; row < rowCount; ++row) {
        m_places.insert(m_places.cend(), row, row + 1);
    }
}

void CheckOrder::clearAll(int rowCount)
{
    if (rowCount == 0) {
        return;
    }
    m_count = std::max(std::max(m_count, 0) - rowCount, kNoneChecked);
    m_places.clear();
}

} // namespace trel::mediadispatch
