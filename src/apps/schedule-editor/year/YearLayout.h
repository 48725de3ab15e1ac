#pragma once

#include <QDate>

#include <map>
#include <vector>

namespace trel::desktop::year {

/// The days on which a task is valid, both included. A task whose days cannot be read, or whose
/// last comes before its first, is valid on none.
struct Validity
{
    QDate first;
    QDate last;

    bool isEmpty() const { return !first.isValid() || !last.isValid() || last < first; }
    bool contains(const QDate& day) const { return !isEmpty() && first <= day && day <= last; }

    friend bool operator==(const Validity& a, const Validity& b)
    {
        return a.first == b.first && a.last == b.last;
    }
};

/// By the ids of the tasks.
using Validities = std::map<int, Validity>;

/// What of a task lies in a year.
struct YearSpan
{
    int taskId = -1;
    QDate first;
    QDate last;
    int lane = 0;
};

/// Days that follow one another.
struct YearStretch
{
    QDate first;
    QDate last;
    int tasks = 0; ///< The most that are valid on one of them.
};

struct YearLayout
{
    static constexpr int kMostLanes = 3;

    int year = 0;
    std::vector<YearSpan> spans; ///< By their first days, then by id.
    int lanes = 1;               ///< Up to kMostLanes; what finds no free one shares the last.
    /// Without a task, between the first and the last day of all tasks, of other years as well.
    std::vector<YearStretch> gaps;
    std::vector<YearStretch> overlaps; ///< With more than one.

    /// The stretch that holds a day; null where there is none.
    static const YearStretch* find(const std::vector<YearStretch>& stretches, const QDate& day);
};

/// Costs n log n over the tasks of the year, and its days.
YearLayout layoutYear(int year, const Validities& validities);

} // namespace trel::desktop::year
