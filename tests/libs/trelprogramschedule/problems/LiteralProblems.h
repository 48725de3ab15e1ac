#pragma once

#include "service/ScheduleRecords.h"

#include <QDate>
#include <QStringList>

#include <map>

/// What is wrong with a schedule, spelled out day by day, quarter by quarter and play by play, with
/// no thought of speed. All times have to be quarters of an hour or the last second of the day, and
/// all lengths hours. As linesOf(), sorted by letters; without the changes of clocks.
namespace literal {

QStringList taskProblems(const trel::mediadispatch::PlayTask& task,
                         const std::map<int, trel::mediadispatch::ProgramIten>& catalogue,
                         const QDate& from);

/// The overlaps alone.
QStringList overlaps(const std::map<int, trel::mediadispatch::PlayTask>& tasks);

} // namespace literal
