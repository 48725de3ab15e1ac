#include "ScheduleService.h"
#include "StoreFixture.h"
#include "effect/OtherProgram.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/merge/ScheduleMerge.h"

#include <QCoreApplication>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

using Tasks = std::map<int, PlayTask>;

/// What the next save is held against.
const Tasks& base()
{
    return ScheduleService::instance().state().tasks.stored();
}

} // namespace

/// A save that met that of another program, and goes on from there.
class tst_MergedSave : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void readsTheOtherBesideWhatIsEdited();
    void knowsTheProgramsOfTheOther();
    void savesOnTopOfTheOther();
    void meetsAThird();
    void mergesWithNothingThatIsUnknown();
    void worksOutWhatFollows();

private:
    std::unique_ptr<StoreFixture> m_store;
    std::unique_ptr<OtherProgram> m_other;
    Tasks m_base;
    Tasks m_mine;
};

void tst_MergedSave::init()
{
    m_store = std::make_unique<StoreFixture>();
    QVERIFY(m_store->host.addPrograms(samplePrograms(3)).store);
    m_store->save(sampleSchedule(3, 2, 3));
    m_base = base();
    m_mine = m_base;
    m_mine.at(1).endDate = "2031.01.01";
    m_store->manager.addTask(m_mine.at(1));
    m_other = std::make_unique<OtherProgram>(m_store->path);
}

void tst_MergedSave::cleanup()
{
    m_other.reset();
    m_store.reset();
}

void tst_MergedSave::readsTheOtherBesideWhatIsEdited()
{
    Tasks theirs = m_base;
    theirs.at(2).endDate = "2032.02.02";
    m_other->save(theirs);
    ScheduleVersion version;
    Tasks tasks;
    QVERIFY(m_store->host.readNewestSave(version, tasks));
    QCOMPARE(version.number, qint64(2));
    QVERIFY(tasks == theirs);
    QVERIFY(base() == m_base);
    QVERIFY(m_store->host.workingSet() == m_mine);
    QCOMPARE(m_store->host.trySave().problem, StoreProblem::MovedOn);
}

void tst_MergedSave::knowsTheProgramsOfTheOther()
{
    StoreContents contents;
    const ImportResult added = m_other->database().addPrograms(samplePrograms(1, 9), contents);
    QCOMPARE(added.added.size(), std::size_t(1));
    Tasks theirs = m_base;
    theirs.at(2).plans[0].programs[0].progIndex = added.added[0];
    m_other->save(theirs);
    ScheduleVersion version;
    Tasks tasks;
    QVERIFY(m_store->host.readNewestSave(version, tasks));
    QVERIFY(!tasks.at(2).plans[0].programs[0].isInvalid);
    QVERIFY(tasks == theirs);
}

void tst_MergedSave::savesOnTopOfTheOther()
{
    Tasks theirs = m_base;
    theirs.erase(3);
    theirs.at(2).plans[1].programs.pop_back();
    m_other->save(theirs);
    ScheduleVersion version;
    Tasks tasks;
    QVERIFY(m_store->host.readNewestSave(version, tasks));
    const Tasks merged = ScheduleMerge(base(), tasks, m_store->host.workingSet()).merged({});
    QSignalSpy stored(&m_store->host, &ScheduleHost::storedSetChanged);
    QVERIFY(stored.isValid());

    QVERIFY(m_store->host.mergeWith(version.number, merged));
    QCOMPARE(stored.count(), 1);
    QVERIFY(base() == theirs);
    QVERIFY(m_store->host.workingSet() == merged);
    QVERIFY(m_store->host.hasUnsavedChanges());
    // Nothing was written yet.
    StoreContents contents;
    QVERIFY(m_other->database().read(StorePart::Schedule, contents));
    QVERIFY(contents.tasks == theirs);

    QVERIFY(m_store->host.trySave());
    Tasks expected = theirs;
    expected[1] = m_mine.at(1);
    QVERIFY(m_other->database().read(StorePart::Schedule, contents));
    QVERIFY(contents.tasks == expected);
    // What the other saved is a version, whole.
    QVERIFY(m_store->host.versionTasks(2, tasks));
    QVERIFY(tasks == theirs);
}

void tst_MergedSave::meetsAThird()
{
    Tasks theirs = m_base;
    theirs.at(2).endDate = "2032.02.02";
    m_other->save(theirs);
    ScheduleVersion version;
    Tasks tasks;
    QVERIFY(m_store->host.readNewestSave(version, tasks));
    const Tasks merged = ScheduleMerge(base(), tasks, m_store->host.workingSet()).merged({});
    Tasks third = theirs;
    third.at(3).endDate = "2033.03.03";
    m_other->save(third);

    // What was read is still what is merged, whatever was saved since.
    QVERIFY(m_store->host.mergeWith(version.number, merged));
    QVERIFY(base() == theirs);
    QCOMPARE(m_store->host.trySave().problem, StoreProblem::MovedOn);
    QVERIFY(m_store->host.readNewestSave(version, tasks));
    QCOMPARE(version.number, qint64(3));
    const ScheduleMerge again(base(), tasks, m_store->host.workingSet());
    QVERIFY(again.conflicts().empty());
    QVERIFY(m_store->host.mergeWith(version.number, again.merged({})));
    QVERIFY(m_store->host.trySave());
    StoreContents contents;
    QVERIFY(m_other->database().read(StorePart::Schedule, contents));
    third.at(1) = m_mine.at(1);
    QVERIFY(contents.tasks == third);
}

void tst_MergedSave::mergesWithNothingThatIsUnknown()
{
    QSignalSpy stored(&m_store->host, &ScheduleHost::storedSetChanged);
    QVERIFY(stored.isValid());
    const StoreResult result = m_store->host.mergeWith(7, {});
    QCOMPARE(result.problem, StoreProblem::Other);
    QCOMPARE(result.cause.code, FaultCode::VersionUnknown);
    QCOMPARE(stored.count(), 0);
    QVERIFY(base() == m_base);
    QVERIFY(m_store->host.workingSet() == m_mine);
    QVERIFY(m_store->host.trySave());
}

void tst_MergedSave::worksOutWhatFollows()
{
    Tasks theirs = m_base;
    theirs.at(2).endDate = "2032.02.02";
    m_other->save(theirs);
    StoreRevision revision;
    QVERIFY(m_other->database().removePrograms({1}, revision));
    ScheduleVersion version;
    Tasks tasks;
    QVERIFY(m_store->host.readNewestSave(version, tasks));
    QVERIFY(tasks.at(2).plans[0].programs[0].isInvalid);
    const ScheduleMerge merge(base(), tasks, m_store->host.workingSet());
    // That a program has gone is no edit of anybody.
    QVERIFY(merge.conflicts().empty());
    QVERIFY(m_store->host.mergeWith(version.number, merge.merged({})));
    for (const auto& [id, task] : m_store->host.workingSet()) {
        QVERIFY2(task.plans[0].programs[0].isInvalid, qPrintable(QString::number(id)));
    }
    QVERIFY(m_store->host.trySave());
}

TREL_TEST(tst_MergedSave, QCoreApplication)
#include "tst_MergedSave.moc"
