#pragma once

#include "service/ScheduleRecords.h"

#include <set>

class QLabel;

namespace trel::mediadispatch {

/// Sets isConflict of every plan of the task afresh and returns the ids of the plans that collide
/// with an earlier one. Ends that follow from programs are worked out on the service's catalogue,
/// which is fetched once; the endTime of the plans stays as it is.
std::set<int> markConflicts(PlayTask& task);

/// Shows in the state label of a row whether its plan collides with an earlier one. Costs next to
/// nothing when the label shows it already.
void showPlanState(QLabel& label, bool collides);

} // namespace trel::mediadispatch
