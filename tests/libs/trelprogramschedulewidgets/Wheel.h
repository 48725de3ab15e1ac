#pragma once

#include <QtTest>

#include <QApplication>
#include <QWheelEvent>

/// Turns the wheel by one notch over the middle of a widget, as the window system tells of it: what
/// lies there gets the event first, and may be given the focus for it.
inline void turnWheelOver(QWidget& widget, int notches = -1)
{
    constexpr int kNotch = 120;
    QWidget* const window = widget.window();
    const QPoint inWindow = widget.mapTo(window, widget.rect().center());
    QWidget* const child = window->childAt(inWindow);
    Q_ASSERT(child);
    QWheelEvent wheel(child->mapFrom(window, inWindow), window->mapToGlobal(inWindow), QPoint(),
                      QPoint(0, notches * kNotch), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    // Another way of sending would take it for an event of the program itself.
    QCoreApplication::instance()->notify(child, &wheel);
}
