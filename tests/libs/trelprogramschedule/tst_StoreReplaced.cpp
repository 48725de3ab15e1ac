#include "SignalCounts.h"
#include "StoreFixture.h"
#include "faults/FaultWords.h"
#include "store/ScheduleDatabase.h"
#include "store/sqlite/SqliteConnection.h"
#include "store/sqlite/StoreFile.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <cstdio>
#include <memory>

Q_DECLARE_METATYPE(trel::mediadispatch::StoreProblem)

using namespace trel::mediadispatch;

namespace {

/// Makes a store with these tasks, closed and without a log.
void makeStore(const QString& path, const TaskMap& tasks)
{
    ScheduleDatabase database;
    QVERIFY(database.open(path, ScheduleHost::OpenMode::CreateIfMissing));
    qint64 revision = 0;
    QVERIFY(database.writeTasks(tasks, editsBetween({}, tasks), revision));
}

TaskMap tasksInFile(const QString& path)
{
    ScheduleDatabase database;
    StoreContents contents;
    [&] {
        QVERIFY(database.open(path, ScheduleHost::OpenMode::MustExist));
        QVERIFY(database.read(StorePart::Both, contents));
    }();
    return contents.tasks;
}

} // namespace

/// A store whose file goes, or is another one, while it is open.
class tst_StoreReplaced : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anotherFileIsReadInItsStead();
    void theFormerLogDoesNotLeakIn();
    void theFileThatMovedAwayIsWhole();
    void theLogOfTheNewFileStays();
    void goneAndBack();
    void damagedAndMended_data();
    void damagedAndMended();
    void formerFileInUse();
    void whoStaysWithTheFormerFileDoesNoHarm();
    void closedWhileGone();
    void tellsOfACommitOnItsWay();

private:
    QString path(const char* name) const { return m_store->folder.filePath(QLatin1String(name)); }
    bool isThere(const char* suffix) const
    {
        return QFile::exists(m_store->path + QLatin1String(suffix));
    }
    /// As a program does that writes its files whole.
    void replace(const TaskMap& tasks) const
    {
        makeStore(path("new.db"), tasks);
        QCOMPARE(std::rename(qPrintable(path("new.db")), qPrintable(m_store->path)), 0);
    }

    std::unique_ptr<StoreFixture> m_store;
    TaskMap m_former;
    TaskMap m_other;
};

void tst_StoreReplaced::init()
{
    m_store = std::make_unique<StoreFixture>();
    m_former = {{1, everyFieldTask(1)}, {2, everyFieldTask(2)}, {3, everyFieldTask(3)}};
    m_other = {{7, everyFieldTask(7)}};
    m_store->save(m_former);
}

void tst_StoreReplaced::cleanup()
{
    m_store.reset();
}

void tst_StoreReplaced::anotherFileIsReadInItsStead()
{
    replace(m_other);
    SignalCounts counts;
    QVERIFY(counts.isValid());
    QVERIFY(m_store->host.reload());
    QVERIFY(m_store->manager.getgTaskMap() == m_other);
    QVERIFY(m_store->host.isOpen());
    QVERIFY(counts.take().contains(QStringLiteral("stored")));

    // The working set stays, and goes into the new file with the next save.
    QVERIFY(m_store->manager.getAllTask() == m_former);
    QVERIFY(m_store->host.trySave());
    m_store->restart();
    QVERIFY(m_store->manager.getgTaskMap() == m_former);
}

void tst_StoreReplaced::theFormerLogDoesNotLeakIn()
{
    QVERIFY(QFileInfo(m_store->path + QLatin1String("-wal")).size() > 0);
    replace(m_other);
    QVERIFY(m_store->host.reload());
    m_store->host.close();
    QVERIFY(tasksInFile(m_store->path) == m_other);
    QVERIFY(!isThere("-wal"));
    QVERIFY(!isThere("-shm"));
}

/// A file that is put aside takes along what was saved last.
void tst_StoreReplaced::theFileThatMovedAwayIsWhole()
{
    QVERIFY(QFile::rename(m_store->path, path("aside.db")));
    replace(m_other);
    QVERIFY(m_store->host.reload());
    QVERIFY(tasksInFile(path("aside.db")) == m_former);
    QVERIFY(m_store->manager.getgTaskMap() == m_other);
}

/// Somebody already works on the new file: his log is not touched.
void tst_StoreReplaced::theLogOfTheNewFileStays()
{
    for (const char* suffix : {"", "-wal", "-shm"}) {
        QVERIFY(QFile::remove(m_store->path + QLatin1String(suffix)));
    }
    ScheduleDatabase other;
    QVERIFY(other.open(m_store->path, ScheduleHost::OpenMode::CreateIfMissing));
    qint64 revision = 0;
    QVERIFY(other.writeTasks(m_other, editsBetween({}, m_other), revision));
    QVERIFY(m_store->host.reload());
    QVERIFY(m_store->manager.getgTaskMap() == m_other);
    const TaskMap both = {{7, everyFieldTask(7)}, {9, everyFieldTask(9)}};
    QVERIFY(other.writeTasks(both, editsBetween(m_other, both), revision));
    QVERIFY(m_store->manager.getgTaskMap() == both);
}

