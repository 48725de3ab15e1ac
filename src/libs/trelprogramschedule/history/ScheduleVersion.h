#pragma once

#include "trelprogramschedule/dispatch/ScreenState.h"
#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace trel::mediadispatch {

/// The most characters of a version's name.
constexpr int kLongestVersionName = 80;
/// The most characters of a version's note.
constexpr int kLongestVersionNote = 1000;
/// How many of its tasks a version names at most.
constexpr int kMostVersionTasks = 8;
/// The number of no version.
constexpr qint64 kNoVersion = -1;

/// What a save made of the state before it, by tasks. Marks of collision alone change no task.
struct VersionChange
{
    int added = 0;   ///< Tasks that are new.
    int changed = 0; ///< Tasks that are others.
    int removed = 0; ///< Tasks that have gone.
    /// The ids of the first of them, of any kind, ascending; kMostVersionTasks at most.
    std::vector<int> taskIds;
};

/// A state of the saved schedule that the store still has.
struct ScheduleVersion
{
    qint64 number = 0;    ///< The save that made it, counted from 1; 0 is the empty one before all.
    Instant saved = 0;    ///< When; 0 where that is not known, before versions were kept.
    QString by;           ///< The program and the machine that saved it, as "schedulectl@studio".
    VersionChange change; ///< From the state before, which may have gone since.
    qint64 restored = kNoVersion; ///< The version that was brought back by it.
    QString name;                 ///< Plain text of one line; empty where it has none.
    QString note;                 ///< Plain text of one line; may be empty.
    qint64 bytes = 0;             ///< What the store takes for it; 0 for what is saved now.
};

/// What is wrong with a name and a note; none for nothing. Both are plain text: characters that
/// would not show, such as line feeds and marks of the direction of writing, are refused.
TRELPROGRAMSCHEDULE_EXPORT Fault faultOfVersionTexts(const QString& name, const QString& note);

} // namespace trel::mediadispatch
