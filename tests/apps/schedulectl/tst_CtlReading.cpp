#include "CtlFixture.h"

#include "service/scheduleManage.h"
#include "support/FolderSnapshot.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

#include <cerrno>

#include <sqlite3.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace trel::mediadispatch;

namespace {

/// Longer than a command takes, and shorter than it would wait for a lock.
constexpr qint64 kAtOnce = 1500; // milliseconds

void readingCommands()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* command :
         {"show", "check", "export -", "now --at 2024-01-03T08:30", "programs",
          "timeline --from 2024-01-03 --to 2024-01-04", "why 1 --at 2024-01-03T08:30"}) {
        QTest::newRow(command) << QString::fromLatin1(command).split(QLatin1Char(' '));
    }
}

/// A program and a plan of it.
void fill(const CtlFixture& fixture)
{
    QCOMPARE(
        fixture.onDatabase({QStringLiteral("import"), QStringLiteral("udp://1.1.1.1:1")}).status,
        0);
    fixture.store({{1, januaryTask(1, {timePlan(1, "08:00:00", "09:00:00", "", 1)})}});
}

/// Another program's connection to a database.
class Other
{
public:
    explicit Other(const QString& path)
    {
        sqlite3_open(QFile::encodeName(path).constData(), &m_handle);
    }
    ~Other() { sqlite3_close(m_handle); }
    Q_DISABLE_COPY(Other)

    bool run(const char* statements) const
    {
        return sqlite3_exec(m_handle, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
    }

private:
    sqlite3* m_handle = nullptr;
};

/// Runs a program with a folder mounted read-only over itself, in a system of mounts of its own.
CtlResult runReadOnly(const QString& folder, const QStringList& command)
{
    QStringList arguments = {QStringLiteral("--mount")};
    if (::geteuid() != 0) {
        arguments += {QStringLiteral("--user"), QStringLiteral("--map-root-user")};
    }
    arguments += {QStringLiteral("sh"), QStringLiteral("-c"),
                  QStringLiteral("mount --bind \"$0\" \"$0\" && mount -o remount,ro,bind \"$0\" ||"
                                 " exit 99; exec \"$@\""),
                  folder};
    QProcess process;
    process.start(QStringLiteral("unshare"), arguments + command);
    CtlResult result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.out = process.readAllStandardOutput();
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

bool canMount(const QString& folder)
{
    return runReadOnly(folder, {QStringLiteral("true")}).status == 0;
}

} // namespace

/// Commands that only read need no right to write, wait for nobody and leave no trace.
class tst_CtlReading : public QObject
{
    Q_OBJECT

private slots:
    void onReadOnlyMedia_data() { readingCommands(); }
    void onReadOnlyMedia();
    void withALogOnReadOnlyMedia();
    void inAFolderThatIsMarkedReadOnly_data() { readingCommands(); }
    void inAFolderThatIsMarkedReadOnly();
    void besideAWriter_data() { readingCommands(); }
    void besideAWriter();
    void refusedRemovalsNeedNoRightToWrite();
    void aScheduleRunsFromReadOnlyMedia();
    void theLatestCommitIsRead();
    void changesAreRefused();
    void whatOthersSaveIsReadAgain();
    void filesThatAreMadeArePrivate();
    void leftDraftsAreCleared();
    void aFileSizeLimitIsLikeAFullDisk_data();
    void aFileSizeLimitIsLikeAFullDisk();
};

void tst_CtlReading::onReadOnlyMedia()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    fill(fixture);
    const QString folder = fixture.path(QString());
    if (!canMount(folder)) {
        QSKIP("this system allows no mounts in a namespace of the test's own");
    }
    const CtlResult expected = fixture.onDatabase(arguments);
    const FolderSnapshot before(folder);
    const CtlResult result =
        runReadOnly(folder, QStringList{QStringLiteral(SCHEDULECTL), QStringLiteral("--database"),
                                        fixture.database()} +
                                arguments);
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QCOMPARE(result.out, expected.out);
    QCOMPARE(before.differences(FolderSnapshot(folder)), QStringList());
}

