#pragma once

#include "TaskSets.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/effect/EffectStart.h"

#include <QtGlobal>

#include <optional>

namespace trel::mediadispatch {

/// What is in effect, as the store holds it.
struct StoredEffect
{
    qint64 revision = 0;              ///< Which state of it this is.
    std::optional<EffectStart> start; ///< None while nothing is in effect; all else is empty then.
    TaskMap tasks;                    ///< As they were when they were started.
    ScreenInsertions insertions;      ///< Those that the schedule has to reckon with.
};

} // namespace trel::mediadispatch
