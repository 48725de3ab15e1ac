#include "versions/DifferenceModel.h"

#include "look/ProgramSigns.h"
#include "trelwidgets/PlainToolTip.h"
#include "versions/DifferenceWords.h"

#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::versions {

namespace {

/// Those that the words for a difference name.
look::ProgramIndexes programs(const ScheduleDifference& difference)
{
    look::ProgramIndexes named;
    switch (difference.kind) {
    case DifferenceKind::EntryAdded:
    case DifferenceKind::EntryRemoved:
    case DifferenceKind::EntryMoved:
    case DifferenceKind::EntryField:
        named.append(difference.entry.progIndex);
        break;
    case DifferenceKind::PlanAdded:
    case DifferenceKind::PlanRemoved:
        for (const struProgInfo& entry : difference.plan.programs) {
            named.append(entry.progIndex);
        }
        break;
    default:
        break;
    }
    return named;
}

} // namespace

DifferenceModel::DifferenceModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void DifferenceModel::setComparison(std::shared_ptr<const StateComparison> comparison)
{
    beginResetModel();
    m_comparison = std::move(comparison);
    endResetModel();
}

void DifferenceModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

int DifferenceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_comparison == nullptr
               ? 0
               : static_cast<int>(m_comparison->differences.size());
}

int DifferenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DifferenceModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const ScheduleDifference& one =
        m_comparison->differences[static_cast<std::size_t>(index.row())];
    if (role == look::kProgramsRole && index.column() == DifferenceColumn) {
        return QVariant::fromValue(programs(one));
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    if (role == Qt::ToolTipRole) {
        return trel::widgets::plainToolTip(DifferenceWords::line(one, *m_comparison->catalogue));
    }
    switch (index.column()) {
    case TaskColumn:
        return QString::number(one.taskId);
    case PlanColumn:
        return DifferenceWords::isAboutPlan(one) ? QString::number(one.planId) : QString();
    default:
        return DifferenceWords::what(one, *m_comparison->catalogue);
    }
}

QVariant DifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case TaskColumn:
        return tr("Task");
    case PlanColumn:
        return tr("Plan");
    default:
        return tr("Difference");
    }
}

} // namespace trel::desktop::versions
