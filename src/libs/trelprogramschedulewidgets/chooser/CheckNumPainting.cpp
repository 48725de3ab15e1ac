#include "CheckNumPainting.h"

#include "ChooserColumns.h"

#include <QModelIndex>
#include <QPainter>
#include <QStyleOptionViewItem>

namespace trel::mediadispatch {

namespace {

// Both tables of the chooser have their numbers in the same column.
static_assert(int(OfferOrderColumn) == int(ChoiceNumberColumn));
constexpr int kNumberColumn = OfferOrderColumn;

constexpr QRgb kNumberColor = qRgb(0x88, 0x88, 0x88);

} // namespace

void paintCheckNumber(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index)
{
    if (index.column() != kNumberColumn) {
        return;
    }
    const QString number = index.data(Qt::DisplayRole).toString();
    painter->save();
    painter->setPen(QColor(kNumberColor));
    painter->eraseRect(option.rect.adjusted(0, 0, 0, -1));
    painter->drawText(option.rect, Qt::AlignCenter, number);
    painter->restore();
}

} // namespace trel::mediadispatch
