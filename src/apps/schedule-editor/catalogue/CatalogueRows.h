#pragma once

#include "catalogue/CatalogueWish.h"
#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"

#include <array>
#include <memory>
#include <vector>

namespace trel::desktop {

class CatalogueKeys;

/// Programs of a catalogue in an order; the catalogue owns them.
using ProgramRows = std::vector<const trel::mediadispatch::ProgramIten*>;

/// What else decides about rows.
struct RowFacts
{
    /// Null unless the wish is one of texts.
    std::shared_ptr<const CatalogueKeys> keys;
    /// The programs that plans play, in ascending order; asked for those that are unused alone.
    std::vector<int> used;
    /// Where each kind stands in the order of its words, by the number of the kind.
    std::array<int, 5> kindRanks{};
};

/// The programs that are wished for, in the order that is wished for. Costs n, and n log n where
/// they are to be sorted. Cancelled, it is not complete.
ProgramRows rowsOf(const follow::SharedCatalogue& catalogue, const CatalogueWish& wish,
                   const RowFacts& facts, const follow::Cancellation& cancellation = {});

} // namespace trel::desktop
