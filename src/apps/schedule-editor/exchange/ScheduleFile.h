#pragma once

#include "trelprogramschedule/ScheduleImport.h"
#include "trelprogramschedule/json/NamedSchedule.h"
#include "trelprogramschedule/store/StoreResult.h"

#include <QString>

#include <map>

namespace trel::desktop {

/// Whether the store is asked what it knows of the files of programs.
enum class FileHashes {
    Read,
    LeaveOut, ///< Of a store that may not answer: programs are found by path or name then.
};

/// Writes a schedule of the store that is open into a file, with the programs that it plays; see
/// writeNamedScheduleFile(). Where the catalogue has none of them, it is written without.
trel::mediadispatch::Fault writeSchedule(const QString& file,
                                         const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                                         FileHashes hashes);

/// A schedule out of a file, as it would come into the store that is open.
struct ArrivingSchedule
{
    bool isNamed = false; ///< Otherwise its numbers are those of the catalogue.
    trel::mediadispatch::ScheduleImport import;
    QString doubts; ///< What to know before it is taken, in sentences; empty for nothing.
};

/// Finds the programs of a schedule in the catalogue. Refused where the store cannot be read.
trel::mediadispatch::StoreResult
findPrograms(const trel::mediadispatch::NamedScheduleFromJson& schedule,
             ArrivingSchedule& arriving);

/// Has it take the place of the one in the store; see importSchedule().
trel::mediadispatch::StoreResult takeSchedule(const ArrivingSchedule& arriving);

} // namespace trel::desktop
