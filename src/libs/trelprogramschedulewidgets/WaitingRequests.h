#pragma once

class QWidget;

namespace trel::mediadispatch {

// A request that waits for the event loop is found by a search among all that wait: each time
// another one is made, and for every widget that goes. Many new widgets must not leave any behind.

/// Drops the requests by which widgets that have just been made ask for their look. A widget takes
/// its look when it is shown, whether its request has been answered or not.
void forgetPolishRequests();

/// Drops the request of a widget that is not in sight to be laid out: that is done before it is
/// shown, asked for or not. Looks for it among all requests that wait.
void forgetLayoutRequest(QWidget& widget);

/// Does at once what the widgets in one that is out of sight have left to the event loop, as far as
/// it can be done there: timers that are due run, and what is not hidden for itself is laid out.
///
/// The toolkit looks through everything that waits whenever a widget asks for a layout and whenever
/// a timer starts or stops. So each of many new widgets is to be finished before the next is made.
void finishWaitingWork(QWidget& widget);

/// Drops the requests by which the widgets in one that is just being shown ask to be painted, each
/// for itself: it is painted as a whole, and them with it. For every single request the toolkit
/// would look through all siblings of its widget for something that covers it.
void forgetPaintRequestsIn(const QWidget& widget);

} // namespace trel::mediadispatch
