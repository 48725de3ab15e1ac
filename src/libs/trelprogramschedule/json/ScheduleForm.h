#pragma once

#include "NamedProgram.h"
#include "trelprogramschedule/faults/Fault.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <vector>

namespace trel::mediadispatch {

/// What a file with a schedule in JSON holds, or why it could not be read.
struct ScheduleForm
{
    /// The first without the programs, in which the numbers of entries are those of some catalogue.
    static constexpr int kPlain = 1;
    static constexpr int kNamed = 2;

    int version = kPlain;
    std::vector<NamedProgram> programs; ///< Each number once; in the order in which they stand.
    std::map<int, PlayTask> tasks;      ///< By their ids.
    Fault fault;                        ///< None on success.
    QString place;                      ///< Of the fault in the file; may be empty.
    int line = 0;                       ///< Of the place, from 1.
};

/// The same form always gives the same bytes.
QByteArray writeScheduleForm(const ScheduleForm& form);

/// Reads all of a file or nothing; see scheduleFromJson().
ScheduleForm readScheduleForm(const QByteArray& json);

} // namespace trel::mediadispatch
