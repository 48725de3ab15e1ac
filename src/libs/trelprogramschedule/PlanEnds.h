#pragma once

#include "service/ScheduleRecords.h"

namespace trel::mediadispatch {

class ProgramCatalogue;

/// Works out afresh the ends of a task's plans that follow from the lengths of programs: of those
/// in FrequencyMode that name a program which the catalogue has or had. True when one of them ends
/// at another time than before.
///
/// Any other plan keeps its end. There is nothing to work it out from, as in a schedule that was
/// written before its programs were imported.
bool updatePlanEnds(PlayTask& task, const ProgramCatalogue& catalogue);

/// The same for one plan.
bool updatePlanEnd(PlayPlan& plan, const ProgramCatalogue& catalogue);

/// Takes into a task that was written at some time what follows from the catalogue of now: ends
/// that follow from lengths, and the marks of entries whose programs have left it.
void bringUpToDate(PlayTask& task, const ProgramCatalogue& catalogue);

} // namespace trel::mediadispatch
