#pragma once

class QWidget;

namespace trel::mediadispatch {

// Shortcuts for many new widgets, checked with Qt 5.15.8.
//
// A new widget leaves requests and timers to the event loop. The toolkit looks through all that
// wait for nearly every request that is made or dropped, and through all timers when one starts or
// stops, so that many widgets that are made in one go take time with the square of their number.
// Here what a new widget has left is done at once. Only that widget and those in it are reached,
// and what waits for them is carried out and not lost.
//
// Without them everything looks and works the same. They are left out by the build option
// TREL_TOOLKIT_SHORTCUTS=OFF; areShortcutsOn() then is false.

/// Whether the shortcuts are in use.
bool areShortcutsOn();
/// Turns them off, or on again where they have been built in.
void setShortcutsOn(bool on);

/// Does at once what a widget that has just been made, and those in it, have left to the event
/// loop, as far as it can be done out of sight. For the maker of the widget, before anybody else
/// has been told of it.
void settleNewWidget(QWidget& widget);

/// Gives the widgets in one, and itself, their look, as their waiting requests would.
void polishNewWidget(QWidget& widget);

/// Takes back the request of a widget, made by its own constructor, to be laid out: that is done
/// before it is shown, asked for or not. Only for that constructor.
void takeBackLayoutRequest(QWidget& widget);

/// Has a widget that is just being shown painted as a whole, and what is in it with it. By itself
/// each of them asks for its own painting, and for each the toolkit looks through all its siblings
/// for something that covers it.
void paintAsAWhole(QWidget& widget);

} // namespace trel::mediadispatch
