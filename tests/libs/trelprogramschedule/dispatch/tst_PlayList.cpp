#include "support/PlanRecords.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/PlayList.h"
#include "trelprogramschedule/dispatch/ScreenShown.h"

#include <QtTest>

#include <limits>
#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr Microseconds kMillisecond = 1000;
/// Longer times count as this one.
constexpr Microseconds kLongest = 315'576'000'000'000'000;

using Catalogue = std::map<int, ProgramIten>;

/// Programs from 1 on, of these lengths.
Catalogue catalogueOf(const std::vector<double>& milliseconds)
{
    Catalogue catalogue;
    for (const double length : milliseconds) {
        ProgramIten program;
        program.progIndex = int(catalogue.size()) + 1;
        program.durationMs = length;
        program.kind = ProgramKind::Video;
        catalogue[program.progIndex] = program;
    }
    return catalogue;
}

/// One play after the other, as it is written down.
struct Play
{
    int entry;
    int progIndex;
    int play;
    qint64 run;
    Microseconds begin;
    Microseconds end;
};

std::vector<Play> literalPlays(const std::vector<struProgInfo>& entries, const Catalogue& catalogue,
                               qint64 runs, Microseconds horizon)
{
    std::vector<Play> plays;
    Microseconds time = 0;
    const auto isPlayed = [](const struProgInfo& entry) { return entry.playCount > 0; };
    const bool isEmpty = std::none_of(entries.begin(), entries.end(), isPlayed);
    for (qint64 run = 0; run < runs && time < horizon && !isEmpty; ++run) {
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            const int program = entries[entry].progIndex;
            const auto length = Microseconds(std::llround(catalogue.at(program).durationMs * 1000));
            for (int play = 0; play < entries[entry].playCount; ++play) {
                plays.push_back({int(entry), program, play, run, time, time + length});
                time += length;
            }
        }
    }
    return plays;
}

const Play* playAt(const std::vector<Play>& plays, Microseconds time)
{
    const auto found = std::find_if(plays.begin(), plays.end(), [time](const Play& play) {
        return play.begin <= time && time < play.end;
    });
    return found == plays.end() ? nullptr : &*found;
}

std::optional<Microseconds> literalFirstShown(const std::vector<Play>& plays,
                                              const SoughtPlay& sought, Microseconds from,
                                              Microseconds to)
{
    for (Microseconds time = (from + kMillisecond - 1) / kMillisecond * kMillisecond; time < to;
         time += kMillisecond) {
        const Play* const play = playAt(plays, time);
        if (play != nullptr && sought.isOf(play->progIndex)) {
            return time;
        }
    }
    return std::nullopt;
}

} // namespace

class tst_PlayList : public QObject
{
    Q_OBJECT

private slots:
    void playsAsWritten_data();
    void playsAsWritten();
    void lengthsThatAreNone_data();
    void lengthsThatAreNone();
    void lengthsBeyondAnyTime();
    void whatStandsBehindAnEndlessEntry();
    void whatIsShownOnceInHundredsOfRuns();
    void positionsStopWithTheProgram();
    void partsOfAMillisecondCountAsOne();
};

void tst_PlayList::playsAsWritten_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 60; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void tst_PlayList::playsAsWritten()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    const auto below = [&random](int count) { return int(random() % unsigned(count)); };
    const Catalogue catalogue = catalogueOf({0.4, 1.0, 2.5005, 3.0, 7.25, 0.9996});
    std::vector<struProgInfo> entries;
    for (int count = 1 + below(4); count > 0; --count) {
        entries.push_back(entry(1 + below(6), below(5) - 1));
    }
    const qint64 runs = below(3) == 0 ? PlayList::kRepeated : below(6);
    const Microseconds horizon = 120 * kMillisecond;
    const std::vector<Play> plays = literalPlays(entries, catalogue, runs, horizon);
    const PlayList list(entries, catalogue, runs);

    QCOMPARE(list.isEmpty(), plays.empty());
    if (runs != PlayList::kRepeated && !plays.empty() && plays.back().end < horizon) {
        QCOMPARE(list.length(), plays.back().end);
    }
    for (Microseconds time = 0; time < horizon; time += 100) {
        const ListMoment moment = list.at(time);
        const Play* const play = playAt(plays, time);
        if (play == nullptr) {
            QCOMPARE(moment.kind,
                     plays.empty() ? ListMoment::Kind::Nothing : ListMoment::Kind::RanOut);
            continue;
        }
        QCOMPARE(moment.kind, ListMoment::Kind::Playing);
        QCOMPARE(moment.entry, play->entry);
        QCOMPARE(moment.progIndex, play->progIndex);
        QCOMPARE(moment.play, play->play);
        QCOMPARE(moment.run, play->run);
        QCOMPARE(moment.begin, play->begin);
        QCOMPARE(moment.end, play->end);
        QCOMPARE(moment.length, play->end - play->begin);
        QCOMPARE(moment.position(time), time - play->begin);
    }
    for (int question = 0; question < 200; ++question) {
        const SoughtPlay sought = {1 + below(7), below(2) == 0};
        const Microseconds from = below(80000);
        const Microseconds to = below(4) == 0 ? from + below(3) : from + below(40000);
        QCOMPARE(list.firstShown(sought, from, to), literalFirstShown(plays, sought, from, to));
    }
}

