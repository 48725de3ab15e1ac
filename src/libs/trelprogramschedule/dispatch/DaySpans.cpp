#include "DaySpans.h"

#include <algorithm>
#include <set>

namespace trel::mediadispatch {

namespace {

/// A row takes up its claim or gives it up.
struct ClaimBorder
{
    int second = 0;
    int row = 0;
    bool isBegin = false;
};

std::vector<ClaimBorder> sortedBorders(const std::vector<ClaimedSpan>& claims)
{
    std::vector<ClaimBorder> borders;
    borders.reserve(claims.size() * 2);
    for (std::size_t i = 0; i < claims.size(); ++i) {
        if (claims[i].begin < claims[i].end) {
            const int row = static_cast<int>(i);
            borders.push_back({claims[i].begin, row, true});
            borders.push_back({claims[i].end, row, false});
        }
    }
    std::sort(borders.begin(), borders.end(),
              [](const ClaimBorder& a, const ClaimBorder& b) { return a.second < b.second; });
    return borders;
}

void append(std::vector<DaySpan>& spans, const DaySpan& span)
{
    if (!spans.empty() && spans.back().end == span.begin && spans.back().row == span.row) {
        spans.back().end = span.end;
        return;
    }
    spans.push_back(span);
}

} // namespace

std::vector<DaySpan> daySpans(const std::vector<ClaimedSpan>& claims)
{
    std::vector<DaySpan> spans;
    std::set<int> claiming;
    int reached = 0;
    for (const ClaimBorder& border : sortedBorders(claims)) {
        if (reached < border.second && !claiming.empty()) {
            append(spans, {reached, border.second, *claiming.begin()});
        }
        reached = border.second;
        if (border.isBegin) {
            claiming.insert(border.row);
        } else {
            claiming.erase(border.row);
        }
    }
    return spans;
}

} // namespace trel::mediadispatch
