#pragma once

#include <QStyledItemDelegate>

namespace trel::mediadispatch {

/// Shows the running number in the right table of the chooser. Its cells cannot be edited.
class RightCheckNumDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RightCheckNumDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

} // namespace trel::mediadispatch
