#include "SignalCounts.h"
#include "StoreFixture.h"
#include "faults/FaultWords.h"
#include "store/ScheduleDatabase.h"
#include "store/sqlite/SqliteConnection.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

/// Another editor on the same file.
class OtherEditor
{
public:
    explicit OtherEditor(const QString& path)
        : m_isOpen(m_database.open(path, ScheduleHost::OpenMode::MustExist))
    {
        m_isOpen = m_isOpen && m_database.read(StorePart::Both, m_contents);
    }

    bool isOpen() const { return m_isOpen; }
    Tasks tasks() const { return m_contents.tasks; }

    StoreResult save(const Tasks& tasks)
    {
        StoreResult result = m_database.writeTasks(tasks, editsBetween(m_contents.tasks, tasks),
                                                   m_contents.revision.schedule);
        if (result) {
            m_contents.tasks = tasks;
        }
        return result;
    }

    ScheduleDatabase& database() { return m_database; }

private:
    ScheduleDatabase m_database;
    StoreContents m_contents;
    bool m_isOpen;
};

/// What the file holds, as another program reads it.
Tasks tasksInFile(const QString& path)
{
    const OtherEditor other(path);
    return other.tasks();
}

} // namespace

/// A save that cannot be done leaves everything as it was and says why.
class tst_SaveFailure : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void locked();
    void triedAgainWhileSaveRuns();
    void fileGone();
    void fileReplaced();
    void fileMarkedReadOnly();
    void tableGone();
    void secondEditorIsRefused();
    void keepsRefusingUntilRead();
    void refusedWithNothingToSaveToo();
    void replacingIsRefusedToo();
    void refreshTakesOverWhatTheOtherSaved();
    void importsOfBothEditorsGetTheirOwnIndexes();
    void nothingToSaveLeavesTheOtherAlone();

private:
    /// Calls save and returns how it failed.
    StoreResult failedSave();

    std::unique_ptr<StoreFixture> m_store;
    Tasks m_stored;
    Tasks m_working;
};

void tst_SaveFailure::init()
{
    m_store = std::make_unique<StoreFixture>();
    QVERIFY(m_store->host.addPrograms(samplePrograms(3)).store);
    m_stored = sampleSchedule(3, 2, 3);
    m_store->save(m_stored);
    m_working = m_stored;
    m_working.erase(1);
    m_working[8] = everyFieldTask(8);
    m_store->manager.deleteTask(1);
    m_store->manager.addTask(everyFieldTask(8));
}

void tst_SaveFailure::cleanup()
{
    m_store.reset();
}

StoreResult tst_SaveFailure::failedSave()
{
    QSignalSpy failures(&m_store->host, &ScheduleHost::saveFailed);
    SignalCounts counts;
    m_store->manager.save();
    if (counts.take() != QLatin1String("failed")) {
        return {};
    }
    return failures[0][0].value<StoreResult>();
}

void tst_SaveFailure::locked()
{
    {
        const SqliteConnection other(m_store->path, SqliteConnection::Access::ReadWrite);
        const StoreTransaction writing(other, StoreTransaction::Purpose::Write);
        const StoreResult reason = failedSave();
        QCOMPARE(reason.problem, StoreProblem::Locked);
        QVERIFY2(englishText(reason).contains(m_store->path), qPrintable(englishText(reason)));
    }
    QVERIFY(m_store->manager.getgTaskMap() == m_stored);
    QVERIFY(m_store->manager.getAllTask() == m_working);
    QVERIFY(m_store->host.hasUnsavedChanges());
    QVERIFY(tasksInFile(m_store->path) == m_stored);
    QVERIFY(m_store->host.trySave());
    QVERIFY(tasksInFile(m_store->path) == m_working);
}

void tst_SaveFailure::triedAgainWhileSaveRuns()
{
    auto other =
        std::make_unique<SqliteConnection>(m_store->path, SqliteConnection::Access::ReadWrite);
    auto writing = std::make_unique<StoreTransaction>(*other, StoreTransaction::Purpose::Write);
    int asked = 0;
    QObject context;
    connect(&m_store->host, &ScheduleHost::saveFailed, &context, [&] {
        ++asked;
        QVERIFY(m_store->host.hasUnsavedChanges());
        writing.reset();
        QVERIFY(m_store->host.trySave());
    });
    m_store->manager.save();
    QCOMPARE(asked, 1);
    QVERIFY(m_store->manager.getgTaskMap() == m_working);
    QVERIFY(!m_store->host.hasUnsavedChanges());
}

void tst_SaveFailure::fileGone()
{
    QVERIFY(QFile::remove(m_store->path));
    const StoreResult reason = failedSave();
    QCOMPARE(reason.problem, StoreProblem::Other);
    QVERIFY2(englishText(reason).contains(QLatin1String("removed or replaced")),
             qPrintable(englishText(reason)));
    QVERIFY(!m_store->host.addPrograms(samplePrograms(1, 50)).store);
    QVERIFY(!m_store->host.removeProgram(1));
    QCOMPARE(m_store->manager.getPrograms().size(), std::size_t(3));
    QVERIFY(m_store->manager.getAllTask() == m_working);
}

void tst_SaveFailure::fileReplaced()
{
    const QString copy = m_store->path + QStringLiteral(".copy");
    QVERIFY(QFile::copy(m_store->path, copy));
    QVERIFY(QFile::remove(m_store->path));
    QVERIFY(QFile::rename(copy, m_store->path));
    QCOMPARE(failedSave().problem, StoreProblem::Other);
    QVERIFY(m_store->manager.getAllTask() == m_working);
}

