#pragma once

#include <QString>

class Desk;

/// What holds at every moment at which the windows wait for the operator. Each function returns an
/// empty text, or says what does not hold.
namespace rules {

/// A prompt belongs to a window, and one stands at a time.
QString brokenByPrompts();
/// No window has its head off the screen.
QString brokenByPlaces();
/// An active window has a focus, and there is an active one where there are windows.
QString brokenByFocus();
/// The cards of the open editor show the working set, each in step with itself.
QString brokenByCards(Desk& desk);
/// What a window of the editor leaves behind when it has gone.
QString brokenByRemains();

} // namespace rules
