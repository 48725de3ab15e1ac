#include "DraftJournal.h"

#include "DraftPlace.h"
#include "DraftWriter.h"
#include "ScheduleService.h"
#include "trelprogramschedule/ScheduleHost.h"

#include <QDir>
#include <QMetaObject>

#include <utility>

namespace trel::mediadispatch {

namespace {

using Kind = DraftEdit::Kind;

const TaskSets& sets()
{
    return ScheduleService::instance().state().tasks;
}

const ScheduleDatabase& database()
{
    return ScheduleService::instance().database();
}

/// Which store is open, however it is named.
QByteArray identity()
{
    const QString id = database().id();
    return id.isEmpty() ? storeIdentity(database().path()) : id.toLatin1();
}

DraftHead headOf(const QString& desk)
{
    return {identity(), ScheduleService::instance().revision().schedule, desk};
}

std::shared_ptr<const PlayTask> shared(const std::optional<PlayTask>& task)
{
    return task ? std::make_shared<const PlayTask>(*task) : nullptr;
}

/// Null where there is none.
const PlayTask* workingTask(int taskId)
{
    const auto task = sets().working().find(taskId);
    return task == sets().working().end() ? nullptr : &task->second;
}

/// Null stands for no task.
bool isSame(const std::shared_ptr<const PlayTask>& known, const PlayTask* task)
{
    return task == nullptr ? !known : known && *known == *task;
}

} // namespace

DraftJournal::DraftJournal(QString desk, QObject* parent, DraftHabits habits)
    : QObject(parent)
    , m_desk(std::move(desk))
    , m_habits(habits)
{
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::workingTasksChanged, this, &DraftJournal::note);
    connect(&host, &ScheduleHost::storedSetChanged, this, &DraftJournal::noteSave);
}

DraftJournal::~DraftJournal() = default;

bool DraftJournal::isRecording() const
{
    return !m_store.isEmpty() && m_store == ScheduleHost::instance().path();
}

QString DraftJournal::start() const
{
    const QString id = database().id();
    if (id.isEmpty()) {
        return database().path();
    }
    return m_aside.isEmpty() ? QString() : m_aside + QLatin1Char('/') + id;
}

void DraftJournal::begin()
{
    end();
    m_store = start().isEmpty() ? QString() : ScheduleHost::instance().path();
    if (!database().id().isEmpty() && !m_aside.isEmpty()) {
        // Where that is not done it is told with the first edit.
        QDir().mkpath(m_aside);
    }
}

void DraftJournal::end()
{
    m_store.clear();
    m_unsaved.clear();
    m_inPlace.clear();
    setCanceled({});
    if (m_writer) {
        // Writes what is left.
        m_writer.reset();
    }
}

void DraftJournal::drop()
{
    m_unsaved.clear();
    m_inPlace.clear();
    setCanceled({});
    if (m_writer) {
        m_writer->take({{Kind::Clear}});
        m_writer->flush();
    }
}

void DraftJournal::cancel()
{
    if (!isRecording() || !m_inPlace.empty() || !sets().isEdited()) {
        return;
    }
    Edits edits;
    addEverything(edits);
    edits.push_back({Kind::Cancel});
    DraftTasks canceled;
    for (const auto& [id, task] : m_unsaved) {
        canceled.emplace(id, task ? std::optional(*task) : std::nullopt);
    }
    m_inPlace = std::exchange(m_unsaved, {});
    hand(std::move(edits));
    setCanceled(std::move(canceled));
}

void DraftJournal::giveUp(const DraftTasks& tasks)
{
    if (!isRecording()) {
        return;
    }
    m_unsaved.clear();
    m_inPlace.clear();
    for (const int id : otherTasks(sets().stored(), sets().working())) {
        const PlayTask* const task = workingTask(id);
        m_inPlace.emplace(id, task == nullptr ? nullptr : std::make_shared<const PlayTask>(*task));
    }
    DraftTasks canceled = tasks.empty() ? m_canceled : tasks;
    Edits edits = {{Kind::Clear}};
    for (const auto& [id, task] : canceled) {
        edits.push_back({Kind::Restore, id, shared(task)});
    }
    hand(std::move(edits));
    setCanceled(std::move(canceled));
}

DraftTasks DraftJournal::takeCanceled()
{
    DraftTasks tasks = m_canceled;
    Edits edits = {{Kind::Clear}};
    for (const auto& [id, task] : tasks) {
        m_unsaved.insert_or_assign(id, shared(task));
        ++m_edits;
    }
    for (const auto& [id, task] : m_unsaved) {
        edits.push_back({Kind::Task, id, task});
    }
    m_inPlace.clear();
    if (isRecording()) {
        hand(std::move(edits));
    }
    setCanceled({});
    return tasks;
}

