#pragma once

#include "trelprogramschedule/draft/Draft.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

namespace trel::mediadispatch {

class DraftLock;

/// A draft that nobody works on: of a program that was killed, or that was told to keep it.
struct LeftDraft
{
    QString path;
    Draft draft;
    Fault fault;                 ///< Why the file cannot be read at all.
    bool isOfOtherStore = false; ///< What was edited is not the store that is open now.
    bool isOfOtherSave = false;  ///< Something was saved since.
    /// Keeps it from others as long as there is a copy of this.
    std::shared_ptr<const DraftLock> lock;
};

/// What is asked of a store when its drafts are looked for.
struct DraftedStore
{
    QString path;                                   ///< That the names of its drafts begin with.
    qint64 saved = 0;                               ///< The save that was read.
    const std::map<int, PlayTask>* tasks = nullptr; ///< Of that save.
    QByteArray identity;                            ///< Which store it is.
};

/// The drafts of a desk on a store, that of the first name first. Tasks that are saved as a draft
/// has them are left out of it; a draft with nothing left is removed.
TRELPROGRAMSCHEDULE_EXPORT std::vector<LeftDraft> leftDrafts(const DraftedStore& store,
                                                             const QString& desk);

/// Removes its file. False where it stays; it is offered again then.
TRELPROGRAMSCHEDULE_EXPORT bool removeLeftDraft(const LeftDraft& left);

} // namespace trel::mediadispatch
