#include "CollisionText.h"

#include "PlanTaskWidget.h"
#include "ScheduleText.h"

#include <QTableView>

#include <optional>

namespace trel::mediadispatch {

QString collisionText(const QTableView& table, const QModelIndex& cell)
{
    const QWidget* above = table.parentWidget();
    while (above && !qobject_cast<const PlanTaskWidget*>(above)) {
        above = above->parentWidget();
    }
    const auto other = above && cell.isValid()
                           ? static_cast<const PlanTaskWidget*>(above)->planInTheWay(cell.row())
                           : std::nullopt;
    return other ? QStringLiteral("%1: %2, %3%4")
                       .arg(scheduleText("zhconflictStr"), table.accessibleName(),
                            scheduleText("zhPlanTimeStr"), QString::number(*other))
                 : QString();
}

} // namespace trel::mediadispatch
