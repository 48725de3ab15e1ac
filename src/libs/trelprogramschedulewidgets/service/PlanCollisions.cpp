#include "service/PlanCollisions.h"

#include "service/WeekDays.h"

#include <algorithm>
#include <map>
#include <string_view>

// The rule is a walk over all pairs, as the tests have it. Here all claims wait at first. One after
// the other, in their order, leaves the line and takes those along that collide with it: it is the
// first one that they meet. Each claim is taken once from each line that it stands in, so that the
// whole costs n log n. A line holds the claims of a day in the order of their starts, with a tree
// over it that knows the latest end: those that start before an end stand at its front, and of them
// one collides if the latest end lies behind the start. A claim that ends before it starts takes
// all others of its days along, and goes with each of them.

namespace trel::mediadispatch {

namespace {

constexpr int kNone = -1;

/// A span of the day, both ends given by their rank among all times of the list.
struct RankedSpan
{
    int start = 0;
    int end = 0;

    bool isInverted() const { return end < start; }
};

std::vector<RankedSpan> rankedSpans(const std::vector<PlanClaim>& claims)
{
    std::vector<std::string_view> times;
    times.reserve(claims.size() * 2);
    for (const PlanClaim& claim : claims) {
        times.emplace_back(claim.start);
        times.emplace_back(claim.end);
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    const auto rankOf = [&times](const std::string& time) {
        return static_cast<int>(
            std::lower_bound(times.begin(), times.end(), std::string_view(time)) - times.begin());
    };
    std::vector<RankedSpan> spans;
    spans.reserve(claims.size());
    for (const PlanClaim& claim : claims) {
        spans.push_back({rankOf(claim.start), rankOf(claim.end)});
    }
    return spans;
}

/// The claims of a day that nobody has met yet. All of them join, then it is closed, then they
/// leave.
class WaitingLine
{
public:
    explicit WaitingLine(const std::vector<RankedSpan>& spans)
        : m_spans(spans)
    {}

    /// Twice does nothing more.
    void join(int claim)
    {
        std::vector<int>& line = span(claim).isInverted() ? m_inverted : m_byStart;
        if (line.empty() || line.back() != claim) {
            line.push_back(claim);
        }
    }

    void close()
    {
        std::stable_sort(m_byStart.begin(), m_byStart.end(),
                         [this](int a, int b) { return span(a).start < span(b).start; });
        while (m_leafCount < m_byStart.size()) {
            m_leafCount *= 2;
        }
        m_latestEnds.assign(m_leafCount * 2, kNone);
        for (std::size_t i = 0; i < m_byStart.size(); ++i) {
            m_latestEnds[m_leafCount + i] = span(m_byStart[i]).end;
        }
        for (std::size_t node = m_leafCount - 1; node > 0; --node) {
            update(node);
        }
    }

    /// Takes out all that collide with a claim, itself perhaps among them.
    template <typename Visit>
    void takeColliding(int claim, const Visit& visit)
    {
        const RankedSpan& own = span(claim);
        for (const int inverted : m_inverted) {
            visit(inverted);
        }
        m_inverted.clear();
        if (own.isInverted()) {
            takeFrom(1, 0, m_leafCount, m_byStart.size(), kNone, visit);
            return;
        }
        const auto startsBehind =
            std::partition_point(m_byStart.begin(), m_byStart.end(),
                                 [&](int other) { return span(other).start < own.end; });
        takeFrom(1, 0, m_leafCount, static_cast<std::size_t>(startsBehind - m_byStart.begin()),
                 own.start, visit);
    }

private:
    const RankedSpan& span(int claim) const { return m_spans[static_cast<std::size_t>(claim)]; }

    void update(std::size_t node)
    {
        m_latestEnds[node] = std::max(m_latestEnds[node * 2], m_latestEnds[node * 2 + 1]);
    }

    /// Of the leaves below a node, those of the range first to last, as far as they stand before
    /// limit and end behind a time.
    template <typename Visit>
    void takeFrom(std::size_t node, std::size_t first, std::size_t last, std::size_t limit,
                  int behind, const Visit& visit)
    {
        if (first >= limit || m_latestEnds[node] <= behind) {
            return;
        }
        if (last - first == 1) {
            m_latestEnds[node] = kNone;
            visit(m_byStart[first]);
            return;
        }
        const std::size_t middle = first + (last - first) / 2;
        takeFrom(node * 2, first, middle, limit, behind, visit);
        takeFrom(node * 2 + 1, middle, last, limit, behind, visit);
        update(node);
    }

    const std::vector<RankedSpan>& m_spans;
    std::vector<int> m_byStart;
    std::vector<int> m_inverted;
    std::size_t m_leafCount = 1;
    std::vector<int> m_latestEnds; // Node i has the children 2i and 2i + 1; the root is 1.
};

/// The lines of all days.
class WaitingClaims
{
public:
    explicit WaitingClaims(const std::vector<PlanClaim>& claims)
        : m_spans(rankedSpans(claims))
        , m_everyDay(m_spans)
        , m_all(m_spans)
        , m_metBy(claims.size(), kNone)
        , m_hasLeft(claims.size(), false)
    {
        for (std::size_t i = 0; i < claims.size(); ++i) {
            const int claim = static_cast<int>(i);
            m_all.join(claim);
            std::vector<int> numbers;
            if (parseWeeks(claims[i].weeks, numbers)) {
                m_everyDay.join(claim);
                m_days.emplace_back();
                continue;
            }
            for (const int number : numbers) {
                m_byDay.try_emplace(number, m_spans).first->second.join(claim);
            }
            m_days.push_back(std::move(numbers));
        }
        m_all.close();
        m_everyDay.close();
        for (auto& [number, line] : m_byDay) {
            line.close();
        }
    }

    // The lines point to the spans.
    WaitingClaims(const WaitingClaims&) = delete;
    WaitingClaims& operator=(const WaitingClaims&) = delete;

    std::vector<int> takeAll()
    {
        for (std::size_t i = 0; i < m_days.size(); ++i) {
            m_hasLeft[i] = true;
            const int claim = static_cast<int>(i);
            const std::vector<int>& numbers = m_days[i];
            if (numbers.empty()) {
                takeFrom(m_all, claim);
                continue;
            }
            takeFrom(m_everyDay, claim);
            for (const int number : numbers) {
                takeFrom(m_byDay.find(number)->second, claim);
            }
        }
        return std::move(m_metBy);
    }

private:
    /// What stands in the lines of several days is met once.
    void takeFrom(WaitingLine& line, int claim)
    {
        line.takeColliding(claim, [this, claim](int other) {
            const auto place = static_cast<std::size_t>(other);
            if (!m_hasLeft[place]) {
                m_hasLeft[place] = true;
                m_metBy[place] = claim;
            }
        });
    }

    std::vector<RankedSpan> m_spans;
    WaitingLine m_everyDay;
    WaitingLine m_all;
    std::map<int, WaitingLine> m_byDay;
    std::vector<std::vector<int>> m_days; // The numbers of each claim; none for every day.
    std::vector<int> m_metBy;
    std::vector<bool> m_hasLeft; // Met already, or too early in the order to be met.
};

} // namespace

bool claimsCollide(const PlanClaim& a, const PlanClaim& b)
{
    return weeksOverlap(a.weeks, b.weeks) &&
           (b.end < b.start || a.end < a.start || (a.start < b.end && b.start < a.end));
}

std::vector<int> firstCollisions(const std::vector<PlanClaim>& claims)
{
    return WaitingClaims(claims).takeAll();
}

std::vector<int> collisionsOf(const std::vector<PlanClaim>& claims, int place)
{
    std::vector<int> result;
    const int count = static_cast<int>(claims.size());
    if (place < 0 || place >= count) {
        return result;
    }
    const PlanClaim& own = claims[static_cast<std::size_t>(place)];
    for (int other = 0; other < count; ++other) {
        if (other != place && claimsCollide(claims[static_cast<std::size_t>(other)], own)) {
            result.push_back(other);
        }
    }
    return result;
}

} // namespace trel::mediadispatch