void tst_PlayList::lengthsThatAreNone_data()
{
    QTest::addColumn<double>("milliseconds");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("unknown") << -1.0;
    QTest::newRow("less than half a microsecond") << 0.0004;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void tst_PlayList::lengthsThatAreNone()
{
    QFETCH(double, milliseconds);
    const PlayList list({entry(1)}, catalogueOf({milliseconds}), 3);
    QVERIFY(list.isEmpty());
    QCOMPARE(list.length(), Microseconds(0));
    QCOMPARE(list.at(0).kind, ListMoment::Kind::Nothing);
    QVERIFY(!list.firstShown({1, false}, 0, kLongest));
}

void tst_PlayList::lengthsBeyondAnyTime()
{
    constexpr double milliseconds = 315'576'000'000.0; // A thousandth of the longest.
    const Catalogue catalogue =
        catalogueOf({milliseconds, 1e30, std::numeric_limits<double>::infinity(), 1.0});
    const auto length = [&catalogue](std::vector<struProgInfo> entries, qint64 runs) {
        return PlayList(entries, catalogue, runs).length();
    };
    QCOMPARE(length({entry(1, 999)}, 1), kLongest / 1000 * 999);
    QCOMPARE(length({entry(1, 499)}, 2), kLongest / 1000 * 998);
    QCOMPARE(length({entry(1, 500)}, 2), kLongest);
    QCOMPARE(length({entry(1, 999)}, 2), kLongest);
    QCOMPARE(length({entry(1, 1000)}, 1), kEndless);
    QCOMPARE(length({entry(1, std::numeric_limits<int>::max())}, 1), kEndless);
    QCOMPARE(length({entry(1, 500), entry(1, 499)}, 1), kLongest / 1000 * 999);
    QCOMPARE(length({entry(1, 500), entry(1, 500)}, 1), kEndless);
    QCOMPARE(length({entry(1, 999), entry(2)}, 1), kEndless);
    QCOMPARE(length({entry(2)}, 1), kEndless);
    QCOMPARE(length({entry(3)}, 7), kEndless);
    QCOMPARE(length({entry(1)}, PlayList::kRepeated), kEndless);
    // What stands behind ten thousand years is not reached.
    const PlayList list({entry(2), entry(4)}, catalogue, 1);
    QCOMPARE(list.at(kLongest - 1).progIndex, 2);
    QVERIFY(!list.firstShown({4, false}, 0, kEndless));
    QCOMPARE(list.firstShown({2, false}, 0, kEndless), std::optional<Microseconds>(0));
}

void tst_PlayList::whatStandsBehindAnEndlessEntry()
{
    Catalogue catalogue = catalogueOf({1.0, 0.0, 1.0});
    catalogue[2].kind = ProgramKind::Image;
    const PlayList list({entry(1), entry(2), entry(3)}, catalogue, 5);
    QCOMPARE(list.length(), kEndless);
    const ListMoment moment = list.at(kLongest);
    QCOMPARE(moment.progIndex, 2);
    QCOMPARE(moment.run, qint64(0));
    QCOMPARE(moment.begin, kMillisecond);
    QCOMPARE(moment.end, kEndless);
    QVERIFY(!list.firstShown({3, false}, 0, kEndless));
    QCOMPARE(list.firstShown({2, false}, 0, kEndless), std::optional<Microseconds>(kMillisecond));
    QVERIFY(!list.firstShown({2, false}, 0, kMillisecond));
}

// A run of 999 microseconds meets the same part of a millisecond after a thousand of them, and a
// play of one microsecond a whole millisecond in one of these.
void tst_PlayList::whatIsShownOnceInHundredsOfRuns()
{
    const Catalogue catalogue = catalogueOf({0.3, 0.001, 0.698});
    const PlayList list({entry(1), entry(2), entry(3)}, catalogue, PlayList::kRepeated);
    QCOMPARE(list.firstShown({2, false}, 0, kEndless),
             std::optional<Microseconds>(300 * kMillisecond));
    QCOMPARE(list.at(300 * kMillisecond).run, qint64(300));
}

void tst_PlayList::positionsStopWithTheProgram()
{
    ListMoment moment;
    moment.kind = ListMoment::Kind::Playing;
    moment.begin = 100;
    moment.length = 40;
    QCOMPARE(moment.position(100), Microseconds(0));
    QCOMPARE(moment.position(139), Microseconds(39));
    QCOMPARE(moment.position(140), Microseconds(40));
    QCOMPARE(moment.position(141), Microseconds(40));
    moment.kind = ListMoment::Kind::RanOut;
    QCOMPARE(moment.position(100), Microseconds(40));
}

void tst_PlayList::partsOfAMillisecondCountAsOne()
{
    QCOMPARE(millisecondsUp(0), Instant(0));
    QCOMPARE(millisecondsUp(1), Instant(1));
    QCOMPARE(millisecondsUp(999), Instant(1));
    QCOMPARE(millisecondsUp(1000), Instant(1));
    QCOMPARE(millisecondsUp(1001), Instant(2));
}

TREL_TEST(tst_PlayList, trel::tests::NoApplication)
#include "tst_PlayList.moc"
