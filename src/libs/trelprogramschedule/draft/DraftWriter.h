#pragma once

#include "DraftEdit.h"
#include "DraftHabits.h"
#include "trelprogramschedule/faults/Fault.h"

#include <functional>
#include <memory>

namespace trel::mediadispatch {

/// Writes drafts in a thread of its own. Each call returns at once, but for flush and the end.
class DraftWriter
{
public:
    /// Called in that thread after every attempt to write: with no fault when all is on the disk.
    using Tell = std::function<void(const Fault& fault)>;

    DraftWriter(DraftHabits habits, Tell tell);
    /// Tries to write what is left first.
    ~DraftWriter();
    Q_DISABLE_COPY(DraftWriter)

    void take(DraftEdits edits);
    /// Waits until everything that was taken has been tried to be written; false where that failed.
    bool flush();

private:
    class Private;

    std::unique_ptr<Private> m_d;
};

} // namespace trel::mediadispatch
