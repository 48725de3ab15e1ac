#include "PlayList.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace trel::mediadispatch {

namespace {

// Ten thousand years. Longer times count as this, so that sums of two stay in range.
constexpr Microseconds kLongest = 315'576'000'000'000'000;
constexpr Microseconds kPerMillisecond = 1000;

Microseconds multiplied(Microseconds length, qint64 count)
{
    return count > kLongest / length ? kLongest : length * count;
}

/// 0 where no length is known.
Microseconds lengthOf(const ProgramIten& program)
{
    if (!hasOwnLength(program)) {
        return kEndless;
    }
    const double length = program.durationMs * 1000.0;
    if (!(length > 0.0)) {
        return 0;
    }
    return length < static_cast<double>(kLongest) ? std::llround(length) : kLongest;
}

Microseconds wholeMillisecondFrom(Microseconds time)
{
    const Microseconds rest = time % kPerMillisecond;
    return rest == 0 ? time : time + kPerMillisecond - rest;
}

} // namespace

PlayList::PlayList(const std::vector<struProgInfo>& entries,
                   const std::map<int, ProgramIten>& catalogue, qint64 runs)
    : m_runs(runs)
{
    if (runs <= 0) {
        return;
    }
    for (std::size_t i = 0; i < entries.size() && m_runLength < kLongest; ++i) {
        const auto program = catalogue.find(entries[i].progIndex);
        if (!entries[i].isInvalid && program != catalogue.end() && !program->second.isNull) {
            append(static_cast<int>(i), entries[i], program->second);
        }
    }
}

void PlayList::append(int entry, const struProgInfo& info, const ProgramIten& program)
{
    const Microseconds length = lengthOf(program);
    if (length == 0 || info.playCount <= 0) {
        return;
    }
    const Microseconds ofAll = length == kEndless ? kEndless : multiplied(length, info.playCount);
    m_items.push_back({entry, info.progIndex, m_runLength, length, info.playCount, ofAll});
    m_runLength = length == kEndless ? kEndless : std::min(kLongest, m_runLength + ofAll);
}

Microseconds PlayList::length() const
{
    if (m_items.empty()) {
        return 0;
    }
    if (m_runs == kRepeated || m_runLength >= kLongest) {
        return kEndless;
    }
    return multiplied(m_runLength, m_runs);
}

ListMoment PlayList::at(Microseconds elapsed) const
{
    if (m_items.empty()) {
        return {};
    }
    const qint64 run = elapsed / m_runLength;
    if (run >= m_runs) {
        return ranOut();
    }
    const Microseconds inRun = elapsed % m_runLength;
    const Item& item = *std::prev(
        std::upper_bound(m_items.begin(), m_items.end(), inRun,
                         [](Microseconds time, const Item& later) { return time < later.begin; }));
    const qint64 play = (inRun - item.begin) / item.length;

    ListMoment moment;
    moment.kind = ListMoment::Kind::Playing;
    moment.entry = item.entry;
    moment.progIndex = item.progIndex;
    moment.play = static_cast<int>(play);
    moment.run = run;
    moment.length = item.length;
    moment.begin = run * m_runLength + item.begin + play * item.length;
    moment.end = item.length == kEndless ? kEndless : moment.begin + item.length;
    return moment;
}

// Run r begins at r times the length of a run. Only its remainder by a millisecond decides which of
// its plays meet a whole millisecond, and the remainders repeat after 1000 / gcd(length, 1000)
// runs. So that many runs behind the first one, which may be asked about in part only, show all
// that the list will ever show.
std::optional<Microseconds> PlayList::firstShown(const SoughtPlay& sought, Microseconds from,
                                                 Microseconds to) const
{
    const bool isThere = std::any_of(m_items.begin(), m_items.end(), [&sought](const Item& item) {
        return sought.isOf(item.progIndex);
    });
    if (!isThere) {
        return std::nullopt;
    }
    const qint64 first = from / m_runLength;
    const qint64 pattern = kPerMillisecond / std::gcd(m_runLength, kPerMillisecond);
    Microseconds runBegin = first * m_runLength;
    for (qint64 run = first; run < m_runs && run <= first + pattern; ++run) {
        if (const auto shown = firstShownInRun(sought, runBegin, from, to)) {
            return shown;
        }
        if (to - runBegin <= m_runLength) {
            break;
        }
        runBegin += m_runLength;
    }
    return std::nullopt;
}

std::optional<Microseconds> PlayList::firstShownInRun(const SoughtPlay& sought,
                                                      Microseconds runBegin, Microseconds from,
                                                      Microseconds to) const
{
    for (const Item& item : m_items) {
        if (item.begin >= to - runBegin) {
            break;
        }
        const Microseconds begin = runBegin + item.begin;
        const Microseconds end = item.lengthOfAll >= to - begin ? to : begin + item.lengthOfAll;
        const Microseconds shown = wholeMillisecondFrom(std::max(from, begin));
        if (sought.isOf(item.progIndex) && shown < end) {
            return shown;
        }
    }
    return std::nullopt;
}

ListMoment PlayList::ranOut() const
{
    const Item& last = m_items.back();
    ListMoment moment;
    moment.kind = ListMoment::Kind::RanOut;
    moment.entry = last.entry;
    moment.progIndex = last.progIndex;
    moment.play = last.playCount - 1;
    moment.run = m_runs - 1;
    moment.length = last.length;
    moment.begin = length();
    return moment;
}

} // namespace trel::mediadispatch
