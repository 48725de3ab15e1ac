#include "../dispatch/RandomSchedule.h"
#include "../dispatch/ScheduleWriting.h"
#include "AsRunSamples.h"
#include "SimulatedPlayer.h"
#include "VerifiedRecords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/asrun/AsRunTotals.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QtTest>

#include <algorithm>
#include <set>

using namespace trel::mediadispatch;

namespace {

constexpr int kSeconds = 900;
const Drawing kDrawing{{"2024.03.05", "2024.03.05", "2024.03.06"}, 11, 13};

/// Schedules as no sane operator would write them, taken one after the other, with insertions.
std::vector<TakenSchedule> randomSchedules(std::uint32_t seed)
{
    std::mt19937 random(seed);
    const auto window = secondbysecond::windowOf(kZone, kNoon, kSeconds);
    std::vector<TakenSchedule> schedules;
    Instant moment = kNoon;
    qint64 number = 0;
    for (int count = 0; count < 3; ++count) {
        const RandomSchedule drawn =
            randomSchedule(static_cast<std::uint32_t>(random()), kDrawing, window);
        AsRunSchedule schedule;
        schedule.zone = kZone;
        schedule.start = EffectStart{moment, count + 1, QStringLiteral("test")};
        schedule.tasks = drawn.tasks;
        schedule.catalogue = lettersCatalogue();
        schedules.push_back(takenSchedule(moment, schedule));
        moment += 1000 + static_cast<Instant>(random() % 200'000);
        for (const secondbysecond::Request& request : drawn.requests) {
            if (request.moment <= schedules.back().moment || request.moment >= moment) {
                continue;
            }
            ScreenInsertion insertion;
            insertion.taskId = request.taskId;
            insertion.planId = request.planId;
            insertion.plan = request.plan;
            insertion.number = ++number;
            const ScreenTimeline& timeline = *schedules.back().timeline;
            const bool isEndless = timeline.at(request.moment, schedule.insertions).until == kNever;
            schedule.insertions = timeline.withInsertion(
                schedule.insertions, insertion, request.moment, request.isDelayed && !isEndless);
            schedules.push_back(takenSchedule(request.moment, schedule));
        }
    }
    return schedules;
}

/// What the sums have to be, by looking at every stretch of time between two borders of any kind.
struct Literal
{
    qint64 asPlanned = 0;
    qint64 gaps = 0;
    std::map<int, qint64> planned;
    std::map<int, qint64> shown;
};

Literal literalOf(const std::vector<AsRunRecord>& records,
                  const std::vector<TakenSchedule>& schedules)
{
    std::set<Instant> borders;
    for (const AsRunRecord& record : records) {
        borders.insert({record.begins, record.ends});
    }
    const Instant begin = *borders.begin();
    const Instant end = *borders.rbegin();
    const auto scheduleAt = [&](Instant moment) {
        const TakenSchedule* found = &schedules.front();
        for (const TakenSchedule& taken : schedules) {
            found = taken.moment <= moment ? &taken : found;
        }
        return found;
    };
    for (Instant at = begin; at < end;) {
        const TakenSchedule* const taken = scheduleAt(at);
        borders.insert(at);
        const auto next = borders.upper_bound(at);
        const Instant until = taken->timeline->at(at, taken->schedule.insertions).until;
        at = std::min(next == borders.end() ? end : *next, until);
    }
    Literal sums;
    for (auto border = borders.begin(); *border < end; ++border) {
        const Instant at = *border;
        const qint64 length = *std::next(border) - at;
        const TakenSchedule* const taken = scheduleAt(at);
        const ScreenState state = taken->timeline->at(at, taken->schedule.insertions);
        if (state.isPlaying()) {
            sums.planned[state.progIndex] += length;
        }
        const auto on =
            std::find_if(records.begin(), records.end(), [at](const AsRunRecord& record) {
                return record.begins <= at && at < record.ends;
            });
        if (on->kind == AsRunKind::Gap) {
            sums.gaps += length;
            continue;
        }
        if (on->picture == ScreenPicture::Playing && on->shown == AsRunShown::AsPlanned) {
            sums.shown[on->progIndex] += length;
        }
    }
    return sums;
}

} // namespace

/// Records are held against the timeline: what they explain is fine, and nothing else is.
class tst_AsRunVerification : public QObject
{
    Q_OBJECT

private slots:
    void whatAPlayerTellsIsExplained();
    void sumsAreThoseOfEveryMoment();
    void whatNobodyTellsIsNamed();
    void aLeapOfTheClockIsExplained();
    void anUnknownScheduleIsNamed();
    void latenessCountsAsFarAsItIsTold();
    void aPartIsHeldAgainstItsPart();
    void totalsCountPlaysOnce();
};

void tst_AsRunVerification::whatAPlayerTellsIsExplained()
{
    for (std::uint32_t seed = 0; seed < 80; ++seed) {
        const std::vector<TakenSchedule> schedules = randomSchedules(seed);
        SimulatedPlayer player(schedules, seed, seed % 4 == 0 ? 0 : 30);
        const std::vector<AsRunRecord> records = player.play(kNoon + kSeconds * 1000);
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, schedules, fixture);
        QVERIFY2(verdict.isGood(),
                 qPrintable(QStringLiteral("seed %1\n").arg(seed) + textOf(verdict)));
        QCOMPARE(verdict.records, static_cast<qint64>(records.size()));
        const AsRunTimes& times = verdict.times;
        QCOMPARE(times.asPlanned + times.late + times.stoodIn + times.gaps, kSeconds * 1000);
        QCOMPARE(times.unexplained, 0);
        QVERIFY(seed % 4 != 0 || times.stoodIn + times.gaps == 0);
    }
}