void tst_StoreReplaced::goneAndBack()
{
    QVERIFY(QFile::rename(m_store->path, path("aside.db")));
    SignalCounts counts;
    QVERIFY(counts.isValid());
    for (int round = 0; round < 2; ++round) {
        const StoreResult result = m_store->host.reload();
        QCOMPARE(result.problem, StoreProblem::FileMissing);
        QCOMPARE(englishText(result), m_store->path + QLatin1String(" does not exist."));
    }
    QVERIFY(m_store->manager.getgTaskMap() == m_former);
    QVERIFY(m_store->host.isOpen());
    QVERIFY(!isThere(""));

    QVERIFY(QFile::rename(path("aside.db"), m_store->path));
    QVERIFY(m_store->host.reload());
    QVERIFY(m_store->manager.getgTaskMap() == m_former);
    QCOMPARE(counts.take(), QString());
    m_store->manager.addTask(everyFieldTask(8));
    QVERIFY(m_store->host.trySave());
}

void tst_StoreReplaced::damagedAndMended_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<StoreProblem>("problem");
    QTest::newRow("no database") << QByteArray(5000, 'x') << StoreProblem::NotADatabase;
    QTest::newRow("half a database") << QByteArray() << StoreProblem::Damaged;
}

void tst_StoreReplaced::damagedAndMended()
{
    QFETCH(QByteArray, content);
    QFETCH(StoreProblem, problem);
    if (content.isEmpty()) {
        makeStore(path("whole.db"), m_other);
        QFile whole(path("whole.db"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        content = whole.read(whole.size() / 2);
    }
    QFile bad(path("bad.db"));
    QVERIFY(bad.open(QIODevice::WriteOnly));
    QCOMPARE(bad.write(content), content.size());
    bad.close();
    QCOMPARE(std::rename(qPrintable(bad.fileName()), qPrintable(m_store->path)), 0);

    QCOMPARE(m_store->host.reload().problem, problem);
    QCOMPARE(m_store->host.reload().problem, problem);
    QVERIFY(m_store->manager.getgTaskMap() == m_former);
    QCOMPARE(m_store->host.path(), m_store->path);
    m_store->manager.addTask(everyFieldTask(8));
    QCOMPARE(m_store->host.trySave().problem, StoreProblem::Other);
    QFile read(m_store->path);
    QVERIFY(read.open(QIODevice::ReadOnly));
    QVERIFY(read.readAll() == content);

    replace(m_other);
    QVERIFY(m_store->host.reload());
    QVERIFY(m_store->manager.getgTaskMap() == m_other);
}

/// While somebody reads the former file, its log cannot be put away.
void tst_StoreReplaced::formerFileInUse()
{
    auto other =
        std::make_unique<SqliteConnection>(m_store->path, SqliteConnection::Access::ReadOnly);
    auto reading = std::make_unique<StoreTransaction>(*other, StoreTransaction::Purpose::Read);
    QCOMPARE(other->value(QStringLiteral("SELECT count(*) FROM task")).toInt(), 3);
    replace(m_other);
    QCOMPARE(m_store->host.reload().problem, StoreProblem::Locked);
    QVERIFY(m_store->manager.getAllTask() == m_former);
    reading.reset();
    other.reset();
    QVERIFY(m_store->host.reload());
    QVERIFY(m_store->manager.getgTaskMap() == m_other);
}

/// Somebody else has the former file open, and goes on writing into it.
void tst_StoreReplaced::whoStaysWithTheFormerFileDoesNoHarm()
{
    const SqliteConnection other(m_store->path, SqliteConnection::Access::ReadWrite);
    QCOMPARE(other.value(QStringLiteral("SELECT count(*) FROM task")).toInt(), 3);
    const StoreFile file(m_store->path);
    const StoreFile::Identity formerLog = file.logIdentity();
    replace(m_other);
    QVERIFY(m_store->host.reload());
    QVERIFY(file.logIdentity() != formerLog);
    other.run(QStringLiteral("DELETE FROM task"));
    QVERIFY(m_store->manager.getgTaskMap() == m_other);
    QVERIFY(m_store->host.trySave());
    other.run(QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 9"));
    m_store->host.close();
    QVERIFY(tasksInFile(m_store->path) == m_former);
}

void tst_StoreReplaced::closedWhileGone()
{
    QVERIFY(QFile::remove(m_store->path));
    QVERIFY(!m_store->host.reload());
    m_store->host.close();
    QVERIFY(!m_store->host.isOpen());
    QCOMPARE(m_store->host.path(), QString());
    QCOMPARE(m_store->host.reload().problem, StoreProblem::NotOpen);
    QVERIFY(m_store->manager.getgTaskMap().empty());
}

void tst_StoreReplaced::tellsOfACommitOnItsWay()
{
    QVERIFY(!m_store->host.isBeingWritten());
    const SqliteConnection other(m_store->path, SqliteConnection::Access::ReadWrite);
    {
        StoreTransaction writing(other, StoreTransaction::Purpose::Write);
        other.run(QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
        QVERIFY(m_store->host.isBeingWritten());
        writing.commit();
    }
    QVERIFY(!m_store->host.isBeingWritten());
    {
        const StoreTransaction reading(other, StoreTransaction::Purpose::Read);
        QVERIFY(!m_store->host.isBeingWritten());
    }
    m_store->host.close();
    QVERIFY(!m_store->host.isBeingWritten());
}

TREL_TEST(tst_StoreReplaced, QCoreApplication)
#include "tst_StoreReplaced.moc"
