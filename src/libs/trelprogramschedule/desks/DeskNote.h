#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"

#include <QMetaType>
#include <QString>

#include <tuple>
#include <vector>

namespace trel::mediadispatch {

/// How many tasks a note names at most.
constexpr std::size_t kMostNoteTasks = 100;

/// What a desk tells the others of what it has open for editing.
struct DeskNote
{
    QString desk;             ///< Whose it is, as "anna@studio"; plain text of one line.
    Instant since = 0;        ///< When the first of the changes was made that are not saved.
    Instant changed = 0;      ///< When the last one was.
    std::vector<int> taskIds; ///< The tasks that are changed; kMostNoteTasks at most.
};

/// Whether all fields are the same.
inline bool operator==(const DeskNote& a, const DeskNote& b)
{
    return std::tie(a.desk, a.since, a.changed, a.taskIds) ==
           std::tie(b.desk, b.since, b.changed, b.taskIds);
}

/// Whether a field is another one.
inline bool operator!=(const DeskNote& a, const DeskNote& b)
{
    return !(a == b);
}

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::DeskNote)
