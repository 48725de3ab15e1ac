#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

class QWidget;

/// Mouse, keyboard, wheel and drops, as the system hands them to the windows: what is over a place
/// gets the click, and a window behind a modal one gets nothing. The events are handled by the
/// event loop that runs next.
namespace hand {

/// Where a widget can be clicked on, in its own coordinates; null when no part of it is in sight.
QPoint visiblePlace(const QWidget& widget, int across, int down);

void press(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
void release(QWidget& widget, QPoint place, Qt::MouseButton button,
             Qt::KeyboardModifiers modifiers);
void move(QWidget& widget, QPoint place, Qt::MouseButtons buttons);
void turnWheel(QWidget& widget, QPoint place, int delta);

/// To the window with the focus; without one nothing happens.
void pressKey(int key, Qt::KeyboardModifiers modifiers, const QString& text = {});
void type(const QString& text);
/// Drops a date that is typed half way into a calendar of the toolkit: it frees what it holds of it
/// only when the typing ends, and never where the calendar goes before.
void dropTypedDate();

/// Drags files over a place and lets them go there.
void drop(QWidget& widget, QPoint place, const QStringList& files);

} // namespace hand
