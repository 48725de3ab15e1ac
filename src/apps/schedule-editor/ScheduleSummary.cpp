#include "ScheduleSummary.h"

#include <QTextStream>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop {

QString scheduleSummary(const QString& database, const std::map<int, PlayTask>& tasks,
                        const std::map<int, ProgramIten>& programs)
{
    const auto missing = std::count_if(programs.begin(), programs.end(),
                                       [](const auto& entry) { return entry.second.isNull; });
    QString summary;
    QTextStream out(&summary);
    out << "Schedule in " << database << ": " << tasks.size() << " tasks, " << programs.size()
        << " programs";
    if (missing > 0) {
        out << ", " << missing << " of them without their file";
    }
    out << '\n';
    for (const auto& [id, task] : tasks) {
        out << "  task " << id << "  " << QString::fromStdString(task.startDate) << " to "
            << QString::fromStdString(task.endDate) << "  " << task.plans.size() << " plans\n";
    }
    return summary;
}

} // namespace trel::desktop
