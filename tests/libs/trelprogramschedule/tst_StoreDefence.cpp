#include "ScheduleLimits.h"
#include "StoreFixture.h"
#include "faults/FaultWords.h"
#include "store/StoreDeadline.h"
#include "store/sqlite/SqliteConnection.h"
#include "store/sqlite/StoreGuard.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <sqlite3.h>

using namespace trel::mediadispatch;

namespace {

void makeStore(const QString& path)
{
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path));
    QVERIFY(host.addPrograms(samplePrograms(5)).store);
    QVERIFY(host.replaceSchedule(sampleSchedule(10, 2, 5)));
    host.close();
}

/// As another program works on the file, which the connections of this one would not let it.
void runAsAnother(const QString& path, const QByteArray& statements)
{
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(path).constData(), &handle), SQLITE_OK);
    char* error = nullptr;
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    const int result = sqlite3_exec(handle, statements.constData(), nullptr, nullptr, &error);
    const QByteArray reason = error == nullptr ? QByteArray() : QByteArray(error);
    sqlite3_free(error);
    sqlite3_close(handle);
    QVERIFY2(result == SQLITE_OK, reason.constData());
}

/// By another program, since closing a file here would take the locks of the store away.
void copyFile(const QString& from, const QString& to)
{
    QCOMPARE(QProcess::execute(QStringLiteral("cp"), {from, to}), 0);
}

/// Why a connection refuses a statement; an empty text when it does not.
QString refusalOf(const StoreConnection& connection, const QString& statement)
{
    try {
        connection.run(statement);
        return {};
    } catch (const StoreError& error) {
        return englishText(error.result);
    }
}

} // namespace

/// A file that was made to do harm is refused as it is, and what comes in later does nothing.
class tst_StoreDefence : public QObject
{
    Q_OBJECT

private slots:
    void anotherSchemaIsRefused_data();
    void anotherSchemaIsRefused();
    void nothingForeignRunsInAnOpenStore();
    void connectionsAreGuarded();
    void oversizedValuesAreRefused();
    void contentsThatDoNotFitAreRefusedAsTheyAre_data();
    void contentsThatDoNotFitAreRefusedAsTheyAre();
    void kindsThatAreNoneCountAsOther();
    void aCatalogueThatHoldsTooMuchIsRefused();
    void asManyNumbersAsMayBeAreRead();
    void readingHasADeadline();
    void aLogOfAnotherCopyIsNotWorkedIn_data();
    void aLogOfAnotherCopyIsNotWorkedIn();
};

void tst_StoreDefence::anotherSchemaIsRefused_data()
{
    QTest::addColumn<QByteArray>("statements");
    QTest::addColumn<QString>("detail");
    const auto row = [](const char* name, const char* statements, const char* detail) {
        QTest::newRow(name) << QByteArray(statements) << QString::fromUtf8(detail);
    };
    row("trigger", "CREATE TRIGGER wipe AFTER UPDATE ON store BEGIN DELETE FROM program; END",
        "it holds the trigger \"wipe\"");
    row("view", "CREATE VIEW v AS SELECT 1", "it holds the view \"v\"");
    row("table", "CREATE TABLE more (id INTEGER PRIMARY KEY)", "it holds the table \"more\"");
    row("index", "CREATE INDEX by_end ON task (end_date)", "it holds the index \"by_end\"");
    row("index on an expression", "CREATE INDEX by_end ON task (upper(end_date))",
        "it holds the index \"by_end\"");
    row("statistics", "ANALYZE", "it holds the table \"sqlite_stat1\"");
    row("column", "ALTER TABLE task ADD COLUMN more TEXT", "its table \"task\" is another one");
    row("computed column", "ALTER TABLE task ADD COLUMN more TEXT AS (hex(zeroblob(1000000000)))",
        "its table \"task\" is another one");
    row("view in the place of a table",
        "DROP TABLE plan_value; CREATE VIEW plan_value AS SELECT 1 AS task_id",
        "its table \"plan_value\" is missing");
    row("type",
        "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql ="
        " replace(sql, 'start_date TEXT', 'start_date BLOB') WHERE name = 'task'",
        "its table \"task\" is another one");
    row("constraint",
        "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql ="
        " replace(sql, 'ON DELETE CASCADE', '') WHERE name = 'plan'",
        "its table \"plan\" is another one");
    row("index of another kind",
        "DROP INDEX program_path; CREATE INDEX program_path ON program (media_path)"
        " WHERE removed = 0",
        "its index \"program_path\" is another one");
    row("no index", "DROP INDEX program_path", "its index \"program_path\" is missing");
    row("another name of a table", "ALTER TABLE entry RENAME TO entries",
        "its table \"entry\" is missing");
}

