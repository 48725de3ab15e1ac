#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/faults/Fault.h"

#include <QString>

#include <map>

namespace trel::desktop {

/// A file that edits were put into since they could not be stored.
struct KeptEdits
{
    QString file;                     ///< Empty where they could be put nowhere.
    trel::mediadispatch::Fault fault; ///< Why.
};

/// Writes a schedule, in its JSON form, into a file of its own: beside the store, or, where nothing
/// can be written there, in the user's own data. The file is named after the store and the moment;
/// none that is there is written over.
KeptEdits keepEdits(const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                    const QString& store);

} // namespace trel::desktop
