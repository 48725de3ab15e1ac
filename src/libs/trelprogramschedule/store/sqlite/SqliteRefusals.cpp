#include "SqliteRefusals.h"

#include "StoreGuard.h"
#include "store/StoreRefusals.h"

#include <QFileInfo>
#include <QRegularExpression>
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

bool diskIsFull(const QString& path)
{
    const QStorageInfo disk(QFileInfo(path).absolutePath());
    return disk.isValid() && disk.bytesAvailable() < kNoSpaceLeft;
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

/// With the database's words, and the system's number, which know more.
Fault causeOf(int code, const QSqlError& error, int systemError)
{
    switch (code) {
    case Interrupted:
        return {FaultCode::ReadTooSlow, {}};
    case OutOfMemory:
        return {FaultCode::NoMemory, {}};
    case TooBig:
        return faultOf(FaultCode::StoredTextTooLong, kLargestStoredValue);
    case InputOutput:
    case CannotOpen:
        return systemError == 0
                   ? faultOf(FaultCode::Database, code, error.databaseText())
                   : faultOf(FaultCode::DatabaseOnSystem, code, error.databaseText(), systemError);
    default:
        return faultOf(FaultCode::Database, code, error.databaseText());
    }
}

} // namespace

StoreResult refusal(const QSqlError& error, const QString& path, int systemError)
{
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const StoreProblem problem = problemOf(code, path, systemError);
    return refusal(problem, path,
                   problem == StoreProblem::DiskFull   ? Fault{lackOf(systemError), {}}
                   : problem == StoreProblem::ReadOnly ? Fault()
                                                       : causeOf(code, error, systemError));
}

StoreResult refusalOfFinding(const QString& finding, const QString& path)
{
    // A page that the disk does not give is no damage of the database.
    static const QRegularExpression errorCode(QStringLiteral("error code=([0-9]+)"));
    const int code = errorCode.match(finding).captured(1).toInt() & 0xff;
    switch (code) {
    case InputOutput:
        return refusal(StoreProblem::Other, path, {FaultCode::DiskError, {}});
    case OutOfMemory:
        return refusal(StoreProblem::Other, path, {FaultCode::NoMemory, {}});
    default:
        return refusal(StoreProblem::Damaged, path, faultOf(FaultCode::DatabaseCheck, finding));
    }
}

} // namespace trel::mediadispatch
