#pragma once

#include <QtGlobal>

class QColor;
class QPainter;
class QRect;

namespace trel::desktop::look {

/// A filled box with a line of one pixel around it. A transparent colour leaves either out.
void paintBox(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& line,
              qreal radius);

/// The ring, two pixels wide, inside the edge of what has the focus.
void paintFocusRing(QPainter& painter, const QRect& rect, const QColor& colour, qreal radius);

} // namespace trel::desktop::look
