#include "history/VersionThinning.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <algorithm>
#include <random>
#include <set>

using namespace trel::mediadispatch;

namespace {

constexpr unsigned kSeed = 20261123;
constexpr Instant kHour = 3600000;
constexpr Instant kDay = 24 * kHour;
constexpr Instant kNow = 20000 * kDay + 13 * kHour;

/// By the letter: of every stretch of every stage, the newest that has no name.
std::vector<qint64> literally(const std::vector<VersionAge>& newestFirst, Instant now)
{
    std::set<qint64> kept;
    for (std::size_t place = 0; place < newestFirst.size() && place <= 200; ++place) {
        kept.insert(newestFirst[place].number);
    }
    const auto keepNewest = [&](Instant begin, Instant end, int mostDays, int leastDays) {
        for (std::size_t place = 201; place < newestFirst.size(); ++place) {
            const VersionAge& one = newestFirst[place];
            const Instant age = now - one.saved;
            if (!one.isNamed && begin <= one.saved && one.saved < end && age <= mostDays * kDay &&
                age > leastDays * kDay) {
                kept.insert(one.number);
                return;
            }
        }
    };
    for (Instant day = now / kDay - 4000; day <= now / kDay; ++day) {
        keepNewest(day * kDay, (day + 1) * kDay, 31, -1);
    }
    for (Instant week = now / kDay / 7 - 600; week <= now / kDay / 7; ++week) {
        keepNewest(week * 7 * kDay, (week + 1) * 7 * kDay, 366, 31);
    }
    for (Instant month = now / kDay / 30 - 140; month <= now / kDay / 30; ++month) {
        keepNewest(month * 30 * kDay, (month + 1) * 30 * kDay, 3653, 366);
    }
    std::vector<qint64> dropped;
    for (const VersionAge& one : newestFirst) {
        if (!one.isNamed && kept.count(one.number) == 0) {
            dropped.push_back(one.number);
        }
    }
    std::sort(dropped.begin(), dropped.end());
    return dropped;
}

/// So many versions, one every so often up to now.
std::vector<VersionAge> every(Instant step, int count)
{
    std::vector<VersionAge> versions;
    for (int place = 0; place < count; ++place) {
        versions.push_back({count - place, kNow - place * step, false});
    }
    return versions;
}

} // namespace

/// Which versions stay.
class tst_VersionThinning : public QObject
{
    Q_OBJECT

private slots:
    void theLastOnesStay();
    void namedOnesStay();
    void asTheRuleSays();
    void unknownTimesAreThoseOfTheNext();
    void whatIsThinnedOutStays();
};

void tst_VersionThinning::theLastOnesStay()
{
    QVERIFY(versionsToDrop({}, kNow).empty());
    // However old they are.
    for (const Instant step : {Instant(1), 1000 * kDay}) {
        QVERIFY(versionsToDrop(every(step, kRecentVersions + 1), kNow).empty());
    }
    const auto dropped = versionsToDrop(every(1000 * kDay, kRecentVersions + 3), kNow);
    QCOMPARE(dropped, (std::vector<qint64>{1, 2}));
}

void tst_VersionThinning::namedOnesStay()
{
    auto versions = every(1000 * kDay, kRecentVersions + 4);
    versions[kRecentVersions + 2].isNamed = true;
    QCOMPARE(versionsToDrop(versions, kNow), (std::vector<qint64>{1, 3}));
}

void tst_VersionThinning::asTheRuleSays()
{
    std::mt19937 random(kSeed);
    std::size_t sum = 0;
    for (int round = 0; round < 20; ++round) {
        const Instant longest = std::uniform_int_distribution<Instant>(1, 8 * kDay)(random);
        std::vector<VersionAge> versions;
        Instant saved = kNow;
        for (qint64 number = 1500; number > 0; --number) {
            versions.push_back({number, saved, random() % 50 == 0});
            saved -= std::uniform_int_distribution<Instant>(1, longest)(random);
        }
        const auto dropped = versionsToDrop(versions, kNow);
        QVERIFY2(dropped == literally(versions, kNow), qPrintable(QString::number(round)));
        sum += dropped.size();
    }
    QVERIFY(sum > 6000);
}

void tst_VersionThinning::unknownTimesAreThoseOfTheNext()
{
    auto versions = every(1, kRecentVersions + 3);
    versions.back().saved = 0;
    // It is of the day of the one that is kept for that day.
    QCOMPARE(versionsToDrop(versions, kNow), (std::vector<qint64>{1}));
}

/// To do it day by day leaves no less than to do it once.
void tst_VersionThinning::whatIsThinnedOutStays()
{
    std::vector<VersionAge> versions;
    qint64 number = 0;
    for (int day = 0; day < 800; ++day) {
        const Instant now = kNow + day * kDay;
        for (int save = 0; save < 3; ++save) {
            versions.insert(versions.begin(), {++number, now + save, false});
        }
        const auto dropped = versionsToDrop(versions, now);
        versions.erase(std::remove_if(versions.begin(), versions.end(),
                                      [&](const VersionAge& one) {
                                          return std::binary_search(dropped.begin(), dropped.end(),
                                                                    one.number);
                                      }),
                       versions.end());
    }
    // 201, which reach 67 days back; a week each up to a year, and 30 days each before that.
    QVERIFY2(versions.size() >= 201 + 42 + 14 && versions.size() <= 201 + 45 + 17,
             qPrintable(QString::number(versions.size())));
    for (std::size_t place = 1; place < versions.size(); ++place) {
        const Instant gap = versions[place - 1].saved - versions[place].saved;
        QVERIFY2(gap <= 60 * kDay, qPrintable(QString::number(gap / kDay)));
    }
}

TREL_TEST(tst_VersionThinning, QCoreApplication)
#include "tst_VersionThinning.moc"
