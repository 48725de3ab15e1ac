#include "StoreMessages.h"

#include "StoreGuard.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QStorageInfo>

#include <cerrno>

namespace trel::mediadispatch {

namespace {

/// The primary result codes of SQLite that have a problem of their own here; the extended codes
/// carry them in their lowest byte.
enum SqliteCode {
    UnknownName = 1,
    Busy = 5,
    TableLocked = 6,
    OutOfMemory = 7,
    WriteProtected = 8,
    Interrupted = 9,
    InputOutput = 10,
    Corrupt = 11,
    Full = 13,
    CannotOpen = 14,
    TooBig = 18,
    NotADatabaseFile = 26,
};

/// Less than the log needs for a single change.
constexpr qint64 kNoSpaceLeft = 128 * 1024;

/// Neither the disk nor what a user or a program may take of it has room.
bool isLackOfSpace(int systemError)
{
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

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
        return QStringLiteral("%1 cannot be written: %2.");
    case StoreProblem::Damaged:
        return QStringLiteral("%1 is damaged: %2.");
    case StoreProblem::DiskFull:
        return QStringLiteral("%1 cannot be written: %2.");
    case StoreProblem::MovedOn:
        return QStringLiteral("%1 has been saved by another program since it was read; saving now "
                              "would overwrite those changes.");
    case StoreProblem::Full:
        return QStringLiteral("%1 has no room for so many programs: %2.");
    case StoreProblem::Other:
        return QStringLiteral("%1 could not be read or written: %2.");
    case StoreProblem::Altered:
        return QStringLiteral("%1 is not as this program makes a schedule database: %2.");
    case StoreProblem::TooLarge:
        return QStringLiteral("%1 would hold, or holds, more than a schedule may: %2.");
    case StoreProblem::Unclear:
        return QStringLiteral("%1 could not be written for certain: %2. The change is not to be "
                              "seen in the file now, "
                              "yet it may be there after the machine has stopped. Write what you "
                              "have to another disk, "
                              "and look at this one before you go on.");
    }
    return QString();
}

StoreProblem problemOf(int code, const QString& path, int systemError)
{
    switch (code) {
    case Busy:
    case TableLocked:
        return StoreProblem::Locked;
    case WriteProtected:
        return StoreProblem::ReadOnly;
    case InputOutput:
    case CannotOpen:
        return isLackOfSpace(systemError) || (systemError == 0 && diskIsFull(path))
                   ? StoreProblem::DiskFull
                   : StoreProblem::Other;
    case UnknownName: // Every statement fits the schema: a table or a column must be missing.
    case Corrupt:
    case NotADatabaseFile:
        return StoreProblem::Damaged;
    case Full:
        return StoreProblem::DiskFull;
    case TooBig:
        return StoreProblem::TooLarge;
    default:
        return StoreProblem::Other;
    }
}

/// What lack of space it is.
QString fullText(int systemError)
{
    switch (systemError) {
    case EFBIG:
        return QStringLiteral("the system lets this program write no larger file");
    case EDQUOT:
        return QStringLiteral("the user's share of the disk is used up");
    default:
        return QStringLiteral("the disk is full");
    }
}

/// What is said where no more is known.
QString usualDetail(StoreProblem problem)
{
    switch (problem) {
    case StoreProblem::DiskFull:
        return fullText(0);
    case StoreProblem::ReadOnly:
        return QStringLiteral("the file or its folder is read-only");
    default:
        return QString();
    }
}

/// In the database's words, and in the system's, which know more.
QString detailOf(int code, const QSqlError& error, int systemError)
{
    switch (code) {
    case Interrupted:
        return QStringLiteral("reading it took too long");
    case OutOfMemory:
        return QStringLiteral("there is not enough memory");
    case TooBig:
        return QStringLiteral("a text in it has more than %1 bytes").arg(kLargestStoredValue);
    case InputOutput:
    case CannotOpen:
        return systemError == 0 ? error.databaseText()
                                : QStringLiteral("%1 (%2)").arg(error.databaseText(),
                                                                qt_error_string(systemError));
    default:
        return error.databaseText();
    }
}

} // namespace

StoreResult refusal(StoreProblem problem, const QString& path, const QString& detail)
{
    // The file stands first in every sentence that names it. Its name goes in last, since it may
    // hold what looks like a place mark.
    const QLatin1String file("%1");
    QString text = sentence(problem).replace(QLatin1String("%2"),
                                             detail.isEmpty() ? usualDetail(problem) : detail);
    if (text.startsWith(file)) {
        text.replace(0, file.size(), QDir::toNativeSeparators(path));
    }
    return {problem, text};
}

StoreResult refusal(const QSqlError& error, const QString& path, int systemError)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const StoreProblem problem = problemOf(code, path, systemError);
    return refusal(problem, path,
                   problem == StoreProblem::DiskFull   ? fullText(systemError)
                   : problem == StoreProblem::ReadOnly ? QString()
                                                       : detailOf(code, error, systemError));
}

StoreResult refusalOfSystem(int systemError, const QString& path)
{
    return isLackOfSpace(systemError)
               ? refusal(StoreProblem::DiskFull, path, fullText(systemError))
               : refusal(StoreProblem::Other, path, qt_error_string(systemError));
}

StoreResult refusalOfFinding(const QString& finding, const QString& path)
{
    // A page that the disk does not give is no damage of the database.
    static const QRegularExpression errorCode(QStringLiteral("error code=([0-9]+)"));
    const int code = errorCode.match(finding).captured(1).toInt() & 0xff;
    switch (code) {
    case InputOutput:
        return refusal(StoreProblem::Other, path, QStringLiteral("disk I/O error"));
    case OutOfMemory:
        return refusal(StoreProblem::Other, path, QStringLiteral("there is not enough memory"));
    default:
        return refusal(StoreProblem::Damaged, path, finding);
    }
}

} // namespace trel::mediadispatch
