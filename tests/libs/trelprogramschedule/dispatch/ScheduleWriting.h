#pragma once

#include "service/ScheduleRecords.h"

#include <QString>

#include <map>

/// A schedule in one line, to be read in a table of cases and pasted from the report of a failure.
///
///     1 2024.03.04-2024.03.10 / 08:00:00-09:00:00 A B*2 freeze / 10:00:00 x3 C on=1,5 | 2 ...
///
/// Tasks are parted by "|": an id and the two dates, and then plans, each behind a "/". A plan is
/// its start and its end or, in FrequencyMode, its start and "x" with the runs; then, in any order,
/// the letters of programs, each with "*" and its play count, "!" before an entry that has gone
/// bad, and: freeze, on=WEEKS, id=ID, mode=NUMBER, times=NUMBER, action=NUMBER. Plans count their
/// ids from 1.
std::map<int, trel::mediadispatch::PlayTask> scheduleFromText(const QString& text);
trel::mediadispatch::PlayPlan planFromText(const QString& text);

QString textOf(const std::map<int, trel::mediadispatch::PlayTask>& tasks);
QString textOf(const trel::mediadispatch::PlayPlan& plan);

/// A 10 s, B 4 s, C 2,500.5 ms, D 1,000.4 us, E 400 us and H an hour long; I an image and L a live
/// source; N gone; U of unknown length and Z of none. Any other letter stands in no catalogue.
std::map<int, trel::mediadispatch::ProgramIten> lettersCatalogue();
int programOf(QChar letter);
QString letterOf(int progIndex);
