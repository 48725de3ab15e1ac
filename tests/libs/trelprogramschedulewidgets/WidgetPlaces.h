#pragma once

#include <QStringList>
#include <QWidget>

/// Where everything inside a widget is that can be seen, in the coordinates of the frame that it
/// stands in: a line for each, in the order of the lines.
inline QStringList visiblePlaces(const QWidget& inside, const QWidget& frame)
{
    QStringList lines;
    for (const QWidget* widget : inside.findChildren<QWidget*>()) {
        if (widget->isVisible()) {
            const QRect rect(widget->mapTo(&frame, QPoint(0, 0)), widget->size());
            lines.append(QStringLiteral("%1 %2,%3 %4x%5")
                             .arg(QLatin1String(widget->metaObject()->className()))
                             .arg(rect.x())
                             .arg(rect.y())
                             .arg(rect.width())
                             .arg(rect.height()));
        }
    }
    lines.sort();
    return lines;
}
