#pragma once

class QWidget;

namespace trel::mediadispatch {

struct PlanRowEditors;

/// Puts the editors of a plan row, from left to right, behind a field in the order of Tab: behind
/// the last editor of the row above, or behind the field that stands before the table.
///
/// A new widget stands at the end of its window's order. Without this call a row that is added to a
/// card would come after the cards below it. Rows that go need no call.
void placeInTabOrder(const PlanRowEditors& editors, QWidget& before);

} // namespace trel::mediadispatch
