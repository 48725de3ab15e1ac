#pragma once

class QModelIndex;
class QString;

namespace trel::mediadispatch {

/// The bounds of a play count, both included.
inline constexpr int kLeastCount = 1;
inline constexpr int kMostCount = 999;

/// What a screen reader calls the count of a cell in the chooser's right table: the program of its
/// row and the label of its column.
QString countName(const QModelIndex& count);

} // namespace trel::mediadispatch
