#pragma once

#include "trelprogramschedule/faults/Fault.h"
#include "trelprogramschedule_export.h"

#include <QString>
#include <QtGlobal>

namespace trel::mediadispatch {

/// Why a bundle could not be read or written.
enum class BundleProblem {
    None,
    Unreadable,    ///< The system does not let it be read; see cause.
    NotABundle,    ///< It is something else, or a form of archive that is not read; see words.
    Damaged,       ///< The archive does not hold together; see words.
    Cut,           ///< It ends before the entry does, or before it begins.
    Unexpected,    ///< Another entry stands there; words is its name, or empty for no name.
    MoreBehind,    ///< An entry stands behind the last one; words is its name.
    OtherSize,     ///< The entry has another size than it has to have.
    OtherContent,  ///< The entry does not have the hash that it has to have.
    TooLarge,      ///< The entry is larger than any that is read.
    BadText,       ///< What the entry says has a fault; see cause, and place in words.
    CannotWrite,   ///< A file, words, or the bundle itself cannot be written; see cause.
    NoName,        ///< All names for a file, words, are those of others.
    SourceGone,    ///< A file, words, that was to come into the bundle cannot be read.
    SourceChanged, ///< The same has changed while it was read.
};

/// A reason, and where in the bundle it is.
struct BundleFault
{
    BundleProblem problem = BundleProblem::None;
    QString entry;        ///< Of the archive; may be empty.
    qint64 position = -1; ///< The byte of the archive, from 0; negative when it is not known.
    QString words;        ///< See the problem.
    Fault cause;          ///< See the problem.

    explicit operator bool() const { return problem != BundleProblem::None; }
};

/// The reason in English, with its place and without a full stop, as a part of a sentence: "it is
/// cut at byte 1024, in media/…". Names in it are as they were found. Empty when there is none.
TRELPROGRAMSCHEDULE_EXPORT QString englishClause(const BundleFault& fault);

} // namespace trel::mediadispatch
