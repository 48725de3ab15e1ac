#pragma once

class QModelIndex;
class QString;
class QTableView;

namespace trel::mediadispatch {

/// In words, with which plan that of a cell's row collides: the first of those above it. Empty when
/// it collides with none of them.
QString collisionText(const QTableView& table, const QModelIndex& cell);

} // namespace trel::mediadispatch
