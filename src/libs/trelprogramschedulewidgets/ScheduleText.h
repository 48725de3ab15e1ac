#pragma once

#include <QString>

namespace trel::mediadispatch {

/// The editor's text for a key, in the language now selected. Fetched afresh on every call.
QString scheduleText(const char* key);

} // namespace trel::mediadispatch
