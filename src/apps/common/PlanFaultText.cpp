#include "common/PlanFaultText.h"

using namespace trel::mediadispatch;

namespace trel::hosts {

QString PlanFaultText::sentence(PlanFault fault, int planId, const QString& start,
                                const QString& end)
{
    const QString plan = QString::number(planId);
    switch (fault) {
    case PlanFault::NoDay:
        return tr("Plan %1 never plays: none of its days is a day of the week.").arg(plan);
    case PlanFault::UnreadableStart:
        return tr("Plan %1 never plays: its start, “%2”, is not a time in the form %3.")
            .arg(plan, start, kTimeFormat);
    case PlanFault::UnreadableEnd:
        return tr("Plan %1 never plays: its end, “%2”, is not a time in the form %3.")
            .arg(plan, end, kTimeFormat);
    case PlanFault::UnreadableTimes:
        return tr("Plan %1 never plays: its start, “%2”, and its end, “%3”, are not times in the "
                  "form %4.")
            .arg(plan, start, end, kTimeFormat);
    case PlanFault::RunsLessThanOnce:
        return tr("Plan %1 never plays: its list is to run less than once.").arg(plan);
    case PlanFault::EmptySpan:
        return tr("Plan %1 never plays: it starts and ends at %2.").arg(plan, start);
    case PlanFault::InvertedSpan:
        return tr("Plan %1 never plays: it ends at %3, before it starts at %2.")
            .arg(plan, start, end);
    case PlanFault::None:
        break;
    }
    return QString();
}

} // namespace trel::hosts
