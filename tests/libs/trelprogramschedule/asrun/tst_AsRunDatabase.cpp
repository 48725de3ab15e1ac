#include "AsRunSamples.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/asrun/AsRunHash.h"
#include "trelprogramschedule/asrun/AsRunSchedule.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

QByteArray bytesOf(const AsRunRecord& record)
{
    QByteArray bytes;
    writeAsRunBytes(record, bytes);
    return bytes;
}

} // namespace

class tst_AsRunDatabase : public QObject
{
    Q_OBJECT

private slots:
    void aNewOneIsForItsOwnerAlone();
    void aRecordIsReadAsItWasWritten();
    void eachScreenHasItsChain();
    void whatIsHandedInTwiceIsTakenOnce();
    void whatNeverCameIsNamed();
    void sourcesDoNotMeet();
    void aDayIsFoundByItsTime();
    void whatReachesIntoATimeIsFound();
    void aDayCostsByTheDay();
    void schedulesAreKeptOnce();
    void aLargeScheduleIsKept();
    void readingNeedsNoRightToWrite();
    void whatWasReplacedIsNotWritten();
    void foreignFilesStayAsTheyAre_data();
    void foreignFilesStayAsTheyAre();
};

void tst_AsRunDatabase::aNewOneIsForItsOwnerAlone()
{
    AsRunFixture fixture;
    QCOMPARE(QFileInfo(fixture.path).fileName(), QStringLiteral("schedule.db-as-run"));
    constexpr QFile::Permissions owner =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QCOMPARE(QFileInfo(fixture.path).permissions(), owner);
}

void tst_AsRunDatabase::aRecordIsReadAsItWasWritten()
{
    AsRunFixture fixture;
    AsRunRecord odd = sampleRecord(0);
    odd.kind = AsRunKind::Gap;
    odd.picture = ScreenPicture::Frozen;
    odd.run = 1LL << 40;
    odd.play = 77;
    odd.insertion = 12;
    odd.plannedBegin = kEver;
    odd.plannedEnd = kNever;
    odd.shown = AsRunShown::LastFrame;
    odd.outcome = AsRunOutcome::MachineHadStopped;
    odd.late = -5;
    odd.why = QStringLiteral("no such file");
    fixture.append({odd, AsRunRecord()});
    const std::vector<AsRunRecord> read = fixture.read(kAllNumbers);
    QCOMPARE(read.size(), std::size_t(2));
    QCOMPARE(read[0].number, 1);
    odd.number = 1;
    QCOMPARE(bytesOf(read[0]), bytesOf(odd));
    AsRunRecord empty;
    empty.number = 2;
    QCOMPARE(bytesOf(read[1]), bytesOf(empty));
    AsRunHasher hasher;
    QCOMPARE(read[0].hash, hasher.hash(asRunFirstHash(QStringLiteral("hall")), odd));
    QCOMPARE(read[1].hash, hasher.hash(read[0].hash, empty));
}

void tst_AsRunDatabase::eachScreenHasItsChain()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(3), 1, QStringLiteral("hall"), "one");
    fixture.append(sampleRecords(2), 1, QStringLiteral("bar"), "two");
    fixture.append(sampleRecords(1, 3), 4, QStringLiteral("hall"), "one");
    QCOMPARE(fixture.screen(0).name, QStringLiteral("bar"));
    QCOMPARE(fixture.screen(0).lastNumber, 2);
    QCOMPARE(fixture.screen(1).lastNumber, 4);
    QCOMPARE(fixture.screen(1).firstStored, 1);
    QCOMPARE(fixture.screen(1).lastStored, 4);
    const auto hall = fixture.read(kAllNumbers);
    QCOMPARE(hall.size(), std::size_t(4));
    QCOMPARE(hall.back().hash, fixture.screen(1).lastHash);
    QVERIFY(fixture.read(kAllNumbers, QStringLiteral("bar")).front().hash != hall.front().hash);
    QVERIFY(fixture.read(kAllNumbers, QStringLiteral("none")).empty());
}

