#include "year/YearLayout.h"

#include <algorithm>
#include <array>
#include <functional>

namespace trel::desktop::year {

namespace {

/// The days of a year by their places, from 0.
class Days
{
public:
    explicit Days(int year)
        : m_first(year, 1, 1)
        , m_counts(static_cast<std::size_t>(m_first.daysInYear()) + 1)
    {}

    QDate first() const { return m_first; }
    QDate last() const { return day(count() - 1); }
    QDate day(int place) const { return m_first.addDays(place); }
    int count() const { return static_cast<int>(m_counts.size()) - 1; }

    /// Notes that a task is valid from one of the days to another.
    void add(const YearSpan& span)
    {
        m_counts[placeOf(span.first)] += 1;
        m_counts[placeOf(span.last) + 1] -= 1;
    }

    /// The stretches of days whose number of tasks is of a kind.
    std::vector<YearStretch> stretches(const std::function<bool(const QDate&, int)>& isOne) const
    {
        std::vector<YearStretch> found;
        int tasks = 0;
        bool wasOne = false;
        for (int place = 0; place < count(); ++place) {
            tasks += m_counts[static_cast<std::size_t>(place)];
            const bool is = isOne(day(place), tasks);
            if (is && !wasOne) {
                found.push_back({day(place), day(place), tasks});
            } else if (is) {
                found.back().last = day(place);
                found.back().tasks = std::max(found.back().tasks, tasks);
            }
            wasOne = is;
        }
        return found;
    }

private:
    std::size_t placeOf(const QDate& day) const
    {
        return static_cast<std::size_t>(m_first.daysTo(day));
    }

    QDate m_first;
    std::vector<int> m_counts; ///< How many more tasks than on the day before.
};

void giveLanes(YearLayout& layout)
{
    std::array<QDate, YearLayout::kMostLanes> ends;
    for (YearSpan& span : layout.spans) {
        const auto free = std::find_if(ends.begin(), ends.end(), [&span](const QDate& end) {
            return !end.isValid() || end < span.first;
        });
        const auto lane = free == ends.end() ? ends.end() - 1 : free;
        span.lane = static_cast<int>(lane - ends.begin());
        *lane = lane->isValid() ? std::max(*lane, span.last) : span.last;
        layout.lanes = std::max(layout.lanes, span.lane + 1);
    }
}

} // namespace

const YearStretch* YearLayout::find(const std::vector<YearStretch>& stretches, const QDate& day)
{
    const auto found =
        std::find_if(stretches.begin(), stretches.end(), [&day](const YearStretch& stretch) {
            return stretch.first <= day && day <= stretch.last;
        });
    return found == stretches.end() ? nullptr : &*found;
}

YearLayout layoutYear(int year, const Validities& validities)
{
    YearLayout layout;
    layout.year = year;
    Days days(year);
    QDate earliest;
    QDate latest;
    for (const auto& [id, validity] : validities) {
        if (validity.isEmpty()) {
            continue;
        }
        earliest = earliest.isValid() ? std::min(earliest, validity.first) : validity.first;
        latest = latest.isValid() ? std::max(latest, validity.last) : validity.last;
        if (validity.first <= days.last() && days.first() <= validity.last) {
            layout.spans.push_back({id, std::max(validity.first, days.first()),
                                    std::min(validity.last, days.last()), 0});
            days.add(layout.spans.back());
        }
    }
    std::stable_sort(layout.spans.begin(), layout.spans.end(),
                     [](const YearSpan& a, const YearSpan& b) { return a.first < b.first; });
    giveLanes(layout);
    layout.gaps = days.stretches([&](const QDate& day, int tasks) {
        return tasks == 0 && earliest.isValid() && earliest <= day && day <= latest;
    });
    layout.overlaps = days.stretches([](const QDate&, int tasks) { return tasks > 1; });
    return layout;
}

} // namespace trel::desktop::year
