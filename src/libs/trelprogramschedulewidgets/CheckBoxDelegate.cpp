#include "CheckBoxDelegate.h"

#include "CheckBoxImages.h"
#include "chooser/ChooserColumns.h"
#include "trelwidgets/Sign.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace trel::mediadispatch {

namespace {

// Both tables of the chooser have their marks in the same column.
static_assert(int(OfferCheckColumn) == int(ChoiceCheckColumn));
constexpr int kCheckColumn = OfferCheckColumn;

} // namespace

CheckBoxDelegate::CheckBoxDelegate(CheckType type, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_uncheckedPixmap(checkBoxImagePaths().unchecked)
    , m_checkedPixmap(checkBoxImagePaths().checked)
    , m_type(type)
{}

void CheckBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    cell.state &= ~QStyle::State_HasFocus;
    QStyledItemDelegate::paint(painter, cell, index);

    if (index.column() != kCheckColumn) {
        return;
    }
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    const bool isChecked = index.data(kCheckRole).toBool();
    const QPixmap& image = isChecked ? m_checkedPixmap : m_uncheckedPixmap;
    style->drawItemPixmap(painter, option.rect, Qt::AlignCenter, image);
    if (m_drawsMissingImages && image.isNull()) {
        const bool isEnabled = (option.state & QStyle::State_Enabled) != 0;
        widgets::paintSign(*painter, option.rect,
                           isChecked ? widgets::Sign::Checked : widgets::Sign::Unchecked,
                           widgets::signColor(option.palette, QPalette::Text, isEnabled));
    }
}

void CheckBoxDelegate::drawMissingImages()
{
    m_drawsMissingImages = true;
}

void CheckBoxDelegate::toggle(QAbstractItemModel& model, const QModelIndex& index)
{
    const bool isChecked = !index.data(kCheckRole).toBool();
    const int row = index.row();
    model.setData(index, isChecked, kCheckRole);
    emit signalChecked(m_type, row, isChecked);
}

bool CheckBoxDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (!event || !model || event->type() != QEvent::MouseButtonPress) {
        return true;
    }
    if (!option.rect.contains(static_cast<QMouseEvent*>(event)->pos()) ||
        index.column() != kCheckColumn) {
        return true;
    }
    toggle(*model, index);
    return true;
}

} // namespace trel::mediadispatch
