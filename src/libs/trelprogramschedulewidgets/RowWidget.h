#pragma once

#include <QObject>

#include <algorithm>
#include <map>
#include <vector>

namespace trel::mediadispatch {

/// A widget of a plan row, with the number of that row. The table owns the widget; null once it is
/// gone.
template <typename T>
struct RowWidget
{
    int row = -1;
    T* widget = nullptr;
};

/// The first widget of a row; null when the row has none.
template <typename T>
T* widgetOfRow(const std::vector<RowWidget<T>>& widgets, int row)
{
    const auto found =
        std::find_if(widgets.begin(), widgets.end(),
                     [row](const RowWidget<T>& entry) { return entry.row == row && entry.widget; });
    return found == widgets.end() ? nullptr : found->widget;
}

/// The row of a widget, such as the sender of a signal; -1 when it belongs to no row.
template <typename T>
int rowOfWidget(const std::vector<RowWidget<T>>& widgets, const QObject* widget)
{
    const auto found =
        std::find_if(widgets.begin(), widgets.end(),
                     [widget](const RowWidget<T>& entry) { return entry.widget == widget; });
    return !widget || found == widgets.end() ? -1 : found->row;
}

/// Takes note that a widget is gone. Its row keeps its entry.
template <typename T>
void loseWidget(std::vector<RowWidget<T>>& widgets, const QObject* gone)
{
    for (RowWidget<T>& entry : widgets) {
        if (entry.widget == gone) {
            entry.widget = nullptr;
        }
    }
}

/// Forgets the widgets of a row and moves those of the rows below it up by one.
template <typename T>
void dropRow(std::vector<RowWidget<T>>& widgets, int row)
{
    widgets.erase(std::remove_if(widgets.begin(), widgets.end(),
                                 [row](const RowWidget<T>& entry) { return entry.row == row; }),
                  widgets.end());
    for (RowWidget<T>& entry : widgets) {
        if (entry.row > row) {
            --entry.row;
        }
    }
}

/// The same for a map from row to anything.
template <typename T>
std::map<int, T> withoutRowKey(const std::map<int, T>& byRow, int row)
{
    std::map<int, T> rest;
    for (const auto& [itsRow, value] : byRow) {
        if (itsRow != row) {
            rest.emplace_hint(rest.end(), itsRow > row ? itsRow - 1 : itsRow, value);
        }
    }
    return rest;
}

/// The same for a map from anything to row.
template <typename T>
std::map<T, int> withoutRowValue(const std::map<T, int>& rows, int row)
{
    std::map<T, int> rest;
    for (const auto& [key, itsRow] : rows) {
        if (itsRow != row) {
            rest.emplace_hint(rest.end(), key, itsRow > row ? itsRow - 1 : itsRow);
        }
    }
    return rest;
}

} // namespace trel::mediadispatch
