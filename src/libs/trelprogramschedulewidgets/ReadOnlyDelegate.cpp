#include "ReadOnlyDelegate.h"

#include "trelwidgets/CutTip.h"

#include <QAbstractItemView>

namespace trel::mediadispatch {

ReadOnlyDelegate::ReadOnlyDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

QWidget* ReadOnlyDelegate::createEditor(QWidget*, const QStyleOptionViewItem&,
                                        const QModelIndex&) const
{
    return nullptr;
}

bool ReadOnlyDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                 const QStyleOptionViewItem& option, const QModelIndex& index)
{
    // Some texts of two words stand on two lines.
    const QSize wanted = sizeHint(option, index);
    const bool isCut =
        index.isValid() && !option.rect.isEmpty() && wanted.boundedTo(option.rect.size()) != wanted;
    if (event->type() == QEvent::ToolTip && isCut && !index.data(Qt::ToolTipRole).isValid()) {
        widgets::showCutTip(*event, *view->viewport(),
                            index.data(Qt::DisplayRole).toString().trimmed());
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

} // namespace trel::mediadispatch
