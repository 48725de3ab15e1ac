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
    /// Shows the whole of a text that the cell has no room for.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

} // namespace trel::mediadispatch
