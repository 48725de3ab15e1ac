#include "StoreChild.h"
#include "StoreFixture.h"
#include "faults/FaultWords.h"
#include "store/StoreSchema.h"
#include "store/sqlite/SqliteConnection.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <cerrno>
#include <functional>

using namespace trel::mediadispatch;

namespace {

using Preparation = std::function<void(const QString& path)>;

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A store with a schedule large enough to fill a few pages.
void makeStore(const QString& path)
{
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path));
    QVERIFY(host.addPrograms(samplePrograms(5)).store);
    QVERIFY(host.replaceSchedule(sampleSchedule(100, 3, 5)));
    host.close();
}

void runIn(const QString& path, const QString& statement)
{
    const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
    connection.run(statement);
}

/// The files as a program leaves them that is stopped after a statement: its log is not yet
/// worked into the database.
void runAndStop(const QString& path, const QString& statement)
{
    const QString place = path + QStringLiteral(".live");
    QVERIFY(QFile::rename(path, place));
    const SqliteConnection connection(place, SqliteConnection::Access::ReadWrite);
    connection.run(statement);
    for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        QVERIFY(QFile::copy(place + suffix, path + suffix));
    }
}

void forgetLive(const QString& path)
{
    QFile::remove(path + QStringLiteral(".live"));
}

/// Writes nonsense over some pages in the middle of the file.
void damage(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.size() > 16 * 4096);
    QVERIFY(file.seek(4 * 4096));
    file.write(QByteArray(8 * 4096, 'x'));
}

} // namespace

Q_DECLARE_METATYPE(Preparation)

/// What cannot be opened is named and left as it is.
class tst_StoreOpening : public QObject
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
    void missingFolder();
    void lockedByAnotherProgram();
    void readOnlyFolder();
    void emptyFileBecomesAStore();
    void createsInOneStep();
    void aPlaceWhereNothingCanBeMade();
    void opensAfterAStop();
    void keepsTheIndexThatItReadsWith();
    void takesUpTheLogAgain();
    void leavesNothingBesideAClosedStore();
    void namesWithAnythingInThem_data();
    void namesWithAnythingInThem();
    void foldersWithPercentSigns();
    void followsLinks();
    void aFailedOpenLeavesNoStore();
};