void tst_AsRunVerification::sumsAreThoseOfEveryMoment()
{
    for (std::uint32_t seed = 500; seed < 530; ++seed) {
        const std::vector<TakenSchedule> schedules = randomSchedules(seed);
        SimulatedPlayer player(schedules, seed, 30);
        const std::vector<AsRunRecord> records = player.play(kNoon + kSeconds * 1000);
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, schedules, fixture);
        const Literal sums = literalOf(records, schedules);
        QCOMPARE(verdict.times.gaps, sums.gaps);
        AsRunTotals totals;
        QVERIFY(compareAsRun(fixture.database, fixture.screen(), kEver, kNever,
                             AsRunComparison::Gaps::ByPlay, [&](const AsRunStretch& stretch) {
                                 totals.add(stretch);
                                 return true;
                             }));
        std::map<int, qint64> planned;
        std::map<int, qint64> shown;
        for (const auto& [index, total] : totals.programs()) {
            if (total.plannedLength != 0) {
                planned[index] = total.plannedLength;
            }
            if (total.shownLength != 0) {
                shown[index] = total.shownLength;
            }
        }
        QVERIFY2(planned == sums.planned, qPrintable(QString::number(seed)));
        QVERIFY2(shown == sums.shown, qPrintable(QString::number(seed)));
    }
}

void tst_AsRunVerification::whatNobodyTellsIsNamed()
{
    int named = 0;
    for (std::uint32_t seed = 1000; seed < 1110; ++seed) {
        const std::vector<TakenSchedule> schedules = randomSchedules(seed);
        SimulatedPlayer player(schedules, seed, 10);
        std::vector<AsRunRecord> records = player.play(kNoon + kSeconds * 1000);
        std::vector<std::size_t> places;
        for (std::size_t at = 1; at + 1 < records.size(); ++at) {
            const AsRunRecord& record = records[at];
            const bool isOrdinary = record.kind == AsRunKind::Picture &&
                                    record.picture == ScreenPicture::Playing &&
                                    record.shown == AsRunShown::AsPlanned && record.late == 0 &&
                                    record.plannedEnd - record.plannedBegin > 200 &&
                                    record.ends - record.begins > 200 &&
                                    records[at - 1].outcome == AsRunOutcome::Complete &&
                                    records[at - 1].kind == AsRunKind::Picture;
            if (isOrdinary) {
                places.push_back(at);
            }
        }
        if (places.empty()) {
            continue;
        }
        const std::size_t at = places[seed * 7 % places.size()];
        AsRunRecord& record = records[at];
        const AsRunRecord before = record;
        switch (seed % 7) {
        case 0:
            record.entry += 1;
            break;
        case 1:
            record.progIndex += 1;
            break;
        case 2: // The former picture stays longer than is told.
            record.begins += 150;
            records[at - 1].ends += 150;
            break;
        case 3:
            record.program += QLatin1Char('x');
            break;
        case 4:
            record.plannedEnd += 100;
            break;
        case 5:
            record.insertion += 1;
            break;
        default:
            records.erase(records.begin() + static_cast<std::ptrdiff_t>(at));
            break;
        }
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, schedules, fixture);
        QVERIFY2(verdict.deviationCount > 0, qPrintable(QString::number(seed)));
        QVERIFY(verdict.breaks.empty());
        for (const AsRunDeviation& deviation : verdict.deviations) {
            QVERIFY2(deviation.from <= before.ends && deviation.to >= before.begins,
                     qPrintable(QStringLiteral("seed %1\n").arg(seed) + textOf(verdict)));
        }
        ++named;
    }
    QVERIFY(named > 35);
}

