#include "catalogue/ProgramDelegate.h"

#include "catalogue/ProgramTableModel.h"
#include "catalogue/Thumbnails.h"

namespace trel::desktop {

ProgramDelegate::ProgramDelegate(const ProgramTableModel& model, Thumbnails& pictures,
                                 QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_pictures(pictures)
{}

void ProgramDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QPixmap picture = m_pictures.picture(m_model.program(index.row()));
    option->icon = QIcon(picture);
    // A selected row has its pictures tinted unless they come with one for it.
    option->icon.addPixmap(picture, QIcon::Selected);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = Thumbnails::frame();
}

} // namespace trel::desktop
