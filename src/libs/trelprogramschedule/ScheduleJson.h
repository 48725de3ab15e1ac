#pragma once

#include "service/ScheduleRecords.h"

#include <QByteArray>
#include <QString>

#include <map>

namespace trel::mediadispatch {

/// The JSON form of a schedule: every field of every record, in a documented form
/// (docs/schedule-json.md). Writing and reading back gives the same records.
Q_DECL_EXPORT QByteArray scheduleToJson(const std::map<int, PlayTask>& tasks);

/// A schedule read from JSON, or why it could not be read.
struct ScheduleFromJson
{
    std::map<int, PlayTask> tasks;
    QString error; ///< Empty on success; otherwise a sentence that names the place, such as
                   ///< "tasks[2].plans[0].startTime" or a line and column.
};

Q_DECL_EXPORT ScheduleFromJson scheduleFromJson(const QByteArray& json);

/// Writes the schedule to a file in one step: the file is replaced whole or left as it was.
/// Returns an empty text, or a sentence that says what went wrong.
Q_DECL_EXPORT QString writeScheduleFile(const QString& path, const std::map<int, PlayTask>& tasks);

} // namespace trel::mediadispatch
