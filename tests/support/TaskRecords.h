#pragma once

#include "service/ScheduleRecords.h"

#include <string>

/// A task without plans; the dates in kDateFormat, taken as they are.
inline trel::mediadispatch::PlayTask makeTask(int id, const std::string& startDate,
                                              const std::string& endDate)
{
    trel::mediadispatch::PlayTask task;
    task.id = id;
    task.startDate = startDate;
    task.endDate = endDate;
    return task;
}
