#pragma once

#include "NamedProgram.h"
#include "ScheduleJson.h"

#include <vector>

namespace trel::mediadispatch {

// The second form of a schedule in JSON (docs/schedule-json.md). It names the programs that its
// entries refer to, so that they can be found in another catalogue; see ProgramMatch.h.

/// A schedule read from JSON of either form, or why it could not be read.
struct NamedScheduleFromJson : ScheduleFromJson
{
    /// Whether the file names its programs. Otherwise the numbers of entries are those of the
    /// catalogue of which the file was made.
    bool isNamed = false;
    std::vector<NamedProgram> programs; ///< Each number once, from 0 to below 65536.
};

/// As scheduleToJson(), with the programs in their order. No two may have the same number.
TRELPROGRAMSCHEDULE_EXPORT QByteArray namedScheduleToJson(
    const std::map<int, PlayTask>& tasks, const std::vector<NamedProgram>& programs);

/// As scheduleFromJson(), with the programs that the file names.
TRELPROGRAMSCHEDULE_EXPORT NamedScheduleFromJson namedScheduleFromJson(const QByteArray& json);

/// As writeScheduleFile(), in this form.
TRELPROGRAMSCHEDULE_EXPORT Fault writeNamedScheduleFile(const QString& path,
                                                        const std::map<int, PlayTask>& tasks,
                                                        const std::vector<NamedProgram>& programs);

} // namespace trel::mediadispatch
