#include "libs/trelprogramschedule/StoreFixture.h"
#include "store/ScheduleDatabase.h"
#include "support/TestProgram.h"

#include <QCoreApplication>

using namespace trel::mediadispatch;

/// What one program reads and writes by itself, where the service always asks in the same order.
class tst_ScheduleDatabase : public QObject
{
    Q_OBJECT

private slots:
    void whatWasNotLookedAtIsRead();
    void countsItsWritingsUp();
};

// A store that was opened for its catalogue may be asked for its tasks.
void tst_ScheduleDatabase::whatWasNotLookedAtIsRead()
{
    StoreFixture store;
    QVERIFY(
        store.host.addPrograms({{QStringLiteral("one"), QStringLiteral("rtsp://host/1")}}).store);
    QVERIFY(store.host.replaceSchedule(sampleSchedule(2, 2, 1)));
    ScheduleDatabase database;
    for (const StorePart looked : {StorePart::Catalogue, StorePart::Schedule, StorePart::Both}) {
        QVERIFY(database.open(store.path, StoreOpenMode::MustExist, looked));
        StoreContents contents;
        QVERIFY(database.read(StorePart::Both, contents));
        QCOMPARE(contents.tasks.size(), std::size_t(2));
        QCOMPARE(contents.programs.size(), std::size_t(1));
    }
}

void tst_ScheduleDatabase::countsItsWritingsUp()
{
    StoreFixture store;
    ScheduleDatabase database;
    QVERIFY(database.open(store.path, StoreOpenMode::MustExist));
    StoredEffect effect;
    QVERIFY(database.startEffect({}, effect));
    ScreenInsertions none;
    qint64 revision = effect.revision;
    for (qint64 writings = 1; writings <= 3; ++writings) {
        QVERIFY(database.writeInsertions(none, revision));
        QCOMPARE(revision, effect.revision + writings);
        StoreRevision stored;
        QVERIFY(database.readRevision(stored));
        QCOMPARE(stored.effect, revision);
    }
    // Names too, or a log of another copy of the file would pass for one of it.
    for (qint64 names = 1; names <= 2; ++names) {
        QVERIFY(database.nameVersion(0, QStringLiteral("name"), QString()));
        StoreRevision stored;
        QVERIFY(database.readRevision(stored));
        QCOMPARE(stored.names, names);
        QCOMPARE(stored.effect, revision);
        QCOMPARE(stored.schedule, 0);
    }
    qint64 former = revision - 1;
    QCOMPARE(database.writeInsertions(none, former).problem, StoreProblem::MovedOn);
    QCOMPARE(former, revision - 1);
}

TREL_TEST(tst_ScheduleDatabase, QCoreApplication)
#include "tst_ScheduleDatabase.moc"
