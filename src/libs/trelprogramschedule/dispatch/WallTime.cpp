#include "WallTime.h"

#include <QDateTime>

#include <algorithm>

namespace trel::mediadispatch {

namespace {

constexpr Instant kFirstAsked = -62'135'596'800'000; // 0001-01-01
constexpr Instant kLastAsked = 253'402'300'800'000;  // 10000-01-01

QDateTime universal(Instant moment)
{
    return QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC);
}

qint64 offsetAt(const QTimeZone& zone, Instant moment)
{
    return qint64{1000} * zone.offsetFromUtc(universal(moment));
}

Instant changeAfter(const QTimeZone& zone, Instant moment)
{
    QTimeZone::OffsetData change = zone.nextTransition(universal(moment));
    if (!change.atUtc.isValid()) {
        // From the last change of its table the zone does not go on to the changes that follow by
        // rule; from any moment behind it, it does.
        change = zone.nextTransition(universal(moment + 1));
    }
    if (!change.atUtc.isValid()) {
        return kNever;
    }
    const Instant at = change.atUtc.toMSecsSinceEpoch();
    return at > moment && at <= kLastAsked ? at : kNever;
}

Instant changeUpTo(const QTimeZone& zone, Instant moment)
{
    const QTimeZone::OffsetData change = zone.previousTransition(universal(moment + 1));
    if (!change.atUtc.isValid()) {
        return kEver;
    }
    const Instant at = change.atUtc.toMSecsSinceEpoch();
    return at <= moment && at > kFirstAsked ? at : kEver;
}

} // namespace

WallTime::WallTime(const QTimeZone& zone)
    : m_zone(zone.isValid() ? zone : QTimeZone::utc())
{}

const WallPiece& WallTime::pieceAt(Instant moment) const
{
    const Instant asked = std::clamp(moment, kFirstAsked, kLastAsked);
    const std::lock_guard<std::mutex> lock(m_pieces->mutex);
    auto& pieces = m_pieces->byBegin;
    const auto next = pieces.upper_bound(asked);
    if (next != pieces.begin()) {
        const WallPiece& piece = std::prev(next)->second;
        if (asked < piece.end) {
            return piece;
        }
    }
    const WallPiece piece = findPiece(asked);
    return pieces.emplace(piece.begin, piece).first->second;
}

std::size_t WallTime::knownPieces() const
{
    const std::lock_guard<std::mutex> lock(m_pieces->mutex);
    return m_pieces->byBegin.size();
}

// A zone also lists changes of its name alone, which are none of the clock.
WallPiece WallTime::findPiece(Instant moment) const
{
    WallPiece piece;
    piece.offset = offsetAt(m_zone, moment);
    piece.end = changeAfter(m_zone, moment);
    while (piece.end != kNever && offsetAt(m_zone, piece.end) == piece.offset) {
        piece.end = changeAfter(m_zone, piece.end);
    }
    piece.begin = changeUpTo(m_zone, moment);
    while (piece.begin != kEver && offsetAt(m_zone, piece.begin - 1) == piece.offset) {
        piece.begin = changeUpTo(m_zone, piece.begin - 1);
    }
    return piece;
}

Instant WallTime::firstShown(LocalTime local, Instant from) const
{
    Instant moment = from;
    for (;;) {
        const WallPiece& piece = pieceAt(moment);
        const Instant shown = std::max(moment, piece.instant(local));
        if (shown < piece.end) {
            return shown;
        }
        moment = piece.end;
    }
}

Instant WallTime::firstShown(LocalTime local) const
{
    return firstShown(local, local - kLargestOffset);
}

} // namespace trel::mediadispatch