/// As on a snapshot of a disk on which an editor was at work.
void tst_CtlReading::withALogOnReadOnlyMedia()
{
    const CtlFixture fixture;
    fill(fixture);
    const QString live = fixture.path(QStringLiteral("live/test.db"));
    const QString taken = fixture.path(QStringLiteral("taken"));
    QVERIFY(QDir().mkpath(fixture.path(QStringLiteral("live"))) && QDir().mkpath(taken));
    if (!canMount(taken)) {
        QSKIP("this system allows no mounts in a namespace of the test's own");
    }
    QVERIFY(QFile::copy(fixture.database(), live));
    const Other editor(live);
    QVERIFY(editor.run("UPDATE program SET name = 'of the log'"));
    for (const char* suffix : {"", "-wal", "-shm"}) {
        QVERIFY(QFile::copy(live + QLatin1String(suffix),
                            taken + QStringLiteral("/test.db") + QLatin1String(suffix)));
    }
    const QStringList command = {QStringLiteral(SCHEDULECTL), QStringLiteral("--database"),
                                 taken + QStringLiteral("/test.db"), QStringLiteral("programs")};
    CtlResult result = runReadOnly(taken, command);
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QVERIFY2(result.text().contains(QStringLiteral("of the log")), qPrintable(result.text()));

    // Without its index it cannot be read where none can be made: never a state without the log.
    QVERIFY(QFile::remove(taken + QStringLiteral("/test.db-shm")));
    result = runReadOnly(taken, command);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.err.contains(QStringLiteral("its log")), qPrintable(result.err));
    QVERIFY2(result.err.contains(QStringLiteral("copy")), qPrintable(result.err));
}

void tst_CtlReading::inAFolderThatIsMarkedReadOnly()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    fill(fixture);
    const QByteArray folder = QFile::encodeName(fixture.path(QString()));
    const QByteArray file = QFile::encodeName(fixture.database());
    QVERIFY(::chmod(file.constData(), 0444) == 0 && ::chmod(folder.constData(), 0555) == 0);
    const FolderSnapshot before(fixture.path(QString()));
    const CtlResult result = fixture.onDatabase(arguments);
    QCOMPARE(before.differences(FolderSnapshot(fixture.path(QString()))), QStringList());
    ::chmod(folder.constData(), 0755);
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QVERIFY(!result.out.isEmpty());
}

void tst_CtlReading::besideAWriter()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    fill(fixture);
    const CtlResult expected = fixture.onDatabase(arguments);
    const Other writer(fixture.database());
    QVERIFY(writer.run("BEGIN EXCLUSIVE; UPDATE store SET schedule_revision = 77"));
    QElapsedTimer timer;
    timer.start();
    const CtlResult result = fixture.onDatabase(arguments);
    QVERIFY2(result.status == 0, qPrintable(result.err));
    QVERIFY2(timer.elapsed() < kAtOnce, "it has waited for the writer");
    QCOMPARE(result.out, expected.out);
    QVERIFY(writer.run("COMMIT"));
}

void tst_CtlReading::refusedRemovalsNeedNoRightToWrite()
{
    const CtlFixture fixture;
    fill(fixture);
    const auto remove = [&fixture](const char* index) {
        return fixture.onDatabase({QStringLiteral("remove-program"), QString::fromLatin1(index)});
    };
    {
        const Other writer(fixture.database());
        QVERIFY(writer.run("BEGIN EXCLUSIVE; UPDATE store SET schedule_revision = 77"));
        QElapsedTimer timer;
        timer.start();
        const CtlResult result = remove("99");
        QVERIFY2(timer.elapsed() < kAtOnce, "it has waited for the writer");
        QCOMPARE(result.status, 1);
        QVERIFY2(result.err.contains(QLatin1String("no program 99")), qPrintable(result.err));
        QVERIFY(writer.run("ROLLBACK"));
    }
    const QByteArray folder = QFile::encodeName(fixture.path(QString()));
    QVERIFY(::chmod(folder.constData(), 0555) == 0);
    const CtlResult unknown = remove("99");
    const CtlResult known = remove("1");
    ::chmod(folder.constData(), 0755);
    QCOMPARE(unknown.status, 1);
    QVERIFY2(unknown.err.contains(QLatin1String("no program 99")), qPrintable(unknown.err));
    QCOMPARE(known.status, 1);
    QVERIFY2(known.err.contains(QLatin1String("read-only")), qPrintable(known.err));
    QCOMPARE(remove("1").status, 0);
}

