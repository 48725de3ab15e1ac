#pragma once

#include <QStyledItemDelegate>

namespace trel::mediadispatch {

/// Keeps cells from being edited, whatever their flags and the edit triggers of the view say.
class ReadOnlyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ReadOnlyDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

} // namespace trel::mediadispatch
