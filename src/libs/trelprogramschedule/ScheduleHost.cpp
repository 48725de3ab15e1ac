#include "ScheduleHost.h"

#include "ScheduleService.h"
#include "catalogue/ProgramImporter.h"

#include <functional>

namespace trel::mediadispatch {

namespace {

ScheduleService& service()
{
    return ScheduleService::instance();
}

} // namespace

ScheduleHost::ScheduleHost()
{
    qRegisterMetaType<StoreResult>();
    // Made first, so that it goes last.
    const ScheduleService& shown = service();
    connect(&shown, &ScheduleService::saveFailed, this, &ScheduleHost::saveFailed);
    connect(&shown, &ScheduleService::storedSetChanged, this, &ScheduleHost::storedSetChanged);
    connect(&shown, &ScheduleService::workingTasksChanged, this,
            &ScheduleHost::workingTasksChanged);
    connect(&shown, &ScheduleService::workingSetChanged, this, &ScheduleHost::workingSetChanged);
    connect(&shown, &ScheduleService::catalogueChanged, this, &ScheduleHost::catalogueChanged);
    connect(&shown, &ScheduleService::effectChanged, this, &ScheduleHost::effectChanged);
    connect(&shown, &ScheduleService::effectRefused, this, &ScheduleHost::effectRefused);
    connect(&shown, &ScheduleService::savedElsewhere, this, &ScheduleHost::savedElsewhere);
    connect(&shown, &ScheduleService::changedElsewhere, this, &ScheduleHost::changedElsewhere);
}

ScheduleHost::~ScheduleHost() = default;

ScheduleHost& ScheduleHost::instance()
{
    static ScheduleHost host;
    return host;
}

ScreenDispatch& ScheduleHost::dispatch()
{
    return service().state().inEffect.dispatch();
}

StoreResult ScheduleHost::open(const QString& path, OpenMode mode)
{
    service().noteWorkingSet();
    return service().open(path, mode);
}

StoreResult ScheduleHost::openCatalogue(const QString& path, OpenMode mode)
{
    service().noteWorkingSet();
    return service().open(path, mode, StorePart::Catalogue);
}

void ScheduleHost::close()
{
    service().noteWorkingSet();
    service().close();
}

bool ScheduleHost::isOpen() const
{
    return !path().isEmpty();
}

QString ScheduleHost::path() const
{
    return service().database().path();
}

bool ScheduleHost::hasUnsavedChanges() const
{
    return service().state().tasks.isEdited();
}

StoreResult ScheduleHost::trySave()
{
    return service().save();
}

StoreResult ScheduleHost::replaceSchedule(const std::map<int, PlayTask>& tasks)
{
    service().noteWorkingSet();
    return service().replace(tasks);
}

StoreResult ScheduleHost::reload()
{
    return service().reload();
}

bool ScheduleHost::isBeingWritten() const
{
    return service().database().isBeingWritten();
}

void ScheduleHost::watchFiles(bool isOn)
{
    service().watchFiles(isOn);
}

ImportResult ScheduleHost::addPrograms(const std::vector<MediaSource>& sources)
{
    return service().addPrograms(sources);
}

StoreResult ScheduleHost::removeProgram(int progIndex)
{
    return removePrograms({progIndex});
}

StoreResult ScheduleHost::removePrograms(const std::vector<int>& progIndexes)
{
    return service().removePrograms(progIndexes);
}

int ScheduleHost::plansWith(const std::vector<int>& progIndexes) const
{
    int count = 0;
    return service().database().countPlansWith(progIndexes, count) ? count : 0;
}

std::optional<EffectStart> ScheduleHost::started() const
{
    return service().state().inEffect.started();
}

StoreResult ScheduleHost::startSchedule()
{
    return service().start();
}

StoreResult ScheduleHost::stopSchedule()
{
    return service().changeEffect(std::mem_fn(&ScheduleInEffect::stop));
}

StoreResult ScheduleHost::insertPlan(int taskId, int planId, const PlayPlan& plan, bool isDelayed)
{
    return service().changeEffect([&](ScheduleInEffect& inEffect) {
        return inEffect.insert(taskId, planId, plan, isDelayed);
    });
}

StoreResult ScheduleHost::cancelInsertion()
{
    return service().changeEffect(std::mem_fn(&ScheduleInEffect::cancelInsertion));
}

StoreResult ScheduleHost::skipPlay()
{
    return service().changeEffect(std::mem_fn(&ScheduleInEffect::skipPlay));
}

StoreResult ScheduleHost::tasksNotInEffect(std::set<int>& taskIds) const
{
    return service().tasksNotInEffect(taskIds);
}

void ScheduleHost::followStore(bool isOn)
{
    service().followStore(isOn);
}

void ScheduleHost::setPatience(std::chrono::milliseconds patience)
{
    service().setPatience(patience);
}

void ScheduleHost::rehearse()
{
    service().rehearse();
}

void ScheduleHost::restoreTask(const PlayTask& task)
{
    service().restoreTask(task);
}

StoreResult ScheduleHost::versions(std::vector<ScheduleVersion>& versions) const
{
    return service().readVersions(versions);
}

StoreResult ScheduleHost::versionTasks(qint64 number, std::map<int, PlayTask>& tasks) const
{
    return service().readVersion(number, tasks);
}

StoreResult ScheduleHost::nameVersion(qint64 number, const QString& name, const QString& note)
{
    return service().nameVersion(number, name, note);
}

StoreResult ScheduleHost::restoreVersion(qint64 number)
{
    service().noteWorkingSet();
    return service().restoreVersion(number);
}

StoreResult ScheduleHost::readNewestSave(ScheduleVersion& version, std::map<int, PlayTask>& tasks)
{
    return service().readNewestSave(version, tasks);
}

StoreResult ScheduleHost::mergeWith(qint64 number, const std::map<int, PlayTask>& merged)
{
    return service().mergeWith(number, merged);
}

const std::map<int, PlayTask>& ScheduleHost::workingSet() const
{
    return service().state().tasks.working();
}

std::shared_ptr<const std::map<int, ProgramIten>> ScheduleHost::catalogue() const
{
    return service().state().catalogue.shared();
}

} // namespace trel::mediadispatch
