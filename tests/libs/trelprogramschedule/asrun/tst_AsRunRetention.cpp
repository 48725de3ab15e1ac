#include "AsRunSamples.h"
#include "AsRunTampering.h"
#include "support/FaultyDisk.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/asrun/AsRunSchedule.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QtTest>

#include <atomic>
#include <cerrno>
#include <thread>

using namespace trel::mediadispatch;

namespace {

const QString kHall = QStringLiteral("hall");

AsRunVerdict verdictOf(AsRunFixture& fixture)
{
    AsRunVerdict verdict;
    [&] { QVERIFY(verifyAsRun(fixture.database, fixture.screen(), kEver, kNever, verdict)); }();
    return verdict;
}

qint64 removeBefore(AsRunFixture& fixture, Instant before, int& batches)
{
    qint64 all = 0;
    qint64 removed = 0;
    do {
        [&] { QVERIFY(fixture.database.removeBefore(kHall, before, removed)); }();
        all += removed;
        batches += removed > 0 ? 1 : 0;
    } while (removed > 0);
    return all;
}

qint64 removeBefore(AsRunFixture& fixture, Instant before)
{
    int batches = 0;
    return removeBefore(fixture, before, batches);
}

QByteArray contentsOf(int number)
{
    AsRunSchedule schedule;
    schedule.zone = "UTC";
    schedule.start = EffectStart{number, number, QString()};
    return asRunContents(schedule);
}

AsRunRecord taken(const QByteArray& contents, Instant moment)
{
    AsRunRecord record;
    record.kind = AsRunKind::ScheduleTaken;
    record.schedule = asRunScheduleHash(contents);
    record.begins = record.ends = moment;
    return record;
}

} // namespace

/// What becomes of old records, and of writing where others write, or where nothing can be written.
class tst_AsRunRetention : public QObject
{
    Q_OBJECT

private slots:
    void oldRecordsGoAndTheRestIsWhole();
    void itGoesInSmallSteps();
    void allCanGo();
    void schedulesThatAreNeededStay();
    void manyWriteAtOnce();
    void aFullDiskLeavesItAsItWas();
    void aFailureAtAnyCallLeavesItWhole();
};

void tst_AsRunRetention::oldRecordsGoAndTheRestIsWhole()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(1000));
    const QByteArray last = fixture.screen().lastHash;
    QCOMPARE(removeBefore(fixture, sampleRecord(400).begins), 399);
    AsRunScreen screen = fixture.screen();
    QCOMPARE(screen.anchorNumber, 399);
    QCOMPARE(screen.firstStored, 400);
    QCOMPARE(screen.lastNumber, 1000);
    QCOMPARE(screen.lastHash, last);
    QVERIFY(verdictOf(fixture).breaks.empty());
    QCOMPARE(removeBefore(fixture, sampleRecord(400).begins), 0);
    fixture.append(sampleRecords(10, 1000), 1001);
    QVERIFY(verdictOf(fixture).breaks.empty());
    QCOMPARE(fixture.screen().lastNumber, 1010);
    tamper(fixture.path, {QStringLiteral("DELETE FROM record WHERE number = 400")});
    const AsRunVerdict verdict = verdictOf(fixture);
    QCOMPARE(verdict.breaks.size(), std::size_t(1));
    QCOMPARE(verdict.breaks[0].first, 400);
}

void tst_AsRunRetention::itGoesInSmallSteps()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(10'000));
    int batches = 0;
    QCOMPARE(removeBefore(fixture, sampleRecord(9000).begins, batches), 8999);
    QCOMPARE(batches, 3);
    QVERIFY(verdictOf(fixture).breaks.empty());
}

void tst_AsRunRetention::allCanGo()
{
    AsRunFixture fixture;
    fixture.append(sampleRecords(20));
    QCOMPARE(removeBefore(fixture, kNever), 20);
    QVERIFY(verdictOf(fixture).isGood());
    fixture.append(sampleRecords(5, 20), 21);
    QVERIFY(verdictOf(fixture).breaks.empty());
    QCOMPARE(fixture.screen().lastNumber, 25);
}

