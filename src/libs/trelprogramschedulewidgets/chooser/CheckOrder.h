#pragma once

#include <QMap>
#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// The text of a row number or of a place in the order of checking: two digits at least.
QString formatRowNumber(int number);

/// A checked row and its place in the order of checking.
struct CheckedRow
{
    int row = 0;
    int place = 0;

    bool operator==(const CheckedRow& other) const
    {
        return row == other.row && place == other.place;
    }
};

/// Works on the order in which the rows of a table were checked: each checked row has a place, from
/// 1, and the places close up when a row is unchecked. Count and places are the caller's and hold
/// all there is; this keeps nothing of its own.
///
/// Every operation answers as if it were carried out row by row from the top, and costs time in
/// proportion to the rows it concerns. Checking a checked row moves it to the end and leaves its
/// old place free; unchecking an unchecked row takes one off the count all the same, and moves
/// every checked row up, to place 0 at the most.
class CheckOrder
{
public:
    /// count is the number given to the latest check, places leads from checked row to its place.
    /// A table with nothing checked has a count of -1 or 0 and no places. Both have to live as long
    /// as this.
    CheckOrder(int& count, QMap<int, int>& places);

    /// The number given to the latest check. -1 and 0 both mean that no row is checked.
    int count() const { return m_count; }
    /// From checked row to its place.
    const QMap<int, int>& places() const { return m_places; }
    /// The checked rows by place.
    std::vector<int> rows() const;

    /// Gives the row the next place and returns that.
    int check(int row);
    /// Takes the row's place away. Returns the rows that have moved up by one for it, from the top.
    std::vector<CheckedRow> uncheck(int row);
    /// Numbers the rows of a table of this size from the top, whatever was checked before.
    void checkAll(int rowCount);
    /// Unchecks each row of a table of this size, the unchecked ones too.
    void clearAll(int rowCount);

private:
    int& m_count;
    QMap<int, int>& m_places;
};

} // namespace trel::mediadispatch
