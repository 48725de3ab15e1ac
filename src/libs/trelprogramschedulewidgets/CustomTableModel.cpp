#include "CustomTableModel.h"

#include "chooser/ChooserColumns.h"

namespace trel::mediadispatch {

CustomTableModel::CustomTableModel(QObject* parent)
    : QStandardItemModel(parent)
{}

Qt::ItemFlags CustomTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags base = QStandardItemModel::flags(index);
    return index.column() == ChoiceCountColumn ? base | Qt::ItemIsEditable : base;
}

} // namespace trel::mediadispatch
