#pragma once

#include "service/PlanFaults.h"

#include <QCoreApplication>
#include <QString>

namespace trel::hosts {

/// What the programs say of a plan that never plays, in the same words: English, or the language
/// that a program has installed.
class PlanFaultText
{
    Q_DECLARE_TR_FUNCTIONS(PlanFaultText)

public:
    /// A sentence; start and end are as they may be shown. Empty where there is no fault.
    static QString sentence(trel::mediadispatch::PlanFault fault, int planId, const QString& start,
                            const QString& end);
};

} // namespace trel::hosts
