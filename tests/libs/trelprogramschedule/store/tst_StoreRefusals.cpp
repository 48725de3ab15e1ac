#include "store/StoreRefusals.h"
#include "store/sqlite/SqliteRefusals.h"
#include "support/TestProgram.h"

#include <QSqlError>
#include <QtTest>

#include <cerrno>

using namespace trel::mediadispatch;

namespace {

/// As the toolkit's driver reports an error of the database.
QSqlError errorOf(int code)
{
    return {QStringLiteral("driver"), QStringLiteral("words"), QSqlError::UnknownError,
            QString::number(code)};
}

/// An extended code, with the primary one in its lowest byte.
constexpr int extended(int code, int more)
{
    return code | more << 8;
}

} // namespace

/// What an error of the database or the system amounts to.
class tst_StoreRefusals : public QObject
{
    Q_OBJECT

private slots:
    void errorsOfTheDatabase_data();
    void errorsOfTheDatabase();
    void errorsOfTheSystem_data();
    void errorsOfTheSystem();
    void findingsOfTheCheck_data();
    void findingsOfTheCheck();
};

void tst_StoreRefusals::errorsOfTheDatabase_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("systemError");
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("cause");
    const auto row = [](const char* name, int code, int systemError, StoreProblem problem,
                        FaultCode cause) {
        QTest::newRow(name) << code << systemError << int(problem) << int(cause);
    };
    row("busy", 5, 0, StoreProblem::Locked, FaultCode::Database);
    row("busy in recovery", extended(5, 1), 0, StoreProblem::Locked, FaultCode::Database);
    row("table locked", 6, 0, StoreProblem::Locked, FaultCode::Database);
    row("write protected", 8, EROFS, StoreProblem::ReadOnly, FaultCode::FileReadOnly);
    row("unknown name", 1, 0, StoreProblem::Damaged, FaultCode::Database);
    row("corrupt", extended(11, 2), 0, StoreProblem::Damaged, FaultCode::Database);
    row("no database", 26, 0, StoreProblem::Damaged, FaultCode::Database);
    row("full", 13, 0, StoreProblem::DiskFull, FaultCode::DiskFull);
    row("full by the limit of a file", 13, EFBIG, StoreProblem::DiskFull, FaultCode::FileSizeLimit);
    row("full by a quota", 13, EDQUOT, StoreProblem::DiskFull, FaultCode::QuotaUsedUp);
    row("write failed for want of room", extended(10, 3), ENOSPC, StoreProblem::DiskFull,
        FaultCode::DiskFull);
    row("write failed for a quota", extended(10, 3), EDQUOT, StoreProblem::DiskFull,
        FaultCode::QuotaUsedUp);
    row("read failed", extended(10, 1), EIO, StoreProblem::Other, FaultCode::DatabaseOnSystem);
    row("read failed, nobody knows why", extended(10, 1), 0, StoreProblem::Other,
        FaultCode::Database);
    row("not opened", 14, EACCES, StoreProblem::Other, FaultCode::DatabaseOnSystem);
    row("not opened for want of room", 14, EFBIG, StoreProblem::DiskFull, FaultCode::FileSizeLimit);
    row("too big", 18, 0, StoreProblem::TooLarge, FaultCode::StoredTextTooLong);
    row("interrupted", 9, 0, StoreProblem::Other, FaultCode::ReadTooSlow);
    row("out of memory", 7, 0, StoreProblem::Other, FaultCode::NoMemory);
    row("misuse", 21, 0, StoreProblem::Other, FaultCode::Database);
}

void tst_StoreRefusals::errorsOfTheDatabase()
{
    QFETCH(int, code);
    QFETCH(int, systemError);
    QFETCH(int, problem);
    QFETCH(int, cause);
    const StoreResult result = refusal(errorOf(code), QStringLiteral("/"), systemError);
    QCOMPARE(int(result.problem), problem);
    QCOMPARE(int(result.cause.code), cause);
    QCOMPARE(result.path, QStringLiteral("/"));
    if (result.cause.code == FaultCode::Database) {
        QCOMPARE(result.cause.arguments,
                 (QStringList{QString::number(code & 0xff), QStringLiteral("words")}));
    } else if (result.cause.code == FaultCode::DatabaseOnSystem) {
        QCOMPARE(result.cause.arguments,
                 (QStringList{QString::number(code & 0xff), QStringLiteral("words"),
                              QString::number(systemError)}));
    }
}

void tst_StoreRefusals::errorsOfTheSystem_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("cause");
    const auto row = [](const char* name, int error, StoreProblem problem, FaultCode cause) {
        QTest::newRow(name) << error << int(problem) << int(cause);
    };
    row("no room", ENOSPC, StoreProblem::DiskFull, FaultCode::DiskFull);
    row("quota", EDQUOT, StoreProblem::DiskFull, FaultCode::QuotaUsedUp);
    row("limit of a file", EFBIG, StoreProblem::DiskFull, FaultCode::FileSizeLimit);
    row("input or output", EIO, StoreProblem::Other, FaultCode::System);
    row("rights", EACCES, StoreProblem::Other, FaultCode::System);
}

void tst_StoreRefusals::errorsOfTheSystem()
{
    QFETCH(int, error);
    QFETCH(int, problem);
    QFETCH(int, cause);
    const StoreResult result = refusalOfSystem(error, QStringLiteral("/"));
    QCOMPARE(int(result.problem), problem);
    QCOMPARE(int(result.cause.code), cause);
    if (result.cause.code == FaultCode::System) {
        QCOMPARE(result.cause.number(0), error);
    }
}

void tst_StoreRefusals::findingsOfTheCheck_data()
{
    QTest::addColumn<QString>("finding");
    QTest::addColumn<int>("problem");
    QTest::addColumn<int>("cause");
    const auto row = [](const char* finding, StoreProblem problem, FaultCode cause) {
        QTest::newRow(finding) << QString::fromLatin1(finding) << int(problem) << int(cause);
    };
    row("unable to get the page. error code=266", StoreProblem::Other, FaultCode::DiskError);
    row("unable to get the page. error code=10", StoreProblem::Other, FaultCode::DiskError);
    row("unable to get the page. error code=7", StoreProblem::Other, FaultCode::NoMemory);
    row("unable to get the page. error code=11", StoreProblem::Damaged, FaultCode::DatabaseCheck);
    row("row 7 missing from index", StoreProblem::Damaged, FaultCode::DatabaseCheck);
}

void tst_StoreRefusals::findingsOfTheCheck()
{
    QFETCH(QString, finding);
    QFETCH(int, problem);
    QFETCH(int, cause);
    const StoreResult result = refusalOfFinding(finding, QStringLiteral("/"));
    QCOMPARE(int(result.problem), problem);
    QCOMPARE(int(result.cause.code), cause);
    if (result.problem == StoreProblem::Damaged) {
        QCOMPARE(result.cause.text(0), finding);
    }
}

TREL_TEST(tst_StoreRefusals, trel::tests::NoApplication)
#include "tst_StoreRefusals.moc"