void tst_AsRunVerification::aLeapOfTheClockIsExplained()
{
    for (const qint64 leap : {-60'000, 60'000}) {
        std::vector<AsRunRecord> records = plainRecords(70'000);
        records.back().outcome = AsRunOutcome::CutByClock;
        std::vector<TakenSchedule> later = plainSchedules();
        later[0].moment = records.back().ends + leap;
        std::vector<AsRunRecord> rest = SimulatedPlayer(later, 1, 0).play(later[0].moment + 70'000);
        records.insert(records.end(), rest.begin() + 1, rest.end());
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
        QVERIFY2(verdict.isGood(), qPrintable(textOf(verdict)));
        QCOMPARE(verdict.times.asPlanned, 140'000);

        // Without a word about the clock it is none.
        for (AsRunRecord& record : records) {
            record.outcome = AsRunOutcome::Complete;
        }
        AsRunFixture other;
        const AsRunVerdict untold = verdictOf(records, plainSchedules(), other);
        QCOMPARE(untold.deviationCount > 0, true);
        QCOMPARE(static_cast<int>(untold.deviations[0].kind),
                 static_cast<int>(leap < 0 ? AsRunDeviation::Kind::Overlap
                                           : AsRunDeviation::Kind::NothingSaid));
    }
}

void tst_AsRunVerification::anUnknownScheduleIsNamed()
{
    AsRunFixture fixture;
    const AsRunVerdict verdict = verdictOf(plainRecords(), {}, fixture);
    QVERIFY(verdict.deviationCount > 0);
    QCOMPARE(static_cast<int>(verdict.deviations[0].kind),
             static_cast<int>(AsRunDeviation::Kind::NotFollowed));
    QCOMPARE(verdict.times.unexplained, 140'000);
}

void tst_AsRunVerification::latenessCountsAsFarAsItIsTold()
{
    for (const auto& [late, told, isGood] :
         {std::tuple(39, 0, true), std::tuple(300, 300, true), std::tuple(300, 250, false),
          std::tuple(3000, 3000, true), std::tuple(100, 0, false)}) {
        std::vector<AsRunRecord> records = plainRecords();
        records[3].ends += late;
        records[4].begins += late;
        records[4].late = told;
        AsRunFixture fixture;
        const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
        QVERIFY2(verdict.isGood() == isGood, qPrintable(textOf(verdict)));
        QCOMPARE(verdict.times.late, isGood ? late : 0);
    }
}

void tst_AsRunVerification::aPartIsHeldAgainstItsPart()
{
    std::vector<AsRunRecord> records = plainRecords();
    records[2].entry += 1;
    AsRunFixture fixture;
    const AsRunVerdict before =
        verdictOf(records, plainSchedules(), fixture, kNoon - 1000, kNoon + 12'000);
    QCOMPARE(before.deviationCount, 1);
    AsRunVerdict after;
    QVERIFY(verifyAsRun(fixture.database, fixture.screen(), kNoon + 50'000, kNoon + 60'000, after));
    QVERIFY2(after.isGood(), qPrintable(textOf(after)));
    QCOMPARE(after.times.asPlanned, 10'000);
}

void tst_AsRunVerification::totalsCountPlaysOnce()
{
    std::vector<AsRunRecord> records = plainRecords();
    // The second play of A breaks for two seconds; the third is replaced; B is missing once.
    AsRunRecord broken = records[3];
    broken.ends = broken.begins + 3000;
    AsRunRecord last = records[3];
    last.begins = broken.ends;
    last.ends = last.begins + 2000;
    last.shown = AsRunShown::LastFrame;
    last.why = QStringLiteral("decoder");
    records[3].begins = last.ends;
    records[3].late = 2000;
    records[5].shown = AsRunShown::StandBy;
    AsRunRecord& gap = records[6];
    const Instant begins = gap.begins;
    const Instant ends = gap.ends;
    gap = AsRunRecord();
    gap.kind = AsRunKind::Gap;
    gap.outcome = AsRunOutcome::PlayerHadEnded;
    gap.begins = begins;
    gap.ends = ends;
    records.insert(records.begin() + 3, {broken, last});
    AsRunFixture fixture;
    const AsRunVerdict verdict = verdictOf(records, plainSchedules(), fixture);
    QVERIFY(verdict.isGood());
    QCOMPARE(verdict.times.stoodIn, 12'000);
    QCOMPARE(verdict.times.gaps, ends - begins);
    QCOMPARE(verdict.times.asPlanned, 140'000 - 12'000 - (ends - begins));
    AsRunTotals totals;
    QVERIFY(compareAsRun(fixture.database, fixture.screen(), kEver, kNever,
                         AsRunComparison::Gaps::ByPlay, [&](const AsRunStretch& stretch) {
                             totals.add(stretch);
                             return true;
                         }));
    const AsRunTotal& a = totals.programs().at(programOf(QLatin1Char('A')));
    const AsRunTotal& b = totals.programs().at(programOf(QLatin1Char('B')));
    QCOMPARE(a.plannedTimes, 10);
    QCOMPARE(a.shownTimes, 9);
    QCOMPARE(a.plannedLength, 100'000);
    QCOMPARE(a.shownLength, 88'000);
    QCOMPARE(a.stoodInLength, 12'000);
    QCOMPARE(b.plannedTimes, 10);
    QCOMPARE(b.shownTimes, 9);
    QCOMPARE(b.gapLength, 4'000);
    QCOMPARE(b.shownLength, 36'000);
}

TREL_TEST(tst_AsRunVerification, QCoreApplication)
#include "tst_AsRunVerification.moc"
