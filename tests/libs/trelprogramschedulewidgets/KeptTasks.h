#pragma once

#include "support/RecordingService.h"

#include <QDateTime>

/// The day on which the lists of tasks are tried.
inline const QDateTime kNow(QDate(2024, 3, 10), QTime(12, 0));

inline RecordingService& service()
{
    return RecordingService::instance();
}

/// Has a task in the schedule that is being edited.
inline void keep(const trel::mediadispatch::PlayTask& task)
{
    service().working[task.id] = task;
}
