#pragma once

namespace trel::mediadispatch {

/// A widget of a plan row, with the number of that row. The table owns the widget.
template <typename T>
struct RowWidget
{
    int row = -1;
    T* widget = nullptr;
};

} // namespace trel::mediadispatch
