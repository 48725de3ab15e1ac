#include "LatePlanModel.h"

#include <utility>

namespace trel::mediadispatch {

LatePlanModel::LatePlanModel(QObject* parent)
    : PlanStandardItemModel(parent)
{}

void LatePlanModel::fillWhenAsked(std::function<void()> fill)
{
    m_fill = std::move(fill);
}

int LatePlanModel::rowCount(const QModelIndex& parent) const
{
    fill();
    return PlanStandardItemModel::rowCount(parent);
}

bool LatePlanModel::hasChildren(const QModelIndex& parent) const
{
    fill();
    return PlanStandardItemModel::hasChildren(parent);
}

QModelIndex LatePlanModel::index(int row, int column, const QModelIndex& parent) const
{
    fill();
    return PlanStandardItemModel::index(row, column, parent);
}

void LatePlanModel::fill() const
{
    if (m_fill) {
        std::exchange(m_fill, nullptr)();
    }
}

} // namespace trel::mediadispatch
