#include "merge/MergeWords.h"

#include "service/TaskPeriods.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"

using namespace trel::mediadispatch;

namespace trel::desktop::merge {

QString MergeWords::outlook(const ScheduleMerge& merge)
{
    if (!merge.conflicts().empty()) {
        return tr("%n tasks were changed at both desks: if you merge, you choose for each of them "
                  "which one stays. Everything else of both is kept.",
                  nullptr, static_cast<int>(merge.conflicts().size()));
    }
    if (const auto found = firstTaskOverlap(merge.merged({}))) {
        return overlap(found->first, found->second);
    }
    return tr("No task was changed at both desks: what both have changed can be saved together.");
}

QString MergeWords::answer(const ScheduleMerge& merge)
{
    if (!merge.conflicts().empty()) {
        return tr("Merge…");
    }
    return firstTaskOverlap(merge.merged({})) ? mergeAndGoOn() : mergeAndSave();
}

QStringList MergeWords::renumbered(const ScheduleMerge& merge)
{
    QStringList lines;
    for (const auto& [former, id] : merge.renumbered()) {
        lines.append(
            tr("Merged, your new task %1 becomes task %2: another task %1 was added there.")
                .arg(QString::number(former), QString::number(id)));
    }
    return lines;
}

QString MergeWords::mergeAndSave()
{
    return tr("Merge and save");
}

QString MergeWords::mergeAndGoOn()
{
    return tr("Merge and go on editing");
}

QString MergeWords::overlap(int taskId, int otherId)
{
    return tr("Merged, tasks %1 and %2 would be valid on the same days. That cannot be saved: they "
              "stay in the editor until you have changed their dates.")
        .arg(QString::number(taskId), QString::number(otherId));
}

} // namespace trel::desktop::merge