void tst_StoreDefence::anotherSchemaIsRefused()
{
    QFETCH(QByteArray, statements);
    QFETCH(QString, detail);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    makeStore(path);
    runAsAnother(path, statements);
    const FolderSnapshot before(folder.path());
    for (const StoreOpenMode mode : {StoreOpenMode::CreateIfMissing, StoreOpenMode::MustExist}) {
        const StoreResult result = ScheduleHost::instance().open(path, mode);
        const StoreProblem expected = detail.endsWith(QLatin1String("missing"))
                                          ? StoreProblem::Damaged
                                          : StoreProblem::Altered;
        QCOMPARE(int(result.problem), int(expected));
        QVERIFY2(englishText(result).startsWith(path), qPrintable(englishText(result)));
        QVERIFY2(englishText(result).contains(detail), qPrintable(englishText(result)));
        QVERIFY(!ScheduleHost::instance().isOpen());
        QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
    }
}

void tst_StoreDefence::nothingForeignRunsInAnOpenStore()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 1, 0));
    runAsAnother(store.path, "CREATE TRIGGER wipe AFTER UPDATE ON store BEGIN"
                             " DELETE FROM program; END");
    QVERIFY(store.host.addPrograms(samplePrograms(5)).store);
    QVERIFY(store.host.reload());
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(5));
}

void tst_StoreDefence::connectionsAreGuarded()
{
    StoreFixture store;
    store.host.close();
    const SqliteConnection connection(store.path, SqliteConnection::Access::ReadWrite);
    connection.run(QStringLiteral("PRAGMA writable_schema = ON"));
    QVERIFY(!refusalOf(connection, QStringLiteral("DELETE FROM sqlite_schema")).isEmpty());
    QVERIFY(!refusalOf(connection, QStringLiteral("ATTACH ':memory:' AS other")).isEmpty());
    QVERIFY(!refusalOf(connection, QStringLiteral("SELECT load_extension('x')")).isEmpty());
    QCOMPARE(connection.value(QStringLiteral("PRAGMA trusted_schema")).toInt(), 0);
    const QString endless =
        QStringLiteral("SELECT 1") + QString(kLargestStoredValue, QLatin1Char(' '));
    QVERIFY(!refusalOf(connection, endless).isEmpty());
    connection.run(QStringLiteral("CREATE TEMP VIEW v AS SELECT 1"));
    runAsAnother(store.path, "CREATE VIEW v AS SELECT 1");
    QVERIFY(!refusalOf(connection, QStringLiteral("SELECT * FROM main.v")).isEmpty());
}

void tst_StoreDefence::oversizedValuesAreRefused()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(2)).store);
    store.host.close();
    runAsAnother(store.path, "UPDATE program SET name = hex(zeroblob(1048576))"
                             " WHERE prog_index = 2");
    const FolderSnapshot before(store.folder.path());
    const StoreResult result = store.host.open(store.path);
    QCOMPARE(int(result.problem), int(StoreProblem::TooLarge));
    QVERIFY2(englishText(result).contains(QString::number(kLargestStoredValue)),
             qPrintable(englishText(result)));
    QCOMPARE(before.differences(FolderSnapshot(store.folder.path())), QStringList());
}

