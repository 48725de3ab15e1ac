#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QString>
#include <QtGlobal>

namespace trel::mediadispatch {

/// How a schedule came into effect.
struct EffectStart
{
    Instant since = 0; ///< When it was started.
    qint64 saved = 0;  ///< Which save was started: saves of a store are counted from 1.
    QString by;        ///< The program and the machine that started it, as "schedulectl@studio".

    /// Whether it is the same start.
    bool operator==(const EffectStart& other) const
    {
        return since == other.since && saved == other.saved && by == other.by;
    }
};

} // namespace trel::mediadispatch
