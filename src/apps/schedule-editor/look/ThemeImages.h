#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

class QPainter;
class QRect;

namespace trel::desktop::look {

/// Paints a drawing of the resources in a colour, as sharp as the painter's device can show it.
/// The drawing keeps its own size, in the middle of the rectangle, and shrinks where it has no
/// room.
void paintImage(QPainter& painter, const QRect& rect, const QString& name, const QColor& colour);

/// An icon that paints the drawing for every size and every pixel ratio.
QIcon imageIcon(const QString& name, const QColor& colour);

} // namespace trel::desktop::look
