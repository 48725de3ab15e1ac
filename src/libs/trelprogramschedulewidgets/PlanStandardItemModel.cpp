#include "PlanStandardItemModel.h"

#include <QMimeData>

namespace trel::mediadispatch {

namespace {

QString rowFormat()
{
    return QStringLiteral("row");
}

} // namespace

PlanStandardItemModel::PlanStandardItemModel(QObject* parent)
    : QStandardItemModel(parent)
{}

QMimeData* PlanStandardItemModel::mimeData(const QModelIndexList& indexes) const
{
    QMimeData* const data = QStandardItemModel::mimeData(indexes);
    if (!data) {
        return nullptr;
    }
    data->setData(rowFormat(), QByteArray::number(indexes.at(0).row()));
    return data;
}

bool PlanStandardItemModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                         const QModelIndex& parent)
{
    if (!data || action != Qt::MoveAction) {
        return false;
    }
    const int source = data->data(rowFormat()).toInt(nullptr, 10);
    const int target = parent.row();
    if (target < 0 || target > rowCount() - 1) {
        return false;
    }
    insertRow(target, takeRow(source));
    return true;
}

Qt::DropActions PlanStandardItemModel::supportedDropActions() const
{
    return QStandardItemModel::supportedDropActions() | Qt::MoveAction;
}

Qt::ItemFlags PlanStandardItemModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QStandardItemModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled : flags;
}

} // namespace trel::mediadispatch