void tst_StoreOpening::refusals_data()
{
    QTest::addColumn<Preparation>("prepare");
    QTest::addColumn<int>("problem");
    const auto row = [](const char* name, StoreProblem problem, const Preparation& prepare) {
        QTest::newRow(name) << prepare << int(problem);
    };
    row("text", StoreProblem::NotADatabase,
        [](const QString& path) { write(path, QByteArray("task,plan\n").repeated(100)); });
    row("short", StoreProblem::NotADatabase,
        [](const QString& path) { write(path, QByteArray("SQLite format 3\0", 16)); });
    row("short of a header by a byte", StoreProblem::NotADatabase, [](const QString& path) {
        makeStore(path);
        QVERIFY(QFile::resize(path, 99));
    });
    row("folder", StoreProblem::NotADatabase, [](const QString& path) { QDir().mkpath(path); });
    row("foreign", StoreProblem::Foreign, [](const QString& path) {
        const SqliteConnection connection(path, SqliteConnection::Access::Create);
        connection.run(QStringLiteral("CREATE TABLE task (id INTEGER PRIMARY KEY)"));
    });
    row("foreign with a log", StoreProblem::Foreign, [](const QString& path) {
        makeStore(path);
        runIn(path, QStringLiteral("PRAGMA application_id = 1"));
        runAndStop(path, QStringLiteral("CREATE TABLE more (id INTEGER)"));
        forgetLive(path);
    });
    row("newer schema", StoreProblem::NewerSchema, [](const QString& path) {
        makeStore(path);
        runIn(path, QStringLiteral("PRAGMA user_version = 999"));
    });
    row("newer schema in the log", StoreProblem::NewerSchema, [](const QString& path) {
        makeStore(path);
        runAndStop(path, QStringLiteral("PRAGMA user_version = 999"));
        forgetLive(path);
    });
    row("newer schema in a log without index", StoreProblem::NewerSchema, [](const QString& path) {
        makeStore(path);
        runAndStop(path, QStringLiteral("PRAGMA user_version = 999"));
        forgetLive(path);
        QVERIFY(QFile::remove(path + QStringLiteral("-shm")));
    });
    row("damaged", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        damage(path);
    });
    row("damaged with a log", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        runAndStop(path, QStringLiteral("UPDATE store SET schedule_revision = 9"));
        forgetLive(path);
        damage(path);
    });
    row("cut short", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        QVERIFY(QFile::resize(path, QFileInfo(path).size() / 2));
    });
    row("without its tables", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        runIn(path, QStringLiteral("DROP TABLE entry"));
    });
    row("without its tables, with a log", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        runAndStop(path, QStringLiteral("DROP TABLE plan_value"));
        forgetLive(path);
    });
    row("without its state", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        runIn(path, QStringLiteral("DELETE FROM store"));
    });
    row("read-only", StoreProblem::ReadOnly, [](const QString& path) {
        makeStore(path);
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup));
    });
    row("empty, with its log", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        runAndStop(path, QStringLiteral("UPDATE store SET schedule_revision = 9"));
        forgetLive(path);
        QVERIFY(QFile::resize(path, 0));
    });
    row("gone, with its log", StoreProblem::Damaged, [](const QString& path) {
        makeStore(path);
        runAndStop(path, QStringLiteral("UPDATE store SET schedule_revision = 9"));
        forgetLive(path);
        QVERIFY(QFile::remove(path));
    });
    row("a byte of a log alone", StoreProblem::Damaged,
        [](const QString& path) { write(path + QStringLiteral("-wal"), "x"); });
}

void tst_StoreOpening::refusals()
{
    QFETCH(Preparation, prepare);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    prepare(path);
    const FolderSnapshot before(folder.path());

    ScheduleHost& host = ScheduleHost::instance();
    for (const ScheduleHost::OpenMode mode :
         {ScheduleHost::OpenMode::CreateIfMissing, ScheduleHost::OpenMode::MustExist}) {
        const StoreResult result = host.open(path, mode);
        QTEST(int(result.problem), "problem");
        QVERIFY2(englishText(result).contains(path), qPrintable(englishText(result)));
        QVERIFY2(englishText(result).endsWith(QLatin1Char('.')), qPrintable(englishText(result)));
        QVERIFY(!host.isOpen());
        // The index of a log is scratch memory, which everybody who looks at the log works in.
        QStringList differences = before.differences(FolderSnapshot(folder.path()));
        differences.removeOne(QStringLiteral("schedule.db-shm has changed"));
        QCOMPARE(differences, QStringList());
    }
}

void tst_StoreOpening::missingFolder()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("no/such/schedule.db"));
    const StoreResult result = ScheduleHost::instance().open(path);
    QCOMPARE(result.problem, StoreProblem::FolderMissing);
    QVERIFY(englishText(result).contains(path));
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("no"))));
    QCOMPARE(ScheduleHost::instance().open(QString()).problem, StoreProblem::NotADatabase);

    // A file has the place of the folder, or of one above it.
    const QTemporaryDir other;
    write(other.filePath(QStringLiteral("file")), "content");
    for (const char* below : {"file/schedule.db", "file/such/schedule.db"}) {
        QCOMPARE(ScheduleHost::instance().open(other.filePath(QLatin1String(below))).problem,
                 StoreProblem::FolderMissing);
    }

    const QString file = folder.filePath(QStringLiteral("schedule.db"));
    QCOMPARE(ScheduleHost::instance().open(file, ScheduleHost::OpenMode::MustExist).problem,
             StoreProblem::FileMissing);
    QVERIFY(QDir(folder.path()).isEmpty());
}

