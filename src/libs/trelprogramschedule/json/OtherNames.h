#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule_export.h"

#include <QString>

#include <map>
#include <vector>

namespace trel::mediadispatch {

/// A program that entries of a schedule call by another name than the catalogue does.
struct OtherName
{
    int progIndex = -1;
    QString inEntries; ///< The first such name, in the order of tasks, rows and entries.
    QString inCatalogue;
};

/// The programs that a schedule whose numbers are those of a catalogue may mean to be others than
/// they say, by index. Entries that have gone bad, or have no name, and programs that the catalogue
/// lacks are none of them.
TRELPROGRAMSCHEDULE_EXPORT std::vector<OtherName>
otherNames(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& programs);

} // namespace trel::mediadispatch