void tst_SaveFailure::fileMarkedReadOnly()
{
    QVERIFY(QFile::setPermissions(m_store->path, QFile::ReadOwner));
    QCOMPARE(failedSave().problem, StoreProblem::ReadOnly);
    QVERIFY(QFile::setPermissions(m_store->path, QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(tasksInFile(m_store->path) == m_stored);
    QVERIFY(m_store->host.trySave());
}

void tst_SaveFailure::tableGone()
{
    {
        const SqliteConnection other(m_store->path, SqliteConnection::Access::ReadWrite);
        other.run(QStringLiteral("DROP TABLE plan_value"));
    }
    const StoreResult reason = failedSave();
    QCOMPARE(reason.problem, StoreProblem::Damaged);
    QVERIFY2(englishText(reason).contains(QLatin1String("plan_value")),
             qPrintable(englishText(reason)));
    QVERIFY(m_store->manager.getAllTask() == m_working);
    // Also what was written before the failure is undone.
    const SqliteConnection other(m_store->path, SqliteConnection::Access::ReadWrite);
    QCOMPARE(other.value(QStringLiteral("SELECT count(*) FROM task")).toInt(), 3);
}

void tst_SaveFailure::secondEditorIsRefused()
{
    OtherEditor other(m_store->path);
    QVERIFY(other.isOpen());
    const Tasks theirs = {{5, everyFieldTask(5)}};
    QVERIFY(other.save(theirs));

    const StoreResult reason = failedSave();
    QCOMPARE(reason.problem, StoreProblem::MovedOn);
    QVERIFY2(englishText(reason).contains(QLatin1String("saved by another program")),
             qPrintable(englishText(reason)));
    QVERIFY(tasksInFile(m_store->path) == theirs);
    QVERIFY(m_store->manager.getAllTask() == m_working);
}

void tst_SaveFailure::keepsRefusingUntilRead()
{
    OtherEditor other(m_store->path);
    const Tasks theirs = {{5, everyFieldTask(5)}};
    QVERIFY(other.save(theirs));
    QCOMPARE(m_store->host.trySave().problem, StoreProblem::MovedOn);
    QCOMPARE(m_store->host.trySave().problem, StoreProblem::MovedOn);

    SignalCounts counts;
    QVERIFY(counts.isValid());
    QVERIFY(m_store->host.reload());
    QCOMPARE(counts.take(), QStringLiteral("conflict, stored"));
    QVERIFY(m_store->manager.getgTaskMap() == theirs);
    QVERIFY(m_store->manager.getAllTask() == m_working);
    QVERIFY(m_store->host.hasUnsavedChanges());
    QVERIFY(m_store->host.trySave());
    QVERIFY(tasksInFile(m_store->path) == m_working);
    // Now the other one is behind.
    QCOMPARE(other.save({}).problem, StoreProblem::MovedOn);
}

void tst_SaveFailure::refusedWithNothingToSaveToo()
{
    m_store->manager.updateUItask();
    QVERIFY(!m_store->host.hasUnsavedChanges());
    QVERIFY(m_store->host.trySave());
    OtherEditor other(m_store->path);
    QVERIFY(other.save({}));
    QCOMPARE(m_store->host.trySave().problem, StoreProblem::MovedOn);
}

void tst_SaveFailure::replacingIsRefusedToo()
{
    OtherEditor other(m_store->path);
    QVERIFY(other.save({}));
    QCOMPARE(m_store->host.replaceSchedule({{1, everyFieldTask(1)}}).problem,
             StoreProblem::MovedOn);
    QVERIFY(m_store->manager.getAllTask() == m_working);
    QVERIFY(tasksInFile(m_store->path).empty());
}

void tst_SaveFailure::refreshTakesOverWhatTheOtherSaved()
{
    OtherEditor other(m_store->path);
    const Tasks theirs = {{2, everyFieldTask(2)}};
    QVERIFY(other.save(theirs));
    StoreContents contents;
    QVERIFY(other.database().addPrograms(samplePrograms(1, 77), contents).store);
    SignalCounts counts;
    QVERIFY(counts.isValid());
    QVERIFY(m_store->manager.getgTaskMap() == theirs);
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    m_store->manager.updateUItask();
    QVERIFY(m_store->manager.getAllTask() == theirs);
    QCOMPARE(m_store->manager.getProgramNameByProgIndex(4), std::string("program 77"));
    QVERIFY(m_store->host.trySave());
    QCOMPARE(counts.take(), QString());
}

void tst_SaveFailure::importsOfBothEditorsGetTheirOwnIndexes()
{
    OtherEditor other(m_store->path);
    StoreContents contents;
    QCOMPARE(other.database().addPrograms(samplePrograms(2, 10), contents).added,
             (std::vector<int>{4, 5}));
    // The second of these is known by now.
    const ImportResult result = m_store->host.addPrograms(samplePrograms(2, 11));
    QCOMPARE(result.updated, std::vector<int>{5});
    QCOMPARE(result.added, std::vector<int>{6});
    QCOMPARE(m_store->manager.getPrograms().size(), std::size_t(6));
    // The catalogue is no part of the schedule: no save is refused for it.
    QVERIFY(m_store->host.trySave());
}

void tst_SaveFailure::nothingToSaveLeavesTheOtherAlone()
{
    m_store->manager.updateUItask();
    OtherEditor other(m_store->path);
    QVERIFY(m_store->host.trySave());
    QVERIFY(other.save({}));
}

TREL_TEST(tst_SaveFailure, QCoreApplication)
#include "tst_SaveFailure.moc"
