#include "PlayList.h"

#include <algorithm>
#include <cmath>

namespace trel::mediadispatch {

namespace {

// Ten thousand years. Longer times count as this, so that sums of two stay in range.
constexpr Microseconds kLongest = 315'576'000'000'000'000;

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

int asNumber(qint64 count)
{
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
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
    m_items.push_back({entry, info.progIndex, m_runLength, length, info.playCount});
    m_runLength = length == kEndless
                      ? kEndless
                      : std::min(kLongest, m_runLength + multiplied(length, info.playCount));
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
    moment.play = asNumber(play);
    moment.run = asNumber(run);
    moment.length = item.length;
    moment.begin = run * m_runLength + item.begin + play * item.length;
    moment.end = item.length == kEndless ? kEndless : moment.begin + item.length;
    return moment;
}

ListMoment PlayList::ranOut() const
{
    const Item& last = m_items.back();
    ListMoment moment;
    moment.kind = ListMoment::Kind::RanOut;
    moment.entry = last.entry;
    moment.progIndex = last.progIndex;
    moment.play = last.playCount - 1;
    moment.run = asNumber(m_runs - 1);
    moment.length = last.length;
    moment.begin = length();
    return moment;
}

} // namespace trel::mediadispatch
