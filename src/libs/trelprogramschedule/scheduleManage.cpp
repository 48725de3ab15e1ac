#include "service/scheduleManage.h"

#include "ScheduleService.h"
#include "clock/Clock.h"

#include <QDate>
#include <QTime>

namespace trel::mediadispatch {

namespace {

/// Stands for no program in particular.
constexpr int kAnyProgram = -1;

} // namespace

class scheduleManage::Private
{
public:
    ScheduleService& service = ScheduleService::instance();
    ScheduleState& state = service.state();
};

scheduleManage::scheduleManage()
    : d(std::make_unique<Private>())
{
    connect(&d->service, &ScheduleService::programsChanged, this,
            &scheduleManage::sigProgIndexChanged);
    connect(&d->service, &ScheduleService::lengthsChanged, this,
            &scheduleManage::signalUpdatePlanEndTime);
    connect(&d->service, &ScheduleService::tasksReplaced, this,
            [this] { emit signalReflushConflict(kAnyProgram); });
}

scheduleManage::~scheduleManage() = default;

scheduleManage& scheduleManage::getInstance()
{
    static scheduleManage manager;
    return manager;
}

std::map<int, PlayTask> scheduleManage::getgTaskMap()
{
    d->service.refresh();
    return d->state.tasks.stored();
}

void scheduleManage::updateUItask()
{
    d->state.tasks.resetWorking();
    d->service.noteWorkingSet();
}

void scheduleManage::resetUiTask()
{
    // The working set is not emptied: between this call and the rebuilding of the list events are
    // handled, and a save among them would wipe the stored set out.
    d->state.tasks.resetWorking();
    d->service.noteWorkingSet();
    d->state.selectedProgram.clear();
}

std::map<int, PlayTask> scheduleManage::getAllTask()
{
    return d->state.tasks.working();
}

PlayTask scheduleManage::getTask(int taskId)
{
    return findTask(d->state.tasks.working(), taskId);
}

void scheduleManage::addTask(const PlayTask& task)
{
    // A card whose task has gone reads the answer to an unknown id, and files that.
    if (task == PlayTask()) {
        return;
    }
    // Cards file their whole tasks whenever they work out collisions, mostly as they were.
    if (d->state.tasks.putTask(task)) {
        d->service.noteWorkingSet();
    }
}

void scheduleManage::deleteTask(int taskId)
{
    d->state.tasks.removeTask(taskId);
    d->service.noteWorkingSet();
}

void scheduleManage::save()
{
    d->service.saveOrTell();
}

void scheduleManage::slotOpen()
{
    d->service.startOrTell();
}

PlayPlan scheduleManage::getPlan(int taskId, int planId, int& index)
{
    return findPlan(d->state.tasks.working(), taskId, planId, index);
}

PlayPlan scheduleManage::getNowUsePlan(int taskId, int planId, int& index)
{
    return d->state.inEffect.plan(taskId, planId, index);
}

void scheduleManage::addPlan(int taskId, const PlayPlan& plan)
{
    d->state.tasks.putPlan(taskId, plan);
    d->service.noteWorkingSet();
}

void scheduleManage::setInsertPlanTask(int taskId, int planId, const PlayPlan& plan, bool immediate)
{
    d->service.changeEffectOrTell([&](ScheduleInEffect& inEffect) {
        return inEffect.insert(taskId, planId, plan, !immediate);
    });
}

void scheduleManage::setInsertPlanTaskDelayExcute(int taskId, int planId, const PlayPlan& plan)
{
    setInsertPlanTask(taskId, planId, plan, false);
}

void scheduleManage::passOriginalPlanProgInfo(const std::vector<struProgInfo>& programs)
{
    d->service.changeEffectOrTell(
        [&](ScheduleInEffect& inEffect) { return inEffect.setOriginal(programs); });
}

bool scheduleManage::getScheduleState() const
{
    return !d->state.inEffect.takesInsertion();
}

std::map<int, ProgramIten> scheduleManage::getPrograms()
{
    return d->state.catalogue.programs();
}

ProgramIten scheduleManage::getProgramItemByIndex(int progIndex)
{
    return d->state.catalogue.program(progIndex);
}

std::string scheduleManage::getProgramNameByProgIndex(int progIndex)
{
    return d->state.catalogue.name(progIndex);
}

double scheduleManage::getDurationByIndex(int progIndex)
{
    return d->state.catalogue.duration(progIndex);
}

bool scheduleManage::isNoDurationType(int progIndex)
{
    return d->state.catalogue.hasNoDuration(progIndex);
}

DataCompareType scheduleManage::comparisionDate(const std::string& date) const
{
    // A period whose end does not parse has no day left to play on: it counts as over.
    const QDate day = QDate::fromString(QString::fromStdString(date), kDateFormat);
    const QDate today = Clock::current().today();
    if (!day.isValid() || day < today) {
        return DateBeforeToday;
    }
    return day == today ? DateIsToday : DateAfterToday;
}

bool scheduleManage::comparisonTime(const std::string& time) const
{
    // A time that does not parse is not to come any more today.
    const QTime moment = QTime::fromString(QString::fromStdString(time), kTimeFormat);
    return !moment.isValid() || moment < Clock::current().timeOfDay();
}

void scheduleManage::setqstrSelectedProgram(const std::string& text)
{
    d->state.selectedProgram = text;
}

std::string scheduleManage::getqstrSelectedProgram() const
{
    return d->state.selectedProgram;
}

} // namespace trel::mediadispatch
