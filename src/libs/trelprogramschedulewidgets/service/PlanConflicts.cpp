#include "service/PlanConflicts.h"

#include "service/WeekDays.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string_view>
#include <unordered_map>

// The rule is a walk over all pairs of claims, as the tests have it. Here each claim asks only
// after the earlier ones of its days, and after all of them at once. All times are sorted, so that
// a time is a rank and a span two numbers. Spans are gathered by day: a claim for every day meets
// all spans, one that names days meets those of its days and of the claims for every day. For the
// spans of a day a binary indexed tree, in the order of their starts, tells how late the first n of
// them end; a claim collides with one that starts before its end if the latest of these ends after
// its start. A span that ends before it starts collides with every other of its day, which is one
// flag. Comparing the pairs of each day is shorter, but grows with the square, and 1,000 plans of
// one task may take no more than 15 times what 100 take.

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
    /// To be called before everything else where collideWith() will be. Spans that no claim asks
    /// after, such as those of all days where no claim is for every day, are not kept.
    void expectQuestions() { m_isAsked = true; }

    /// Returns the place of the start, for add().
    std::size_t announceStart()
    {
        if (!m_isAsked) {
            return 0;
        }
        m_latestEnds.push_back(kNoEnd);
        return m_latestEnds.size() - 1;
    }

    /// How many starts have been announced.
    std::size_t starts() const { return m_latestEnds.size(); }

    /// startsBeforeEnd tells how many of the announced starts come before the end of the span.
    bool collideWith(const Span& span, std::size_t startsBeforeEnd) const
    {
        if (m_isEmpty) {
            return false;
        }
        return m_hasInverted || span.isInverted() || latestEnd(startsBeforeEnd) > span.start;
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

    /// Of the spans at the first places.
    int latestEnd(std::size_t places) const
    {
        int latest = kNoEnd;
        for (std::size_t i = places; i > 0; i &= i - 1) {
            latest = std::max(latest, m_latestEnds[i - 1]);
        }
        return latest;
    }

    // A binary indexed tree over the places: entry i holds the latest end of the spans at the last
    // few places up to i, as many as the lowest set bit of i + 1.
    std::vector<int> m_latestEnds;
    bool m_isAsked = false;
    bool m_isEmpty = true;
    bool m_hasInverted = false;
};

/// One end of a claim's span. The first eight bytes of a time stand in a number, so that times of
/// the usual width compare in one step.
struct TimeMark
{
    /// What ends at a time comes before what starts at it: the two do not collide.
    enum Kind : std::uint32_t { End, Start };

    // No padding is left at the tail: sorting copies a mark faster in whole words.
    std::uint64_t head = 0;
    const std::string* text = nullptr;
    std::uint32_t claim = 0;
    Kind kind = End;

    TimeMark(const std::string& time, std::size_t itsClaim, Kind itsKind)
        : text(&time)
        , claim(static_cast<std::uint32_t>(itsClaim))
        , kind(itsKind)
    {
        for (std::size_t i = 0; i < sizeof head; ++i) {
            const unsigned char byte = i < time.size() ? static_cast<unsigned char>(time[i]) : 0;
            head = head << 8U | byte;
        }
    }

    int compareTime(const TimeMark& other) const
    {
        if (head != other.head) {
            return head < other.head ? -1 : 1;
        }
        return text->compare(*other.text);
    }

    friend bool operator<(const TimeMark& a, const TimeMark& b)
    {
        const int order = a.compareTime(b);
        return order != 0 ? order < 0 : a.kind < b.kind;
    }
};

std::vector<TimeMark> sortedTimeMarks(const std::vector<PlanClaim>& claims)
{
    std::vector<TimeMark> marks;
    marks.reserve(claims.size() * 2);
    for (std::size_t i = 0; i < claims.size(); ++i) {
        marks.emplace_back(claims[i].start, i, TimeMark::Start);
        marks.emplace_back(claims[i].end, i, TimeMark::End);
    }
    std::sort(marks.begin(), marks.end());
    return marks;
}

std::vector<Span> rankedSpans(const std::vector<TimeMark>& marks)
{
    std::vector<Span> spans(marks.size() / 2);
    int rank = 0;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        rank += i > 0 && marks[i - 1].compareTime(marks[i]) < 0 ? 1 : 0;
        Span& span = spans[marks[i].claim];
        (marks[i].kind == TimeMark::Start ? span.start : span.end) = rank;
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
            const Days& days = daysOf(claim.weeks);
            m_claims.push_back({&days, m_places.size(), m_startsBeforeEnd.size()});
            m_places.resize(m_places.size() + days.joined.size());
            m_startsBeforeEnd.resize(m_startsBeforeEnd.size() + days.met.size());
        }
        for (const TimeMark& mark : marks) {
            if (mark.kind == TimeMark::Start) {
                announce(m_claims[mark.claim]);
            } else {
                countStartsBefore(m_claims[mark.claim]);
            }
        }
    }

    // The days point into the table.
    DayTable(const DayTable&) = delete;
    DayTable& operator=(const DayTable&) = delete;

    bool collidesWithEarlier(std::size_t number) const
    {
        const Claim& claim = m_claims[number];
        const std::vector<EarlierSpans*>& met = claim.days->met;
        for (std::size_t i = 0; i < met.size(); ++i) {
            if (met[i]->collideWith(m_spans[number], m_startsBeforeEnd[claim.firstCount + i])) {
                return true;
            }
        }
        return false;
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
        std::size_t firstCount = 0; // In m_startsBeforeEnd, one for each entry of days->met.
    };

    // Plans of one task mostly share a handful of texts, and each is read once.
    const Days& daysOf(const std::string& weeks)
    {
        const auto [found, isNew] = m_daysByText.try_emplace(weeks);
        if (isNew) {
            found->second = readDays(weeks);
            for (EarlierSpans* const spans : found->second.met) {
                spans->expectQuestions();
            }
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

    void announce(const Claim& claim)
    {
        const std::vector<EarlierSpans*>& joined = claim.days->joined;
        for (std::size_t i = 0; i < joined.size(); ++i) {
            m_places[claim.firstPlace + i] = joined[i]->announceStart();
        }
    }

    void countStartsBefore(const Claim& claim)
    {
        const std::vector<EarlierSpans*>& met = claim.days->met;
        for (std::size_t i = 0; i < met.size(); ++i) {
            m_startsBeforeEnd[claim.firstCount + i] = met[i]->starts();
        }
    }

    std::vector<Span> m_spans;
    std::vector<Claim> m_claims;
    std::vector<std::size_t> m_places;
    std::vector<std::size_t> m_startsBeforeEnd;
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
