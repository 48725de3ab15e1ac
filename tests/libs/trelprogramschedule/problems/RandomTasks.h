#pragma once

#include "service/ScheduleRecords.h"

#include <random>

/// A task as no sane operator would write it: plans that cover each other, of days and times that
/// are none now and then, with programs of lettersCatalogue(). Its period lies in March 2027 and
/// lasts for up to four weeks. Times are quarters of an hour, and lists last for hours.
trel::mediadispatch::PlayTask randomTask(std::mt19937& random, int taskId);