void tst_AsRunDatabase::whatIsHandedInTwiceIsTakenOnce()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(3));
    fixture.append(sampleRecords(3));
    fixture.append(sampleRecords(4, 1), 2);
    fixture.append(sampleRecords(1, 1), 2);
    fixture.append(sampleRecords(4, 1), 2);
    const auto read = fixture.read(kAllNumbers);
    QCOMPARE(read.size(), std::size_t(5));
    for (std::size_t at = 0; at < read.size(); ++at) {
        QCOMPARE(read[at].number, static_cast<qint64>(at) + 1);
        QCOMPARE(read[at].begins, sampleRecord(static_cast<int>(at)).begins);
    }
}

void tst_AsRunDatabase::whatNeverCameIsNamed()
{
    AsRunFixture fixture;
    // Nothing is known of the time before the first.
    fixture.append(sampleRecords(2, 5), 6);
    fixture.append(sampleRecords(2, 10), 11);
    fixture.append(sampleRecords(1, 12), 13);
    // Of which some have come.
    fixture.append(sampleRecords(3, 11), 12);
    AsRunRecord afterStart = sampleRecord(20);
    afterStart.boot = QByteArray(16, 'c');
    fixture.append({afterStart}, 21);
    const auto read = fixture.read(kAllNumbers);
    QCOMPARE(read.size(), std::size_t(9));
    const AsRunRecord& gap = read[2];
    QCOMPARE(gap.kind, AsRunKind::Gap);
    QCOMPARE(gap.outcome, AsRunOutcome::NotRecorded);
    QCOMPARE(gap.why, QStringLiteral("Records that were handed in are missing: 3."));
    QCOMPARE(gap.number, 3);
    QCOMPARE(gap.schedule, read[1].schedule);
    QCOMPARE(gap.begins, sampleRecord(6).ends);
    QCOMPARE(gap.ends, sampleRecord(10).begins);
    QCOMPARE(gap.steadyBegin, sampleRecord(6).steadyEnd);
    QCOMPARE(gap.steadyEnd, sampleRecord(10).steadyBegin);
    QCOMPARE(read[6].begins, sampleRecord(13).begins);
    QCOMPARE(read[7].kind, AsRunKind::Gap);
    QCOMPARE(read[7].boot, afterStart.boot);
    QCOMPARE(read[7].steadyBegin, afterStart.steadyBegin);
    AsRunHasher hasher;
    for (std::size_t at = 1; at < read.size(); ++at) {
        QCOMPARE(read[at].hash, hasher.hash(read[at - 1].hash, read[at]));
    }
}

void tst_AsRunDatabase::sourcesDoNotMeet()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(2), 1, QStringLiteral("hall"), "one");
    fixture.append(sampleRecords(2, 2), 1, QStringLiteral("hall"), "two");
    AsRunDatabase other;
    QVERIFY(other.open(fixture.path, StoreOpenMode::MustExist));
    QVERIFY(other.append(QStringLiteral("hall"), "one", 3, sampleRecords(1, 4), {}));
    const auto read = fixture.read(kAllNumbers);
    QCOMPARE(read.size(), std::size_t(5));
    AsRunHasher hasher;
    QCOMPARE(read[4].hash, hasher.hash(read[3].hash, read[4]));
}

