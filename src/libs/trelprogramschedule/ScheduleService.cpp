#include "ScheduleService.h"

#include "PlanEnds.h"
#include "ScheduleImport.h"
#include "json/ProgramMatch.h"

#include <cstdlib>
#include <utility>

namespace trel::mediadispatch {

namespace {

void closeAtEnd()
{
    ScheduleService::instance().watchFiles(false);
    ScheduleService::instance().followStore(false);
    ScheduleService::instance().close();
}

/// The store is closed before the driver of the database goes: with the application object, or,
/// where a host leaves with exit() and that object stays, with the process.
void closeWithApplication()
{
    qRemovePostRoutine(closeAtEnd);
    qAddPostRoutine(closeAtEnd);
    static const int registered = std::atexit(closeAtEnd);
    Q_UNUSED(registered)
}

TaskMap filedByTheirIds(const TaskMap& tasks)
{
    TaskMap filed;
    for (const auto& [key, task] : tasks) {
        filed.insert_or_assign(task.id, task);
    }
    return filed;
}

} // namespace

ScheduleService& ScheduleService::instance()
{
    static ScheduleService service;
    return service;
}

StoreResult ScheduleService::open(const QString& path, StoreOpenMode mode, StorePart part)
{
    close();
    StoreResult result = m_database.open(path, mode, part);
    if (result) {
        closeWithApplication();
        result = read(part);
    }
    if (result && part != StorePart::Catalogue) {
        result = followEffect();
    }
    if (!result) {
        close();
        return result;
    }
    m_state.tasks.resetWorking();
    m_areEndsUntold = false;
    m_toldSave = m_revision.schedule;
    renewWatch();
    renewFollower();
    return result;
}

void ScheduleService::close()
{
    m_database.close();
    m_state.tasks.clear();
    m_state.catalogue.clear();
    m_state.selectedProgram.clear();
    m_revision = StoreRevision();
    m_isMarkingDue = false;
    m_areEndsUntold = false;
    m_compared.reset();
    m_state.inEffect.leave();
    renewWatch();
    renewFollower();
}

StoreResult ScheduleService::start()
{
    closeWithApplication();
    return changeEffect(
        [this](ScheduleInEffect& inEffect) { return inEffect.start(m_state.tasks.stored()); });
}

void ScheduleService::startOrTell()
{
    const StoreResult result = start();
    if (!result) {
        emit effectRefused(result);
    }
}

StoreResult ScheduleService::changeEffect(const EffectChange& change)
{
    const int before = m_state.inEffect.changes();
    StoreResult result = change(m_state.inEffect);
    if (m_state.inEffect.changes() != before) {
        emit effectChanged();
    }
    return result;
}

void ScheduleService::changeEffectOrTell(const EffectChange& change)
{
    const StoreResult result = changeEffect(change);
    if (!result) {
        emit effectRefused(result);
    }
}

void ScheduleService::rehearse()
{
    closeWithApplication();
    m_state.inEffect.rehearse(m_state.tasks.stored());
}

StoreResult ScheduleService::tasksNotInEffect(std::set<int>& taskIds)
{
    taskIds.clear();
    const auto& started = m_state.inEffect.started();
    if (!started) {
        return {};
    }
    TaskMap inEffect;
    TaskMap saved;
    std::optional<EffectComparison> comparison;
    if (m_database.isOpen()) {
        StoreRevision now;
        StoreResult result = m_database.readRevision(now);
        if (!result || now.schedule == started->saved) {
            return result;
        }
        if (m_compared && m_compared->saved == now.schedule &&
            m_compared->inEffect == started->saved) {
            taskIds = m_compared->taskIds;
            return result;
        }
        StoreContents contents;
        StoredEffect effect;
        result = m_database.read(StorePart::Schedule, contents);
        if (result) {
            result = m_database.readEffect(effect);
        }
        if (!result) {
            return result;
        }
        comparison.emplace();
        comparison->saved = contents.revision.schedule;
        comparison->inEffect = effect.start ? effect.start->saved : 0;
        saved = std::move(contents.tasks);
        inEffect = std::move(effect.tasks);
    } else {
        saved = m_state.tasks.stored();
        inEffect = m_state.inEffect.dispatch().tasks();
    }
    for (TaskMap* tasks : {&saved, &inEffect}) {
        for (auto& [id, task] : *tasks) {
            updatePlanEnds(task, m_state.catalogue);
        }
    }
    taskIds = otherTasks(saved, inEffect);
    if (comparison) {
        comparison->taskIds = taskIds;
        m_compared = std::move(comparison);
    }
    return {};
}

StoreResult ScheduleService::followEffect()
{
    return changeEffect([](ScheduleInEffect& inEffect) { return inEffect.follow(); });
}

void ScheduleService::lookAtStore()
{
    if (!m_database.isInPlace()) {
        // The numbers of another file count other changes.
        lookAgain();
        emit changedElsewhere();
        return;
    }
    StoreRevision now;
    if (!m_database.readRevision(now)) {
        // What cannot be read now is read a second later.
        lookAgain();
        return;
    }
    if (!changeEffect([&now](ScheduleInEffect& inEffect) { return inEffect.followTo(now); })) {
        lookAgain();
    }
    if (std::exchange(m_toldSave, now.schedule) != now.schedule) {
        emit savedElsewhere();
    }
    if (now.catalogue != m_revision.catalogue) {
        lookAgain();
        emit changedElsewhere();
    }
}

void ScheduleService::lookAgain()
{
    // A receiver may have opened another store, or none.
    if (m_follower) {
        m_follower->lookAgain();
    }
}

void ScheduleService::followStore(bool isOn)
{
    m_isFollowing = isOn;
    renewFollower();
}

void ScheduleService::renewFollower()
{
    m_follower.reset();
    if (m_isFollowing && m_database.isOpen()) {
        closeWithApplication();
        m_follower = std::make_unique<StoreFollower>(m_database.path());
        connect(m_follower.get(), &StoreFollower::due, this, &ScheduleService::lookAtStore);
    }
}

StoreResult ScheduleService::read(StorePart part)
{
    StoreContents contents;
    StoreResult result = m_database.read(part, contents);
    if (result && part != StorePart::Schedule) {
        takeCatalogue(contents);
    }
    if (result && part != StorePart::Catalogue) {
        m_state.tasks.setStored(std::move(contents.tasks));
        m_revision.schedule = contents.revision.schedule;
        m_isMarkingDue = true;
        markLostEntries();
    }
    // Where only the catalogue is read, ends move if it is another one, and the cards are told.
    if (result && part != StorePart::Catalogue) {
        updateEnds();
    }
    return result;
}

void ScheduleService::takeCatalogue(StoreContents& contents)
{
    m_state.catalogue.assign(std::move(contents.programs), std::move(contents.removedNames));
    checkFiles();
    m_revision.catalogue = contents.revision.catalogue;
    m_isMarkingDue = true;
}

bool ScheduleService::checkFiles()
{
    return !leaveLookToWatch() && m_state.catalogue.checkFiles();
}

bool ScheduleService::checkFile(int progIndex)
{
    return !leaveLookToWatch() && m_state.catalogue.checkFile(progIndex);
}

bool ScheduleService::leaveLookToWatch()
{
    if (m_fileWatch) {
        m_fileWatch->look();
    }
    return m_fileWatch != nullptr;
}

void ScheduleService::announce(const CatalogueChange& change)
{
    if (change.any) {
        updateEnds();
        renewWatch();
        tellEverybody(change);
    }
}

void ScheduleService::updateEnds()
{
    const ProgramCatalogue& catalogue = m_state.catalogue;
    const bool isAnother = m_state.tasks.updateTasks(
        [&catalogue](PlayTask& task) { return updatePlanEnds(task, catalogue); });
    if (isAnother) {
        m_areEndsUntold = true;
        noteWorkingSet();
    }
}

void ScheduleService::tellEverybody(const CatalogueChange& change)
{
    m_state.inEffect.updatePrograms();
    emit programsChanged();
    // A program that is new has no length that changed, but a plan may have waited for it.
    m_areEndsUntold |= change.lengths;
    tellEnds();
    emit catalogueChanged();
}

void ScheduleService::tellEnds()
{
    if (std::exchange(m_areEndsUntold, false)) {
        // A card that works out its ends again works out its collisions with them: a second signal
        // for these would only have everything done twice.
        emit lengthsChanged();
    }
}

StoreResult ScheduleService::readCatalogue()
{
    const ProgramMap before = m_state.catalogue.programs();
    StoreResult result = read(StorePart::Catalogue);
    announce(catalogueChange(before, m_state.catalogue.programs()));
    return result;
}

void ScheduleService::markLostEntries()
{
    if (!m_isMarkingDue) {
        return;
    }
    m_isMarkingDue = false;
    const ProgramCatalogue& catalogue = m_state.catalogue;
    m_state.tasks.markLostEntries(
        [&catalogue](int progIndex) { return catalogue.contains(progIndex); });
}

StoreResult ScheduleService::save()
{
    const TaskEdits edits = m_state.tasks.edits();
    StoreResult result = m_database.writeTasks(m_state.tasks.working(), edits, m_revision.schedule);
    if (result && !edits.isEmpty()) {
        m_state.tasks.commitWorking();
        m_isMarkingDue = true;
        m_toldSave = m_revision.schedule;
        emit storedSetChanged();
    }
    return result;
}

void ScheduleService::saveOrTell()
{
    const StoreResult result = save();
    if (!result) {
        emit saveFailed(result);
    }
}

StoreResult ScheduleService::replace(const TaskMap& tasks, qint64 restored)
{
    TaskMap filed = filedByTheirIds(tasks);
    for (auto& [id, task] : filed) {
        updatePlanEnds(task, m_state.catalogue);
    }
    StoreResult result =
        m_database.writeTasks(filed, m_state.tasks.editsTo(filed), m_revision.schedule, restored);
    if (result) {
        takeWritten(std::move(filed));
        tellReplaced();
    }
    return result;
}

void ScheduleService::takeWritten(TaskMap tasks)
{
    m_state.tasks.setStored(std::move(tasks));
    m_isMarkingDue = true;
    m_toldSave = m_revision.schedule;
    m_state.tasks.resetWorking();
}

void ScheduleService::tellReplaced()
{
    emit storedSetChanged();
    emit tasksReplaced();
    // An editor that still shows the former tasks answers with them.
    m_state.tasks.resetWorking();
}

StoreResult ScheduleService::importSchedule(const ScheduleImport& import)
{
    TaskMap filed = filedByTheirIds(import.tasks);
    const auto tasksOf = [&](const std::vector<int>& indexes, const ProgramMap& programs) {
        std::map<int, int> numbers = import.known;
        for (const auto& [number, place] : import.coming) {
            numbers[number] = indexes.at(place);
        }
        renumberEntries(filed, numbers);
        ProgramCatalogue catalogue = m_state.catalogue;
        for (const auto& [index, program] : programs) {
            catalogue.put(program);
        }
        for (auto& [id, task] : filed) {
            updatePlanEnds(task, catalogue);
        }
        return TasksToWrite{&filed, m_state.tasks.editsTo(filed)};
    };
    StoreRevision revision = m_revision;
    ProgramMap programs;
    StoreResult result = m_database.writeWithPrograms(import.sources, tasksOf, revision, programs);
    if (!result) {
        return result;
    }
    m_revision.schedule = revision.schedule;
    m_revision.catalogue = revision.catalogue;
    const CatalogueChange change = putPrograms(std::move(programs));
    takeWritten(std::move(filed));
    announce(change);
    tellReplaced();
    return result;
}

StoreResult ScheduleService::readVersions(std::vector<ScheduleVersion>& versions)
{
    return m_database.readVersions(versions);
}

StoreResult ScheduleService::readVersion(qint64 number, TaskMap& tasks)
{
    StoreResult result = m_database.readVersion(number, tasks);
    if (result) {
        // As with every reading of tasks: what follows from the catalogue follows from that of now.
        for (auto& [id, task] : tasks) {
            bringUpToDate(task, m_state.catalogue);
        }
    }
    return result;
}

StoreResult ScheduleService::nameVersion(qint64 number, const QString& name, const QString& note)
{
    return m_database.nameVersion(number, name, note);
}

StoreResult ScheduleService::restoreVersion(qint64 number)
{
    TaskMap tasks;
    StoreResult result = readVersion(number, tasks);
    return result ? replace(tasks, number) : result;
}

StoreResult ScheduleService::readNewestSave(ScheduleVersion& version, TaskMap& tasks)
{
    // Without the programs that came with it, its entries would be taken for lost ones.
    StoreResult result = readCatalogue();
    std::vector<ScheduleVersion> versions;
    if (result) {
        result = readVersions(versions);
    }
    if (!result) {
        return result;
    }
    const ScheduleVersion newest = versions.empty() ? ScheduleVersion() : versions.front();
    result = readVersion(versions.empty() ? kNoVersion : newest.number, tasks);
    if (result) {
        version = newest;
    }
    return result;
}

StoreResult ScheduleService::mergeWith(qint64 number, const TaskMap& merged)
{
    TaskMap stored;
    StoreResult result = m_database.readVersion(number, stored);
    if (!result) {
        return result;
    }
    TaskMap working = filedByTheirIds(merged);
    for (auto& [id, task] : working) {
        bringUpToDate(task, m_state.catalogue);
    }
    m_state.tasks.setStored(std::move(stored));
    m_revision.schedule = number;
    m_isMarkingDue = true;
    markLostEntries();
    m_state.tasks.setWorking(working);
    updateEnds();
    noteWorkingSet();
    emit storedSetChanged();
    return result;
}

StoreResult ScheduleService::reload()
{
    const ProgramMap programs = m_state.catalogue.programs();
    const TaskMap tasks = m_state.tasks.stored();
    StoreResult result;
    if (!m_database.path().isEmpty() && !m_database.isInPlace()) {
        result = m_database.reopen();
        m_state.inEffect.expectAnotherStore();
    }
    if (result) {
        result = read(StorePart::Both);
    }
    if (result) {
        result = followEffect();
    }
    if (!result) {
        return result;
    }
    announce(catalogueChange(programs, m_state.catalogue.programs()));
    tellEnds();
    if (m_state.tasks.stored() != tasks) {
        emit storedSetChanged();
        emit tasksReplaced();
    }
    return result;
}

void ScheduleService::refresh()
{
    StoreRevision now;
    const bool isRead = bool(m_database.readRevision(now));
    if (isRead && now.catalogue != m_revision.catalogue) {
        readCatalogue();
    } else {
        CatalogueChange change;
        change.any = checkFiles();
        announce(change);
    }
    if (isRead && now.schedule != m_revision.schedule) {
        read(StorePart::Schedule);
    } else {
        markLostEntries();
    }
    followEffect();
}

void ScheduleService::restoreTask(PlayTask task)
{
    const ProgramCatalogue& catalogue = m_state.catalogue;
    mediadispatch::markLostEntries(
        task, [&catalogue](int progIndex) { return catalogue.contains(progIndex); });
    updatePlanEnds(task, catalogue);
    if (m_state.tasks.putTask(task)) {
        noteWorkingSet();
    }
}

void ScheduleService::watchFiles(bool isOn)
{
    if (!isOn) {
        m_fileWatch.reset();
        return;
    }
    if (m_fileWatch) {
        return;
    }
    closeWithApplication();
    m_fileWatch = std::make_unique<ProgramFileWatch>([this] { return m_state.catalogue.files(); });
    QObject::connect(m_fileWatch.get(), &ProgramFileWatch::found, m_fileWatch.get(),
                     [this](const ProgramFiles& files) {
                         if (m_state.catalogue.takeFiles(files)) {
                             tellEverybody({true, false});
                         }
                     });
    renewWatch();
}

void ScheduleService::renewWatch()
{
    if (m_fileWatch) {
        m_fileWatch->renew();
    }
}

void ScheduleService::noteWorkingSet()
{
    // Without an application there is no receiver, and none of the former one's notices come.
    if (m_noticeDue == QCoreApplication::instance()) {
        return;
    }
    m_noticeDue = QCoreApplication::instance();
    const auto tell = [this] {
        m_noticeDue.clear();
        emit workingTasksChanged(m_state.tasks.takeChanged());
        emit workingSetChanged();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

ImportResult ScheduleService::addPrograms(const std::vector<MediaSource>& sources)
{
    StoreContents contents;
    ImportResult result = m_database.addPrograms(sources, contents);
    if (result.store && !contents.programs.empty()) {
        takePrograms(std::move(contents));
    }
    return result;
}

void ScheduleService::takePrograms(StoreContents contents)
{
    if (!isNextCatalogue(contents.revision)) {
        // What failed here would be read with the next refresh; the import has been done.
        readCatalogue();
        return;
    }
    const CatalogueChange change = putPrograms(std::move(contents.programs));
    m_revision.catalogue = contents.revision.catalogue;
    m_isMarkingDue = true;
    announce(change);
}

CatalogueChange ScheduleService::putPrograms(ProgramMap programs)
{
    CatalogueChange change;
    for (auto& [index, program] : programs) {
        change.add(m_state.catalogue.put(std::move(program)));
        change.add({checkFile(index), false});
    }
    return change;
}

StoreResult ScheduleService::readContents(ProgramContents& contents)
{
    return m_database.readContents(contents);
}

StoreResult ScheduleService::removePrograms(const std::vector<int>& progIndexes)
{
    StoreRevision now;
    StoreResult result = m_database.removePrograms(progIndexes, now);
    if (!result || now.catalogue == m_revision.catalogue) {
        return result;
    }
    if (!isNextCatalogue(now)) {
        readCatalogue();
        return result;
    }
    CatalogueChange change;
    for (const int index : progIndexes) {
        change.add(m_state.catalogue.remove(index));
    }
    m_revision.catalogue = now.catalogue;
    m_isMarkingDue = true;
    announce(change);
    return result;
}

bool ScheduleService::isNextCatalogue(const StoreRevision& revision) const
{
    return revision.catalogue == m_revision.catalogue + 1;
}

} // namespace trel::mediadispatch
