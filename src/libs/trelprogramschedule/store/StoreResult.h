#pragma once

#include "trelprogramschedule/faults/Fault.h"

#include <QMetaType>
#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// What becomes of a path at which there is no store yet.
enum class StoreOpenMode {
    CreateIfMissing,
    MustExist,
    /// There must be a store, which is only read: without a right to write, on read-only media and
    /// beside a program that writes, which is not waited for. No lock is taken but the one that
    /// keeps a log from being overwritten while it is read.
    ReadOnly,
};

/// Why the store refused something.
enum class StoreProblem {
    None,
    NotOpen,       ///< No store is open.
    FolderMissing, ///< The folder of the file does not exist.
    FileMissing,   ///< There is no file, and none may be made.
    NotADatabase,  ///< The file is no SQLite database.
    Foreign,       ///< A database of another program.
    NewerSchema,   ///< Written by a newer version of this program.
    Locked,        ///< Another program holds the file.
    ReadOnly,      ///< The file, or its folder, cannot be written.
    Damaged,       ///< The database fails its check.
    DiskFull,
    MovedOn, ///< The stored set changed since it was read.
    Full,    ///< No index is left to give out.
    Other,
    Altered,  ///< The database holds what no store of this program holds.
    TooLarge, ///< The contents go beyond what a store takes.
    Unclear,  ///< A change was refused by a disk that does not confirm either that it has gone. The
              ///< store is read without it, yet after a power cut it may be there, whole. Of a
              ///< change on a server the answer was lost: it may be there now, whole.
};

/// How many problems there are; they count from 0.
constexpr int kStoreProblems = static_cast<int>(StoreProblem::Unclear) + 1;

/// How a call of the store ended.
struct StoreResult
{
    StoreProblem problem = StoreProblem::None; ///< What went wrong.
    QString path; ///< The file; empty for NotOpen and when all went well.
    Fault cause; ///< What is known besides: with ReadOnly, Damaged, DiskFull, Full, Other, Altered,
                 ///< TooLarge and Unclear.

    /// Whether it was done.
    explicit operator bool() const { return problem == StoreProblem::None; }
};

/// What an import did to the catalogue.
struct ImportResult
{
    StoreResult store;        ///< What became of the transaction.
    std::vector<int> added;   ///< Indexes of programs that are new.
    std::vector<int> updated; ///< Indexes of programs that were known by their path.
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::StoreResult)
