#include "mirror/LookTimes.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <algorithm>
#include <random>

using namespace trel::mediadispatch;
using namespace std::chrono_literals;
using Time = LookTimes::Time;

/// When one who is told of changes looks, by a clock and a chance of the test's.
class tst_LookTimes : public QObject
{
    Q_OBJECT

private slots:
    void theFirstIsSpread();
    void whatIsToldIsDueAtOnce();
    void doubtComesInAnyCase();
    void aLossIsSpread();
    void refusalsPauseLonger();
    void aLookThatWasDoneEndsThePauses();
    void manyDoNotComeAtOnce();
};

namespace {

constexpr Time kStart{1'000'000};
constexpr double kAlmostOne = 0.999;

LookTimes timesWith(double chance)
{
    return LookTimes([chance] { return chance; });
}

} // namespace

void tst_LookTimes::theFirstIsSpread()
{
    LookTimes soon = timesWith(0);
    soon.begin(kStart);
    QCOMPARE(soon.due(), kStart);
    LookTimes late = timesWith(kAlmostOne);
    late.begin(kStart);
    QCOMPARE(late.due(), kStart + 999ms);
}

void tst_LookTimes::whatIsToldIsDueAtOnce()
{
    LookTimes times = timesWith(0);
    times.begin(kStart);
    times.look(kStart, true);
    QCOMPARE(times.due(), kStart + 15s);
    times.hear(kStart + 2s);
    QCOMPARE(times.due(), kStart + 2s);
    // What is overdue is not put off.
    times.hear(kStart + 3s);
    QCOMPARE(times.due(), kStart + 2s);
}

void tst_LookTimes::doubtComesInAnyCase()
{
    LookTimes late = timesWith(kAlmostOne);
    late.begin(kStart);
    late.look(kStart, true);
    QCOMPARE(late.due(), kStart + 44970ms);
}

void tst_LookTimes::aLossIsSpread()
{
    LookTimes soon = timesWith(0);
    soon.look(kStart, true);
    soon.lose(kStart + 1s);
    QCOMPARE(soon.due(), kStart + 1s);
    LookTimes late = timesWith(kAlmostOne);
    late.look(kStart, true);
    late.lose(kStart + 1s);
    QCOMPARE(late.due(), kStart + 2998ms);
}

void tst_LookTimes::refusalsPauseLonger()
{
    constexpr double middle = 0.5;
    LookTimes times = timesWith(middle);
    Time now = kStart;
    for (const Time pause : {500ms, 1000ms, 2000ms, 2000ms, 2000ms}) {
        times.look(now, false);
        QCOMPARE(times.due() - now, pause);
        now = times.due();
    }
    LookTimes late = timesWith(kAlmostOne);
    for (int refusals = 0; refusals < 10; ++refusals) {
        late.look(kStart, false);
    }
    // So that everything is as it was within five seconds of the end of a fault.
    QVERIFY(late.due() - kStart < 3s);
}

void tst_LookTimes::aLookThatWasDoneEndsThePauses()
{
    constexpr double middle = 0.5;
    LookTimes times = timesWith(middle);
    for (int refusals = 0; refusals < 5; ++refusals) {
        times.look(kStart, false);
    }
    times.look(kStart, true);
    times.look(kStart, false);
    QCOMPARE(times.due() - kStart, Time(500ms));
}

void tst_LookTimes::manyDoNotComeAtOnce()
{
    constexpr int screens = 300;
    std::mt19937 numbers(17);
    std::uniform_real_distribution<double> chance(0, 1);
    std::vector<Time> looks;
    for (int screen = 0; screen < screens; ++screen) {
        LookTimes times([&] { return chance(numbers); });
        times.begin(kStart);
        times.look(kStart, true);
        times.lose(kStart);
        looks.push_back(times.due());
    }
    // In no tenth of a second more than three times their share.
    std::sort(looks.begin(), looks.end());
    for (std::size_t first = 0; first < looks.size(); ++first) {
        const auto end = std::lower_bound(looks.begin(), looks.end(), looks[first] + 100ms);
        QVERIFY(end - looks.begin() - static_cast<std::ptrdiff_t>(first) <= 45);
    }
}

TREL_TEST(tst_LookTimes, trel::tests::NoApplication)
#include "tst_LookTimes.moc"
