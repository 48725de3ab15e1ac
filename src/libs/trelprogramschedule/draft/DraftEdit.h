#pragma once

#include "DraftRecords.h"

#include <QString>

#include <memory>
#include <vector>

namespace trel::mediadispatch {

/// A change of a draft. Its records do not change any more, so that threads may share them.
struct DraftEdit
{
    enum class Kind {
        Begin,   ///< Another draft, with the store, the head and nothing in it; the last one stays.
        Head,    ///< The head is another one.
        Task,    ///< A task was put in or changed, or, without one, taken out.
        Return,  ///< A task is again as it is saved.
        Cancel,  ///< Everything up to here was canceled.
        Restore, ///< The task is among those that were canceled.
        Clear,   ///< Nothing is unsaved and nothing was canceled.
        End,     ///< The draft stays as it is, and belongs to nobody.
    };

    Kind kind = Kind::Clear;
    int taskId = 0;
    std::shared_ptr<const PlayTask> task = {};
    QString store = {};
    DraftHead head = {};
};

using DraftEdits = std::vector<DraftEdit>;

} // namespace trel::mediadispatch
