#pragma once

#include <QStyledItemDelegate>

namespace trel::mediadispatch {

/// Shows the order of checking in the left table of the chooser. Its cells cannot be edited.
class LeftCheckNumDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit LeftCheckNumDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};

} // namespace trel::mediadispatch
