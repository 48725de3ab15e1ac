#include "PlayedScreen.h"
#include "clock/Clock.h"
#include "support/RunningClock.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QtTest>

using namespace trel::mediadispatch;

/// Real decks that play real clips by a schedule: each picture that reaches the screen is held
/// against what the timeline says of its moment.
class tst_PlayedSchedule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPictureIsTheRightOne_data();
    void everyPictureIsTheRightOne();

private:
    PlayedPrograms m_programs;
};

namespace {

/// Seconds that each screen plays.
constexpr int kRun = 12;

/// Plans of three seconds with a second between them, around each hour of the night: some leave
/// black, some their last frame, some run twice through their list.
std::map<int, PlayTask> shortPlans()
{
    std::vector<PlayPlan> plans;
    for (int hour = 1; hour <= 3; ++hour) {
        for (int second = -32; second < 32; second += 4) {
            const int number = static_cast<int>(plans.size());
            const QTime start = QTime(hour, 0).addSecs(second);
            PlayPlan plan = playedPlan(number + 1, start, start.addSecs(3),
                                       number % 3 == 2 ? std::vector<int>{Still}
                                                       : std::vector<int>{Short, Middle});
            plan.endAction = number % 2 == 0 ? FreezeCurrentFrame : BlackScreen;
            if (number % 3 == 1) {
                plan.mode = FrequencyMode;
                plan.times = 2;
            }
            plans.push_back(plan);
        }
    }
    return playedTask(plans);
}

} // namespace

void tst_PlayedSchedule::initTestCase()
{
    QVERIFY(m_programs.areMade());
}

void tst_PlayedSchedule::everyPictureIsTheRightOne_data()
{
    QTest::addColumn<QDateTime>("start");
    const QTimeZone berlin("Europe/Berlin");
    // Six seconds before the clock goes from 2 to 3, and from 3 to 2.
    QTest::newRow("spring")
        << QDateTime(QDate(2024, 3, 31), QTime(0, 59, 54), Qt::UTC).toTimeZone(berlin);
    QTest::newRow("autumn")
        << QDateTime(QDate(2024, 10, 27), QTime(0, 59, 54), Qt::UTC).toTimeZone(berlin);
}

void tst_PlayedSchedule::everyPictureIsTheRightOne()
{
    QFETCH(QDateTime, start);
    const RunningClock clock(start);
    const Instant from = clock.msecsSinceEpoch();
    const Instant to = from + kRun * 1000;
    std::vector<std::unique_ptr<PlayedScreen>> screens;
    const auto add = [&](const char* name, const std::map<int, PlayTask>& tasks) -> PlayedScreen& {
        screens.push_back(
            std::make_unique<PlayedScreen>(QLatin1String(name), tasks, m_programs.catalogue()));
        return *screens.back();
    };
    add("round and round", playedAllDay({Short, Middle, Short, Long}));
    add("short plans", shortPlans());
    add("sound between", playedAllDay({Middle, Sound, Short}));
    PlayedScreen& cutInto = add("cut into", playedAllDay({Long, Middle}));
    QTimer::singleShot(3000, this, [&cutInto] { cutInto.cutIn(Longer, false); });
    QTimer::singleShot(6200, this, [&cutInto] { cutInto.cutIn(Longer, true); });
    QTRY_VERIFY_WITH_TIMEOUT(clock.msecsSinceEpoch() >= to, 2 * kRun * 1000);

    qint64 switches = 0;
    qint64 lates = 0;
    for (const std::unique_ptr<PlayedScreen>& screen : screens) {
        const qint64 second = 1000;
        const Instant settled = from + 2 * second;
        for (const RecordedFrame& frame : screen->frames()) {
            // The first pictures are those of a screen that has just begun.
            if (frame.moment < settled || frame.moment > to) {
                continue;
            }
            const QString fault = screen->fault(frame);
            QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("%1 after %2 ms: %3")
                                                     .arg(screen->name())
                                                     .arg(frame.moment - from)
                                                     .arg(fault)));
        }
        for (const ScreenState& state : screen->plays(settled, to - second)) {
            QVERIFY2(screen->hasShown(state) || screen->explains(state.since),
                     qPrintable(QStringLiteral("%1: program %2 after %3 ms was not shown")
                                    .arg(screen->name())
                                    .arg(state.progIndex)
                                    .arg(state.since - from)));
        }
        switches += screen->tally().switches();
        QCOMPARE(screen->tally().faults(), 0);
        lates += screen->tally().lates();
        qInfo("%s: %lld switches, lateness %lld in the middle and %lld ms at worst, %lld late, "
              "%lld faults",
              qPrintable(screen->name()), screen->tally().switches(), screen->tally().lateness(50),
              screen->tally().worstLateness(), screen->tally().lates(), screen->tally().faults());
    }
    QVERIFY2(switches > 50, qPrintable(QString::number(switches)));
    // A busy machine may miss one now and then.
    QVERIFY2(10 * lates <= switches, qPrintable(QString::number(lates)));
}

TREL_TEST(tst_PlayedSchedule, QGuiApplication)
#include "tst_PlayedSchedule.moc"
