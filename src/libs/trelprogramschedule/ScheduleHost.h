#pragma once

#include "service/ScheduleRecords.h"

#include <QObject>
#include <QString>

#include <map>
#include <memory>
#include <vector>

namespace trel::mediadispatch {

struct MediaSource;

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
    Other
};

/// How a call of the store ended.
struct StoreResult
{
    StoreProblem problem = StoreProblem::None;
    QString message; ///< A sentence for the operator, naming the file; empty when all went well.

    explicit operator bool() const { return problem == StoreProblem::None; }
};

/// What an import did to the catalogue.
struct ImportResult
{
    StoreResult store;
    std::vector<int> added;   ///< Indexes of programs that are new.
    std::vector<int> updated; ///< Indexes of programs that were known by their path.
};

/// The host's side of the schedule service: the same one service that scheduleManage shows to the
/// editor, with what the editor has no business knowing. GUI thread only.
class Q_DECL_EXPORT ScheduleHost : public QObject
{
    Q_OBJECT

public:
    enum class OpenMode {
        CreateIfMissing,
        MustExist,
    };

    /// The one instance, beside scheduleManage::getInstance().
    static ScheduleHost& instance();

    /// Opens the store in a file and reads catalogue and stored set; a store that was open is
    /// closed first. On failure the file is left untouched and no store is open.
    StoreResult open(const QString& path, OpenMode mode = OpenMode::CreateIfMissing);
    void close();
    bool isOpen() const;
    /// Absolute path of the open store; empty when none is.
    QString path() const;

    /// True while the working set differs from the stored set, in more than the marks of collision
    /// that every display of a task works out afresh.
    bool hasUnsavedChanges() const;
    /// As scheduleManage::save, with the outcome as the result instead of a signal. After MovedOn
    /// it keeps refusing until the stored set has been read again.
    StoreResult trySave();
    /// Replaces the stored set, and with it the working set, in one transaction.
    StoreResult replaceSchedule(const std::map<int, PlayTask>& tasks);
    /// Reads catalogue and stored set again. The working set stays.
    StoreResult reload();

    /// Puts sources into the catalogue in one transaction: a path that is known updates its
    /// program and keeps the index, any other gets the next index, which was never given out.
    ImportResult addPrograms(const std::vector<MediaSource>& sources);
    /// Takes a program out of the catalogue. Its index is never given out again; plans that use it
    /// find their entries marked invalid when the stored set is next read.
    StoreResult removeProgram(int progIndex);

signals:
    /// scheduleManage::save could not commit. Emitted while save still runs, so that a receiver can
    /// still ask the operator, call trySave again or write the working set elsewhere.
    void saveFailed(const trel::mediadispatch::StoreResult& reason);
    /// The stored set was replaced by save, replaceSchedule or reload.
    void storedSetChanged();
    /// Programs were added, changed or removed, or their files came or went.
    void catalogueChanged();

private:
    ScheduleHost();
    ~ScheduleHost() override;
};

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::StoreResult)
