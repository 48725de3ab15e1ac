#include "week/WeekHit.h"

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

const ClockChange* changeAt(const WeekColumn& column, int second)
{
    const auto found = std::find_if(column.changes.begin(), column.changes.end(),
                                    [second](const ClockChange& change) {
                                        return change.begin <= second && second < change.end;
                                    });
    return found == column.changes.end() ? nullptr : &*found;
}

/// The moment of a piece nearest to a second.
int withinPiece(const DayPiece& piece, int second)
{
    return std::clamp(second, piece.from, piece.to - 1);
}

} // namespace

WeekHit hitAt(const WeekLayout& layout, const WeekGeometry& geometry, const QPoint& place)
{
    WeekHit hit;
    hit.day = geometry.dayAt(place.x());
    hit.second = geometry.secondAt(place.y());
    const WeekColumn& column = layout.days[static_cast<std::size_t>(hit.day)];
    for (const WeekBlock& block : column.blocks) {
        if (block.never != PlanFault::None && geometry.mark(hit.day, block.from).contains(place)) {
            hit.marks.push_back(&block);
        }
    }
    for (const std::vector<DayPiece>& lane : column.lanes) {
        for (const DayPiece& piece : geometry.piecesBetween(lane, place.y(), place.y())) {
            if (geometry.piece(hit.day, piece).contains(place)) {
                hit.piece = &piece;
            }
        }
    }
    if (hit.piece != nullptr) {
        hit.second = withinPiece(*hit.piece, hit.second);
        if (hit.piece->claim >= 0) {
            hit.block = &column.blocks[static_cast<std::size_t>(hit.piece->claim)];
        }
    }
    hit.change = changeAt(column, hit.second);
    if (hit.change != nullptr && !hit.change->isLeftOut()) {
        hit.pass = geometry.passAt(hit.day, place.x());
    }
    return hit;
}

WeekHit hitOf(const WeekLayout& layout, int day, const WeekBlock& block)
{
    WeekHit hit;
    hit.day = day;
    hit.second = block.from;
    const WeekColumn& column = layout.days[static_cast<std::size_t>(day)];
    if (block.never != PlanFault::None) {
        hit.marks.push_back(&block);
    } else {
        hit.block = &block;
        for (const std::vector<DayPiece>& lane : column.lanes) {
            const auto own = std::find_if(lane.begin(), lane.end(), [&](const DayPiece& piece) {
                return piece.claim >= 0 &&
                       &column.blocks[static_cast<std::size_t>(piece.claim)] == &block;
            });
            if (own != lane.end() && hit.piece == nullptr) {
                hit.piece = &*own;
                hit.second = own->from;
            }
        }
    }
    hit.change = changeAt(column, hit.second);
    return hit;
}

QRect placeOf(const WeekHit& hit, const WeekGeometry& geometry)
{
    const WeekBlock& block = *hit.target();
    if (block.never != PlanFault::None) {
        return geometry.mark(hit.day, block.from);
    }
    return hit.piece != nullptr ? geometry.piece(hit.day, *hit.piece)
                                : geometry.span(hit.day, block.from, block.to);
}

} // namespace trel::desktop::week
