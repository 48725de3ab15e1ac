#include "catalogue/CatalogueWish.h"

#include <algorithm>

namespace trel::desktop {

void CatalogueWish::sortBy(ProgramColumn column, Qt::SortOrder order)
{
    sorts.erase(std::remove_if(sorts.begin(), sorts.end(),
                               [column](const Sort& sort) { return sort.column == column; }),
                sorts.end());
    sorts.insert(sorts.begin(), {column, order});
}

bool CatalogueWish::isOfTexts() const
{
    const auto isText = [](const Sort& sort) {
        return sort.column == ProgramColumn::Name || sort.column == ProgramColumn::Folder;
    };
    return !search.trimmed().isEmpty() || std::any_of(sorts.begin(), sorts.end(), isText);
}

} // namespace trel::desktop
