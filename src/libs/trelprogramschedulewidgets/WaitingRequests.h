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

} // namespace trel::mediadispatch
