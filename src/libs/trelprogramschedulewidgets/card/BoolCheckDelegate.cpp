#include "BoolCheckDelegate.h"

#include <QKeyEvent>

namespace trel::mediadispatch {

BoolCheckDelegate::BoolCheckDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

bool BoolCheckDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        emit toggleRequested(index);
        return true;
    }
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

void BoolCheckDelegate::initStyleOption(QStyleOptionViewItem* option,
                                        const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->features |= QStyleOptionViewItem::HasCheckIndicator;
    option->checkState = index.data(Qt::CheckStateRole).toBool() ? Qt::Checked : Qt::Unchecked;
}

} // namespace trel::mediadispatch
