#include "catalogue/ProgramDelegate.h"

#include "catalogue/ProgramTableModel.h"
#include "catalogue/Thumbnails.h"
#include "look/ProgramColours.h"

#include <QPainter>
#include <QStyle>

namespace trel::desktop {

namespace {

/// What the style leaves free in front of the picture.
constexpr int kEdge = 3;

} // namespace

ProgramDelegate::ProgramDelegate(const ProgramTableModel& model, Thumbnails& pictures,
                                 QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_pictures(pictures)
    , m_colours(look::darkColours())
{}

QRect ProgramDelegate::edge(const QStyleOptionViewItem& option)
{
    QRect edge = option.rect.adjusted(0, 1, 0, -1);
    edge.setWidth(kEdge);
    return QStyle::visualRect(option.direction, option.rect, edge);
}

void ProgramDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const int program = m_model.program(index.row()).progIndex;
    painter->fillRect(edge(option), look::programColours(program, m_colours).line);
}

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
