#include "LeftCheckNumDelegate.h"

#include "chooser/CheckNumPainting.h"

namespace trel::mediadispatch {

LeftCheckNumDelegate::LeftCheckNumDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

void LeftCheckNumDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    paintCheckNumber(painter, option, index);
}

QWidget* LeftCheckNumDelegate::createEditor(QWidget*, const QStyleOptionViewItem&,
                                            const QModelIndex&) const
{
    return nullptr;
}

} // namespace trel::mediadispatch
