#pragma once

#include "ThemeColours.h"

#include <QStyleOption>

class QPainter;
class QWidget;

namespace trel::desktop::look {

constexpr int kScrollBarExtent = 8;
constexpr int kScrollBarLeastThumb = 28;

/// The ground of a row, or of a cell of it.
void paintRow(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
              const QWidget* view);
/// A word in front of a field of a plan row, close to its field.
void paintCaption(QPainter& painter, const QStyleOptionViewItem& option);
/// In the colours of the header's own palette.
void paintHeaderSection(QPainter& painter, const QStyleOption& option);
void paintCheckMark(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);
/// The mark of one of several that exclude each other.
void paintRadioMark(QPainter& painter, const ThemeColours& colours, const QStyleOption& option);

/// A bar that lies over what it moves keeps to its very edge.
void paintScrollBar(QPainter& painter, const ThemeColours& colours, const QStyleOption& option,
                    const QRect& thumb, bool isOverlay);
QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

} // namespace trel::desktop::look
