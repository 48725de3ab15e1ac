#include "ReadOnlyDelegate.h"

namespace trel::mediadispatch {

ReadOnlyDelegate::ReadOnlyDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

QWidget* ReadOnlyDelegate::createEditor(QWidget*, const QStyleOptionViewItem&,
                                        const QModelIndex&) const
{
    return nullptr;
}

} // namespace trel::mediadispatch
