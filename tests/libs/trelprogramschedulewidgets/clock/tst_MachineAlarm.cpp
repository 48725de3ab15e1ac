#include "clock/Clock.h"
#include "clock/LookingAlarm.h"
#include "clock/MachineAlarm.h"
#include "clock/TimerDescriptor.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

namespace {

constexpr qint64 kAlways = std::numeric_limits<qint64>::max();
constexpr qint64 kHour = 3600000;
/// Soon enough for a test to wait, and long enough to be seen not to ring at once.
constexpr qint64 kSoon = 50;

qint64 now()
{
    return Clock::current().msecsSinceEpoch();
}

/// Lets pass what is due in the event loop.
void turn()
{
    QCoreApplication::processEvents();
}

/// The machine's clock, set forwards or backwards by some milliseconds.
class ShiftedClock : public Clock
{
public:
    QDateTime now() const override { return Clock::now().addMSecs(shift); }

    qint64 shift = 0;
};

/// The system's timer as it behaves when the clock is set: the descriptor becomes readable, and
/// reading from it fails.
struct ClockSetByHand
{
    ClockSetByHand()
    {
        reset();
        calls.create = [](int, int) {
            return last().isRefusing ? -1 : timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK);
        };
        calls.settime = [](int descriptor, int flags, const itimerspec* value, itimerspec*) {
            last().flags = flags;
            last().armed.append(value->it_value.tv_sec * 1000 + value->it_value.tv_nsec / 1000000);
            if (last().isUnableToWatch) {
                errno = EINVAL;
                return -1;
            }
            timerfd_settime(descriptor, TFD_TIMER_ABSTIME, value, nullptr);
            if (std::exchange(last().wasSet, false)) {
                errno = ECANCELED;
                return -1;
            }
            return 0;
        };
        calls.read = [](int descriptor, void* buffer, size_t size) {
            const ssize_t count = ::read(descriptor, buffer, size);
            if (last().failure != 0) {
                errno = std::exchange(last().failure, 0);
                return ssize_t(-1);
            }
            return count;
        };
    }

    struct System
    {
        bool isRefusing = false;
        bool isUnableToWatch = false;
        bool wasSet = false; ///< Since the timer was last armed.
        int failure = 0;     ///< What the next reading fails with.
        int flags = 0;
        QVector<qint64> armed;
    };

    static System& last()
    {
        static System system;
        return system;
    }
    static void reset() { last() = System(); }

    /// Makes the descriptor readable.
    void wake(ClockAlarm& alarm) { alarm.set(1); }

    TimerCalls calls;
};

} // namespace

/// The alarm of the machine's clock, on the machine's clock.
class tst_MachineAlarm : public QObject
{
    Q_OBJECT

private slots:
    void ringsAtItsMoment_data();
    void ringsAtItsMoment();
    void ringsAtOnceForAMomentThatHasPassed();
    void ringsOnceForEachSetting();
    void waitsForTheMomentSetLast();
    void neverRingsAtTheEndOfTime();
    void mayBeDoneAwayWithWhileItRings();
    void isSetAnewWhileItRings();
    void theSystemIsAskedToWatchTheClock();
    void ringsWhenTheClockIsSet();
    void ringsWhenTheClockWasSetBeforehand();
    void passesOverAWakingForNothing();
    void withoutATimerOfTheSystem();
    void looksAtTheClockWhereNobodyTells_data();
    void looksAtTheClockWhereNobodyTells();
};

void tst_MachineAlarm::ringsAtItsMoment_data()
{
    QTest::addColumn<bool>("isLooking");
    QTest::newRow("timer of the system") << false;
    QTest::newRow("looking at the clock") << true;
}

void tst_MachineAlarm::ringsAtItsMoment()
{
    QFETCH(bool, isLooking);
    qint64 rungAt = 0;
    const auto ring = [&rungAt] { rungAt = now(); };
    std::unique_ptr<ClockAlarm> alarm;
    if (isLooking) {
        alarm = std::make_unique<LookingAlarm>(now, ring);
    } else {
        alarm = Clock::current().makeAlarm(ring);
    }
    const qint64 moment = now() + kSoon;
    alarm->set(moment);
    QCOMPARE(rungAt, 0);
    QTRY_VERIFY(rungAt != 0);
    QVERIFY2(rungAt >= moment, qPrintable(QString::number(moment - rungAt)));
}

void tst_MachineAlarm::ringsAtOnceForAMomentThatHasPassed()
{
    for (const qint64 moment : {now() - kHour, now() - 1, qint64(1), qint64(0), qint64(-kHour)}) {
        int rings = 0;
        MachineAlarm alarm(now, [&rings] { ++rings; });
        alarm.set(moment);
        QCOMPARE(rings, 0); // Not from inside set().
        QTRY_COMPARE(rings, 1);
    }
}

void tst_MachineAlarm::ringsOnceForEachSetting()
{
    int rings = 0;
    int later = 0;
    MachineAlarm alarm(now, [&rings] { ++rings; });
    alarm.set(now());
    QTRY_COMPARE(rings, 1);
    // What is set after it rings after it.
    MachineAlarm other(now, [&later] { ++later; });
    other.set(now() + kSoon);
    QTRY_COMPARE(later, 1);
    QCOMPARE(rings, 1);
    alarm.set(now());
    QTRY_COMPARE(rings, 2);
}