void tst_AsRunRetention::schedulesThatAreNeededStay()
{
    AsRunFixture fixture;
    std::vector<AsRunRecord> records;
    std::vector<QByteArray> contents;
    for (int count = 0; count < 4; ++count) {
        contents.push_back(contentsOf(count));
        records.push_back(taken(contents.back(), sampleRecord(10 * count).begins));
        for (AsRunRecord record : sampleRecords(10, 10 * count)) {
            record.schedule = asRunScheduleHash(contents.back());
            records.push_back(record);
        }
    }
    QVERIFY(fixture.database.append(kHall, "player", 1, records, contents));
    const auto isKept = [&](int count) {
        QByteArray read;
        fixture.database.readContents(asRunScheduleHash(contents[std::size_t(count)]), read);
        return !read.isEmpty();
    };
    removeBefore(fixture, sampleRecord(15).begins);
    QVERIFY(!isKept(0) && isKept(1) && isKept(2) && isKept(3));
    QCOMPARE(fixture.screen().anchorSchedule, asRunScheduleHash(contents[1]));
    removeBefore(fixture, sampleRecord(35).begins);
    QVERIFY(!isKept(1) && !isKept(2) && isKept(3));
}

void tst_AsRunRetention::manyWriteAtOnce()
{
    AsRunFixture fixture;
    constexpr int writers = 4;
    constexpr int each = 40;
    std::vector<std::thread> threads;
    std::atomic<int> refusals{0};
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([&, writer] {
            AsRunDatabase database;
            // The others may keep it busy for longer than it is waited for.
            int openings = 0;
            StoreResult opened;
            do {
                opened = database.open(fixture.path, StoreOpenMode::MustExist);
            } while (opened.problem == StoreProblem::Locked && ++openings < 20);
            if (!opened) {
                qWarning("%s", qPrintable(englishText(opened)));
                ++refusals;
            }
            for (int at = 0; at < each; ++at) {
                // Two of them have the same screen; what is refused is handed in once more.
                const QString screen = QStringLiteral("screen %1").arg(writer / 2);
                const QByteArray source = QByteArray::number(writer);
                const std::vector<AsRunRecord> records = {sampleRecord(at)};
                int tries = 0;
                while (!database.append(screen, source, at + 1, records, {}) && ++tries < 50) {
                }
                refusals += tries == 50 ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QCOMPARE(refusals.load(), 0);
    std::vector<AsRunScreen> screens;
    QVERIFY(fixture.database.screens(screens));
    QCOMPARE(screens.size(), std::size_t(writers / 2));
    for (const AsRunScreen& screen : screens) {
        QCOMPARE(screen.lastNumber, 2 * each);
        AsRunVerdict verdict;
        QVERIFY(verifyAsRun(fixture.database, screen, kEver, kNever, verdict));
        QVERIFY(verdict.breaks.empty());
    }
}

void tst_AsRunRetention::aFullDiskLeavesItAsItWas()
{
    FaultyDisk disk;
    AsRunFixture fixture;
    fixture.append(sampleRecords(10));
    disk.fail(FaultyDisk::Write, 1, FaultyDisk::Lasting::ForGood, ENOSPC);
    const StoreResult result =
        fixture.database.append(kHall, "player", 11, sampleRecords(10, 10), {});
    QCOMPARE(static_cast<int>(result.problem), static_cast<int>(StoreProblem::DiskFull));
    disk.heal();
    QCOMPARE(fixture.read(kAllNumbers).size(), std::size_t(10));
    fixture.append(sampleRecords(10, 10), 11);
    QCOMPARE(fixture.read(kAllNumbers).size(), std::size_t(20));
    QVERIFY(verdictOf(fixture).breaks.empty());
    fixture.database.close();
}

void tst_AsRunRetention::aFailureAtAnyCallLeavesItWhole()
{
    for (const FaultyDisk::Call call : {FaultyDisk::Write, FaultyDisk::Sync, FaultyDisk::Delete}) {
        bool hasFailed = true;
        for (int nth = 1; hasFailed; ++nth) {
            FaultyDisk disk;
            AsRunFixture fixture;
            fixture.append(sampleRecords(10));
            disk.fail(call, nth, FaultyDisk::Lasting::Once, EIO);
            const bool isTaken =
                bool(fixture.database.append(kHall, "player", 11, sampleRecords(10, 10), {}));
            hasFailed = disk.hasFailed();
            disk.heal();
            QVERIFY(hasFailed || isTaken);
            QCOMPARE(fixture.read(kAllNumbers).size(), std::size_t(isTaken ? 20 : 10));
            fixture.append(sampleRecords(10, 10), 11);
            QCOMPARE(fixture.read(kAllNumbers).size(), std::size_t(20));
            QVERIFY(verdictOf(fixture).breaks.empty());
            fixture.database.close();
        }
    }
}

TREL_TEST(tst_AsRunRetention, QCoreApplication)
#include "tst_AsRunRetention.moc"