void tst_StoreOpening::lockedByAnotherProgram()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    makeStore(path);
    const QByteArray before = contentOf(path);
    {
        const StoreChild other({QStringLiteral("hold"), path});
        QVERIFY2(other.isReady(), "the other program does not hold the file");
        const StoreResult result = ScheduleHost::instance().open(path);
        QCOMPARE(result.problem, StoreProblem::Locked);
        QVERIFY2(englishText(result).contains(path), qPrintable(englishText(result)));
        QCOMPARE(contentOf(path), before);
    }
    QVERIFY(ScheduleHost::instance().open(path));
    ScheduleHost::instance().close();
}

void tst_StoreOpening::readOnlyFolder()
{
    const QTemporaryDir folder;
    const QString inner = folder.filePath(QStringLiteral("inner"));
    QVERIFY(QDir().mkpath(inner));
    const QString path = inner + QStringLiteral("/schedule.db");
    makeStore(path);
    const auto marked = QFile::ReadOwner | QFile::ExeOwner;
    QVERIFY(QFile::setPermissions(inner, marked));
    const FolderSnapshot before(inner);
    QCOMPARE(ScheduleHost::instance().open(path).problem, StoreProblem::ReadOnly);
    const QString fresh = inner + QStringLiteral("/fresh.db");
    QCOMPARE(ScheduleHost::instance().open(fresh).problem, StoreProblem::ReadOnly);
    QCOMPARE(before.differences(FolderSnapshot(inner)), QStringList());
    QVERIFY(QFile::setPermissions(inner, marked | QFile::WriteOwner));
}

void tst_StoreOpening::emptyFileBecomesAStore()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    write(path, QByteArray());
    const QFile::Permissions odd = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(path, odd));
    ScheduleHost& host = ScheduleHost::instance();
    QCOMPARE(host.open(path, ScheduleHost::OpenMode::MustExist).problem,
             StoreProblem::NotADatabase);
    QCOMPARE(QFileInfo(path).size(), qint64(0));
    QVERIFY(host.open(path));
    // It is for those for whom the empty one was.
    QCOMPARE(QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
             odd);
    QVERIFY(host.replaceSchedule(sampleSchedule(1, 1, 0)));
    host.close();
    QVERIFY(host.open(path, ScheduleHost::OpenMode::MustExist));
    host.close();
}

void tst_StoreOpening::createsInOneStep()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    QVERIFY(ScheduleHost::instance().open(path));
    QCOMPARE(ScheduleHost::instance().path(), path);
    ScheduleHost::instance().close();
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList{QStringLiteral("schedule.db")});

    const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
    QCOMPARE(connection.value(QStringLiteral("PRAGMA journal_mode")).toString(),
             QStringLiteral("wal"));
    QCOMPARE(connection.value(QStringLiteral("PRAGMA user_version")).toInt(),
             StoreSchema::newestVersion());
    QVERIFY(connection.value(QStringLiteral("PRAGMA application_id")).toInt() != 0);
    const QString strict = QStringLiteral("SELECT count(*) FROM pragma_table_list"
                                          " WHERE schema = 'main' AND type = 'table'"
                                          " AND NOT strict AND name NOT LIKE 'sqlite%'");
    QCOMPARE(connection.value(strict).toInt(), 0);
}

void tst_StoreOpening::aPlaceWhereNothingCanBeMade()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    // Where the store is to be made before it is moved to its place.
    QVERIFY(QDir().mkdir(path + QStringLiteral(".new-%1").arg(QCoreApplication::applicationPid())));
    const StoreResult result = ScheduleHost::instance().open(path);
    QCOMPARE(result.problem, StoreProblem::Other);
    QCOMPARE(result.cause.code, FaultCode::System);
    QCOMPARE(result.cause.number(0), EEXIST);
    QCOMPARE(result.path, path);
    QVERIFY(!QFileInfo::exists(path));
}