void tst_StoreDefence::contentsThatDoNotFitAreRefusedAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("statement");
    const auto row = [](const char* name, const char* statement) {
        QTest::newRow(name) << QByteArray(statement);
    };
    row("plan behind a gap", "UPDATE plan SET position = 7 WHERE position = 1");
    row("plan of no task", "INSERT INTO plan SELECT 77, 0, id, mode, start_time, end_time, times,"
                           " service_count, end_action, is_conflict, weeks, service_time,"
                           " has_no_duration, service_flag_a, service_flag_b FROM plan LIMIT 1");
    row("entry behind a gap", "UPDATE entry SET position = 7 WHERE position = 1");
    row("entry of no plan", "INSERT INTO entry VALUES (1, 2, 0, 1, 0, '', 1)");
    row("entry of no task", "INSERT INTO entry VALUES (77, 0, 0, 1, 0, '', 1)");
    row("number behind a gap", "INSERT INTO plan_value VALUES (1, 0, 99, 1)");
    row("number of no plan", "INSERT INTO plan_value VALUES (1, 2, 0, 1)");
    row("number of no task", "INSERT INTO plan_value VALUES (77, 0, 0, 1)");
    row("number before the first", "INSERT INTO plan_value VALUES (1, 0, -1, 1)");
}

/// Also in a file that would have to be changed before it can be worked with.
void tst_StoreDefence::contentsThatDoNotFitAreRefusedAsTheyAre()
{
    QFETCH(QByteArray, statement);
    StoreFixture store;
    store.save(sampleSchedule(3, 2, 2));
    store.host.close();
    runAsAnother(store.path, "PRAGMA journal_mode = DELETE; " + statement);
    const FolderSnapshot before(store.folder.path());
    const StoreResult result = store.host.open(store.path);
    QCOMPARE(int(result.problem), int(StoreProblem::Damaged));
    QVERIFY2(englishText(result).contains(QLatin1String("do not fit")),
             qPrintable(englishText(result)));
    QCOMPARE(before.differences(FolderSnapshot(store.folder.path())), QStringList());
}

void tst_StoreDefence::kindsThatAreNoneCountAsOther()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    store.host.close();
    runAsAnother(store.path, "UPDATE program SET kind = prog_index * 5 - 6");
    QVERIFY(store.host.open(store.path));
    const std::map<int, ProgramIten> programs = store.manager.getPrograms();
    QCOMPARE(programs.size(), std::size_t(3));
    for (const auto& [index, program] : programs) {
        const int kind = index * 5 - 6; // -1, 4 and 9
        const bool isOne = kind >= 0 && kind <= int(ProgramKind::Other);
        QCOMPARE(int(program.kind), isOne ? kind : int(ProgramKind::Other));
    }
}

void tst_StoreDefence::aCatalogueThatHoldsTooMuchIsRefused()
{
    constexpr int most = 65534;
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(1)).store);
    store.host.close();
    runAsAnother(store.path, "WITH RECURSIVE n(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM n"
                             " WHERE i < 65534) INSERT INTO program"
                             " SELECT i, 'p', 'tape://' || i, 0, 3, 0 FROM n");
    QVERIFY(store.host.open(store.path));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(most));
    store.host.close();
    runAsAnother(store.path, "INSERT INTO program VALUES (70000, 'p', 'tape://x', 0, 3, 0)");
    const StoreResult result = store.host.open(store.path);
    QCOMPARE(int(result.problem), int(StoreProblem::TooLarge));
    QCOMPARE(int(result.cause.code), int(FaultCode::TooManyPrograms));
    QCOMPARE(result.cause.number(0), most);
}

void tst_StoreDefence::asManyNumbersAsMayBeAreRead()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 0));
    store.host.close();
    const QByteArray most = QByteArray::number(qulonglong(kMostServiceValues));
    runAsAnother(store.path,
                 "DELETE FROM plan_value; WITH RECURSIVE number(i) AS (SELECT 0 UNION ALL"
                 " SELECT i + 1 FROM number WHERE i < " +
                     most +
                     " - 1) INSERT INTO plan_value (task_id, plan_position, position, value)"
                     " SELECT 1, 0, i, i FROM number");
    QVERIFY(store.host.open(store.path));
    QCOMPARE(store.manager.getTask(1).plans[0].serviceList.size(), kMostServiceValues);
    store.host.close();
    runAsAnother(store.path, "INSERT INTO plan_value (task_id, plan_position, position, value)"
                             " VALUES (1, 0, " +
                                 most + ", 0)");
    QCOMPARE(int(store.host.open(store.path).problem), int(StoreProblem::TooLarge));
}

