#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>

#include <map>

class QIODevice;

namespace trel::mediadispatch {

/// The JSON form of a schedule: every field of every record, in a documented form
/// (docs/schedule-json.md, version 1), in UTF-8. Entries have the numbers of their catalogue.
/// Writing and reading back gives the same records, texts that are no UTF-8 included, and the same
/// schedule always gives the same bytes. Each task stands in the map under its own id; a schedule
/// that breaks this is written so that reading it back names the task.
TRELPROGRAMSCHEDULE_EXPORT QByteArray scheduleToJson(const std::map<int, PlayTask>& tasks);

/// A schedule read from JSON, or why it could not be read.
struct ScheduleFromJson
{
    std::map<int, PlayTask> tasks; ///< By their ids.
    Fault fault;                   ///< None on success.
    QString place; ///< Where it is, such as "tasks[2].plans[0].startTime"; may be empty.
    int line = 0;  ///< The line of the place, from 1.
};

/// Reads all of a schedule or nothing: whatever the form does not know is an error, so that nothing
/// is dropped without a word. Version 2 is read as well, but for its programs, without which its
/// numbers mean nothing; namedScheduleFromJson() gives both. What is larger than any schedule is an
/// error as well, in bytes (128 MiB), in tasks (20,000), plans (100,000), entries (500,000) or in
/// one text (64 KiB).
TRELPROGRAMSCHEDULE_EXPORT ScheduleFromJson scheduleFromJson(const QByteArray& json);

/// Reads everything up to the end of the device, which must be open, or as much as shows that it is
/// too large for scheduleFromJson, which says so.
TRELPROGRAMSCHEDULE_EXPORT QByteArray readScheduleJson(QIODevice& device);

/// Writes the schedule to a file in one step: the file is replaced whole, on the disk when the call
/// returns, or left as it was. A new file may be read by its owner alone, one that is replaced
/// keeps its mode. Links are followed. What is there and is no regular file, such as a folder, a
/// device or a pipe, is refused. Returns what went wrong, if anything did.
TRELPROGRAMSCHEDULE_EXPORT Fault writeScheduleFile(const QString& path,
                                                   const std::map<int, PlayTask>& tasks);

} // namespace trel::mediadispatch
