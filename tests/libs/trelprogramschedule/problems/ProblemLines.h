#pragma once

#include "trelprogramschedule/problems/ScheduleProblem.h"

#include <QStringList>

#include <vector>

/// A problem in one line, such as "collides 1/2 with 1/1, 2027.03.01-2027.03.31 on 1,2": task and
/// id of the plan, and what else its kind fills.
QString lineOf(const trel::mediadispatch::ScheduleProblem& problem);
QStringList linesOf(const std::vector<trel::mediadispatch::ScheduleProblem>& problems);

/// Such as "08:00" or "23:59:59", and "24:00" at the end of a day.
QString clockText(int secondOfDay);
/// Such as "1,2,7".
QString weekdaysText(trel::mediadispatch::WeekdaySet weekdays);
