#pragma once

#include "catalogue/ProgramColumns.h"
#include "service/ScheduleRecords.h"

#include <QString>

#include <optional>
#include <vector>

namespace trel::desktop {

/// Which programs of the catalogue are to be shown, and in which order.
struct CatalogueWish
{
    struct Sort
    {
        ProgramColumn column = ProgramColumn::Index;
        Qt::SortOrder order = Qt::AscendingOrder;
    };

    QString search; ///< Words as they were typed, to be found in name or folder.
    std::optional<trel::mediadispatch::ProgramKind> kind; ///< None: every kind.
    bool isOnlyMissing = false;                           ///< Those whose file has gone.
    bool isOnlyUnused = false;                            ///< Those that no plan plays.
    /// The last of the wishes first; each decides between those that the ones before hold equal.
    /// What all hold equal stands in the order of the indexes.
    std::vector<Sort> sorts;

    /// Puts a wish in front, in the place of a former one for the same column.
    void sortBy(ProgramColumn column, Qt::SortOrder order);
    /// Whether the texts of the programs decide, and not numbers alone.
    bool isOfTexts() const;
};

} // namespace trel::desktop
