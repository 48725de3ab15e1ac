#pragma once

#include "catalogue/ProgramImporter.h"
#include "service/ScheduleRecords.h"

#include <map>
#include <vector>

/// A task in which no field holds what it would hold by itself, with two plans of the same id.
trel::mediadispatch::PlayTask everyFieldTask(int taskId);

/// A plan of the id with the programs 1 to the given number.
trel::mediadispatch::PlayPlan samplePlan(int planId, int programs);

/// Tasks 1 to the given number. The generation stands in every plan, so that two schedules of
/// different generations differ in each of their tasks.
std::map<int, trel::mediadispatch::PlayTask> sampleSchedule(int tasks, int plans, int programs,
                                                            int generation = 0);

/// Live sources, which need no files, with names "program 1" and on.
std::vector<trel::mediadispatch::MediaSource> samplePrograms(int count, int first = 1);
