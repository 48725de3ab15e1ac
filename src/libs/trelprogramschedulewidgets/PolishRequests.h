#pragma once

namespace trel::mediadispatch {

/// Drops the events by which widgets that have just been made ask for their look. A widget takes
/// its look when it is shown, whether its event has come or not; left to wait, the events of many
/// new widgets are gone through for every layout that is asked for and every widget that goes.
void forgetPolishRequests();

} // namespace trel::mediadispatch
