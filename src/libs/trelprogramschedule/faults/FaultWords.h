#pragma once

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "trelprogramschedule/store/StoreResult.h"
#include "trelprogramschedule_export.h"

#include <QString>

namespace trel::mediadispatch {

/// The name of a code for machines, such as "diskFull"; it never changes. Empty for None.
TRELPROGRAMSCHEDULE_EXPORT QString faultName(FaultCode code);
/// The same of a problem of the store, such as "movedOn".
TRELPROGRAMSCHEDULE_EXPORT QString storeProblemName(StoreProblem problem);

/// The reason in English, as a part of a sentence: "the disk is full". Empty when there is none.
TRELPROGRAMSCHEDULE_EXPORT QString englishClause(const Fault& fault);
/// The same as a sentence: "The disk is full."
TRELPROGRAMSCHEDULE_EXPORT QString englishSentence(const Fault& fault);

/// How a call of the store ended, as a sentence in English that names the file; empty when all went
/// well.
TRELPROGRAMSCHEDULE_EXPORT QString englishText(const StoreResult& result);
/// Why a schedule could not be read, in English, with its place and without a full stop; empty when
/// it could.
TRELPROGRAMSCHEDULE_EXPORT QString englishText(const ScheduleFromJson& schedule);

} // namespace trel::mediadispatch