/// And takes over what comes about there all the same.
void tst_CtlReading::aScheduleRunsFromReadOnlyMedia()
{
    const CtlFixture fixture;
    fill(fixture);
    const QByteArray folder = QFile::encodeName(fixture.path(QString()));
    const QByteArray file = QFile::encodeName(fixture.database());
    QVERIFY(::chmod(file.constData(), 0444) == 0 && ::chmod(folder.constData(), 0555) == 0);
    QProcess process;
    fixture.start(process, {QStringLiteral("run")});
    QByteArray lines;
    QTRY_VERIFY_WITH_TIMEOUT(!(lines += process.readAllStandardOutput()).isEmpty(), 30000);
    ::chmod(folder.constData(), 0755);
    ::chmod(file.constData(), 0644);
    {
        const Other editor(fixture.database());
        QVERIFY(editor.run("UPDATE task SET end_date = '2025.01.01';"
                           "UPDATE store SET schedule_revision = schedule_revision + 1"));
    }
    QByteArray told;
    QTRY_VERIFY_WITH_TIMEOUT((told += process.readAllStandardError()).contains("has saved"), 30000);
    process.terminate();
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 0);
}

void tst_CtlReading::theLatestCommitIsRead()
{
    const CtlFixture fixture;
    fill(fixture);
    const Other writer(fixture.database());
    QVERIFY(writer.run("UPDATE program SET name = 'new in the log'"));
    const CtlResult result = fixture.onDatabase({QStringLiteral("programs")});
    QCOMPARE(result.status, 0);
    QVERIFY2(result.text().contains(QStringLiteral("new in the log")), qPrintable(result.text()));
}

void tst_CtlReading::changesAreRefused()
{
    const CtlFixture fixture;
    fill(fixture);
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(fixture.database(), StoreOpenMode::ReadOnly));
    const FolderSnapshot before(fixture.path(QString()));
    StoreResult result = host.replaceSchedule({});
    QCOMPARE(int(result.problem), int(StoreProblem::ReadOnly));
    QVERIFY2(englishText(result).contains(QStringLiteral("for reading only")),
             qPrintable(englishText(result)));
    QCOMPARE(int(host.addPrograms(
                         {{QStringLiteral("x"), QStringLiteral("udp://x"), 0.0, ProgramKind::Live}})
                     .store.problem),
             int(StoreProblem::ReadOnly));
    QCOMPARE(int(host.removeProgram(1).problem), int(StoreProblem::ReadOnly));
    QVERIFY(!host.isBeingWritten());
    QCOMPARE(before.differences(FolderSnapshot(fixture.path(QString()))), QStringList());
    host.close();
    QCOMPARE(
        int(host.open(fixture.path(QStringLiteral("none.db")), StoreOpenMode::ReadOnly).problem),
        int(StoreProblem::FileMissing));
}

/// Whether they have gone again, with their log worked in, or are still there.
void tst_CtlReading::whatOthersSaveIsReadAgain()
{
    const CtlFixture fixture;
    fill(fixture);
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(fixture.database(), StoreOpenMode::ReadOnly));
    const auto lastDay = [] { return scheduleManage::getInstance().getgTaskMap().at(1).endDate; };
    {
        const Other gone(fixture.database());
        QVERIFY(gone.run("UPDATE task SET end_date = '2025.01.01';"
                         "UPDATE store SET schedule_revision = schedule_revision + 1"));
    }
    QVERIFY(!QFileInfo::exists(fixture.database() + QStringLiteral("-wal")));
    QCOMPARE(lastDay(), std::string("2025.01.01"));
    const Other there(fixture.database());
    QVERIFY(there.run("UPDATE task SET end_date = '2026.01.01';"
                      "UPDATE store SET schedule_revision = schedule_revision + 1"));
    QVERIFY(host.reload());
    QCOMPARE(lastDay(), std::string("2026.01.01"));
    QVERIFY(there.run("UPDATE task SET end_date = '2027.01.01';"
                      "UPDATE store SET schedule_revision = schedule_revision + 1"));
    QCOMPARE(lastDay(), std::string("2027.01.01"));
    host.close();
}

