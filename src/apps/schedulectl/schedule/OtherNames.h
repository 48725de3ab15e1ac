#pragma once

#include "service/ScheduleRecords.h"

#include <QString>
#include <QStringList>

#include <map>
#include <vector>

namespace trel::console {

/// A program that entries of a schedule call by another name than the catalogue does.
struct OtherName
{
    int progIndex = -1;
    QString inEntries; ///< The first such name, in the order of tasks, rows and entries.
    QString inCatalogue;
};

/// The programs that a schedule may mean to be others than its numbers say, by index. Entries that
/// have gone bad, or have no name, and programs that the catalogue lacks are none of them.
std::vector<OtherName> otherNames(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                                  const std::map<int, trel::mediadispatch::ProgramIten>& programs);

/// A sentence for each of the first eight, and one for how many more there are.
QStringList otherNamesTexts(const std::vector<OtherName>& names);

} // namespace trel::console
