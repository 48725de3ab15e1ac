#include "support/RecordingService.h"

#include <algorithm>

namespace trel::mediadispatch {

class scheduleManage::Private
{};

} // namespace trel::mediadispatch

using namespace trel::mediadispatch;

namespace {

RecordingService& service()
{
    return RecordingService::instance();
}

template <typename... Args>
void record(const char* name, const Args&... args)
{
    QStringList texts;
    (texts.append(QStringLiteral("%1").arg(args)), ...);
    service().log.append(QLatin1String(name) + QLatin1Char('(') + texts.join(QLatin1String(", ")) +
                         QLatin1Char(')'));
}

QString quoted(const std::string& text)
{
    return QLatin1Char('"') + QString::fromStdString(text) + QLatin1Char('"');
}

QString entries(const std::vector<struProgInfo>& programs)
{
    QStringList texts;
    for (const struProgInfo& entry : programs) {
        texts.append(QStringLiteral("%1%2x%3")
                         .arg(QLatin1String(entry.isInvalid ? "!" : ""))
                         .arg(entry.progIndex)
                         .arg(entry.playCount));
    }
    return QLatin1Char('<') + texts.join(QLatin1Char(',')) + QLatin1Char('>');
}

PlayPlan findPlan(const PlayTask& task, int planId, int& index)
{
    const auto found = std::find_if(task.plans.begin(), task.plans.end(),
                                    [planId](const PlayPlan& plan) { return plan.id == planId; });
    if (found == task.plans.end()) {
        return PlayPlan();
    }
    index = static_cast<int>(found - task.plans.begin());
    return *found;
}

PlayTask workingTask(int taskId)
{
    const auto found = service().working.find(taskId);
    return found == service().working.end() ? PlayTask() : found->second;
}

} // namespace

RecordingService& RecordingService::instance()
{
    static RecordingService state;
    return state;
}

scheduleManage& RecordingService::manager()
{
    return scheduleManage::getInstance();
}

void RecordingService::reset()
{
    *this = RecordingService();
}

int RecordingService::count(const QString& name) const
{
    return calls({name}).size();
}

QStringList RecordingService::calls(const QStringList& names) const
{
    QStringList found;
    std::copy_if(log.begin(), log.end(), std::back_inserter(found), [&](const QString& call) {
        return names.contains(call.section(QLatin1Char('('), 0, 0));
    });
    return found;
}

QStringList RecordingService::edits() const
{
    static const QStringList lookups = {
        QStringLiteral("getPrograms"), QStringLiteral("getProgramItemByIndex"),
        QStringLiteral("getProgramNameByProgIndex"), QStringLiteral("getDurationByIndex"),
        QStringLiteral("isNoDurationType")};
    QStringList found;
    std::copy_if(log.begin(), log.end(), std::back_inserter(found), [&](const QString& call) {
        return !lookups.contains(call.section(QLatin1Char('('), 0, 0));
    });
    return found;
}

void RecordingService::clearLog()
{
    log.clear();
    addedTasks.clear();
    addedPlans.clear();
    insertions.clear();
    originals.clear();
}

ProgramIten& RecordingService::addProgram(int progIndex, const std::string& name, double durationMs,
                                          bool isNoDuration)
{
    ProgramIten program;
    program.progIndex = progIndex;
    program.progName = name;
    program.durationMs = durationMs;
    program.kind = isNoDuration ? ProgramKind::Image : ProgramKind::Video;
    if (isNoDuration) {
        noDuration.insert(progIndex);
    }
    return programs[progIndex] = program;
}

QString line(const PlayPlan& plan)
{
    return QStringLiteral("id %1 %2 %3-%4 x%5 days %6 end %7 %8%9")
        .arg(plan.id)
        .arg(QLatin1String(plan.mode == TimeMode ? "time" : "frequency"),
             QString::fromStdString(plan.startTime), QString::fromStdString(plan.endTime))
        .arg(plan.times)
        .arg(QString::fromStdString(plan.weeks))
        .arg(plan.endAction)
        .arg(entries(plan.programs), QLatin1String(plan.isConflict ? " conflict" : ""));
}

QString line(const PlayTask& task)
{
    QStringList plans;
    for (const PlayPlan& plan : task.plans) {
        plans.append(line(plan));
    }
    return QStringLiteral("%1 %2-%3 [%4]")
        .arg(task.id)
        .arg(QString::fromStdString(task.startDate), QString::fromStdString(task.endDate),
             plans.join(QLatin1String("; ")));
}

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
    record("getgTaskMap");
    return service().stored;
}

void scheduleManage::updateUItask()
{
    record("updateUItask");
    service().working = service().stored;
}

