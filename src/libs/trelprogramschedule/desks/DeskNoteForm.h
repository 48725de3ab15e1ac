#pragma once

#include <QString>

namespace trel::mediadispatch {

/// In characters, of the name of a desk.
constexpr int kLongestDesk = 100;

/// Whether a text from outside can be told as the name of a desk: one line that shows.
bool isDeskName(const QString& text);

} // namespace trel::mediadispatch
