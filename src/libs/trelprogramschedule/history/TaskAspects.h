#pragma once

#include "service/ScheduleRecords.h"

#include <QByteArray>

namespace trel::mediadispatch {

/// What of a task is kept by itself, so that a change costs what has changed. The numbers stand in
/// the stores.
enum class TaskAspect {
    Dates = 0,
    Fields = 1, ///< Of every plan, all but its lists.
    Lists = 2,  ///< The lists of every plan.
};

constexpr TaskAspect kTaskAspects[] = {TaskAspect::Dates, TaskAspect::Fields, TaskAspect::Lists};

bool isSame(TaskAspect aspect, const PlayTask& a, const PlayTask& b);

/// An aspect as bytes, the same for the same values on every machine.
QByteArray aspectBytes(TaskAspect aspect, const PlayTask& task);

/// Puts an aspect into a task that has any number of plans: it has as many as the aspect then.
/// False, and the task is anything, where the bytes are no such aspect.
bool readAspect(TaskAspect aspect, const QByteArray& bytes, PlayTask& task);

} // namespace trel::mediadispatch
