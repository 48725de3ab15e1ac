#pragma once

#include "trelprogramschedule/asrun/AsRunChain.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunJudge.h"
#include "trelprogramschedule_export.h"

#include <functional>
#include <vector>

namespace trel::mediadispatch {

/// What became of looking at the records of a screen.
struct AsRunVerdict
{
    AsRunScreen screen;
    qint64 records = 0;
    bool isWhole = false;           ///< All records were looked at, up to the last.
    std::vector<AsRunBreak> breaks; ///< A thousand at most.
    qint64 breakCount = 0;
    std::vector<AsRunDeviation> deviations; ///< A thousand at most.
    qint64 deviationCount = 0;
    AsRunTimes times;

    bool isGood() const { return breakCount == 0 && deviationCount == 0; }
};

/// Checks the chain of a screen between two moments, and holds its records against the timelines of
/// the schedules that were followed. kEver and kNever mean all records. One pass, in a bounded
/// amount of memory, at the cost of the time that is asked for.
TRELPROGRAMSCHEDULE_EXPORT StoreResult verifyAsRun(AsRunDatabase& database,
                                                   const AsRunScreen& screen, Instant from,
                                                   Instant to, AsRunVerdict& verdict);

/// Compares the records of a screen with what was planned; see AsRunComparison.
TRELPROGRAMSCHEDULE_EXPORT StoreResult compareAsRun(AsRunDatabase& database,
                                                    const AsRunScreen& screen, Instant from,
                                                    Instant to, AsRunComparison::Gaps gaps,
                                                    const AsRunComparison::Visitor& visitor);

} // namespace trel::mediadispatch
