#include "RightCheckNumDelegate.h"

#include "chooser/CheckNumPainting.h"

namespace trel::mediadispatch {

RightCheckNumDelegate::RightCheckNumDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void RightCheckNumDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    paintCheckNumber(painter, option, index);
}

QWidget* RightCheckNumDelegate::createEditor(QWidget*, const QStyleOptionViewItem&,
                                             const QModelIndex&) const
{
    return nullptr;
}

} // namespace trel::mediadispatch
