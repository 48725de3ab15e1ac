#pragma once

#include "DraftEdit.h"
#include "DraftLock.h"
#include "DraftPlace.h"
#include "trelprogramschedule/faults/Fault.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <optional>

namespace trel::mediadispatch {

/// The file of a draft as the thread that writes it sees it. Every change of it is on the disk when
/// a call returns; where one fails, the file is as it was or lacks the new edits, and the next call
/// writes all of them.
class DraftFileWriter
{
public:
    /// Takes the edits over, without writing them.
    void take(const DraftEdits& edits, qint64 at);
    /// What has been taken and is not in the file.
    bool isDue() const { return m_isDue; }
    /// Whether these edits belong to another draft than those before them.
    static bool isOfNext(const DraftEdit& edit);
    /// Writes it.
    Fault write();

private:
    using Records = std::map<int, QByteArray>;

    void takeOne(const DraftEdit& edit, qint64 at);
    void put(int taskId, const QByteArray& record);
    void leave();
    QByteArray whole() const;
    qint64 wholeSize() const { return m_unsavedSize + m_canceledSize; }
    Fault remove();
    Fault claim();
    Fault fill();
    Fault replace();
    Fault append();

    std::optional<DraftPlace> m_place; ///< None while there is nothing to write for.
    DraftHead m_head;
    Records m_unsaved;
    Records m_canceled;
    qint64 m_unsavedSize = 0;
    qint64 m_canceledSize = 0;
    qint64 m_at = 0;        ///< The last edit.
    QByteArray m_added;     ///< What the file lacks at its end.
    bool m_isOther = false; ///< The file is to be written as a whole.
    bool m_isDue = false;
    std::unique_ptr<DraftLock> m_file; ///< None while there is none.
    qint64 m_size = 0;                 ///< Of the file.
};

} // namespace trel::mediadispatch
