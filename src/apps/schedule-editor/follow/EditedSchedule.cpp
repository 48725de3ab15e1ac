#include "follow/EditedSchedule.h"

#include "trelprogramschedule/ScheduleHost.h"

#include <QMetaMethod>

using namespace trel::mediadispatch;

namespace trel::desktop::follow {

namespace {

std::size_t sizeOf(const SharedTask& task)
{
    return task ? 1 + task->plans.size() : 0;
}

} // namespace

EditedSchedule::EditedSchedule(QObject* parent)
    : QObject(parent)
{
    const ScheduleHost& host = ScheduleHost::instance();
    connect(&host, &ScheduleHost::workingTasksChanged, this, &EditedSchedule::take);
    connect(&host, &ScheduleHost::catalogueChanged, this, &EditedSchedule::takeCatalogue);
}

EditedSchedule::~EditedSchedule() = default;

ScheduleEdits EditedSchedule::everything()
{
    if (!m_isKnown) {
        m_isKnown = true;
        m_size = 0;
        for (const auto& [id, task] : ScheduleHost::instance().workingSet()) {
            const auto added =
                m_tasks.emplace_hint(m_tasks.end(), id, std::make_shared<const PlayTask>(task));
            m_size += sizeOf(added->second);
        }
    }
    m_catalogue = ScheduleHost::instance().catalogue();
    return {true, m_tasks, m_catalogue, m_size};
}

bool EditedSchedule::isFollowed() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&EditedSchedule::edited));
}

void EditedSchedule::take(const std::set<int>& taskIds)
{
    if (!isFollowed()) {
        m_isKnown = false;
        m_tasks.clear();
        return;
    }
    ScheduleEdits edits;
    for (const int id : taskIds) {
        put(edits, id);
    }
    // A store that is opened brings another catalogue along.
    if (addCatalogue(edits) || !edits.tasks.empty()) {
        edits.size = m_size;
        emit edited(edits);
    }
}

void EditedSchedule::takeCatalogue()
{
    ScheduleEdits edits;
    if (isFollowed() && addCatalogue(edits)) {
        edits.size = m_size;
        emit edited(edits);
    }
}

void EditedSchedule::put(ScheduleEdits& edits, int taskId)
{
    const auto& workingSet = ScheduleHost::instance().workingSet();
    const auto task = workingSet.find(taskId);
    SharedTask& known = m_tasks[taskId];
    // Cards file a task time and again, mostly as it was.
    const bool isSame =
        task == workingSet.end() ? !known : known != nullptr && *known == task->second;
    if (!isSame) {
        m_size -= sizeOf(known);
        known = task == workingSet.end() ? nullptr : std::make_shared<const PlayTask>(task->second);
        m_size += sizeOf(known);
        edits.tasks.emplace(taskId, known);
    }
    if (!known) {
        m_tasks.erase(taskId);
    }
}

bool EditedSchedule::addCatalogue(ScheduleEdits& edits)
{
    const SharedCatalogue catalogue = ScheduleHost::instance().catalogue();
    if (catalogue == m_catalogue) {
        return false;
    }
    m_catalogue = catalogue;
    edits.catalogue = catalogue;
    return true;
}

} // namespace trel::desktop::follow
