#pragma once

#include <QRect>

namespace trel::mediadispatch {

/// Where the editor of a plan row stands in its cell: clear of the line above the row.
inline QRect planEditorRect(const QRect& cell)
{
    constexpr int inset = 9;
    return cell.adjusted(0, inset, 0, 0);
}

} // namespace trel::mediadispatch
