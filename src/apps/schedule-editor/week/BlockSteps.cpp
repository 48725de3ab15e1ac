#include "week/BlockSteps.h"

#include <algorithm>
#include <cstdlib>

namespace trel::desktop::week {

namespace {

BlockRef refOf(const WeekColumn& column, const WeekBlock& block)
{
    return {column.date, block.row};
}

/// The block whose start is nearest to a second; null on a day without blocks.
const WeekBlock* nearest(const WeekColumn& column, int second)
{
    const auto found =
        std::min_element(column.blocks.begin(), column.blocks.end(),
                         [second](const WeekBlock& a, const WeekBlock& b) {
                             return std::abs(a.from - second) < std::abs(b.from - second);
                         });
    return found == column.blocks.end() ? nullptr : &*found;
}

std::optional<BlockRef> firstBlock(const WeekLayout& layout, const WallMoment& moment)
{
    const auto wanted = std::clamp<qint64>(layout.first().daysTo(moment.date), 0, kDays - 1);
    for (int distance = 0; distance < kDays; ++distance) {
        for (const qint64 day : {wanted + distance, wanted - distance}) {
            if (day < 0 || day >= kDays) {
                continue;
            }
            const WeekColumn& column = layout.days[static_cast<std::size_t>(day)];
            const WeekBlock* block = column.holderAt(moment.second);
            block = block == nullptr ? nearest(column, moment.second) : block;
            if (block != nullptr) {
                return refOf(column, *block);
            }
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<BlockRef> stepFrom(const WeekLayout& layout, const std::optional<BlockRef>& from,
                                 BlockStep step, const WallMoment& moment)
{
    const qint64 day = from ? layout.first().daysTo(from->date) : -1;
    if (day < 0 || day >= kDays) {
        return firstBlock(layout, moment);
    }
    const WeekColumn& column = layout.days[static_cast<std::size_t>(day)];
    const WeekBlock* block = column.blockOf(from->row);
    if (block == nullptr) {
        return firstBlock(layout, {from->date, moment.second});
    }
    if (step == BlockStep::Earlier || step == BlockStep::Later) {
        const auto last = static_cast<std::ptrdiff_t>(column.blocks.size()) - 1;
        const std::ptrdiff_t index =
            block - column.blocks.data() + (step == BlockStep::Later ? 1 : -1);
        return refOf(
            column,
            column.blocks[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(index, 0, last))]);
    }
    const int towards = step == BlockStep::DayAfter ? 1 : -1;
    for (qint64 other = day + towards; other >= 0 && other < kDays; other += towards) {
        const WeekColumn& next = layout.days[static_cast<std::size_t>(other)];
        if (const WeekBlock* found = nearest(next, block->from)) {
            return refOf(next, *found);
        }
    }
    return from;
}

} // namespace trel::desktop::week
