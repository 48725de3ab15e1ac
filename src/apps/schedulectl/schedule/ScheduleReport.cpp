#include "ScheduleReport.h"

#include "ScheduleWords.h"
#include "common/DisplayText.h"
#include "service/WeekDays.h"
#include "text/TextTable.h"

using namespace trel::hosts;
using namespace trel::mediadispatch;

namespace trel::console {

namespace {

using Tasks = std::map<int, PlayTask>;

constexpr int kIndent = 2;

int shownRow(int row)
{
    return row + 1;
}

const PlayPlan& planAt(const Tasks& tasks, int taskId, int row)
{
    return tasks.at(taskId).plans[static_cast<std::size_t>(row)];
}

QString stateText(const PlanState& state)
{
    return state.collides()
               ? QStringLiteral("collides with row %1").arg(shownRow(state.collidingRow))
               : QStringLiteral("normal");
}

QString plansText(const PlayTask& task, const Catalogue& catalogue)
{
    TextTable table({{QStringLiteral("Row"), TextTable::Align::Right},
                     {QStringLiteral("Plan"), TextTable::Align::Right},
                     {QStringLiteral("Days")},
                     {QStringLiteral("From")},
                     {QStringLiteral("To")},
                     {QStringLiteral("Plays")},
                     {QStringLiteral("At the end")},
                     {QStringLiteral("State")},
                     {QStringLiteral("Programs")}});
    const std::vector<PlanState> states = planStates(task.plans, catalogue);
    int row = 0;
    for (const PlayPlan& plan : task.plans) {
        const PlanState& state = states[static_cast<std::size_t>(row)];
        table.addRow({QString::number(shownRow(row)), QString::number(plan.id),
                      daysText(plan.weeks), printable(plan.startTime), printable(state.end),
                      playsText(plan), endActionText(plan.endAction), stateText(state),
                      entriesText(plan.programs, catalogue.programs)});
        ++row;
    }
    return table.isEmpty() ? QStringLiteral("  no plans\n") : table.text(kIndent);
}

QJsonArray entriesJson(const std::vector<struProgInfo>& entries, const Catalogue& catalogue)
{
    QJsonArray array;
    for (const struProgInfo& entry : entries) {
        array.append(QJsonObject{
            {QStringLiteral("index"), entry.progIndex},
            {QStringLiteral("name"), entryText(entry, catalogue.programs)},
            {QStringLiteral("playCount"), entry.playCount},
            {QStringLiteral("isInvalid"), entry.isInvalid},
        });
    }
    return array;
}

QJsonArray daysJson(const std::string& weeks)
{
    std::vector<int> numbers;
    if (parseWeeks(weeks, numbers)) {
        return {int(EveryDay)};
    }
    QJsonArray days;
    for (const int number : numbers) {
        days.append(number);
    }
    return days;
}

QJsonValue rowJson(int row)
{
    return row < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(shownRow(row));
}

QJsonArray plansJson(const PlayTask& task, const Catalogue& catalogue)
{
    QJsonArray array;
    const std::vector<PlanState> states = planStates(task.plans, catalogue);
    int row = 0;
    for (const PlayPlan& plan : task.plans) {
        const PlanState& state = states[static_cast<std::size_t>(row)];
        array.append(QJsonObject{
            {QStringLiteral("row"), shownRow(row)},
            {QStringLiteral("id"), plan.id},
            {QStringLiteral("mode"), plan.mode},
            {QStringLiteral("days"), daysJson(plan.weeks)},
            {QStringLiteral("startTime"), QString::fromStdString(plan.startTime)},
            {QStringLiteral("endTime"), QString::fromStdString(state.end)},
            {QStringLiteral("times"), plan.times},
            {QStringLiteral("endAction"), plan.endAction},
            {QStringLiteral("programs"), entriesJson(plan.programs, catalogue)},
            {QStringLiteral("collidesWithRow"), rowJson(state.collidingRow)},
        });
        ++row;
    }
    return array;
}

QString taskText(const PlayTask& task)
{
    return QStringLiteral("task %1 (%2)").arg(QString::number(task.id), periodText(task));
}

QString overlapsText(const ScheduleCheck& check, const Tasks& tasks)
{
    if (check.overlaps.empty()) {
        return {};
    }
    QString text = QStringLiteral("A save would be refused, because the periods of these tasks "
                                  "overlap:\n");
    for (const auto& [first, second] : check.overlaps) {
        text += QStringLiteral("  %1 and %2\n")
                    .arg(taskText(tasks.at(first)), taskText(tasks.at(second)));
    }
    return text;
}

QString collisionsText(const ScheduleCheck& check, const Tasks& tasks)
{
    if (check.collisions.empty()) {
        return {};
    }
    TextTable table({{QStringLiteral("Task"), TextTable::Align::Right},
                     {QStringLiteral("Row"), TextTable::Align::Right},
                     {QStringLiteral("Plan"), TextTable::Align::Right},
                     {QStringLiteral("Days")},
                     {QStringLiteral("From")},
                     {QStringLiteral("To")},
                     {QStringLiteral("Collides with")}});
    for (const PlanCollision& collision : check.collisions) {
        const PlayPlan& plan = planAt(tasks, collision.taskId, collision.row);
        const PlayPlan& earlier = planAt(tasks, collision.taskId, collision.earlierRow);
        table.addRow({QString::number(collision.taskId), QString::number(shownRow(collision.row)),
                      QString::number(plan.id), daysText(plan.weeks), printable(plan.startTime),
                      printable(collision.end),
                      QStringLiteral("row %1, plan %2")
                          .arg(shownRow(collision.earlierRow))
                          .arg(earlier.id)});
    }
    return QStringLiteral("These plans collide with an earlier plan of their task:\n") +
           table.text(kIndent);
}

QString remarksText(const ScheduleCheck& check, const Tasks& tasks)
{
    if (check.remarks.empty()) {
        return {};
    }
    QString text = QStringLiteral("Remarks:\n");
    for (const ScheduleRemark& remark : check.remarks) {
        text += QStringLiteral("  task %1").arg(remark.taskId);
        if (remark.row >= 0) {
            text += QStringLiteral(", row %1, plan %2")
                        .arg(shownRow(remark.row))
                        .arg(planAt(tasks, remark.taskId, remark.row).id);
        }
        text += QStringLiteral(", %1: %2\n").arg(remark.field, remark.sentence);
    }
    return text;
}

} // namespace

QString tasksText(const Tasks& tasks, const Catalogue& catalogue)
{
    if (tasks.empty()) {
        return QStringLiteral("There are no tasks.\n");
    }
    QString text;
    for (const auto& [id, task] : tasks) {
        text += text.isEmpty() ? QString() : QStringLiteral("\n");
        text += QStringLiteral("Task %1: %2\n").arg(QString::number(id), periodText(task));
        text += plansText(task, catalogue);
    }
    return text;
}

QJsonArray tasksJson(const Tasks& tasks, const Catalogue& catalogue)
{
    QJsonArray array;
    for (const auto& [id, task] : tasks) {
        array.append(QJsonObject{
            {QStringLiteral("id"), id},
            {QStringLiteral("startDate"), QString::fromStdString(task.startDate)},
            {QStringLiteral("endDate"), QString::fromStdString(task.endDate)},
            {QStringLiteral("plans"), plansJson(task, catalogue)},
        });
    }
    return array;
}

QString checkText(const ScheduleCheck& check, const Tasks& tasks)
{
    QStringList parts = {overlapsText(check, tasks), collisionsText(check, tasks),
                         remarksText(check, tasks)};
    parts.removeAll(QString());
    if (check.isClean()) {
        parts.prepend(
            QStringLiteral("No overlaps and no collisions in %1.\n").arg(sizeText(tasks)));
    }
    return parts.join(QLatin1Char('\n'));
}

QJsonObject checkJson(const ScheduleCheck& check, const Tasks& tasks)
{
    QJsonArray overlaps;
    for (const auto& [first, second] : check.overlaps) {
        overlaps.append(QJsonObject{{QStringLiteral("tasks"), QJsonArray{first, second}}});
    }
    QJsonArray collisions;
    for (const PlanCollision& collision : check.collisions) {
        const auto planId = [&](int row) { return planAt(tasks, collision.taskId, row).id; };
        collisions.append(QJsonObject{
            {QStringLiteral("task"), collision.taskId},
            {QStringLiteral("row"), shownRow(collision.row)},
            {QStringLiteral("plan"), planId(collision.row)},
            {QStringLiteral("collidesWithRow"), shownRow(collision.earlierRow)},
            {QStringLiteral("collidesWithPlan"), planId(collision.earlierRow)},
        });
    }
    QJsonArray remarks;
    for (const ScheduleRemark& remark : check.remarks) {
        remarks.append(QJsonObject{
            {QStringLiteral("task"), remark.taskId},
            {QStringLiteral("row"), rowJson(remark.row)},
            {QStringLiteral("field"), remark.field},
            {QStringLiteral("code"), remark.code},
            {QStringLiteral("value"), remark.value},
            {QStringLiteral("taken"),
             remark.taken.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(remark.taken)},
        });
    }
    return {
        {QStringLiteral("overlaps"), overlaps},
        {QStringLiteral("collisions"), collisions},
        {QStringLiteral("remarks"), remarks},
        {QStringLiteral("saveWouldBeRefused"), !check.overlaps.empty()},
    };
}

QString sizeText(const Tasks& tasks)
{
    qint64 plans = 0;
    for (const auto& [id, task] : tasks) {
        plans += static_cast<qint64>(task.plans.size());
    }
    return QStringLiteral("%1 with %2")
        .arg(counted(static_cast<qint64>(tasks.size()), QStringLiteral("task")),
             counted(plans, QStringLiteral("plan")));
}

} // namespace trel::console
