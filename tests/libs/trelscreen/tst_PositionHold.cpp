#include "trelscreen/PositionHold.h"

#include "support/TestProgram.h"

#include <QtTest>

#include <cmath>

using namespace trel::screen;

namespace {

constexpr qint64 kLook = 250;

/// A play that goes by a clock of its own, looked at four times a second.
class Play
{
public:
    /// How far it is ahead, and how much faster than it should be. It shows a picture for so long.
    Play(double ahead, double drift, qint64 frame)
        : m_ahead(ahead)
        , m_drift(drift)
        , m_frame(frame)
    {}

    PositionHold::Step look()
    {
        const double position = static_cast<double>(m_moment) + m_ahead;
        const auto shown = static_cast<qint64>(std::floor(position / static_cast<double>(m_frame)) *
                                               static_cast<double>(m_frame));
        const PositionHold::Step step = m_hold.step(m_moment, shown, m_moment);
        if (step.seek) {
            m_ahead = static_cast<double>(*step.seek - m_moment);
        }
        m_corrections += step.speed && *step.speed != 1.0 ? 1 : 0;
        m_ahead += (m_hold.speed() * (1.0 + m_drift) - 1.0) * static_cast<double>(kLook);
        m_moment += kLook;
        return step;
    }

    double ahead() const { return m_ahead; }
    double speed() const { return m_hold.speed(); }
    int corrections() const { return m_corrections; }

private:
    PositionHold m_hold;
    qint64 m_moment = 1'000'000;
    double m_ahead;
    double m_drift;
    qint64 m_frame;
    int m_corrections = 0;
};

} // namespace

class tst_PositionHold : public QObject
{
    Q_OBJECT

private slots:
    void leavesAloneWhatIsWithinAFrame()
    {
        for (const qint64 off : {-40, -11, 0, 11, 40}) {
            PositionHold hold;
            const PositionHold::Step step = hold.step(5000, 5000 + off, 0);
            QVERIFY(!step.speed);
            QVERIFY(!step.seek);
            QCOMPARE(step.ahead, off);
        }
    }

    void countsByTheFramesOfTheFilm_data()
    {
        QTest::addColumn<qint64>("frame");
        QTest::addColumn<qint64>("tolerance");
        QTest::newRow("10 a second") << qint64(100) << qint64(100);
        QTest::newRow("5 a second") << qint64(200) << qint64(200);
        QTest::newRow("1 a second") << qint64(1000) << qint64(250);
        QTest::newRow("50 a second") << qint64(20) << qint64(40);
    }
    void countsByTheFramesOfTheFilm()
    {
        QFETCH(qint64, frame);
        QFETCH(qint64, tolerance);
        QVERIFY(!PositionHold(frame).step(5000, 5000 - tolerance, 0).speed);
        PositionHold hold(frame);
        QCOMPARE(hold.step(5000, 5000 - tolerance - 1, 0).speed.value_or(0.0), 1.02);
        QVERIFY(!hold.step(250, 250 - tolerance / 4 - 7, 250).speed);
        QCOMPARE(hold.step(300, 300 - tolerance / 4, 300).speed.value_or(0.0), 1.0);
    }

    void breathesWhereItIsOffByMoreThanAFrame()
    {
        PositionHold late;
        QCOMPARE(late.step(5000, 4959, 0).speed.value_or(0.0), 1.02);
        PositionHold early;
        QCOMPARE(early.step(5000, 5041, 0).speed.value_or(0.0), 0.98);
        QCOMPARE(early.speed(), 0.98);
    }

    void breathesUntilItIsWithinAQuarterOfAFrame()
    {
        PositionHold hold;
        QVERIFY(hold.step(0, 41, 0).speed);
        QVERIFY(!hold.step(250, 250 + 36, 250).speed);
        // What was read before counts with what has been gained since.
        QVERIFY(!hold.step(1500, 1500 + 11, 1500).speed);
        QCOMPARE(hold.step(1600, 1600 + 9, 1600).speed.value_or(0.0), 1.0);
        QVERIFY(!hold.step(1850, 1850 + 9, 1850).speed);
    }

