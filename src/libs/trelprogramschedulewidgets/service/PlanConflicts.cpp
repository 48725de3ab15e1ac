#include "service/PlanConflicts.h"

#include "service/WeekDays.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string_view>
#include <unordered_map>

namespace trel::mediadispatch {

namespace {

/// A span of the day, both ends given by their rank among all times of the list.
struct Span
{
    int start = 0;
    int end = 0;

    bool isInverted() const { return end < start; }
};

/// The spans met so far that share a day with each other. Every start that add() will bring has to
/// be announced before, in ascending order; then each call costs the logarithm of their number.
class EarlierSpans
{
public:
    void announceStart(int start) { m_starts.push_back(start); }

    bool collideWith(const Span& span) const
    {
        if (m_isEmpty) {
            return false;
        }
        return m_hasInverted || span.isInverted() || latestEndBefore(span.end) > span.start;
    }

    void add(const Span& span)
    {
        m_isEmpty = false;
        m_hasInverted = m_hasInverted || span.isInverted();
        m_latestEnds.resize(m_starts.size(), kNoEnd);
        for (std::size_t i = startsBefore(span.start); i < m_latestEnds.size(); i |= i + 1) {
            m_latestEnds[i] = std::max(m_latestEnds[i], span.end);
        }
    }

private:
    static constexpr int kNoEnd = -1;

    std::size_t startsBefore(int time) const
    {
        return static_cast<std::size_t>(std::lower_bound(m_starts.begin(), m_starts.end(), time) -
                                        m_starts.begin());
    }

    int latestEndBefore(int time) const
    {
        int latest = kNoEnd;
        for (std::size_t i = startsBefore(time); i > 0; i &= i - 1) {
            latest = std::max(latest, m_latestEnds[i - 1]);
        }
        return latest;
    }

    std::vector<int> m_starts;
    // A binary indexed tree over m_starts: entry i holds the latest end of the spans whose start is
    // among the last few up to i, as many as the lowest set bit of i + 1.
    std::vector<int> m_latestEnds;
    bool m_isEmpty = true;
    bool m_hasInverted = false;
};

/// One end of a claim's span. The first eight bytes of a time stand in a number, so that times of
/// the usual width compare in one step.
struct TimeMark
{
    std::uint64_t head = 0;
    std::string_view text;
    std::size_t claim = 0;
    bool isStart = false;

    TimeMark(const std::string& time, std::size_t itsClaim, bool isItsStart)
        : text(time)
        , claim(itsClaim)
        , isStart(isItsStart)
    {
        for (std::size_t i = 0; i < sizeof head; ++i) {
            const unsigned char byte = i < time.size() ? static_cast<unsigned char>(time[i]) : 0;
            head = head << 8U | byte;
        }
    }

    friend bool operator<(const TimeMark& a, const TimeMark& b)
    {
        return a.head != b.head ? a.head < b.head : a.text < b.text;
    }
};

std::vector<TimeMark> sortedTimeMarks(const std::vector<PlanClaim>& claims)
{
    std::vector<TimeMark> marks;
    marks.reserve(claims.size() * 2);
    for (std::size_t i = 0; i < claims.size(); ++i) {
        marks.emplace_back(claims[i].start, i, true);
        marks.emplace_back(claims[i].end, i, false);
    }
    std::sort(marks.begin(), marks.end());
    return marks;
}

std::vector<Span> rankedSpans(const std::vector<TimeMark>& marks)
{
    std::vector<Span> spans(marks.size() / 2);
    int rank = 0;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        rank += i > 0 && marks[i - 1] < marks[i] ? 1 : 0;
        Span& span = spans[marks[i].claim];
        (marks[i].isStart ? span.start : span.end) = rank;
    }
    return spans;
}

/// The spans of a list of claims, gathered by the days that they share.
class DayTable
{
public:
    explicit DayTable(const std::vector<PlanClaim>& claims)
        : m_daysOfClaim(claims.size())
    {
        const std::vector<TimeMark> marks = sortedTimeMarks(claims);
        m_spans = rankedSpans(marks);
        for (std::size_t i = 0; i < claims.size(); ++i) {
            readDays(claims[i].weeks, m_daysOfClaim[i]);
        }
        for (const TimeMark& mark : marks) {
            if (mark.isStart) {
                announce(mark.claim);
            }
        }
    }

    bool collidesWithEarlier(std::size_t claim) const
    {
        const Span& span = m_spans[claim];
        const std::vector<EarlierSpans*>& days = m_daysOfClaim[claim];
        if (days.empty()) {
            return m_all.collideWith(span);
        }
        return m_everyDay.collideWith(span) ||
               std::any_of(days.begin(), days.end(),
                           [&span](const EarlierSpans* day) { return day->collideWith(span); });
    }

    void add(std::size_t claim)
    {
        const Span& span = m_spans[claim];
        m_all.add(span);
        if (m_daysOfClaim[claim].empty()) {
            m_everyDay.add(span);
        }
        for (EarlierSpans* day : m_daysOfClaim[claim]) {
            day->add(span);
        }
    }

private:
    void readDays(const std::string& weeks, std::vector<EarlierSpans*>& days)
    {
        m_numbers.clear();
        if (parseWeeks(weeks, m_numbers)) {
            return;
        }
        // A claim that names a day twice must not meet itself there.
        std::sort(m_numbers.begin(), m_numbers.end());
        m_numbers.erase(std::unique(m_numbers.begin(), m_numbers.end()), m_numbers.end());
        days.reserve(m_numbers.size());
        for (const int number : m_numbers) {
            days.push_back(&m_byDay[number]);
        }
    }

    void announce(std::size_t claim)
    {
        const int start = m_spans[claim].start;
        m_all.announceStart(start);
        if (m_daysOfClaim[claim].empty()) {
            m_everyDay.announceStart(start);
        }
        for (EarlierSpans* day : m_daysOfClaim[claim]) {
            day->announceStart(start);
        }
    }

    std::vector<Span> m_spans;
    std::vector<std::vector<EarlierSpans*>> m_daysOfClaim; // Empty for an every-day claim.
    std::map<int, EarlierSpans> m_byDay;                   // Claims that name their days.
    EarlierSpans m_everyDay;
    EarlierSpans m_all;
    std::vector<int> m_numbers;
};

} // namespace

std::vector<PlanClaim> planClaims(const std::vector<PlayPlan>& plans,
                                  const std::map<int, ProgramIten>& catalogue,
                                  const NoDurationTest& hasNoDuration)
{
    // Plans share their programs, and the answer costs a call of the service.
    std::unordered_map<int, bool> answers;
    const NoDurationTest askOnce = [&](int progIndex) {
        const auto [answer, isNew] = answers.try_emplace(progIndex, false);
        if (isNew) {
            answer->second = hasNoDuration(progIndex);
        }
        return answer->second;
    };

    std::vector<PlanClaim> claims;
    claims.reserve(plans.size());
    for (const PlayPlan& plan : plans) {
        claims.push_back(
            {plan.startTime,
             plan.mode == FrequencyMode ? plannedEnd(plan, catalogue, askOnce) : plan.endTime,
             plan.weeks});
    }
    return claims;
}

std::vector<bool> collidingClaims(const std::vector<PlanClaim>& claims)
{
    DayTable earlier(claims);
    std::vector<bool> collides(claims.size());
    for (std::size_t i = 0; i < claims.size(); ++i) {
        collides[i] = earlier.collidesWithEarlier(i);
        earlier.add(i);
    }
    return collides;
}

} // namespace trel::mediadispatch