void tst_MachineAlarm::waitsForTheMomentSetLast()
{
    int rings = 0;
    MachineAlarm alarm(now, [&rings] { ++rings; });
    alarm.set(now() + kHour);
    alarm.set(now() + kSoon);
    QTRY_COMPARE(rings, 1);

    int later = 0;
    MachineAlarm other(now, [&later] { ++later; });
    alarm.set(now());
    alarm.set(now() + kHour);
    other.set(now() + kSoon);
    QTRY_COMPARE(later, 1);
    QCOMPARE(rings, 1);
}

void tst_MachineAlarm::neverRingsAtTheEndOfTime()
{
    int rings = 0;
    int later = 0;
    MachineAlarm alarm(now, [&rings] { ++rings; });
    MachineAlarm other(now, [&later] { ++later; });
    alarm.set(kAlways);
    other.set(now() + kSoon);
    QTRY_COMPARE(later, 1);
    QCOMPARE(rings, 0);
}

void tst_MachineAlarm::mayBeDoneAwayWithWhileItRings()
{
    bool hasRung = false;
    std::unique_ptr<ClockAlarm> alarm;
    const auto ring = [&] {
        alarm.reset();
        hasRung = true;
    };
    alarm = std::make_unique<MachineAlarm>(now, ring);
    alarm->set(now());
    QTRY_VERIFY(hasRung);

    hasRung = false;
    alarm = std::make_unique<LookingAlarm>(now, ring);
    alarm->set(now());
    QTRY_VERIFY(hasRung);
}

void tst_MachineAlarm::isSetAnewWhileItRings()
{
    int rings = 0;
    std::unique_ptr<ClockAlarm> alarm;
    alarm = Clock::current().makeAlarm([&] {
        if (++rings < 3) {
            alarm->set(now());
        }
    });
    alarm->set(now());
    QTRY_COMPARE(rings, 3);
}

void tst_MachineAlarm::theSystemIsAskedToWatchTheClock()
{
    ClockSetByHand system;
    const auto alarm = TimerDescriptor::open([] {}, system.calls);
    QVERIFY(alarm);
    // Armed before anybody sets it, for the clock is only watched then.
    QCOMPARE(system.last().armed.size(), 1);
    alarm->set(1234567890123);
    QCOMPARE(system.last().armed.last(), 1234567890123);
    QCOMPARE(system.last().flags, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET);
}

void tst_MachineAlarm::ringsWhenTheClockIsSet()
{
    ClockSetByHand system;
    int rings = 0;
    const auto alarm = TimerDescriptor::open([&rings] { ++rings; }, system.calls);
    system.last().failure = ECANCELED;
    system.wake(*alarm);
    QTRY_COMPARE(rings, 1);
}

void tst_MachineAlarm::ringsWhenTheClockWasSetBeforehand()
{
    ClockSetByHand system;
    int rings = 0;
    const auto alarm = TimerDescriptor::open([&rings] { ++rings; }, system.calls);
    system.last().wasSet = true;
    alarm->set(now() + kHour);
    QTRY_COMPARE(rings, 1);
}

void tst_MachineAlarm::passesOverAWakingForNothing()
{
    for (const int failure : {EAGAIN, EINTR}) {
        ClockSetByHand system;
        int rings = 0;
        const auto alarm = TimerDescriptor::open([&rings] { ++rings; }, system.calls);
        system.last().failure = failure;
        system.wake(*alarm);
        QTRY_COMPARE(system.last().failure, 0);
        turn();
        QCOMPARE(rings, 0);
        alarm->set(now() + kSoon);
        QTRY_COMPARE(rings, 1);
    }
}

void tst_MachineAlarm::withoutATimerOfTheSystem()
{
    ClockSetByHand system;
    system.last().isRefusing = true;
    QVERIFY(!TimerDescriptor::open([] {}, system.calls));
    system.reset();
    system.last().isUnableToWatch = true;
    QVERIFY(!TimerDescriptor::open([] {}, system.calls));
}

void tst_MachineAlarm::looksAtTheClockWhereNobodyTells_data()
{
    QTest::addColumn<qint64>("shift");
    QTest::newRow("backwards") << -kHour;
    QTest::newRow("forwards, not as far as the moment") << kHour;
    QTest::newRow("forwards, beyond the moment") << 3 * kHour;
}

void tst_MachineAlarm::looksAtTheClockWhereNobodyTells()
{
    QFETCH(qint64, shift);
    ShiftedClock clock;
    int rings = 0;
    LookingAlarm alarm([&clock] { return clock.msecsSinceEpoch(); }, [&rings] { ++rings; });
    alarm.set(now() + 2 * kHour);
    turn();
    QCOMPARE(rings, 0);
    clock.shift = shift;
    QTRY_COMPARE(rings, 1);
}

TREL_TEST(tst_MachineAlarm, QCoreApplication)
#include "tst_MachineAlarm.moc"
