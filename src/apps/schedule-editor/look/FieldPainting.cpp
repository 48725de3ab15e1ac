#include "FieldPainting.h"

#include "BoxPainting.h"
#include "ThemeImages.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QPainter>

namespace trel::desktop::look {

namespace {

constexpr qreal kRadius = 3.0;
/// The fields of a row are narrow: what the arrows do not take is left to the value.
constexpr int kStepWidth = 14;
constexpr int kArrowWidth = 16;
constexpr int kTextInset = 4;
constexpr int kEditableArrowWidth = 13;
constexpr int kLineInset = 2;

bool isEnabled(const QStyleOption& option)
{
    return (option.state & QStyle::State_Enabled) != 0;
}

bool hasFocus(const QStyleOption& option)
{
    return (option.state & QStyle::State_HasFocus) != 0;
}

void paintStep(QPainter& painter, const ThemeColours& colours, const QStyleOptionSpinBox& option,
               const QRect& rect, QStyle::SubControl part, QAbstractSpinBox::StepEnabledFlag step)
{
    const bool isPossible = isEnabled(option) && (option.stepEnabled & step) != 0;
    const bool isHovered = isPossible && option.activeSubControls == part &&
                           (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) != 0;
    if (isHovered) {
        paintBox(painter, rect, colours.iconGround, Qt::transparent, kRadius - 1);
    }
    const QColor colour =
        isPossible ? (isHovered ? colours.iconHover : colours.icon) : colours.iconDisabled;
    const bool isUp = part == QStyle::SC_SpinBoxUp;
    paintImage(painter, rect, isUp ? QStringLiteral("spin-up") : QStringLiteral("spin-down"),
               colour);
}

void paintValue(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                const QRect& room, const QString& text)
{
    painter.setPen(isEnabled(option) ? colours.text : colours.disabledText);
    const int flags = static_cast<int>(
        QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter));
    painter.drawText(room, flags | Qt::TextSingleLine,
                     option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
}

} // namespace

bool isInsideField(const QWidget* widget)
{
    const QWidget* parent = widget != nullptr ? widget->parentWidget() : nullptr;
    return qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
           qobject_cast<const QComboBox*>(parent) != nullptr;
}

void paintField(QPainter& painter, const ThemeColours& colours, const QStyleOption& option)
{
    if (!isEnabled(option)) {
        paintBox(painter, option.rect, colours.disabledField, colours.disabledLine, kRadius);
        return;
    }
    const bool isHovered = (option.state & QStyle::State_MouseOver) != 0;
    paintBox(painter, option.rect, colours.field,
             isHovered ? colours.fieldLineHover : colours.fieldLine, kRadius);
    if (hasFocus(option)) {
        paintFocusRing(painter, option.rect, colours.focus, kRadius);
    }
}

void paintSpinBox(QPainter& painter, const ThemeColours& colours, const QStyleOptionSpinBox& option,
                  const QRect& up, const QRect& down)
{
    if ((option.subControls & QStyle::SC_SpinBoxFrame) != 0) {
        if (option.frame) {
            paintField(painter, colours, option);
        } else {
            painter.fillRect(option.rect, colours.field);
            if (hasFocus(option)) {
                paintFocusRing(painter, option.rect, colours.focus, 0);
            }
        }
    }
    if (option.buttonSymbols != QAbstractSpinBox::NoButtons) {
        paintStep(painter, colours, option, up, QStyle::SC_SpinBoxUp,
                  QAbstractSpinBox::StepUpEnabled);
        paintStep(painter, colours, option, down, QStyle::SC_SpinBoxDown,
                  QAbstractSpinBox::StepDownEnabled);
    }
}

void paintComboBox(QPainter& painter, const ThemeColours& colours,
                   const QStyleOptionComboBox& option, const QRect& arrow)
{
    paintField(painter, colours, option);
    paintImage(painter, arrow, QStringLiteral("combo-arrow"),
               isEnabled(option) ? colours.icon : colours.iconDisabled);
}

void paintComboBoxLabel(QPainter& painter, const ThemeColours& colours,
                        const QStyleOptionComboBox& option, const QRect& room)
{
    if (option.editable) {
        return;
    }
    paintValue(painter, colours, option, room, option.currentText);
}

void paintChoices(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                  const QString& text)
{
    const QRect room = option.rect.adjusted(kLineInset, 0, -1, 0);
    paintValue(painter, colours, option, QStyle::visualRect(option.direction, option.rect, room),
               text);
}

void paintProgressBar(QPainter& painter, const ThemeColours& colours,
                      const QStyleOptionProgressBar& option)
{
    const QRect& bar = option.rect;
    const int range = option.maximum - option.minimum;
    const int width =
        range <= 0
            ? 0
            : static_cast<int>(qint64(bar.width()) * (option.progress - option.minimum) / range);
    const QRect done = QStyle::visualRect(
        option.direction, bar,
        QRect(bar.topLeft(), QSize(qBound(0, width, bar.width()), bar.height())));
    paintBox(painter, bar, colours.field, colours.fieldLine, kRadius);
    painter.save();
    painter.setClipRect(done);
    paintBox(painter, bar, colours.accent, colours.accent, kRadius);
    painter.restore();
    if (!option.textVisible) {
        return;
    }
    const auto paintFigure = [&painter, &option](const QRegion& where, const QColor& colour) {
        painter.save();
        painter.setClipRegion(where);
        painter.setPen(colour);
        painter.drawText(option.rect, Qt::AlignCenter, option.text);
        painter.restore();
    };
    paintFigure(QRegion(bar).subtracted(done), colours.text);
    paintFigure(done, colours.accentText);
}

QRect spinBoxPart(const QStyleOptionSpinBox& option, QStyle::SubControl part)
{
    const QRect& box = option.rect;
    const int steps = option.buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : kStepWidth;
    const int half = box.height() / 2;
    const QRect stepColumn(box.right() - steps, box.top() + 1, steps, half - 1);
    switch (part) {
    case QStyle::SC_SpinBoxUp:
        return stepColumn;
    case QStyle::SC_SpinBoxDown:
        return stepColumn.translated(0, half - 1);
    case QStyle::SC_SpinBoxEditField:
        return box.adjusted(2, 1, -steps - 1, -1);
    default:
        return box;
    }
}

QRect comboBoxPart(const QStyleOptionComboBox& option, QStyle::SubControl part)
{
    const QRect& box = option.rect;
    const int arrow = option.editable ? kEditableArrowWidth : kArrowWidth;
    switch (part) {
    case QStyle::SC_ComboBoxArrow:
        return QRect(box.right() - arrow, box.top(), arrow, box.height());
    case QStyle::SC_ComboBoxEditField:
        return box.adjusted(option.editable ? 2 : kTextInset, 1, -arrow - 1, -1);
    default:
        return box;
    }
}

} // namespace trel::desktop::look
