#pragma once

#include <QStyledItemDelegate>

namespace trel::mediadispatch {

/// Draws a check mark before every row, set where the row holds true under Qt::CheckStateRole. The
/// toolkit reads that role as a number and would show true as a mark that is half set.
///
/// Changes no mark itself.
class BoolCheckDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit BoolCheckDelegate(QObject* parent = nullptr);

signals:
    /// The space key has been pressed on a row.
    void toggleRequested(const QModelIndex& index);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace trel::mediadispatch