void tst_AsRunDatabase::aDayIsFoundByItsTime()
{
    AsRunFixture fixture;
    std::vector<AsRunRecord> records = sampleRecords(1000);
    fixture.append(records);
    QRandomGenerator random(5);
    for (int round = 0; round < 300; ++round) {
        const Instant from = kAsRunStart - 50'000 + random.bounded(10'100'000);
        const Instant to = from + random.bounded(100'000);
        AsRunNumbers expected;
        for (std::size_t at = 0; at < records.size(); ++at) {
            const bool isOn = records[at].ends > from && records[at].begins < to;
            if (isOn && to > from) {
                const qint64 number = static_cast<qint64>(at) + 1;
                expected.first = expected.isEmpty() ? number : expected.first;
                expected.last = number;
            }
        }
        AsRunNumbers found;
        QVERIFY(fixture.database.numbersIn(QStringLiteral("hall"), from, to, found));
        if (to > from) {
            QCOMPARE(found.isEmpty(), expected.isEmpty());
            QVERIFY(found.isEmpty() ||
                    (found.first == expected.first && found.last == expected.last));
        }
    }
}

void tst_AsRunDatabase::whatReachesIntoATimeIsFound()
{
    AsRunFixture fixture;
    AsRunRecord lasting = sampleRecord(0);
    lasting.ends = lasting.begins + 40'000'000;
    AsRunRecord taken;
    taken.kind = AsRunKind::ScheduleTaken;
    taken.begins = taken.ends = lasting.begins + 1000;
    AsRunRecord next = sampleRecord(1);
    next.begins = lasting.ends;
    next.ends = next.begins + 10;
    fixture.append({sampleRecord(0), lasting, taken, taken, next});
    AsRunNumbers found;
    QVERIFY(fixture.database.numbersIn(QStringLiteral("hall"), lasting.begins + 20'000'000,
                                       lasting.begins + 20'000'001, found));
    QCOMPARE(found.first, 2);
    QCOMPARE(found.last, 2);
    QVERIFY(fixture.database.numbersIn(QStringLiteral("hall"), lasting.ends, next.ends, found));
    QCOMPARE(found.first, 5);
    QCOMPARE(found.last, 5);
}

void tst_AsRunDatabase::aDayCostsByTheDay()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(30'000));
    const qint64 before = fixture.database.rowsRead();
    AsRunNumbers found;
    QVERIFY(fixture.database.numbersIn(QStringLiteral("hall"), kAsRunStart + 100'000'000,
                                       kAsRunStart + 101'000'000, found));
    QCOMPARE(fixture.read(found).size(), std::size_t(101));
    QCOMPARE(fixture.database.rowsRead() - before, 101);
}

void tst_AsRunDatabase::schedulesAreKeptOnce()
{
    AsRunFixture fixture;
    AsRunSchedule schedule;
    schedule.zone = "Europe/Berlin";
    schedule.start = EffectStart{5, 6, QStringLiteral("me@here")};
    PlayTask& task = schedule.tasks[4];
    task.id = 4;
    task.startDate = "2026-01-01";
    task.endDate = "2026-12-31";
    task.plans.resize(1);
    task.plans[0].id = 2;
    task.plans[0].programs.resize(1);
    task.plans[0].programs[0].progIndex = 7;
    schedule.catalogue[7].progIndex = 7;
    schedule.catalogue[7].progName = "seven";
    schedule.catalogue[7].durationMs = 1234.5678;
    schedule.catalogue[8].progName = "eight";
    ScreenInsertion& insertion = schedule.insertions.emplace_back();
    insertion.taskId = 4;
    insertion.planId = 2;
    insertion.plan = task.plans[0];
    insertion.requested = 1;
    insertion.begins = 2;
    insertion.ends = kNever;
    insertion.number = 9;
    insertion.askedBy = QStringLiteral("you");
    const QByteArray contents = asRunContents(schedule);
    QVERIFY(fixture.database.append(QStringLiteral("hall"), "player", 1, {}, {contents, contents}));
    QVERIFY(fixture.database.append(QStringLiteral("hall"), "player", 1, {}, {contents}));

    QByteArray read;
    QVERIFY(fixture.database.readContents(asRunScheduleHash(contents), read));
    QCOMPARE(read, contents);
    QVERIFY(fixture.database.readContents(QByteArray(32, 'x'), read));
    QVERIFY(read.isEmpty());

    const std::optional<AsRunSchedule> back = asRunSchedule(contents);
    QVERIFY(back);
    QVERIFY(back->start == schedule.start);
    QVERIFY(back->tasks == schedule.tasks);
    QCOMPARE(back->zone, schedule.zone);
    QCOMPARE(back->catalogue.size(), std::size_t(1));
    QCOMPARE(back->catalogue.at(7).progName, std::string("seven"));
    QCOMPARE(back->catalogue.at(7).durationMs, 1234.5678);
    QCOMPARE(back->insertions.size(), std::size_t(1));
    QCOMPARE(back->insertions[0].number, 9);
    QCOMPARE(back->insertions[0].ends, kNever);
    QVERIFY(back->insertions[0].plan == insertion.plan);
    for (int size = 0; size < contents.size(); ++size) {
        QVERIFY(!asRunSchedule(contents.left(size)));
    }
    QVERIFY(!asRunSchedule(contents + 'x'));
}

void tst_AsRunDatabase::aLargeScheduleIsKept()
{
    AsRunFixture fixture;
    QRandomGenerator random(7);
    QByteArray contents(3'000'000, '\0');
    for (char& byte : contents) {
        byte = static_cast<char>(random.generate());
    }
    QVERIFY(fixture.database.append(QStringLiteral("hall"), "player", 1, {}, {contents}));
    QByteArray read;
    QVERIFY(fixture.database.readContents(asRunScheduleHash(contents), read));
    QCOMPARE(read, contents);
}

void tst_AsRunDatabase::readingNeedsNoRightToWrite()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(3));
    fixture.database.close();
    QVERIFY(QFile::setPermissions(fixture.path, QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(fixture.folder.path(), QFile::ReadOwner | QFile::ExeOwner));
    fixture.open(StoreOpenMode::ReadOnly);
    QCOMPARE(fixture.read(kAllNumbers).size(), std::size_t(3));
    QCOMPARE(fixture.database.append(QStringLiteral("hall"), "player", 4, {}, {}).problem,
             StoreProblem::ReadOnly);
    QCOMPARE(AsRunDatabase().open(fixture.path, StoreOpenMode::MustExist).problem,
             StoreProblem::ReadOnly);
    QVERIFY(QFile::setPermissions(fixture.folder.path(),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_AsRunDatabase::whatWasReplacedIsNotWritten()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(1));
    QVERIFY(QFile::remove(fixture.path));
    QCOMPARE(fixture.database.append(QStringLiteral("hall"), "player", 2, {}, {}).cause.code,
             FaultCode::FileReplaced);
    fixture.open(StoreOpenMode::CreateIfMissing);
    fixture.append(sampleRecords(1));
    QCOMPARE(fixture.read(kAllNumbers).size(), std::size_t(1));
}

void tst_AsRunDatabase::foreignFilesStayAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<int>("problem");
    AsRunFixture fixture;
    fixture.append(sampleRecords(2));
    fixture.database.close();
    QFile file(fixture.path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    const auto changed = [&](int place, char byte) {
        QByteArray bytes = whole;
        bytes[place] = byte;
        return bytes;
    };
    const auto number = [](StoreProblem problem) { return static_cast<int>(problem); };
    QTest::newRow("text") << QByteArray("no database, but long enough for a head of one; it has "
                                        "more than a hundred bytes, as a head has, and so on.")
                          << number(StoreProblem::NotADatabase);
    QTest::newRow("other program") << changed(71, 'S') << number(StoreProblem::Foreign);
    QTest::newRow("newer") << changed(63, 2) << number(StoreProblem::NewerSchema);
    QByteArray altered = whole;
    altered.replace("record_time", "record_tune");
    QTest::newRow("another index") << altered << number(StoreProblem::Damaged);
    QTest::newRow("cut off") << whole.left(4096) << number(StoreProblem::Damaged);
}

void tst_AsRunDatabase::foreignFilesStayAsTheyAre()
{
    QFETCH(const QByteArray, contents);
    QFETCH(const int, problem);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store-as-run"));
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    const FolderSnapshot before(folder.path());
    for (const StoreOpenMode mode :
         {StoreOpenMode::CreateIfMissing, StoreOpenMode::MustExist, StoreOpenMode::ReadOnly}) {
        AsRunDatabase database;
        QCOMPARE(static_cast<int>(database.open(path, mode).problem), problem);
        QVERIFY(!database.isOpen());
    }
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
}

TREL_TEST(tst_AsRunDatabase, QCoreApplication)
#include "tst_AsRunDatabase.moc"