void tst_CtlReading::filesThatAreMadeArePrivate()
{
    const CtlFixture fixture;
    fill(fixture);
    const auto modeOf = [&fixture](const char* name) {
        struct stat status = {};
        ::stat(QFile::encodeName(fixture.path(QString::fromLatin1(name))).constData(), &status);
        return int(status.st_mode & 0777);
    };
    QCOMPARE(modeOf("test.db"), 0600);
    const QStringList exportTo = {QStringLiteral("export"), QStringLiteral("out.json")};
    QCOMPARE(fixture.onDatabase(exportTo).status, 0);
    QCOMPARE(modeOf("out.json"), 0600);
    // What was there keeps its mode, a file of no bytes that becomes a database too.
    for (const char* name : {"out.json", "empty.db"}) {
        fixture.writeFile(QString::fromLatin1(name), QByteArray());
        QCOMPARE(
            ::chmod(QFile::encodeName(fixture.path(QString::fromLatin1(name))).constData(), 0640),
            0);
    }
    QCOMPARE(fixture.onDatabase(exportTo).status, 0);
    QCOMPARE(modeOf("out.json"), 0640);
    QCOMPARE(fixture
                 .run({QStringLiteral("import"), QStringLiteral("udp://1.1.1.1:1"),
                       QStringLiteral("--database"), QStringLiteral("empty.db")})
                 .status,
             0);
    QCOMPARE(modeOf("empty.db"), 0640);
}

/// What programs left that were stopped while they made the database; nothing else.
void tst_CtlReading::leftDraftsAreCleared()
{
    const CtlFixture fixture;
    // Numbers of programs do not go that far up.
    const QStringList left = {QStringLiteral("test.db.new-2147483000"),
                              QStringLiteral("test.db.new-2147483000-journal")};
    const QStringList kept = {QStringLiteral("test.db.new-1"),
                              QStringLiteral("test.db.new-x"),
                              QStringLiteral("test.db.new-"),
                              QStringLiteral("test.db.new-0"),
                              QStringLiteral("test.db.new-99999999999"),
                              QStringLiteral("test.db.new-2147483000.json"),
                              QStringLiteral("other.db.new-2147483000")};
    for (const QString& name : left + kept) {
        fixture.writeFile(name, "x");
    }
    // No program makes folders or links of such a name.
    const QString folder = fixture.path(QStringLiteral("test.db.new-2147483001"));
    QVERIFY(QDir().mkdir(folder));
    const QString link = fixture.path(QStringLiteral("test.db.new-2147483002"));
    QVERIFY(QFile::link(QStringLiteral("test.db.new-x"), link));
    fill(fixture);
    for (const QString& name : left) {
        QVERIFY2(!QFileInfo::exists(fixture.path(name)), qPrintable(name));
    }
    for (const QString& name : kept) {
        QVERIFY2(QFileInfo::exists(fixture.path(name)), qPrintable(name));
    }
    QVERIFY(QFileInfo(folder).isDir());
    QVERIFY(QFileInfo(link).isSymLink());
}

void tst_CtlReading::aFileSizeLimitIsLikeAFullDisk_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("new database") << QStringLiteral("--database new.db import udp://1.1.1.1:9");
    QTest::newRow("import") << QStringLiteral("--database test.db import udp://1.1.1.1:9");
    QTest::newRow("export") << QStringLiteral("--database test.db export x.json");
}

void tst_CtlReading::aFileSizeLimitIsLikeAFullDisk()
{
    QFETCH(QString, command);
    const CtlFixture fixture;
    fill(fixture);
    QVERIFY(fixture.files().size() == 1);
    QProcess process;
    process.setWorkingDirectory(fixture.path(QString()));
    // In blocks of 512 bytes, of which the export is larger than one.
    process.start(
        QStringLiteral("sh"),
        {QStringLiteral("-c"),
         QStringLiteral("ulimit -f 1; exec %1 %2").arg(QStringLiteral(SCHEDULECTL), command)});
    QVERIFY(process.waitForFinished());
    const QString error = QString::fromUtf8(process.readAllStandardError());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QVERIFY2(error.contains(QStringLiteral("cannot be written: ")), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("larger file")) ||
                 error.contains(qt_error_string(EFBIG)),
             qPrintable(error));
    QStringList files = fixture.files();
    files.removeAll(QStringLiteral("test.db-shm"));
    files.removeAll(QStringLiteral("test.db-wal"));
    QCOMPARE(files, QStringList{QStringLiteral("test.db")});
}

TREL_TEST(tst_CtlReading, QCoreApplication)
#include "tst_CtlReading.moc"
