#pragma once

#include "service/ScheduleRecords.h"

#include <map>
#include <random>

/// Changes a schedule as an operator, an import or a fault may: from one field of one plan to tasks
/// that come and go. Any field can get any value, also such as no editor gives; a text may hold
/// bytes that are no UTF-8. One in so many times it changes nothing.
void editAtRandom(std::map<int, trel::mediadispatch::PlayTask>& tasks, std::mt19937& random);
