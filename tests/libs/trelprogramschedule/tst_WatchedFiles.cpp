#include "ScheduleHost.h"
#include "SignalCounts.h"
#include "StoreFixture.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/dispatch/ScreenDispatch.h"

#include <QCoreApplication>
#include <QtTest>

#include <tuple>

using namespace trel::mediadispatch;

/// The service while it watches the files of its programs.
class tst_WatchedFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void goesAndComesBack();
    void followsTheCatalogue();
    void theScreenTurnsBlack();
    void goesBehindARefresh();

private:
    QString touch(const QString& name) const
    {
        QFile file(m_store->folder.filePath(name));
        [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
        return file.fileName();
    }
    bool isThere(int progIndex) const
    {
        return !m_store->manager.getProgramItemByIndex(progIndex).isNull;
    }
    QString import(const QString& name) const
    {
        const QString path = touch(name);
        [&] {
            QVERIFY(m_store->host.addPrograms({{name, path, 1000.0, ProgramKind::Video}}).store);
        }();
        return path;
    }

    std::unique_ptr<StoreFixture> m_store;
};

void tst_WatchedFiles::init()
{
    m_store = std::make_unique<StoreFixture>();
    m_store->host.watchFiles();
}

void tst_WatchedFiles::cleanup()
{
    m_store->host.watchFiles(false);
    m_store.reset();
}

void tst_WatchedFiles::goesAndComesBack()
{
    const QString film = import(QStringLiteral("film"));
    m_store->save(sampleSchedule(1, 1, 1));
    SignalCounts counts;
    QVERIFY(counts.isValid());

    QVERIFY(QFile::remove(film));
    QTRY_VERIFY(!isThere(1));
    // Neither lengths nor the stored set are touched, and the name stays.
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    QCOMPARE(m_store->manager.getProgramNameByProgIndex(1), std::string("film"));
    QVERIFY(!m_store->host.hasUnsavedChanges());

    touch(QStringLiteral("film"));
    QTRY_VERIFY(isThere(1));
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
}

/// Programs that are taken in are watched, those of a store that was closed are not.
void tst_WatchedFiles::followsTheCatalogue()
{
    import(QStringLiteral("one"));
    const QString two = import(QStringLiteral("two"));
    QVERIFY(m_store->host.removeProgram(1));
    QVERIFY(QFile::remove(two));
    QTRY_VERIFY(!isThere(2));

    m_store->restart();
    touch(QStringLiteral("two"));
    QTRY_VERIFY(isThere(2));
    m_store->host.watchFiles();
    QVERIFY(QFile::remove(two));
    QTRY_VERIFY(!isThere(2));
    m_store->host.close();
    QVERIFY(m_store->manager.getPrograms().empty());
}

void tst_WatchedFiles::theScreenTurnsBlack()
{
    const QString film = import(QStringLiteral("film"));
    PlayPlan plan = samplePlan(1, 0);
    plan.startTime = kDayStart;
    plan.endTime = kDayEnd;
    plan.weeks.clear();
    plan.programs = {{1, false, "film", 1}};
    PlayTask task = everyFieldTask(1);
    task.startDate = "2000.01.01";
    task.endDate = "2999.12.31";
    task.plans = {plan};
    m_store->save({{1, task}});
    m_store->manager.slotOpen();
    const ScreenDispatch& dispatch = m_store->host.dispatch();
    QVERIFY(dispatch.state().reason == ScreenReason::PlanPlays);
    QSignalSpy changes(&dispatch, &ScreenDispatch::changed);
    QVERIFY(changes.isValid());

    QVERIFY(QFile::remove(film));
    QTRY_VERIFY(dispatch.state().reason == ScreenReason::PlanHasNothing);
    QVERIFY(!changes.isEmpty());
    touch(QStringLiteral("film"));
    QTRY_VERIFY(dispatch.state().reason == ScreenReason::PlanPlays);
}

/// A refresh that has the files looked at does not make the watch believe what is not so.
void tst_WatchedFiles::goesBehindARefresh()
{
    const QString film = import(QStringLiteral("film"));
    for (int round = 0; round < 3; ++round) {
        QVERIFY(QFile::remove(film));
        m_store->manager.getgTaskMap();
        QTRY_VERIFY(!isThere(1));
        touch(QStringLiteral("film"));
        QTRY_VERIFY(isThere(1));
    }
}

TREL_TEST(tst_WatchedFiles, QCoreApplication)
#include "tst_WatchedFiles.moc"
