#pragma once

#include "schedulecontract_export.h"
#include "service/ScheduleRecords.h"

#include <QString>

#include <functional>
#include <map>
#include <vector>

namespace trel::mediadispatch {

/// The two words that may follow a program's name.
struct ProgramSuffixes
{
    QString invalid; ///< The entry has gone bad.
    QString null;    ///< The program no longer exists.
};

/// Gives isNull and progName of the program behind an index. The name is the one last known for the
/// index, also when the program is gone. Not asked about an entry that has gone bad.
using ProgramLookup = std::function<ProgramIten(int progIndex)>;

/// The text of one entry: its own name when it has gone bad, the catalogue's otherwise, with the
/// suffix that applies. An entry from kInvalidProgIndex upward already holds its suffix.
SCHEDULECONTRACT_EXPORT QString programText(const struProgInfo& entry, const ProgramLookup& lookup,
                                            const ProgramSuffixes& suffixes);

/// The texts of all entries joined with a comma; empty for an empty list.
SCHEDULECONTRACT_EXPORT QString programListText(const std::vector<struProgInfo>& entries,
                                                const ProgramLookup& lookup,
                                                const ProgramSuffixes& suffixes);

/// The text of one entry against a whole catalogue. A program that has left it goes by the name
/// that the entry remembers, as one that no longer exists.
SCHEDULECONTRACT_EXPORT QString entryText(const struProgInfo& entry,
                                          const std::map<int, ProgramIten>& catalogue,
                                          const ProgramSuffixes& suffixes);

} // namespace trel::mediadispatch
