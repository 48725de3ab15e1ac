#include "StoreMessages.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QStorageInfo>

namespace trel::mediadispatch {

namespace {

/// The primary result codes of SQLite that have a problem of their own here; the extended codes
/// carry them in their lowest byte.
enum SqliteCode {
    UnknownName = 1,
    Busy = 5,
    TableLocked = 6,
    WriteProtected = 8,
    InputOutput = 10,
    Corrupt = 11,
    Full = 13,
    NotADatabaseFile = 26,
};

/// Less than the log needs for a single change.
constexpr qint64 kNoSpaceLeft = 128 * 1024;

bool diskIsFull(const QString& path)
{
    const QStorageInfo disk(QFileInfo(path).absolutePath());
    return disk.isValid() && disk.bytesAvailable() < kNoSpaceLeft;
}

QString sentence(StoreProblem problem)
{
    switch (problem) {
    case StoreProblem::None:
        return QString();
    case StoreProblem::NotOpen:
        return QStringLiteral("No schedule file is open, so nothing can be saved.");
    case StoreProblem::FolderMissing:
        return QStringLiteral("%1 cannot be opened: its folder does not exist.");
    case StoreProblem::FileMissing:
        return QStringLiteral("%1 does not exist.");
    case StoreProblem::NotADatabase:
        return QStringLiteral("%1 is not a schedule database.");
    case StoreProblem::Foreign:
        return QStringLiteral("%1 is a database of another program.");
    case StoreProblem::NewerSchema:
        return QStringLiteral("%1 was written by a newer version of this program.");
    case StoreProblem::Locked:
        return QStringLiteral(
            "%1 is in use by another program; try again when that program has closed.");
    case StoreProblem::ReadOnly:
        return QStringLiteral("%1 cannot be written: the file or its folder is read-only.");
    case StoreProblem::Damaged:
        return QStringLiteral("%1 is damaged: %2.");
    case StoreProblem::DiskFull:
        return QStringLiteral("%1 cannot be written: the disk is full.");
    case StoreProblem::MovedOn:
        return QStringLiteral("%1 has been saved by another program since it was read; saving now "
                              "would overwrite those changes.");
    case StoreProblem::Full:
        return QStringLiteral("%1 has no room for so many programs: %2.");
    case StoreProblem::Other:
        return QStringLiteral("%1 could not be read or written: %2.");
    }
    return QString();
}

StoreProblem problemOf(int code, const QString& path)
{
    switch (code) {
    case Busy:
    case TableLocked:
        return StoreProblem::Locked;
    case WriteProtected:
        return StoreProblem::ReadOnly;
    case InputOutput:
        return diskIsFull(path) ? StoreProblem::DiskFull : StoreProblem::Other;
    case UnknownName: // Every statement fits the schema: a table or a column must be missing.
    case Corrupt:
    case NotADatabaseFile:
        return StoreProblem::Damaged;
    case Full:
        return StoreProblem::DiskFull;
    default:
        return StoreProblem::Other;
    }
}

} // namespace

StoreResult refusal(StoreProblem problem, const QString& path, const QString& detail)
{
    // The file stands first in every sentence that names it. Its name goes in last, since it may
    // hold what looks like a place mark.
    const QLatin1String file("%1");
    QString text = sentence(problem).replace(QLatin1String("%2"), detail);
    if (text.startsWith(file)) {
        text.replace(0, file.size(), QDir::toNativeSeparators(path));
    }
    return {problem, text};
}

StoreResult refusal(const QSqlError& error, const QString& path)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    return refusal(problemOf(code, path), path, error.databaseText());
}

} // namespace trel::mediadispatch
