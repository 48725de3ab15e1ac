#pragma once

#include "Draft.h"
#include "trelprogramschedule_export.h"

namespace trel::mediadispatch {

// A draft is a row of records, each in a frame with its length and a checksum, so that one that was
// cut off or damaged is told, and those behind it are found again. The first is the head; each of
// the others is the present state of one task, and the last one of a task counts.

/// What a draft belongs to.
struct DraftHead
{
    QByteArray store;
    qint64 saved = 0;
    QString desk;

    bool operator==(const DraftHead& other) const
    {
        return store == other.store && saved == other.saved && desk == other.desk;
    }
    bool operator!=(const DraftHead& other) const { return !(*this == other); }
};

// Each takes the moment at which it came about, in milliseconds since 1970, UTC.

QByteArray draftHeadRecord(const DraftHead& head, qint64 at);
/// The task was put in or changed.
QByteArray draftTaskRecord(const PlayTask& task, qint64 at);
/// The task was taken out.
QByteArray draftRemovalRecord(int taskId, qint64 at);
/// The task is again as it is saved.
QByteArray draftReturnRecord(int taskId, qint64 at);
/// Everything up to here was canceled.
QByteArray draftCancelRecord(qint64 at);

/// Reads whatever bytes there are, in a time that grows with their number alone.
TRELPROGRAMSCHEDULE_EXPORT Draft readDraft(const QByteArray& bytes);

} // namespace trel::mediadispatch
