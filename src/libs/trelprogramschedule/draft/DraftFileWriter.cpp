#include "DraftFileWriter.h"

#include "json/FileReplacement.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// More drafts of one desk than anybody leaves undecided.
constexpr int kMostDrafts = 99;
/// A file is written anew when it has this many times the size of what it says, and more than
/// this.
constexpr qint64 kMostWaste = 4;
constexpr qint64 kSmallFile = 64 * 1024;

/// False, with the reason in errno.
bool writeAt(int handle, const QByteArray& bytes, qint64 place)
{
    const char* from = bytes.constData();
    for (auto left = static_cast<std::size_t>(bytes.size()); left > 0;) {
        const ssize_t written = ::pwrite(handle, from, left, place);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return false;
        }
        from += written;
        place += written;
        left -= static_cast<std::size_t>(written);
    }
    return true;
}

qint64 sizeOf(int handle)
{
    struct stat status = {};
    return ::fstat(handle, &status) == 0 ? status.st_size : -1;
}

Fault systemFault()
{
    return faultOf(FaultCode::System, errno);
}

void setRecord(std::map<int, QByteArray>& records, qint64& size, int taskId,
               const QByteArray& record)
{
    QByteArray& known = records[taskId];
    size += record.size() - known.size();
    known = record;
    if (record.isEmpty()) {
        records.erase(taskId);
    }
}

} // namespace

bool DraftFileWriter::isOfNext(const DraftEdit& edit)
{
    return edit.kind == DraftEdit::Kind::Begin || edit.kind == DraftEdit::Kind::End;
}

void DraftFileWriter::take(const DraftEdits& edits, qint64 at)
{
    for (const DraftEdit& edit : edits) {
        takeOne(edit, at);
    }
}

void DraftFileWriter::takeOne(const DraftEdit& edit, qint64 at)
{
    switch (edit.kind) {
    case DraftEdit::Kind::Begin:
        leave();
        m_place.emplace(edit.store, edit.head.desk);
        m_head = edit.head;
        return;
    case DraftEdit::Kind::End:
        leave();
        return;
    case DraftEdit::Kind::Head:
        m_isOther = m_isOther || m_head != edit.head;
        m_head = edit.head;
        break;
    case DraftEdit::Kind::Task:
        put(edit.taskId,
            edit.task ? draftTaskRecord(*edit.task, at) : draftRemovalRecord(edit.taskId, at));
        break;
    case DraftEdit::Kind::Return:
        if (m_unsaved.count(edit.taskId) == 0) {
            return;
        }
        setRecord(m_unsaved, m_unsavedSize, edit.taskId, {});
        m_added += draftReturnRecord(edit.taskId, at);
        break;
    case DraftEdit::Kind::Cancel:
        m_canceled = std::exchange(m_unsaved, {});
        m_canceledSize = std::exchange(m_unsavedSize, 0);
        m_added += draftCancelRecord(at);
        break;
    case DraftEdit::Kind::Restore:
        setRecord(m_canceled, m_canceledSize, edit.taskId,
                  edit.task ? draftTaskRecord(*edit.task, at)
                            : draftRemovalRecord(edit.taskId, at));
        m_isOther = true;
        break;
    case DraftEdit::Kind::Clear:
        m_unsaved.clear();
        m_canceled.clear();
        m_unsavedSize = 0;
        m_canceledSize = 0;
        m_isOther = true;
        break;
    }
    m_at = at;
    m_isDue = m_place.has_value();
}

void DraftFileWriter::put(int taskId, const QByteArray& record)
{
    setRecord(m_unsaved, m_unsavedSize, taskId, record);
    m_added += record;
}

void DraftFileWriter::leave()
{
    *this = DraftFileWriter();
}

QByteArray DraftFileWriter::whole() const
{
    QByteArray bytes = draftHeadRecord(m_head, m_at);
    for (const auto& [id, record] : m_canceled) {
        bytes += record;
    }
    if (!m_canceled.empty()) {
        bytes += draftCancelRecord(m_at);
    }
    for (const auto& [id, record] : m_unsaved) {
        bytes += record;
    }
    return bytes;
}

Fault DraftFileWriter::write()
{
    if (!m_isDue) {
        return {};
    }
    if (m_file && !m_file->isInPlace()) {
        // Somebody has taken it away: what is still written into it would be lost.
        m_file.reset();
    }
    Fault fault;
    if (m_unsaved.empty() && m_canceled.empty()) {
        fault = remove();
    } else if (!m_file) {
        fault = claim();
    } else if (m_isOther ||
               m_size + m_added.size() > std::max(kSmallFile, kMostWaste * wholeSize())) {
        fault = replace();
    } else {
        fault = append();
    }
    // After a failure it is not known what of the new edits the file has.
    m_isOther = bool(fault);
    m_isDue = bool(fault);
    m_added.clear();
    return fault;
}

Fault DraftFileWriter::remove()
{
    if (m_file && !m_file->remove()) {
        return systemFault();
    }
    m_file.reset();
    return {};
}

Fault DraftFileWriter::claim()
{
    for (int number = 1; number <= kMostDrafts; ++number) {
        std::unique_ptr<DraftLock> file =
            DraftLock::of(m_place->path(number), DraftLock::Missing::IsMade);
        if (!file && errno != EWOULDBLOCK && errno != EINVAL && errno != ELOOP) {
            return systemFault();
        }
        // One that holds something is somebody's who has yet to decide on it.
        if (!file || sizeOf(file->handle()) != 0) {
            continue;
        }
        // It is this draft's from now on, also where it cannot be written yet.
        m_file = std::move(file);
        return fill();
    }
    return faultOf(FaultCode::System, EEXIST);
}

Fault DraftFileWriter::fill()
{
    const QByteArray bytes = whole();
    if (!writeAt(m_file->handle(), bytes, 0) || ::fdatasync(m_file->handle()) != 0) {
        return systemFault();
    }
    syncFolder(m_file->path());
    m_size = bytes.size();
    return {};
}

Fault DraftFileWriter::replace()
{
    const QByteArray bytes = whole();
    std::unique_ptr<DraftLock> file;
    Fault fault = replaceFile(m_file->path(), bytes, [&](int handle) {
        file = DraftLock::ofHandle(m_file->path(), handle);
        return file != nullptr;
    });
    if (!fault) {
        m_file = std::move(file);
        m_size = bytes.size();
    }
    return fault;
}

Fault DraftFileWriter::append()
{
    if (!writeAt(m_file->handle(), m_added, m_size) || ::fdatasync(m_file->handle()) != 0) {
        return systemFault();
    }
    m_size += m_added.size();
    return {};
}

} // namespace trel::mediadispatch
