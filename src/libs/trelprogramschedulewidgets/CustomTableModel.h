#pragma once

#include <QStandardItemModel>

namespace trel::mediadispatch {

/// The model of both tables of the program chooser. Its play count column can always be edited,
/// whatever the flags of the item say; all else is as in the base.
class CustomTableModel : public QStandardItemModel
{
    Q_OBJECT

public:
    explicit CustomTableModel(QObject* parent = nullptr);

    Qt::ItemFlags flags(const QModelIndex& index) const override;
};

} // namespace trel::mediadispatch