void DraftJournal::adoptCanceled(const DraftTasks& tasks)
{
    if (!isRecording() || !m_canceled.empty() || tasks.empty()) {
        return;
    }
    Edits edits;
    for (const auto& [id, task] : tasks) {
        edits.push_back({Kind::Restore, id, shared(task)});
    }
    hand(std::move(edits));
    setCanceled(tasks);
}

std::vector<int> DraftJournal::unsavedTasks() const
{
    std::vector<int> ids;
    for (const auto& [id, task] : m_unsaved) {
        ids.push_back(id);
    }
    return ids;
}

void DraftJournal::setCanceled(DraftTasks tasks)
{
    const bool isOther = !m_canceled.empty() || !tasks.empty();
    m_canceled = std::move(tasks);
    if (isOther) {
        emit canceledChanged();
    }
}

bool DraftJournal::flush()
{
    if (isRecording()) {
        Edits edits;
        addEverything(edits);
        hand(std::move(edits));
    }
    return !m_writer || m_writer->flush();
}

const std::map<int, PlayTask>& DraftJournal::saved() const
{
    return sets().stored();
}

std::vector<LeftDraft> DraftJournal::left() const
{
    const QString path = start();
    if (path.isEmpty()) {
        return {};
    }
    return leftDrafts(
        {path, ScheduleService::instance().revision().schedule, &sets().stored(), identity()},
        m_desk);
}

void DraftJournal::note(const std::set<int>& taskIds)
{
    if (!isRecording()) {
        return;
    }
    Edits edits;
    for (const int id : taskIds) {
        addEdit(edits, id);
    }
    hand(std::move(edits));
}

void DraftJournal::noteSave()
{
    if (!isRecording()) {
        return;
    }
    Edits edits;
    if (sets().isEdited()) {
        // Another stored set was read, and what was edited is edited on that one now.
        addEverything(edits);
    } else {
        m_unsaved.clear();
        m_inPlace.clear();
        setCanceled({});
        edits.push_back({Kind::Clear});
    }
    if (m_writer) {
        DraftEdit head = {Kind::Head};
        head.head = headOf(m_desk);
        edits.push_back(std::move(head));
        hand(std::move(edits));
    }
}

void DraftJournal::addEverything(Edits& edits)
{
    std::set<int> ids = otherTasks(sets().stored(), sets().working());
    for (const auto& [id, task] : m_unsaved) {
        ids.insert(id);
    }
    for (const int id : ids) {
        addEdit(edits, id);
    }
}

void DraftJournal::addEdit(Edits& edits, int taskId)
{
    if (!isOtherTask(sets().stored(), sets().working(), taskId)) {
        m_inPlace.erase(taskId);
        if (m_unsaved.erase(taskId) > 0) {
            edits.push_back({Kind::Return, taskId});
        }
        return;
    }
    const PlayTask* const task = workingTask(taskId);
    const auto known = m_unsaved.find(taskId);
    if ((known != m_unsaved.end() && isSame(known->second, task)) || isInPlace(taskId)) {
        return;
    }
    put(edits, taskId, task == nullptr ? nullptr : std::make_shared<const PlayTask>(*task));
}

bool DraftJournal::isInPlace(int taskId) const
{
    const auto known = m_inPlace.find(taskId);
    return known != m_inPlace.end() && isSame(known->second, workingTask(taskId));
}

void DraftJournal::put(Edits& edits, int taskId, SharedTask task)
{
    edits.push_back({Kind::Task, taskId, task});
    m_unsaved.insert_or_assign(taskId, std::move(task));
    ++m_edits;
}

void DraftJournal::hand(Edits edits)
{
    if (edits.empty()) {
        return;
    }
    if (!m_writer) {
        m_writer = std::make_unique<DraftWriter>(m_habits, [this](const Fault& fault) {
            // The thread ends before this object does.
            QMetaObject::invokeMethod(
                this, [this, fault] { hear(fault); }, Qt::QueuedConnection);
        });
        DraftEdit begin = {Kind::Begin};
        begin.store = start();
        begin.head = headOf(m_desk);
        m_writer->take({std::move(begin)});
    }
    m_writer->take(std::move(edits));
}

void DraftJournal::hear(const Fault& fault)
{
    const bool hadFailed = std::exchange(m_hasFailed, bool(fault));
    if (fault) {
        if (!hadFailed) {
            emit failed(fault);
        }
        return;
    }
    if (hadFailed) {
        emit recovered();
    }
    emit written();
}

} // namespace trel::mediadispatch
