#pragma once

#include "trelprogramschedule/history/ScheduleVersion.h"

#include <QtGlobal>

namespace trel::desktop::versions {

/// One of the states of a schedule that can be compared.
struct ScheduleState
{
    enum Kind {
        Version,  ///< A former one, or the newest, by its number.
        Saved,    ///< What is saved, whatever number it has by then.
        InEffect, ///< What is in effect.
    };

    Kind kind = Saved;
    qint64 number = trel::mediadispatch::kNoVersion; ///< Of a version.
};

inline bool operator==(const ScheduleState& a, const ScheduleState& b)
{
    return a.kind == b.kind && a.number == b.number;
}

inline bool operator!=(const ScheduleState& a, const ScheduleState& b)
{
    return !(a == b);
}

} // namespace trel::desktop::versions
