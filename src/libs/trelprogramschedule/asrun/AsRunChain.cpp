#include "AsRunChain.h"

#include <algorithm>
#include <utility>

namespace trel::mediadispatch {

namespace {

constexpr std::size_t kMostKept = 1000;
/// So many records that were taken out, with all behind them counted down, are found as such.
constexpr qint64 kMostTakenOut = 16;

using Kind = AsRunBreak::Kind;

} // namespace

AsRunChain::AsRunChain(const AsRunScreen& screen)
    : AsRunChain(screen, screen.anchorNumber + 1, screen.anchorHash)
{}

AsRunChain::AsRunChain(const AsRunScreen& screen, qint64 first, const QByteArray& before)
    : m_screen(screen)
    , m_before(screen.anchorNumber == 0 && first == 1 && before != asRunFirstHash(screen.name)
                   ? QByteArray()
                   : before)
    , m_good(m_before)
    , m_goodNumber(first - 1)
    , m_next(first)
{
    if (screen.lastNumber < first) {
        m_atHead = before;
        m_isHeadGood = true;
    }
}

bool AsRunChain::fits(const QByteArray& before, const AsRunRecord& record, qint64 number)
{
    if (number == record.number) {
        return m_hasher.hash(before, record) == record.hash;
    }
    AsRunRecord moved = record;
    moved.number = number;
    return m_hasher.hash(before, moved) == record.hash;
}

void AsRunChain::add(const AsRunRecord& record)
{
    ++m_records;
    if (record.number < m_next) {
        noteInFront(record);
        return;
    }
    if (record.number > m_next) {
        note(Kind::Missing, m_next, record.number - 1, record.begins);
        // What it followed has gone, so that it cannot be checked.
        accept(record);
    } else if (fits(m_before, record, record.number + m_shift) || goesOn(record) ||
               followsSwap(record)) {
        accept(record);
    } else {
        noteChanged(record);
    }
    if (m_unfitting > 0 || m_afterPutIn) {
        m_putIn.clear();
    }
    m_afterPutIn = !m_putIn.isEmpty();
    m_next = record.number + 1;
    m_moment = record.begins;
    if (record.number == m_screen.lastNumber) {
        m_atHead = record.hash;
        m_isHeadGood = m_unfitting == 0 || m_worked == m_screen.lastHash;
    }
}

/// Whether it follows records that do not fit, in one of the ways in which that can have come.
bool AsRunChain::goesOn(const AsRunRecord& record)
{
    if (m_unfitting == 0) {
        return false;
    }
    const qint64 number = record.number + m_shift;
    // The hash of the one before was changed, not its contents.
    if (fits(m_worked, record, number)) {
        return true;
    }
    // Those before were put in, and all others counted up.
    if (fits(m_good, record, m_goodNumber + 1)) {
        notePutIn(record.number - m_unfitting);
        m_shift = m_goodNumber + 1 - record.number;
        return true;
    }
    for (qint64 out = 1; m_unfitting == 1 && out <= kMostTakenOut; ++out) {
        if (fits(m_before, record, number + out)) {
            AsRunBreak& place = m_found.back().place;
            place.kind = Kind::Missing;
            place.first = record.number - 1 + m_shift;
            place.last = place.first + out - 1;
            m_shift += out;
            return true;
        }
    }
    return false;
}

/// Whether the record that seemed to be put in and the one behind it are swapped: then the hash
/// that goes on stands in the first of them.
bool AsRunChain::followsSwap(const AsRunRecord& record)
{
    if (m_putIn.isEmpty() ||
        !fits(m_putIn, record,
              m_goodNumber + 1 + m_found.back().place.last - m_found.back().place.first + 1)) {
        return false;
    }
    noteSwap();
    return true;
}

void AsRunChain::noteSwap()
{
    AsRunBreak& place = m_found.back().place;
    const qint64 apart = place.last - place.first + 1;
    place.kind = Kind::Swapped;
    place.last = place.first + apart;
    m_shift += apart;
    m_good = m_putIn;
    m_putIn.clear();
}

/// Takes the records from a number on that do not fit for ones that were put in.
void AsRunChain::notePutIn(qint64 first)
{
    const Instant moment = m_found.back().place.moment;
    for (qint64 left = m_unfitting; left > 0 && !m_found.empty(); --left) {
        m_found.pop_back();
        --m_count;
    }
    note(Kind::Added, first, first + m_unfitting - 1, moment);
    m_putIn = m_firstUnfitting;
}

void AsRunChain::accept(const AsRunRecord& record)
{
    m_before = record.hash;
    m_good = record.hash;
    m_goodNumber = record.number + m_shift;
    m_unfitting = 0;
    m_worked.clear();
}

void AsRunChain::note(Kind kind, qint64 first, qint64 last, Instant moment)
{
    ++m_count;
    if (m_found.size() < kMostKept) {
        m_found.push_back({{kind, first, last, moment, {}}, {}, {}});
    }
}

/// No record of the chain has such a number, or has it any more.
void AsRunChain::noteInFront(const AsRunRecord& record)
{
    if (!m_found.empty() && m_found.back().place.last + 1 == record.number) {
        m_found.back().place.last = record.number;
    } else {
        note(Kind::Added, record.number, record.number, record.begins);
    }
}

void AsRunChain::noteChanged(const AsRunRecord& record)
{
    AsRunRecord asWritten = record;
    asWritten.number += m_shift;
    m_worked = m_hasher.hash(m_before, asWritten);
    note(Kind::Changed, record.number, record.number, record.begins);
    if (m_found.back().place.first == record.number) {
        m_found.back().record = record;
        m_found.back().before = m_before;
    }
    m_before = record.hash;
    m_firstUnfitting = m_unfitting == 0 ? record.hash : m_firstUnfitting;
    ++m_unfitting;
}

void AsRunChain::finish()
{
    if (!m_putIn.isEmpty() && m_putIn == m_screen.lastHash) {
        m_atHead = m_putIn;
        noteSwap();
    }
    const qint64 last = m_next - 1 + m_shift;
    const bool isHeadElsewhere =
        m_unfitting == 0 && m_shift == 0 &&
        (last < m_screen.lastNumber ? m_good == m_screen.lastHash
                                    : m_isHeadGood && m_atHead != m_screen.lastHash);
    if (isHeadElsewhere) {
        note(Kind::Head, m_screen.lastNumber, m_screen.lastNumber, m_moment);
    } else if (last < m_screen.lastNumber) {
        note(Kind::Missing, last + 1, m_screen.lastNumber, m_moment);
    } else if (last > m_screen.lastNumber) {
        while (!m_found.empty() && m_found.back().place.kind == Kind::Changed &&
               m_found.back().place.first > m_screen.lastNumber) {
            m_found.pop_back();
            --m_count;
        }
        note(Kind::Added, m_screen.lastNumber + 1, last, m_moment);
    }
}

void AsRunChain::explain(const Lookup& lookup, const std::vector<AsRunScreen>& others)
{
    explainSwaps();
    explainScreens(lookup, others);
}

bool AsRunChain::areSwapped(const Found& a, const Found& b)
{
    // With their hashes or without them. Of two that follow each other, the hash in front of the
    // second stands in the place of the second.
    const QByteArray beforeB =
        a.place.first + 1 == b.place.first && a.record.hash == b.before ? b.record.hash : b.before;
    AsRunRecord moved = a.record;
    moved.number = b.place.first;
    const QByteArray hash = m_hasher.hash(beforeB, moved);
    return hash == a.record.hash || hash == b.record.hash ||
           m_hasher.hash(b.before, moved) == b.record.hash;
}

/// What follows a record whose hash is not its own cannot fit. It does once the right one is known.
void AsRunChain::dropFollower(std::size_t of, const QByteArray& before)
{
    if (of + 1 < m_found.size() && m_found[of + 1].place.kind == Kind::Changed &&
        m_found[of + 1].place.first == m_found[of].place.first + 1 &&
        fits(before, m_found[of + 1].record, m_found[of + 1].record.number)) {
        m_found.erase(m_found.begin() + static_cast<std::ptrdiff_t>(of) + 1);
        --m_count;
    }
}

void AsRunChain::explainSwaps()
{
    // Each with the few that may be its partner: a file in which everything was changed has no
    // swaps worth looking for.
    constexpr std::size_t mostPartners = 100;
    for (std::size_t a = 0; a < m_found.size(); ++a) {
        const std::size_t end = std::min(m_found.size(), a + mostPartners);
        for (std::size_t b = a + 1; b < end; ++b) {
            if (m_found[a].place.kind != Kind::Changed || m_found[b].place.kind != Kind::Changed ||
                !areSwapped(m_found[a], m_found[b])) {
                continue;
            }
            const QByteArray hashOfA = m_found[b].record.hash;
            dropFollower(b, m_found[a].record.hash);
            m_found[a].place.kind = Kind::Swapped;
            m_found[a].place.last = m_found[b].place.first;
            m_found.erase(m_found.begin() + static_cast<std::ptrdiff_t>(b));
            --m_count;
            dropFollower(a, hashOfA);
            break;
        }
    }
}

void AsRunChain::explainScreens(const Lookup& lookup, const std::vector<AsRunScreen>& others)
{
    constexpr int mostLookups = 1000;
    int lookups = 0;
    for (Found& found : m_found) {
        const bool isUnknown = found.place.kind == Kind::Changed || found.place.kind == Kind::Added;
        if (!isUnknown || found.place.first != found.place.last) {
            continue;
        }
        const AsRunRecord record =
            found.record.number != 0 ? found.record : lookup(m_screen.name, found.place.first);
        for (const AsRunScreen& other : others) {
            if (other.name == m_screen.name || ++lookups > mostLookups) {
                continue;
            }
            const AsRunRecord before = lookup(other.name, record.number - 1);
            if (fits(before.number == 0 ? other.anchorHash : before.hash, record, record.number)) {
                found.place.kind = Kind::OtherScreen;
                found.place.otherScreen = other.name;
                break;
            }
        }
    }
}

std::vector<AsRunBreak> AsRunChain::breaks() const
{
    std::vector<AsRunBreak> places;
    for (const Found& found : m_found) {
        // One that was changed with its hash leaves the one behind it without a hash to follow.
        if (!places.empty() && found.place.kind == Kind::Changed &&
            places.back().kind == Kind::Changed && places.back().last + 1 == found.place.first) {
            places.back().last = found.place.last;
        } else {
            places.push_back(found.place);
        }
    }
    return places;
}

} // namespace trel::mediadispatch