void tst_StoreOpening::opensAfterAStop()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    makeStore(path);
    runAndStop(path, QStringLiteral("DELETE FROM entry WHERE task_id > 2"));
    forgetLive(path);
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path));
    const std::map<int, PlayTask> tasks = scheduleManage::getInstance().getgTaskMap();
    QCOMPARE(tasks.at(2).plans[0].programs.size(), std::size_t(5));
    QVERIFY(tasks.at(3).plans[0].programs.empty());
    host.close();
}

/// The database makes the index of a log that was left without one.
void tst_StoreOpening::keepsTheIndexThatItReadsWith()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    makeStore(path);
    runAndStop(path, QStringLiteral("DELETE FROM entry WHERE task_id > 2"));
    forgetLive(path);
    QVERIFY(QFile::remove(path + QStringLiteral("-shm")));
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path, ScheduleHost::OpenMode::ReadOnly));
    QVERIFY(QFileInfo::exists(path + QStringLiteral("-shm")));
    QVERIFY(scheduleManage::getInstance().getgTaskMap().at(3).plans[0].programs.empty());
    host.close();
}

void tst_StoreOpening::takesUpTheLogAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.db"));
    makeStore(path);
    runIn(path, QStringLiteral("PRAGMA journal_mode = DELETE"));
    QVERIFY(ScheduleHost::instance().open(path));
    ScheduleHost::instance().close();
    const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
    QCOMPARE(connection.value(QStringLiteral("PRAGMA journal_mode")).toString(),
             QStringLiteral("wal"));
}

void tst_StoreOpening::leavesNothingBesideAClosedStore()
{
    StoreFixture store;
    store.save(sampleSchedule(3, 3, 0));
    store.host.close();
    QCOMPARE(QDir(store.folder.path()).entryList(QDir::Files),
             QStringList{QStringLiteral("schedule.db")});
}

void tst_StoreOpening::namesWithAnythingInThem_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"50% off.db", "a?b#c.db", "节目 单.db", "a&mode=ro.db", "%41.db",
                             "it's; \"quoted\".db", "%1 %2.db"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void tst_StoreOpening::namesWithAnythingInThem()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    makeStore(path);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{name});
    QVERIFY(ScheduleHost::instance().open(path, ScheduleHost::OpenMode::MustExist));
    QCOMPARE(scheduleManage::getInstance().getgTaskMap().size(), std::size_t(100));
    ScheduleHost::instance().close();
    damage(path);
    QVERIFY(englishText(ScheduleHost::instance().open(path)).startsWith(path));
}

void tst_StoreOpening::foldersWithPercentSigns()
{
    const QTemporaryDir root;
    const QString folder = root.filePath(QStringLiteral("50%2 off, %1"));
    QVERIFY(QDir().mkpath(folder));
    makeStore(folder + QStringLiteral("/schedule.db"));
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList{QStringLiteral("schedule.db")});
}

void tst_StoreOpening::followsLinks()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target.db"));
    const QString link = folder.filePath(QStringLiteral("link.db"));
    QVERIFY(QFile::link(target, link));
    makeStore(link);
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo(target).isSymLink());
    QVERIFY(ScheduleHost::instance().open(target, ScheduleHost::OpenMode::MustExist));
    QCOMPARE(scheduleManage::getInstance().getgTaskMap().size(), std::size_t(100));
    ScheduleHost::instance().close();
}

void tst_StoreOpening::aFailedOpenLeavesNoStore()
{
    StoreFixture store;
    store.save({{1, everyFieldTask(1)}});
    const QString text = store.folder.filePath(QStringLiteral("text.txt"));
    write(text, QByteArray(200, 'a'));
    QVERIFY(!store.host.open(text));
    QVERIFY(!store.host.isOpen());
    QVERIFY(store.manager.getgTaskMap().empty());
    QVERIFY(store.manager.getPrograms().empty());
}

TREL_TEST(tst_StoreOpening, QCoreApplication)
#include "tst_StoreOpening.moc"
