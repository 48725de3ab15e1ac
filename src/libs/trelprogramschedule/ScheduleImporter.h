#pragma once

#include "trelprogramschedule/ScheduleImport.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

namespace trel::mediadispatch {

/// Replaces the stored set of ScheduleHost, and with it the working set, as replaceSchedule does,
/// and puts the sources into its catalogue, as addPrograms does: all of it in one transaction, or
/// nothing. Entries refer to the programs of the catalogue after that; those of numbers for which
/// there is none have gone bad. Refused like a save, and with StoreProblem::MovedOn also where
/// another program has changed the catalogue since it was read, since an index may be none of its
/// any more. On the thread of ScheduleHost.
TRELPROGRAMSCHEDULE_EXPORT StoreResult importSchedule(const ScheduleImport& import);

} // namespace trel::mediadispatch
