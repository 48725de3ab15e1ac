#include "catalogue/UsesModel.h"

#include "catalogue/UseWords.h"
#include "trelwidgets/PlainToolTip.h"

using namespace trel::mediadispatch;

namespace trel::desktop {

UsesModel::UsesModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void UsesModel::show(const LookupAnswer& answer)
{
    beginResetModel();
    m_answer = answer;
    endResetModel();
}

void UsesModel::retranslate(const QLocale& locale)
{
    m_locale = locale;
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_answer.uses.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

const ProgramUse& UsesModel::use(int row) const
{
    return m_answer.uses[static_cast<std::size_t>(row)];
}

int UsesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_answer.uses.size());
}

int UsesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

QVariant UsesModel::text(const ProgramUse& use, int column) const
{
    const PlayTask& task = m_answer.tasks.at(use.taskId);
    const PlayPlan& plan = task.plans[use.row];
    switch (column) {
    case TaskColumn:
        return use.taskId;
    case ValidColumn:
        return UseWords::validity(task);
    case PlanColumn:
        return static_cast<int>(use.row) + 1;
    case DaysColumn:
        return UseWords::days(plan, m_locale);
    case TimeColumn:
        return UseWords::span(plan);
    default:
        return QVariant();
    }
}

QVariant UsesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return QVariant();
    }
    const ProgramUse& use = this->use(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(use, index.column());
    case Qt::ToolTipRole:
        return trel::widgets::plainToolTip(
            UseWords::plan(use, m_answer.tasks.at(use.taskId), m_locale));
    default:
        return QVariant();
    }
}

QVariant UsesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case TaskColumn:
        return tr("Task");
    case ValidColumn:
        return tr("Valid");
    case PlanColumn:
        return tr("Plan");
    case DaysColumn:
        return tr("Days");
    case TimeColumn:
        return tr("Time");
    default:
        return QVariant();
    }
}

} // namespace trel::desktop