void scheduleManage::resetUiTask()
{
    record("resetUiTask");
    service().working.clear();
}

std::map<int, PlayTask> scheduleManage::getAllTask()
{
    record("getAllTask");
    return service().working;
}

PlayTask scheduleManage::getTask(int taskId)
{
    record("getTask", taskId);
    return workingTask(taskId);
}

void scheduleManage::addTask(const PlayTask& task)
{
    record("addTask", line(task));
    service().addedTasks.push_back(task);
    service().working[task.id] = task;
}

void scheduleManage::deleteTask(int taskId)
{
    record("deleteTask", taskId);
    service().working.erase(taskId);
}

void scheduleManage::save()
{
    record("save");
    service().stored = service().working;
}

void scheduleManage::slotOpen()
{
    record("slotOpen");
}

PlayPlan scheduleManage::getPlan(int taskId, int planId, int& index)
{
    record("getPlan", taskId, planId, index);
    int found = -1;
    const PlayPlan plan = findPlan(workingTask(taskId), planId, found);
    if (found >= 0) {
        index = found;
    } else if (service().missingPlanIndex) {
        index = *service().missingPlanIndex;
    }
    return plan;
}

PlayPlan scheduleManage::getNowUsePlan(int taskId, int planId, int& index)
{
    record("getNowUsePlan", taskId, planId, index);
    if (!service().planInUse) {
        return PlayPlan();
    }
    index = 0;
    return *service().planInUse;
}

void scheduleManage::addPlan(int taskId, const PlayPlan& plan)
{
    record("addPlan", taskId, line(plan));
    service().addedPlans.emplace_back(taskId, plan);
    const auto task = service().working.find(taskId);
    if (task == service().working.end()) {
        return;
    }
    int index = -1;
    findPlan(task->second, plan.id, index);
    if (index >= 0) {
        task->second.plans[static_cast<std::size_t>(index)] = plan;
    } else {
        task->second.plans.push_back(plan);
    }
}

void scheduleManage::setInsertPlanTask(int taskId, int planId, const PlayPlan& plan, bool immediate)
{
    record("setInsertPlanTask", taskId, planId, line(plan), immediate);
    service().insertions.push_back({taskId, planId, plan, immediate});
}

void scheduleManage::setInsertPlanTaskDelayExcute(int taskId, int planId, const PlayPlan& plan)
{
    record("setInsertPlanTaskDelayExcute", taskId, planId, line(plan));
    service().insertions.push_back({taskId, planId, plan, std::nullopt});
}

void scheduleManage::passOriginalPlanProgInfo(const std::vector<struProgInfo>& programs)
{
    record("passOriginalPlanProgInfo", entries(programs));
    service().originals.push_back(programs);
}

bool scheduleManage::getScheduleState() const
{
    record("getScheduleState");
    return service().scheduleState;
}

std::map<int, ProgramIten> scheduleManage::getPrograms()
{
    record("getPrograms");
    return service().programs;
}

ProgramIten scheduleManage::getProgramItemByIndex(int progIndex)
{
    record("getProgramItemByIndex", progIndex);
    const auto found = service().programs.find(progIndex);
    if (found != service().programs.end()) {
        return found->second;
    }
    ProgramIten missing;
    missing.progIndex = progIndex;
    missing.isNull = true;
    return missing;
}

std::string scheduleManage::getProgramNameByProgIndex(int progIndex)
{
    record("getProgramNameByProgIndex", progIndex);
    const auto found = service().programs.find(progIndex);
    return found == service().programs.end() ? std::string() : found->second.progName;
}

double scheduleManage::getDurationByIndex(int progIndex)
{
    record("getDurationByIndex", progIndex);
    const auto overridden = service().durations.find(progIndex);
    if (overridden != service().durations.end()) {
        return overridden->second;
    }
    const auto found = service().programs.find(progIndex);
    return found == service().programs.end() ? 0.0 : found->second.durationMs;
}

bool scheduleManage::isNoDurationType(int progIndex)
{
    record("isNoDurationType", progIndex);
    return service().noDuration.count(progIndex) > 0;
}

DataCompareType scheduleManage::comparisionDate(const std::string& date) const
{
    record("comparisionDate", quoted(date));
    return service().dateResult;
}

bool scheduleManage::comparisonTime(const std::string& time) const
{
    record("comparisonTime", quoted(time));
    return service().timePassed;
}

void scheduleManage::setqstrSelectedProgram(const std::string& text)
{
    record("setqstrSelectedProgram", quoted(text));
    service().selectedProgram = text;
}

std::string scheduleManage::getqstrSelectedProgram() const
{
    record("getqstrSelectedProgram");
    return service().selectedProgram;
}
