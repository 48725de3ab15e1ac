#pragma once

#include "trelwidgets_export.h"

#include <QColor>
#include <QPalette>
#include <QRectF>

#include <functional>

class QPainter;
class QWidget;

namespace trel::widgets {

/// What the editor draws itself where a host gives no image.
enum class Sign {
    None,
    Plus,
    Up,
    Down,
    Next, ///< Onward in the direction of reading.
    Copy,
    Delete,
    Close,
    Minimise,
    Expand,
    Restore,
    Folded,
    Unfolded,
    Warning,
    Refresh,
    Unchecked,
    Checked,
};

/// Draws the sign in the middle of the place, 16 units wide or what there is room for. It is made
/// of lines, and so is sharp on every screen. The direction turns what points onward.
TRELWIDGETS_EXPORT void paintSign(QPainter& painter, const QRectF& place, Sign sign,
                                  const QColor& color,
                                  Qt::LayoutDirection direction = Qt::LeftToRight);

/// The color that the palette has for the role. A sign that is out of force is dimmed, also under a
/// style sheet that has one color for both.
TRELWIDGETS_EXPORT QColor signColor(const QPalette& palette, QPalette::ColorRole role,
                                    bool isEnabled);

/// Whether more than a ground, with its edges, comes of it when a widget of this size is painted
/// bare: then a style sheet or a style shows an image of its own there.
TRELWIDGETS_EXPORT bool paintsPicture(const QSize& size,
                                      const std::function<void(QPainter&)>& paintBare);

} // namespace trel::widgets
