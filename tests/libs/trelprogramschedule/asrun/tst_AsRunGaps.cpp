#include "VerifiedRecords.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <algorithm>

using namespace trel::mediadispatch;

/// Times without a player, and times without a record.
class tst_AsRunGaps : public QObject
{
    Q_OBJECT

private slots:
    void aHoleIsNamedOnce();
    void aGapIsAsLongAsItSays();
    void aLateOneThatWentWithAKill();
    void whatGoesOnBehindASleep();
    void whatNeverCameIsAGap();
    void aLeapOfTheClockInAGap_data();
    void aLeapOfTheClockInAGap();
};

void tst_AsRunGaps::aHoleIsNamedOnce()
{
    std::vector<AsRunRecord> records = plainRecords();
    const Instant from = records[3].begins;
    const Instant to = records[8].begins;
    records.erase(records.begin() + 3, records.begin() + 8);
    AsRunFixture fixture;
    const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
    QCOMPARE(verdict.deviationCount, 1);
    QCOMPARE(verdict.deviations[0].from, from);
    QCOMPARE(verdict.deviations[0].to, to);
    QCOMPARE(verdict.times.unexplained, to - from);
}

void tst_AsRunGaps::aGapIsAsLongAsItSays()
{
    // Within a play, up to its end, and into the next one.
    for (const int length : {2000, 7000, 9000}) {
        std::vector<AsRunRecord> records = plainRecords();
        AsRunRecord before = records[3];
        before.ends = before.begins + 3000;
        before.outcome = AsRunOutcome::CutByKill;
        AsRunRecord gap;
        gap.kind = AsRunKind::Gap;
        gap.outcome = AsRunOutcome::PlayerWasKilled;
        gap.schedule = before.schedule;
        gap.begins = before.ends;
        gap.ends = gap.begins + length;
        std::vector<AsRunRecord> parts{before, gap};
        if (gap.ends < records[3].ends) {
            parts.push_back(records[3]);
            parts.back().begins = gap.ends;
        }
        records[4].begins = std::max(records[4].begins, gap.ends);
        records.erase(records.begin() + 3);
        records.insert(records.begin() + 3, parts.begin(), parts.end());
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
        QVERIFY2(verdict.isGood(), qPrintable(textOf(verdict)));
        QCOMPARE(verdict.times.gaps, length);
        QCOMPARE(verdict.times.asPlanned, 140'000 - length);
    }
}

void tst_AsRunGaps::aLateOneThatWentWithAKill()
{
    for (const auto& [late, outcome, isGood] :
         {std::tuple(46, AsRunOutcome::PlayerWasKilled, true),
          std::tuple(4900, AsRunOutcome::MachineHadStopped, true),
          std::tuple(46, AsRunOutcome::PlayerHadEnded, false),
          std::tuple(5100, AsRunOutcome::PlayerWasKilled, false)}) {
        std::vector<AsRunRecord> records = plainRecords();
        // B, which was on until A came late, of which no record is left.
        QCOMPARE(records[4].program, QStringLiteral("B"));
        records[4].ends += late;
        const qint64 length = records[5].ends - records[4].ends;
        AsRunRecord& gap = records[5];
        gap.kind = AsRunKind::Gap;
        gap.outcome = outcome;
        gap.begins = records[4].ends;
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
        QVERIFY2(verdict.isGood() == isGood, qPrintable(textOf(verdict)));
        QCOMPARE(verdict.times.late, isGood ? late : 0);
        QCOMPARE(verdict.times.gaps, length);
    }
}

void tst_AsRunGaps::whatGoesOnBehindASleep()
{
    for (const auto& [outcome, isGood] : {std::pair(AsRunOutcome::MachineHadSlept, true),
                                          std::pair(AsRunOutcome::PlayerWasKilled, false)}) {
        std::vector<AsRunRecord> records = plainRecords();
        AsRunRecord before = records[3];
        before.ends = before.begins + 3000;
        before.outcome = AsRunOutcome::CutByClock;
        AsRunRecord gap;
        gap.kind = AsRunKind::Gap;
        gap.outcome = outcome;
        gap.schedule = before.schedule;
        gap.begins = before.ends;
        gap.ends = gap.begins + 2000;
        // It was planned for other times when it began.
        records[3].plannedBegin -= 100;
        records[3].begins = gap.ends;
        records.insert(records.begin() + 3, {before, gap});
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
        QVERIFY2(verdict.isGood() == isGood, qPrintable(textOf(verdict)));
        QCOMPARE(verdict.times.gaps, 2000);
    }
}

void tst_AsRunGaps::whatNeverCameIsAGap()
{
    const std::vector<AsRunRecord> records = plainRecords();
    const std::vector<AsRunRecord> first(records.begin(), records.begin() + 3);
    const std::vector<AsRunRecord> rest(records.begin() + 8, records.end());
    AsRunFixture fixture;
    QVERIFY(verdictOf(first, plainSchedules(), fixture).isGood());
    fixture.append(rest, 9);
    AsRunVerdict verdict;
    QVERIFY(verifyAsRun(fixture.database, fixture.screen(), kEver, kNever, verdict));
    QVERIFY2(verdict.isGood(), qPrintable(textOf(verdict)));
    QCOMPARE(verdict.times.gaps, records[8].begins - records[3].begins);
    QCOMPARE(verdict.times.asPlanned, 140'000 - verdict.times.gaps);
}

void tst_AsRunGaps::aLeapOfTheClockInAGap_data()
{
    QTest::addColumn<int>("leap");
    QTest::addColumn<bool>("isTakenBefore");
    QTest::newRow("back") << -30'000 << false;
    QTest::newRow("back, when a schedule had been taken") << -30'000 << true;
    QTest::newRow("forth") << 80'000 << false;
    QTest::newRow("forth, when a schedule had been taken") << 80'000 << true;
}

void tst_AsRunGaps::aLeapOfTheClockInAGap()
{
    QFETCH(const int, leap);
    QFETCH(const bool, isTakenBefore);
    std::vector<AsRunRecord> records = plainRecords(70'000);
    const QByteArray boot(16, 'b');
    AsRunRecord gap;
    gap.kind = AsRunKind::Gap;
    gap.outcome = AsRunOutcome::NothingReadYet;
    gap.boot = boot;
    gap.ends = kNoon - leap;
    gap.begins = gap.ends - 20'000;
    gap.steadyBegin = 1000;
    gap.steadyEnd = 21'000;
    if (isTakenBefore) {
        records[0].begins = records[0].ends = gap.ends;
    }
    records[0].boot = records[1].boot = boot;
    records[0].steadyBegin = records[0].steadyEnd = records[1].steadyBegin = gap.steadyEnd;
    records.insert(records.begin(), gap);
    AsRunFixture fixture;
    const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
    QVERIFY2(verdict.isGood(), qPrintable(textOf(verdict)));
    QCOMPARE(verdict.times.gaps, 20'000);
    QCOMPARE(verdict.times.asPlanned, 70'000);

    // Time has passed in between, or the machine was started once more.
    std::vector<AsRunRecord> later = records;
    later[2].steadyBegin += 5;
    AsRunFixture second;
    QVERIFY(!verdictOf(later, plainSchedules(), second).isGood());
    later = records;
    later[2].boot = QByteArray(16, 'c');
    AsRunFixture third;
    QVERIFY(!verdictOf(later, plainSchedules(), third).isGood());
}

TREL_TEST(tst_AsRunGaps, QCoreApplication)
#include "tst_AsRunGaps.moc"