    void turnsRoundWhereItHasGoneTooFar()
    {
        PositionHold hold;
        QCOMPARE(hold.step(0, -60, 0).speed.value_or(0.0), 1.02);
        QCOMPARE(hold.step(250, 250 + 60, 250).speed.value_or(0.0), 0.98);
    }

    void seeksWhereItIsOffByMoreThanHalfASecond()
    {
        PositionHold hold;
        QVERIFY(!hold.step(5000, 4500, 0).seek);
        const PositionHold::Step late = hold.step(5250, 4749, 250);
        QCOMPARE(late.seek.value_or(-1), 5350);
        QCOMPARE(late.ahead, -501);
        // The breath of before ends with it.
        QCOMPARE(late.speed.value_or(0.0), 1.0);
        QCOMPARE(PositionHold().step(5000, 5501, 0).seek.value_or(-1), 5100);
    }

    void waitsForASeekToArrive()
    {
        PositionHold hold;
        QVERIFY(hold.step(5000, 0, 0).seek);
        for (qint64 moment = kLook; moment < 3000; moment += kLook) {
            const PositionHold::Step step = hold.step(5000 + moment, std::nullopt, moment);
            QVERIFY(!step.seek);
            QVERIFY(!step.speed);
        }
    }

    void seeksFurtherWhereSeekingTakesLong()
    {
        PositionHold hold;
        QCOMPARE(hold.step(5000, 0, 0).seek.value_or(-1), 5100);
        // It took 900 ms, and the play is 800 behind.
        QCOMPARE(hold.step(5900, 5100, 900).seek.value_or(-1), 5900 + 900);
        // And less far again where it does not.
        QCOMPARE(hold.step(6000, 6800, 1000).seek.value_or(-1), 6000 + 100);
    }

    void pausesBetweenSeeksThatDoNotHelp()
    {
        PositionHold hold;
        std::vector<qint64> sought;
        for (qint64 moment = 0; moment <= 80'000; moment += kLook) {
            if (hold.step(5000 + moment, 0, moment).seek) {
                sought.push_back(moment);
            }
        }
        const std::vector<qint64> expected{0,      250,    500,    1500,   3500,  7500,
                                           15'500, 31'500, 47'500, 63'500, 79'500};
        QCOMPARE(sought, expected);
        // Where it has been right in between, the next one is not kept waiting.
        QVERIFY(!hold.step(90'000, 90'000, 80'250).seek);
        QVERIFY(hold.step(90'250, 0, 80'500).seek);
    }

    void holdsADriftingClock_data()
    {
        QTest::addColumn<double>("ahead");
        QTest::addColumn<double>("drift");
        QTest::addColumn<qint64>("frame");
        QTest::newRow("slow") << 0.0 << -0.001 << qint64(40);
        QTest::newRow("quick") << 0.0 << 0.001 << qint64(40);
        QTest::newRow("late and slow") << -450.0 << -0.002 << qint64(40);
        QTest::newRow("early and quick") << 450.0 << 0.002 << qint64(17);
        QTest::newRow("far away") << -20000.0 << 0.0 << qint64(40);
    }
    void holdsADriftingClock()
    {
        QFETCH(double, ahead);
        QFETCH(double, drift);
        QFETCH(qint64, frame);
        Play play(ahead, drift, frame);
        for (int i = 0; i < 120; ++i) {
            play.look();
        }
        for (int i = 0; i < 2400; ++i) {
            play.look();
            QVERIFY2(std::abs(play.ahead()) < 55.0, qPrintable(QString::number(play.ahead())));
        }
    }

    void doesNotChaseTheBordersOfFrames()
    {
        Play play(0.0, 0.0, 40);
        for (int i = 0; i < 2400; ++i) {
            play.look();
        }
        QCOMPARE(play.corrections(), 0);
        QCOMPARE(play.speed(), 1.0);
    }
};

TREL_TEST(tst_PositionHold, trel::tests::NoApplication)
#include "tst_PositionHold.moc"
