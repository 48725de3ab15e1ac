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
    /// Returns the place of the start, for add().
    std::size_t announceStart(int start)
    {
        m_starts.push_back(start);
        m_latestEnds.push_back(kNoEnd);
        return m_starts.size() - 1;
    }

    bool collideWith(const Span& span) const
    {
        if (m_isEmpty) {
            return false;
        }
        return m_hasInverted || span.isInverted() || latestEndBefore(span.end) > span.start;
    }

    void add(const Span& span, std::size_t place)
    {
        m_isEmpty = false;
        m_hasInverted = m_hasInverted || span.isInverted();
        for (std::size_t i = place; i < m_latestEnds.size(); i |= i + 1) {
            m_latestEnds[i] = std::max(m_latestEnds[i], span.end);
        }
    }

private:
    static constexpr int kNoEnd = -1;

    int latestEndBefore(int time) const
    {
        const auto startsLater = std::lower_bound(m_starts.begin(), m_starts.end(), time);
        int latest = kNoEnd;
        for (auto i = static_cast<std::size_t>(startsLater - m_starts.begin()); i > 0; i &= i - 1) {
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
    {
        const std::vector<TimeMark> marks = sortedTimeMarks(claims);
        m_spans = rankedSpans(marks);
        m_claims.reserve(claims.size());
        for (const PlanClaim& claim : claims) {
            m_claims.push_back({&daysOf(claim.weeks), m_places.size()});
            m_places.resize(m_places.size() + m_claims.back().days->joined.size());
        }
        for (const TimeMark& mark : marks) {
            if (mark.isStart) {
                announce(mark.claim);
            }
        }
    }

    // The days point into the table.
    DayTable(const DayTable&) = delete;
    DayTable& operator=(const DayTable&) = delete;

    bool collidesWithEarlier(std::size_t claim) const
    {
        const Span& span = m_spans[claim];
        const std::vector<EarlierSpans*>& met = m_claims[claim].days->met;
        return std::any_of(met.begin(), met.end(),
                           [&span](const EarlierSpans* spans) { return spans->collideWith(span); });
    }

    void add(std::size_t claim)
    {
        const std::vector<EarlierSpans*>& joined = m_claims[claim].days->joined;
        for (std::size_t i = 0; i < joined.size(); ++i) {
            joined[i]->add(m_spans[claim], m_places[m_claims[claim].firstPlace + i]);
        }
    }

private:
    /// What a `weeks` text comes to: the spans that its claims meet, and those that they join.
    struct Days
    {
        std::vector<EarlierSpans*> met;
        std::vector<EarlierSpans*> joined;
    };

    struct Claim
    {
        const Days* days = nullptr;
        std::size_t firstPlace = 0; // In m_places, one for each entry of days->joined.
    };

    // Plans of one task mostly share a handful of texts, and each is read once.
    const Days& daysOf(const std::string& weeks)
    {
        const auto [found, isNew] = m_daysByText.try_emplace(weeks);
        if (isNew) {
            found->second = readDays(weeks);
        }
        return found->second;
    }

    Days readDays(const std::string& weeks)
    {
        std::vector<int> numbers;
        if (parseWeeks(weeks, numbers)) {
            return {{&m_all}, {&m_all, &m_everyDay}};
        }
        // A day that is named twice is looked at once.
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        Days days{{&m_everyDay}, {&m_all}};
        for (const int number : numbers) {
            days.met.push_back(&m_byDay[number]);
            days.joined.push_back(&m_byDay[number]);
        }
        return days;
    }

    void announce(std::size_t claim)
    {
        const std::vector<EarlierSpans*>& joined = m_claims[claim].days->joined;
        for (std::size_t i = 0; i < joined.size(); ++i) {
            m_places[m_claims[claim].firstPlace + i] =
                joined[i]->announceStart(m_spans[claim].start);
        }
    }

    std::vector<Span> m_spans;
    std::vector<Claim> m_claims;
    std::vector<std::size_t> m_places;
    std::unordered_map<std::string_view, Days> m_daysByText;
    std::map<int, EarlierSpans> m_byDay; // Claims that name their days.
    EarlierSpans m_everyDay;             // Claims that do not.
    EarlierSpans m_all;
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
