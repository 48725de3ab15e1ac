// The schedule service as the editor declares it, on the file of the station. Every operation
// stands here: the header of the package says what the editor relies on.

#include "Station.h"

#include <service/DateText.h>
#include <service/TaskPlans.h>
#include <service/TimeText.h>
#include <service/scheduleManage.h>

#include <QDate>
#include <QTextStream>
#include <QTime>

namespace trel::mediadispatch {

namespace {

/// A device would be told; here a reader of the standard output is.
void tell(const QString& words)
{
    QTextStream(stdout) << words << Qt::endl;
}

QString namesOf(const std::vector<struProgInfo>& programs)
{
    QStringList names;
    for (const struProgInfo& entry : programs) {
        names.append(QString::fromStdString(entry.progName));
    }
    return names.join(QLatin1String(", "));
}

PlayPlan planIn(const ScheduleFile::Tasks& tasks, int taskId, int planId, int& index)
{
    const auto task = tasks.find(taskId);
    if (task == tasks.end()) {
        return PlayPlan();
    }
    const std::vector<PlayPlan>& plans = task->second.plans;
    for (std::size_t i = 0; i < plans.size(); ++i) {
        if (plans[i].id == planId) {
            index = static_cast<int>(i);
            return plans[i];
        }
    }
    return PlayPlan();
}

void putPlan(ScheduleFile::Tasks& tasks, int taskId, const PlayPlan& plan)
{
    const auto task = tasks.find(taskId);
    if (task == tasks.end()) {
        return;
    }
    if (PlayPlan* former = firstPlanWithId(task->second, plan.id)) {
        *former = plan;
    } else {
        task->second.plans.push_back(plan);
    }
}

} // namespace

class scheduleManage::Private
{
public:
    Station& station = Station::instance();
};

scheduleManage::scheduleManage()
    : d(std::make_unique<Private>())
{}

scheduleManage::~scheduleManage() = default;

scheduleManage& scheduleManage::getInstance()
{
    static scheduleManage manager;
    return manager;
}

std::map<int, PlayTask> scheduleManage::getgTaskMap()
{
    return d->station.file.tasks();
}

void scheduleManage::updateUItask()
{
    d->station.working = d->station.file.tasks();
}

void scheduleManage::resetUiTask()
{
    updateUItask();
    d->station.selectedProgram.clear();
}

std::map<int, PlayTask> scheduleManage::getAllTask()
{
    return d->station.working;
}

PlayTask scheduleManage::getTask(int taskId)
{
    const auto found = d->station.working.find(taskId);
    return found == d->station.working.end() ? PlayTask() : found->second;
}

void scheduleManage::addTask(const PlayTask& task)
{
    // A card whose task has gone reads the answer to an unknown id, and files that.
    if (task != PlayTask()) {
        d->station.working.insert_or_assign(task.id, task);
    }
}

void scheduleManage::deleteTask(int taskId)
{
    d->station.working.erase(taskId);
}

void scheduleManage::save()
{
    const QString reason = d->station.file.save(d->station.working);
    if (!reason.isEmpty() && d->station.refused) {
        d->station.refused(reason);
    }
}

void scheduleManage::slotOpen()
{
    d->station.inEffect = d->station.file.tasks();
    d->station.isStarted = true;
    tell(QStringLiteral("In effect: %1 tasks").arg(d->station.inEffect.size()));
}

PlayPlan scheduleManage::getPlan(int taskId, int planId, int& index)
{
    return planIn(d->station.working, taskId, planId, index);
}

PlayPlan scheduleManage::getNowUsePlan(int taskId, int planId, int& index)
{
    return planIn(d->station.inEffect, taskId, planId, index);
}

void scheduleManage::addPlan(int taskId, const PlayPlan& plan)
{
    putPlan(d->station.working, taskId, plan);
}

void scheduleManage::setInsertPlanTask(int taskId, int planId, const PlayPlan& plan, bool immediate)
{
    putPlan(d->station.inEffect, taskId, plan);
    tell(QStringLiteral("%1, in place of plan %2 of task %3: %4")
             .arg(immediate ? QStringLiteral("Now") : QStringLiteral("After this play"))
             .arg(planId)
             .arg(taskId)
             .arg(namesOf(plan.programs)));
}

void scheduleManage::setInsertPlanTaskDelayExcute(int taskId, int planId, const PlayPlan& plan)
{
    setInsertPlanTask(taskId, planId, plan, false);
}

void scheduleManage::passOriginalPlanProgInfo(const std::vector<struProgInfo>& programs)
{
    tell(QStringLiteral("The plan itself has: %1").arg(namesOf(programs)));
}

bool scheduleManage::getScheduleState() const
{
    return !d->station.isStarted;
}

std::map<int, ProgramIten> scheduleManage::getPrograms()
{
    return d->station.file.programs();
}

ProgramIten scheduleManage::getProgramItemByIndex(int progIndex)
{
    const ScheduleFile::Programs& programs = d->station.file.programs();
    const auto found = programs.find(progIndex);
    if (found != programs.end()) {
        return found->second;
    }
    ProgramIten none;
    none.isNull = true;
    return none;
}

std::string scheduleManage::getProgramNameByProgIndex(int progIndex)
{
    return getProgramItemByIndex(progIndex).progName;
}

double scheduleManage::getDurationByIndex(int progIndex)
{
    return getProgramItemByIndex(progIndex).durationMs;
}

bool scheduleManage::isNoDurationType(int progIndex)
{
    const ProgramIten program = getProgramItemByIndex(progIndex);
    return !program.isNull && !hasOwnLength(program);
}

DataCompareType scheduleManage::comparisionDate(const std::string& date) const
{
    const QDate day = dateFromText(date);
    const QDate today = QDate::currentDate();
    if (!day.isValid() || day < today) {
        return DateBeforeToday;
    }
    return day == today ? DateIsToday : DateAfterToday;
}

bool scheduleManage::comparisonTime(const std::string& time) const
{
    const QTime moment = timeFromText(time);
    return !moment.isValid() || moment < QTime::currentTime();
}

void scheduleManage::setqstrSelectedProgram(const std::string& text)
{
    d->station.selectedProgram = text;
}

std::string scheduleManage::getqstrSelectedProgram() const
{
    return d->station.selectedProgram;
}

} // namespace trel::mediadispatch

Station& Station::instance()
{
    static Station station;
    return station;
}
