#include "look/ProgramSignDelegate.h"

#include "look/ProgramSigns.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

namespace trel::desktop::look {

namespace {

/// With as many dots as the screen has for it.
QPixmap pictureOf(const ProgramIndexes& programs, const ThemeColours& colours,
                  Qt::LayoutDirection direction, qreal dotsToAPoint, bool isSelected)
{
    const QRect room(QPoint(0, 0), programSignsSize(programs.size()));
    QPixmap picture(QSizeF(QSizeF(room.size()) * dotsToAPoint).toSize());
    picture.setDevicePixelRatio(dotsToAPoint);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    for (int i = 0; i < programs.size(); ++i) {
        const int left = programSignsSize(i + 1).width() - kProgramSign;
        const QRect place(left, 0, kProgramSign, kProgramSign);
        paintProgramSign(painter, QStyle::visualRect(direction, room, place), programs[i], colours,
                         isSelected);
    }
    return picture;
}

} // namespace

ProgramSignDelegate::ProgramSignDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_colours(darkColours())
{}

ProgramSignDelegate::~ProgramSignDelegate() = default;

void ProgramSignDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const ProgramIndexes programs =
        signedPrograms(index.data(kProgramsRole).value<ProgramIndexes>());
    if (programs.isEmpty()) {
        return;
    }
    const qreal dots = option->widget == nullptr ? 1.0 : option->widget->devicePixelRatioF();
    const auto picture = [&](bool isSelected) {
        return pictureOf(programs, m_colours, option->direction, dots, isSelected);
    };
    option->icon = QIcon(picture(false));
    // A selected row has its pictures tinted unless they come with one for it.
    option->icon.addPixmap(picture(true), QIcon::Selected);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = programSignsSize(programs.size());
}

} // namespace trel::desktop::look
