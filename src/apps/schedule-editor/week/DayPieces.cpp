#include "week/DayPieces.h"

#include "trelprogramschedule/dispatch/DaySpans.h"

#include <algorithm>
#include <array>
#include <numeric>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

using Pieces = std::vector<DayPiece>;

bool isEarlier(const DayPiece& a, const DayPiece& b)
{
    return a.from != b.from ? a.from < b.from : a.claim < b.claim;
}

std::vector<std::size_t> byStart(const std::vector<DayClaim>& claims)
{
    std::vector<std::size_t> order(claims.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&claims](std::size_t a, std::size_t b) {
        return claims[a].from != claims[b].from ? claims[a].from < claims[b].from
                                                : claims[a].row < claims[b].row;
    });
    return order;
}

std::vector<std::size_t> byRow(const std::vector<DayClaim>& claims)
{
    std::vector<std::size_t> order(claims.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&claims](std::size_t a, std::size_t b) { return claims[a].row < claims[b].row; });
    return order;
}

/// Who has the screen, in order of time.
Pieces onScreen(const std::vector<DayClaim>& claims)
{
    const std::vector<std::size_t> order = byRow(claims);
    std::vector<ClaimedSpan> rows;
    rows.reserve(claims.size());
    for (const std::size_t claim : order) {
        rows.push_back({claims[claim].from, claims[claim].to});
    }
    Pieces pieces;
    for (const DaySpan& span : daySpans(rows)) {
        DayPiece piece;
        piece.claim = static_cast<int>(order[static_cast<std::size_t>(span.row)]);
        piece.from = span.begin;
        piece.to = span.end;
        pieces.push_back(piece);
    }
    return pieces;
}

/// What is left of the claims once what is on screen is taken away.
Pieces hidden(const std::vector<DayClaim>& claims, const Pieces& shown)
{
    std::vector<int> reached(claims.size());
    for (std::size_t i = 0; i < claims.size(); ++i) {
        reached[i] = claims[i].from;
    }
    Pieces pieces;
    const auto add = [&pieces, &reached](int claim, int to) {
        int& from = reached[static_cast<std::size_t>(claim)];
        if (from < to) {
            DayPiece piece;
            piece.state = DayPiece::Hidden;
            piece.claim = claim;
            piece.from = from;
            piece.to = to;
            pieces.push_back(piece);
        }
    };
    for (const DayPiece& piece : shown) {
        add(piece.claim, piece.from);
        reached[static_cast<std::size_t>(piece.claim)] = piece.to;
    }
    for (std::size_t i = 0; i < claims.size(); ++i) {
        add(static_cast<int>(i), claims[i].to);
    }
    std::sort(pieces.begin(), pieces.end(), isEarlier);
    return pieces;
}

/// Claims that overlap each other, also by way of others.
struct Group
{
    int to = 0;
    int lanes = 1;
    std::array<int, kLanes> ends{}; ///< Up to when a lane is taken.
};

class LaneGiver
{
public:
    explicit LaneGiver(const std::vector<DayClaim>& claims)
        : m_groupOf(claims.size())
        , m_lanes(kLanes)
    {
        for (const std::size_t claim : byStart(claims)) {
            if (m_groups.empty() || claims[claim].from >= m_groups.back().to) {
                m_groups.emplace_back();
            }
            m_groups.back().to = std::max(m_groups.back().to, claims[claim].to);
            m_groupOf[claim] = m_groups.size() - 1;
        }
    }

    void putOnScreen(const DayPiece& piece) { put(piece, 0); }

    /// Pieces come in order of their start.
    void putHidden(const DayPiece& piece)
    {
        const Group& group = groupOf(piece);
        for (int lane = 1; lane < kSeveralLane; ++lane) {
            if (group.ends[static_cast<std::size_t>(lane)] <= piece.from) {
                put(piece, lane);
                return;
            }
        }
        putAmongSeveral(piece);
    }

    DayLanes takeLanes()
    {
        for (Pieces& lane : m_lanes) {
            for (DayPiece& piece : lane) {
                piece.lanes = m_groups[m_groupOf[static_cast<std::size_t>(piece.claim)]].lanes;
                piece.claim = piece.state == DayPiece::Several ? -1 : piece.claim;
            }
        }
        return std::move(m_lanes);
    }

private:
    Group& groupOf(const DayPiece& piece)
    {
        return m_groups[m_groupOf[static_cast<std::size_t>(piece.claim)]];
    }

    void put(DayPiece piece, int lane)
    {
        Group& group = groupOf(piece);
        group.lanes = std::max(group.lanes, lane + 1);
        group.ends[static_cast<std::size_t>(lane)] = piece.to;
        piece.lane = lane;
        m_lanes[static_cast<std::size_t>(lane)].push_back(piece);
    }

    void putAmongSeveral(const DayPiece& piece)
    {
        Pieces& several = m_lanes[kSeveralLane];
        if (!several.empty() && piece.from < several.back().to) {
            several.back().state = DayPiece::Several;
            several.back().to = std::max(several.back().to, piece.to);
            several.back().count += 1;
            return;
        }
        put(piece, kSeveralLane);
    }

    std::vector<Group> m_groups; // In order of time.
    std::vector<std::size_t> m_groupOf;
    DayLanes m_lanes;
};

void cut(Pieces& lane, const LeftOutTime& gap)
{
    Pieces cutLane;
    cutLane.reserve(lane.size() + 2);
    const auto add = [&cutLane](DayPiece piece, int from, int to, bool isLeftOut) {
        piece.from = std::max(piece.from, from);
        piece.to = std::min(piece.to, to);
        if (isLeftOut) {
            piece.state = DayPiece::LeftOut;
        }
        if (piece.from < piece.to) {
            cutLane.push_back(piece);
        }
    };
    for (const DayPiece& piece : lane) {
        add(piece, piece.from, gap.from, false);
        add(piece, gap.from, gap.to, true);
        add(piece, gap.to, piece.to, false);
    }
    lane = std::move(cutLane);
}

} // namespace

DayLanes dayPieces(const std::vector<DayClaim>& claims, const std::vector<LeftOutTime>& leftOut)
{
    LaneGiver giver(claims);
    const Pieces shown = onScreen(claims);
    for (const DayPiece& piece : shown) {
        giver.putOnScreen(piece);
    }
    for (const DayPiece& piece : hidden(claims, shown)) {
        giver.putHidden(piece);
    }
    DayLanes lanes = giver.takeLanes();
    for (const LeftOutTime& gap : leftOut) {
        for (Pieces& lane : lanes) {
            cut(lane, gap);
        }
    }
    return lanes;
}

} // namespace trel::desktop::week