void tst_StoreDefence::readingHasADeadline()
{
    StoreFixture store;
    store.host.close();
    const SqliteConnection connection(store.path, SqliteConnection::Access::ReadOnly);
    const QString endless =
        QStringLiteral("WITH RECURSIVE number(n) AS (SELECT 1 UNION ALL"
                       " SELECT n + 1 FROM number) SELECT count(*) FROM number");
    {
        const StoreDeadline deadline(connection, std::chrono::milliseconds(20));
        const QString message = refusalOf(connection, endless);
        QVERIFY2(message.contains(QLatin1String("too long")), qPrintable(message));
    }
    // The time is over with the deadline.
    const QString counted = QStringLiteral("WITH RECURSIVE number(n) AS (SELECT 1 UNION ALL"
                                           " SELECT n + 1 FROM number LIMIT 300000)"
                                           " SELECT count(*) FROM number");
    QCOMPARE(connection.value(counted).toInt(), 300000);
}

void tst_StoreDefence::aLogOfAnotherCopyIsNotWorkedIn_data()
{
    QTest::addColumn<int>("copiedAt");
    QTest::addColumn<int>("loggedFrom");
    QTest::addColumn<int>("loggedTo");
    QTest::addColumn<bool>("isOfIt");
    // In numbers of saves.
    QTest::newRow("its own") << 3 << 3 << 5 << true;
    QTest::newRow("its own, worked in") << 5 << 3 << 5 << true;
    QTest::newRow("its own, worked in up to a save") << 4 << 3 << 5 << true;
    QTest::newRow("an older copy") << 1 << 3 << 5 << false;
    QTest::newRow("a newer copy") << 6 << 3 << 5 << false;
}

/// A backup is put in the place of a file whose program was stopped, and whose log is still there.
void tst_StoreDefence::aLogOfAnotherCopyIsNotWorkedIn()
{
    QFETCH(int, copiedAt);
    QFETCH(int, loggedFrom);
    QFETCH(int, loggedTo);
    QFETCH(bool, isOfIt);
    StoreFixture store;
    const QString backup = store.folder.filePath(QStringLiteral("backup"));
    const QString log = store.folder.filePath(QStringLiteral("log"));
    for (int saves = 0; saves < 7; ++saves) {
        const bool isInLog = copiedAt > loggedFrom && copiedAt <= loggedTo;
        if (saves == loggedFrom || (saves == copiedAt && !isInLog)) {
            store.restart(); // With the log worked in, a new one begins.
        }
        if (saves == copiedAt) {
            runAsAnother(store.path, "PRAGMA wal_checkpoint(PASSIVE)");
            copyFile(store.path, backup);
        }
        if (saves == loggedTo) {
            copyFile(store.path + QStringLiteral("-wal"), log);
        }
        store.save({{saves + 1, PlayTask{saves + 1, {}, {}, {}}}});
    }
    store.host.close();
    QVERIFY(QFile::remove(store.path) && QFile::rename(backup, store.path));
    QVERIFY(QFile::rename(log, store.path + QStringLiteral("-wal")));
    const FolderSnapshot before(store.folder.path());
    const StoreResult result = store.host.open(store.path);
    QCOMPARE(bool(result), isOfIt);
    if (isOfIt) {
        QCOMPARE(store.manager.getgTaskMap().size(), std::size_t(loggedTo));
    } else {
        QCOMPARE(int(result.problem), int(StoreProblem::Damaged));
        QVERIFY2(englishText(result).contains(QLatin1String("another copy")),
                 qPrintable(englishText(result)));
        QCOMPARE(before.differences(FolderSnapshot(store.folder.path())), QStringList());
        QVERIFY(QFile::remove(store.path + QStringLiteral("-wal")));
        store.open();
        QCOMPARE(store.manager.getgTaskMap().size(), std::size_t(copiedAt));
    }
}

TREL_TEST(tst_StoreDefence, QCoreApplication)
#include "support/TestProgram.h"
#include "tst_StoreDefence.moc"
