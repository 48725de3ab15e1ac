#pragma once

#include "ProgramContent.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

namespace trel::mediadispatch {

/// Reads what is known of the files of programs from the store that is open in ScheduleHost, as it
/// is in the store now. What it reads into is left as it was where the result is a refusal. A store
/// of a former schema that is only read knows nothing. On the thread of ScheduleHost.
TRELPROGRAMSCHEDULE_EXPORT StoreResult readStoredContents(ProgramContents& contents);

/// The same by the paths of the programs, for scanMedia. Empty where the store cannot be read:
/// files are read once more then.
TRELPROGRAMSCHEDULE_EXPORT FileContents storedFileContents();

} // namespace trel::mediadispatch
