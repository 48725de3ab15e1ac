#include "ViewPainting.h"

#include "BoxPainting.h"
#include "StyleHooks.h"
#include "ThemeImages.h"

#include <QPainter>

namespace trel::desktop::look {

namespace {

constexpr qreal kCheckRadius = 2.5;
constexpr int kCaptionSpace = 6; ///< Between a caption and its field.

void paintBottomLine(QPainter& painter, const QRect& rect, const QColor& colour)
{
    painter.fillRect(QRect(rect.bottomLeft(), QSize(rect.width(), 1)), colour);
}

} // namespace

void paintRow(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
              const QWidget* view)
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&option);
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    const bool isHovered = (option.state & QStyle::State_MouseOver) != 0 &&
                           (option.state & QStyle::State_Enabled) != 0;
    if (isChooserList(view)) {
        // The numbers stand on a ground of their own, and all cells of a row look alike: the line
        // below tells which row the pointer is on.
        paintBottomLine(painter, option.rect, isHovered ? colours.accentLine : colours.listLine);
        return;
    }
    if (isSelected) {
        painter.fillRect(option.rect, colours.selectedRow);
    } else if (isHovered && !isPlanTable(view)) {
        painter.fillRect(option.rect, colours.hoveredRow);
    } else if (item != nullptr && item->backgroundBrush.style() != Qt::NoBrush) {
        painter.fillRect(option.rect, item->backgroundBrush);
    } else if (item != nullptr && (item->features & QStyleOptionViewItem::Alternate) != 0) {
        painter.fillRect(option.rect, colours.alternateRow);
    }
    if (isPlanTable(view)) {
        paintBottomLine(painter, option.rect, colours.line);
    }
}

void paintCaption(QPainter& painter, const QStyleOptionViewItem& option)
{
    // A caption that fills its cell gets less room before its field rather than being cut.
    const int free = option.rect.width() - option.fontMetrics.horizontalAdvance(option.text);
    const int space = qBound(0, free / 2, kCaptionSpace);
    const QRect room = option.rect.adjusted(1, 0, -1, 0);
    const QRect placed = QStyle::visualRect(option.direction, option.rect,
                                            room.adjusted(0, 0, 1 - qMax(1, space), 0));
    const int flags = static_cast<int>(
        QStyle::visualAlignment(option.direction, Qt::AlignRight | Qt::AlignVCenter));
    painter.setPen(option.palette.color(QPalette::Text));
    painter.setFont(option.font);
    painter.drawText(placed, flags | Qt::TextSingleLine,
                     option.fontMetrics.elidedText(option.text, Qt::ElideRight, room.width()));
}

void paintHeaderSection(QPainter& painter, const QStyleOption& option)
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Button));
    paintBottomLine(painter, option.rect, option.palette.color(QPalette::Mid));
}

void paintCheckMark(QPainter& painter, const ThemeColours& colours, const QStyleOption& option)
{
    constexpr int kSide = 13;
    QRect box(0, 0, kSide, kSide);
    box.moveCenter(option.rect.center());
    const bool isChecked = (option.state & QStyle::State_On) != 0;
    paintBox(painter, box, isChecked ? colours.accent : colours.field,
             isChecked ? colours.accent : colours.fieldLineHover, kCheckRadius);
    if (isChecked) {
        paintImage(painter, box, QStringLiteral("check"), colours.accentText);
    }
}

void paintRadioMark(QPainter& painter, const ThemeColours& colours, const QStyleOption& option)
{
    constexpr int kSide = 13;
    constexpr int kRim = 4;
    QRect ring(0, 0, kSide, kSide);
    ring.moveCenter(option.rect.center());
    const bool isChecked = (option.state & QStyle::State_On) != 0;
    paintBox(painter, ring, isChecked ? colours.accent : colours.field,
             isChecked ? colours.accent : colours.fieldLineHover, kSide / 2.0);
    if (isChecked) {
        const QRect dot = ring.adjusted(kRim, kRim, -kRim, -kRim);
        paintBox(painter, dot, colours.accentText, Qt::transparent, dot.width() / 2.0);
    }
}

void paintScrollBar(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                    const QRect& thumb, bool isOverlay)
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(&option);
    if (slider == nullptr || slider->maximum <= slider->minimum) {
        return;
    }
    const bool isActive =
        (option.state & QStyle::State_MouseOver) != 0 || (option.state & QStyle::State_Sunken) != 0;
    // Slim, and towards the edge, so that it leaves free what it lies over.
    const bool isVertical = slider->orientation == Qt::Vertical;
    const bool isRightToLeft = option.direction == Qt::RightToLeft;
    const int edge = isOverlay ? 0 : 1;
    const QRect bar = isVertical
                          ? QStyle::visualRect(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight,
                                               thumb, thumb.adjusted(4 - edge, 0, -edge, 0))
                          : thumb.adjusted(0, 4 - edge, 0, -edge);
    paintBox(painter, bar, isActive ? colours.scrollThumbHover : colours.scrollThumb,
             Qt::transparent, 2.0);
}

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    const QRect& bar = option.rect;
    const bool isVertical = option.orientation == Qt::Vertical;
    const int length = isVertical ? bar.height() : bar.width();
    const int range = option.maximum - option.minimum;
    const int wanted = range <= 0 ? length
                                  : static_cast<int>(qint64(length) * option.pageStep /
                                                     (qint64(range) + option.pageStep));
    const int thumb = qMin(length, qMax(wanted, kScrollBarLeastThumb));
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - thumb, option.upsideDown);
    const auto stretch = [&bar, isVertical](int from, int size) {
        return isVertical ? QRect(bar.left(), bar.top() + from, bar.width(), size)
                          : QRect(bar.left() + from, bar.top(), size, bar.height());
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return stretch(start, thumb);
    case QStyle::SC_ScrollBarSubPage:
        return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return stretch(start + thumb, length - start - thumb);
    case QStyle::SC_ScrollBarGroove:
        return bar;
    default:
        return QRect(); // There are no buttons at its ends.
    }
}

} // namespace trel::desktop::look
