#include "QuietService.h"

#include "service/scheduleManage.h"

#include <algorithm>

namespace bench {

QuietService& QuietService::instance()
{
    static QuietService service;
    return service;
}

} // namespace bench

namespace trel::mediadispatch {

namespace {

bench::QuietService& quiet()
{
    return bench::QuietService::instance();
}

const ProgramIten* find(int progIndex)
{
    const auto found = quiet().programs.find(progIndex);
    return found == quiet().programs.end() ? nullptr : &found->second;
}

} // namespace

class scheduleManage::Private
{};

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
    return quiet().tasks;
}

void scheduleManage::updateUItask() {}
void scheduleManage::resetUiTask() {}

std::map<int, PlayTask> scheduleManage::getAllTask()
{
    return quiet().tasks;
}

PlayTask scheduleManage::getTask(int taskId)
{
    const auto found = quiet().tasks.find(taskId);
    return found == quiet().tasks.end() ? PlayTask() : found->second;
}

void scheduleManage::addTask(const PlayTask&) {}
void scheduleManage::deleteTask(int) {}
void scheduleManage::save() {}
void scheduleManage::slotOpen() {}

PlayPlan scheduleManage::getPlan(int, int, int&)
{
    return PlayPlan();
}

PlayPlan scheduleManage::getNowUsePlan(int, int, int&)
{
    return PlayPlan();
}

void scheduleManage::addPlan(int, const PlayPlan&) {}
void scheduleManage::setInsertPlanTask(int, int, const PlayPlan&, bool) {}
void scheduleManage::setInsertPlanTaskDelayExcute(int, int, const PlayPlan&) {}
void scheduleManage::passOriginalPlanProgInfo(const std::vector<struProgInfo>&) {}

bool scheduleManage::getScheduleState() const
{
    return false;
}

std::map<int, ProgramIten> scheduleManage::getPrograms()
{
    return quiet().programs;
}

ProgramIten scheduleManage::getProgramItemByIndex(int progIndex)
{
    if (const ProgramIten* const program = find(progIndex)) {
        return *program;
    }
    ProgramIten missing;
    missing.progIndex = progIndex;
    missing.isNull = true;
    return missing;
}

std::string scheduleManage::getProgramNameByProgIndex(int progIndex)
{
    const ProgramIten* const program = find(progIndex);
    return program ? program->progName : std::string();
}

double scheduleManage::getDurationByIndex(int progIndex)
{
    const ProgramIten* const program = find(progIndex);
    return program ? program->durationMs : 0.0;
}

bool scheduleManage::isNoDurationType(int progIndex)
{
    const ProgramIten* const program = find(progIndex);
    return program && (program->kind == ProgramKind::Image || program->kind == ProgramKind::Live);
}

DataCompareType scheduleManage::comparisionDate(const std::string&) const
{
    return DateIsToday;
}

bool scheduleManage::comparisonTime(const std::string&) const
{
    return false;
}

void scheduleManage::setqstrSelectedProgram(const std::string&) {}

std::string scheduleManage::getqstrSelectedProgram() const
{
    return std::string();
}

} // namespace trel::mediadispatch
