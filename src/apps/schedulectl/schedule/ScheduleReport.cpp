#include "ScheduleReport.h"

#include "ScheduleWords.h"
#include "common/DisplayText.h"
#include "common/ProblemText.h"
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

QString plansText(const PlayTask& task, const Catalogue& catalogue, int columns)
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
    return table.isEmpty() ? QStringLiteral("  no plans\n") : table.text(kIndent, columns);
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

QString problemText(const ScheduleProblem& problem)
{
    const QString date = ProblemText::date(problem);
    return QStringLiteral("  %1%2: %3 %4\n")
        .arg(ProblemText::place(problem),
             date.isEmpty() ? QString() : QStringLiteral(", as of ") + date,
             ProblemText::wrong(problem, QLocale::c()), ProblemText::remedy(problem));
}

/// Those of one gravity, below a title.
QString problemsText(const ScheduleCheck& check, ProblemGravity gravity, const char* title)
{
    QString text;
    for (const ScheduleProblem& problem : check.problems) {
        if (gravityOf(problem) == gravity) {
            text += problemText(problem);
        }
    }
    return text.isEmpty() ? text : QLatin1String(title) + QLatin1Char('\n') + text;
}

QString kindName(ProblemKind kind)
{
    switch (kind) {
    case ProblemKind::TasksOverlap:
        return QStringLiteral("tasksOverlap");
    case ProblemKind::TaskNeverValid:
        return QStringLiteral("taskNeverValid");
    case ProblemKind::PlanNeverPlays:
        return QStringLiteral("planNeverPlays");
    case ProblemKind::PlanHasNoDate:
        return QStringLiteral("planHasNoDate");
    case ProblemKind::PlanNeverSeen:
        return QStringLiteral("planNeverSeen");
    case ProblemKind::PlansCollide:
        return QStringLiteral("plansCollide");
    case ProblemKind::InvalidEntry:
        return QStringLiteral("invalidEntry");
    case ProblemKind::MissingFile:
        return QStringLiteral("missingFile");
    case ProblemKind::EntryTakesNoTime:
        return QStringLiteral("entryTakesNoTime");
    case ProblemKind::NothingToPlay:
        return QStringLiteral("nothingToPlay");
    case ProblemKind::OverMidnight:
        return QStringLiteral("overMidnight");
    case ProblemKind::CutOff:
        return QStringLiteral("cutOff");
    case ProblemKind::NeverReached:
        return QStringLiteral("neverReached");
    case ProblemKind::NoPicture:
        return QStringLiteral("noPicture");
    case ProblemKind::ClockChange:
        break;
    }
    return QStringLiteral("clockChange");
}

QString gravityName(ProblemGravity gravity)
{
    switch (gravity) {
    case ProblemGravity::Refusal:
        return QStringLiteral("refusal");
    case ProblemGravity::Error:
        return QStringLiteral("error");
    case ProblemGravity::Warning:
        return QStringLiteral("warning");
    case ProblemGravity::Note:
        break;
    }
    return QStringLiteral("hint");
}

QJsonValue numberJson(int number)
{
    return number < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number);
}

QJsonValue dateJson(const QDate& date)
{
    return date.isValid() ? QJsonValue(date.toString(kDateFormat)) : QJsonValue(QJsonValue::Null);
}

QJsonObject problemJson(const ScheduleProblem& problem)
{
    return {
        {QStringLiteral("kind"), kindName(problem.kind)},
        {QStringLiteral("gravity"), gravityName(gravityOf(problem))},
        {QStringLiteral("task"), problem.taskId},
        {QStringLiteral("row"), rowJson(problem.planRow)},
        {QStringLiteral("plan"), numberJson(problem.planId)},
        {QStringLiteral("otherTask"), numberJson(problem.otherTaskId)},
        {QStringLiteral("otherRow"), rowJson(problem.otherRow)},
        {QStringLiteral("otherPlan"), numberJson(problem.otherPlanId)},
        {QStringLiteral("entry"), rowJson(problem.entry)},
        {QStringLiteral("program"), numberJson(problem.progIndex)},
        {QStringLiteral("firstDate"), dateJson(problem.first)},
        {QStringLiteral("lastDate"), dateJson(problem.last)},
        {QStringLiteral("wrong"), ProblemText::wrong(problem, QLocale::c())},
        {QStringLiteral("remedy"), ProblemText::remedy(problem)},
    };
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

QString tasksText(const Tasks& tasks, const Catalogue& catalogue, int columns)
{
    if (tasks.empty()) {
        return QStringLiteral("There are no tasks.\n");
    }
    QString text;
    for (const auto& [id, task] : tasks) {
        text += text.isEmpty() ? QString() : QStringLiteral("\n");
        text += QStringLiteral("Task %1: %2\n").arg(QString::number(id), periodText(task));
        text += plansText(task, catalogue, columns);
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
    QStringList parts = {problemsText(check, ProblemGravity::Refusal, "A save would be refused:"),
                         problemsText(check, ProblemGravity::Error, "Errors:"),
                         problemsText(check, ProblemGravity::Warning, "Warnings:"),
                         problemsText(check, ProblemGravity::Note, "Hints:"),
                         remarksText(check, tasks)};
    parts.removeAll(QString());
    if (check.problems.empty()) {
        parts.prepend(QStringLiteral("No problems in %1.\n").arg(sizeText(tasks)));
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
    QJsonArray problems;
    for (const ScheduleProblem& problem : check.problems) {
        problems.append(problemJson(problem));
    }
    return {
        {QStringLiteral("problems"), problems},
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
