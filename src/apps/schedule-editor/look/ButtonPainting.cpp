#include "ButtonPainting.h"

#include "BoxPainting.h"
#include "FieldPainting.h"
#include "StyleHooks.h"
#include "ThemeImages.h"

#include <QPainter>
#include <QStyleOption>

namespace trel::desktop::look {

namespace {

constexpr qreal kRadius = 4.0;
constexpr int kTitleInset = 32; ///< Behind the fold arrow of a card.
constexpr int kTitleEnd = 72;   ///< Before the buttons of a card.
constexpr int kFieldInset = 6;
/// A program field stands a little higher in its row than the other fields. What is seen of it
/// begins at their height, and its text stands on their line.
constexpr int kFieldDrop = 1;
constexpr int kWideImage = 20;

bool has(const QStyleOption& option, QStyle::StateFlag flag)
{
    return (option.state & flag) != 0;
}

QRect visualRect(const QStyleOption& option, const QRect& rect)
{
    return QStyle::visualRect(option.direction, option.rect, rect);
}

/// What points onward points to the left where one reads to the left.
QString alongTheReading(const QStyleOption& option, const QString& image)
{
    const bool isTurned = option.direction == Qt::RightToLeft && image == QLatin1String("next");
    return isTurned ? QStringLiteral("previous") : image;
}

const QColor& pick(const QStyleOption& option, const QColor& normal, const QColor& hovered,
                   const QColor& pressed)
{
    if (has(option, QStyle::State_Sunken)) {
        return pressed;
    }
    return has(option, QStyle::State_MouseOver) ? hovered : normal;
}

void paintCaptionButton(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                        ButtonKind kind)
{
    if (!has(option, QStyle::State_Enabled)) {
        paintBox(painter, option.rect, colours.disabledField, colours.disabledLine, kRadius);
        return;
    }
    const bool hasFocus = has(option, QStyle::State_HasFocus);
    QColor ground;
    QColor line;
    if (kind == ButtonKind::General) {
        ground = pick(option, colours.accent, colours.accentHover, colours.accentPressed);
        line = hasFocus ? colours.focus : ground;
    } else if (kind == ButtonKind::Wide) {
        ground = pick(option, colours.tint, colours.tintHover, colours.tintHover);
        line = colours.accentLine;
    } else {
        ground = pick(option, colours.button, colours.buttonHover, colours.buttonPressed);
        line = pick(option, colours.fieldLine, colours.fieldLineHover, colours.fieldLine);
    }
    paintBox(painter, option.rect, ground, line, kRadius);
    if (hasFocus && kind == ButtonKind::General) {
        // Inside its edge, so that it stands out from the button and not from the window.
        paintFocusRing(painter, option.rect.adjusted(1, 1, -1, -1), colours.accentText,
                       kRadius - 1);
    } else if (hasFocus) {
        paintFocusRing(painter, option.rect, colours.focus, kRadius);
    }
}

void paintImageButton(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                      const QWidget* button)
{
    const bool isEnabled = has(option, QStyle::State_Enabled);
    const bool isActive =
        isEnabled && (has(option, QStyle::State_MouseOver) || has(option, QStyle::State_Sunken));
    // The half of a field shares the edge of the field.
    const bool isHalf = isInsideProgramField(button->parentWidget());
    const QRect place = isHalf ? option.rect.translated(0, kFieldDrop) : option.rect;
    if (isActive) {
        const QRect ground =
            isHalf ? visualRect(option, place.adjusted(2, 2, -3, -3 - kFieldDrop)) : place;
        paintBox(painter, ground, colours.iconGround, Qt::transparent, kRadius);
    }
    const QString image = imageOf(button);
    if (!image.isEmpty()) {
        const QColor colour =
            isActive ? colours.iconHover : (isEnabled ? colours.icon : colours.disabledText);
        paintImage(painter, place, alongTheReading(option, image), colour);
    }
    if (isEnabled && has(option, QStyle::State_HasFocus)) {
        paintFocusRing(painter, place, colours.focus, kRadius);
    }
}

void paintCardTitle(QPainter& painter, const ThemeColours& colours, const QStyleOption& option)
{
    const QColor& ground = pick(option, colours.title, colours.titleHover, colours.titleHover);
    paintBox(painter, option.rect, ground, colours.cardLine, kRadius + 1);
    if (has(option, QStyle::State_HasFocus)) {
        paintFocusRing(painter, option.rect, colours.focus, kRadius + 1);
    }
}

void paintText(QPainter& painter, const QStyleOption& option, const QRect& rect, int alignment,
               const QColor& colour, const QString& text)
{
    painter.setPen(colour);
    const int flags =
        static_cast<int>(QStyle::visualAlignment(option.direction, Qt::Alignment(alignment)));
    painter.drawText(visualRect(option, rect), flags | Qt::TextSingleLine | Qt::TextHideMnemonic,
                     text);
}

void paintWideLabel(QPainter& painter, const ThemeColours& colours,
                    const QStyleOptionButton& option)
{
    const QColor& colour = has(option, QStyle::State_Enabled) ? colours.text : colours.disabledText;
    const int width = option.fontMetrics.horizontalAdvance(option.text) + kWideImage + 2;
    QRect row(0, 0, width, option.rect.height());
    row.moveCenter(option.rect.center());
    const QRect image(row.topLeft(), QSize(kWideImage, row.height()));
    paintImage(painter, QStyle::visualRect(option.direction, row, image), QStringLiteral("add"),
               colour);
    const QRect caption = row.adjusted(kWideImage + 2, 0, 0, 0);
    painter.setPen(colour);
    painter.drawText(QStyle::visualRect(option.direction, row, caption),
                     int(Qt::AlignCenter) | Qt::TextDontClip, option.text);
}

} // namespace

void paintButton(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                 const QWidget* button)
{
    switch (const ButtonKind kind = buttonKind(button)) {
    case ButtonKind::Image:
        paintImageButton(painter, colours, option, button);
        break;
    case ButtonKind::CardTitle:
        paintCardTitle(painter, colours, option);
        break;
    case ButtonKind::FieldText:
        break;
    default:
        paintCaptionButton(painter, colours, option, kind);
    }
}

bool paintButtonLabel(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                      const QWidget* button)
{
    const auto* caption = qstyleoption_cast<const QStyleOptionButton*>(&option);
    if (caption == nullptr || !caption->icon.isNull()) {
        return false;
    }
    const bool isEnabled = has(option, QStyle::State_Enabled);
    const QColor& text = isEnabled ? colours.text : colours.disabledText;
    switch (buttonKind(button)) {
    case ButtonKind::Image:
        break;
    case ButtonKind::CardTitle: {
        QFont font = painter.font();
        font.setBold(true);
        painter.save();
        painter.setFont(font);
        paintText(painter, option, option.rect.adjusted(kTitleInset, 0, -kTitleEnd, 0),
                  Qt::AlignLeft | Qt::AlignVCenter, text, caption->text);
        painter.restore();
        break;
    }
    case ButtonKind::FieldText:
        paintText(painter, option, option.rect.adjusted(kFieldInset, 2 * kFieldDrop, 0, 0),
                  Qt::AlignLeft | Qt::AlignVCenter, text, caption->text);
        break;
    case ButtonKind::Wide:
        paintWideLabel(painter, colours, *caption);
        break;
    case ButtonKind::General:
        paintText(painter, option, option.rect, Qt::AlignCenter,
                  isEnabled ? colours.accentText : colours.disabledText, caption->text);
        break;
    case ButtonKind::Plain:
        paintText(painter, option, option.rect, Qt::AlignCenter, text, caption->text);
        break;
    }
    return true;
}

void paintProgramField(QPainter& painter, const ThemeColours& colours, const QStyleOption& option)
{
    QStyleOption seen(option);
    seen.rect.adjust(0, kFieldDrop, 0, 0);
    paintField(painter, colours, seen);
}

void paintFocus(QPainter& painter, const ThemeColours& colours, const QStyleOption& option)
{
    paintFocusRing(painter, option.rect, colours.focus, kRadius - 1);
}

} // namespace trel::desktop::look
