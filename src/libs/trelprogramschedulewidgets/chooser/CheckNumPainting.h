#pragma once

class QPainter;
class QModelIndex;
class QStyleOptionViewItem;

namespace trel::mediadispatch {

/// Paints the text of a number cell of a chooser table over what stands there, grey and centred,
/// with a line left free at the bottom. Leaves cells of other columns alone.
void paintCheckNumber(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index);

} // namespace trel::mediadispatch
