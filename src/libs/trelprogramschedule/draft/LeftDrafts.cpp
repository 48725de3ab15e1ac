#include "LeftDrafts.h"

#include "DraftLock.h"
#include "DraftPlace.h"
#include "DraftRecords.h"
#include "TaskSets.h"

#include <QFile>

#include <cerrno>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// Beyond what any schedule takes.
constexpr qint64 kLargestDraft = 512 * 1024 * 1024;

/// A task without its marks of collision, which are worked out afresh wherever it is shown, is
/// saved as the draft has it.
bool isSaved(const TaskMap& saved, int taskId, const std::optional<PlayTask>& task)
{
    TaskMap one;
    if (task) {
        one.emplace(taskId, *task);
    }
    return !isOtherTask(saved, one, taskId);
}

void leaveOutWhatIsSaved(DraftTasks& tasks, const TaskMap& saved)
{
    for (auto task = tasks.begin(); task != tasks.end();) {
        task = isSaved(saved, task->first, task->second) ? tasks.erase(task) : std::next(task);
    }
}

/// Nobody misses it.
bool isNothing(const Draft& draft)
{
    const bool isTold = draft.state == DraftState::Damaged || draft.state == DraftState::TooNew ||
                        draft.state == DraftState::Foreign;
    return !isTold && draft.tasks.empty() && draft.canceled.empty();
}

LeftDraft lookAt(const DraftedStore& store, const QString& path,
                 std::shared_ptr<const DraftLock> lock)
{
    LeftDraft left;
    left.path = path;
    QFile file;
    if (!file.open(lock->handle(), QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        left.fault = faultOf(FaultCode::System, errno);
        return left;
    }
    const QByteArray bytes = file.read(kLargestDraft);
    if (file.error() != QFileDevice::NoError) {
        left.fault = faultOf(FaultCode::System, EIO);
        return left;
    }
    left.draft = readDraft(bytes);
    left.lock = std::move(lock);
    const bool isRead = !left.draft.store.isEmpty();
    left.isOfOtherStore = isRead && left.draft.store != store.identity;
    left.isOfOtherSave = isRead && !left.isOfOtherStore && left.draft.saved != store.saved;
    if (!left.isOfOtherStore) {
        leaveOutWhatIsSaved(left.draft.tasks, *store.tasks);
        leaveOutWhatIsSaved(left.draft.canceled, *store.tasks);
    }
    return left;
}

} // namespace

std::vector<LeftDraft> leftDrafts(const DraftedStore& store, const QString& desk)
{
    std::vector<LeftDraft> drafts;
    const QStringList files = DraftPlace(store.path, desk).files();
    for (const QString& path : files) {
        std::shared_ptr<const DraftLock> lock = DraftLock::of(path, DraftLock::Missing::IsRefused);
        if (!lock) {
            if (errno != EWOULDBLOCK && errno != ENOENT) {
                drafts.push_back({path, {}, faultOf(FaultCode::System, errno), false, false, {}});
            }
            continue;
        }
        LeftDraft left = lookAt(store, path, std::move(lock));
        if (left.lock && isNothing(left.draft)) {
            left.lock->remove();
            continue;
        }
        drafts.push_back(std::move(left));
    }
    return drafts;
}

bool removeLeftDraft(const LeftDraft& left)
{
    return left.lock ? left.lock->remove() : QFile::remove(left.path);
}

} // namespace trel::mediadispatch
