#pragma once

#include "service/ScheduleRecords.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>

namespace trel::mediadispatch {

/// What turns a saved schedule into an edited one, by the ids of the tasks: a task that was put in
/// or changed, as it is now, or none for one that was taken out.
using DraftTasks = std::map<int, std::optional<PlayTask>>;

/// What the bytes of a draft are.
enum class DraftState {
    Empty,       ///< Not a byte.
    Whole,       ///< Every edit that was written down.
    HalfWritten, ///< The end is missing; everything before it is there.
    Damaged,     ///< Something else cannot be read. What can be is there; edits of it may be lost.
    TooNew,      ///< Of a later version of this program; nothing of it is read.
    Foreign,     ///< No draft.
};

/// Edits that were not saved, as they stand in a file beside the store.
struct Draft
{
    DraftState state = DraftState::Empty;
    /// Which store was edited: storeIdentity(), or the id of one on a server. Empty where that is
    /// not known.
    QByteArray store;
    qint64 saved = 0;    ///< The save that was edited, as the store counts them.
    QString desk;        ///< Where: see DraftJournal.
    qint64 edited = 0;   ///< When last, in milliseconds since 1970, UTC.
    DraftTasks tasks;    ///< What was being edited.
    DraftTasks canceled; ///< What was edited before that and canceled.
};

} // namespace trel::mediadispatch
