#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <map>

namespace trel::desktop {

/// The schedule in a few lines for a terminal: what the database holds, and a line for each task.
QString scheduleSummary(const QString& database,
                        const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                        const std::map<int, trel::mediadispatch::ProgramIten>& programs);

} // namespace trel::desktop
