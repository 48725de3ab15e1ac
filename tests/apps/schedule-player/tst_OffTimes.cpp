#include "OffTimes.h"
#include "support/TestProgram.h"

#include <QtTest>

using trel::screen::ScreenEvent;
using Kind = ScreenEvent::Kind;

class tst_OffTimes : public QObject
{
    Q_OBJECT

private slots:
    void countsFromTheEndOfTheFault();
    void countsFromTheLossWhereThatComesLater();
    void isBackOnlyOnceItLasts();
    void endsWithTheNextFault();
    void isNotBackWithWhatIsNext();

private:
    static ScreenEvent event(Kind kind, qint64 moment, bool isAgain = false, int program = 1)
    {
        ScreenEvent event;
        event.kind = kind;
        event.moment = moment;
        event.isAgain = isAgain;
        event.play.state.picture = trel::mediadispatch::ScreenPicture::Playing;
        event.play.state.progIndex = program;
        return event;
    }
};

void tst_OffTimes::countsFromTheEndOfTheFault()
{
    OffTimes times(0);
    times.note(event(Kind::Shown, 200));
    QCOMPARE(times.longest(5000), 200);
    times.setWhole(false, 6000);
    times.note(event(Kind::Left, 6500));
    times.note(event(Kind::StoodIn, 6500));
    QCOMPARE(times.longest(8000), 200);
    times.setWhole(true, 9000);
    QCOMPARE(times.longest(9700), 700);
    times.note(event(Kind::Shown, 10'300));
    QCOMPARE(times.longest(60'000), 1300);
}

void tst_OffTimes::countsFromTheLossWhereThatComesLater()
{
    OffTimes times(0);
    times.note(event(Kind::Shown, 0));
    times.setWhole(false, 1000);
    times.setWhole(true, 4000);
    times.note(event(Kind::Left, 4500));
    times.note(event(Kind::Shown, 5100));
    QCOMPARE(times.longest(60'000), 600);
}

void tst_OffTimes::isBackOnlyOnceItLasts()
{
    OffTimes times(0);
    times.note(event(Kind::Shown, 0));
    times.note(event(Kind::Left, 1000));
    times.note(event(Kind::Shown, 1500, true));
    times.note(event(Kind::Left, 2000));
    times.note(event(Kind::Shown, 2500, true));
    times.note(event(Kind::Recovered, 3500));
    QCOMPARE(times.longest(60'000), 1500);
}

void tst_OffTimes::endsWithTheNextFault()
{
    OffTimes times(0);
    times.note(event(Kind::Shown, 0));
    times.note(event(Kind::Left, 1000));
    times.setWhole(false, 1800);
    QCOMPARE(times.longest(60'000), 800);
    times.setWhole(true, 9000);
    times.note(event(Kind::Shown, 9100, true));
    times.setWhole(false, 9300);
    times.note(event(Kind::Recovered, 10'100));
    QCOMPARE(times.longest(60'000), 800);
}

void tst_OffTimes::isNotBackWithWhatIsNext()
{
    OffTimes times(0);
    times.note(event(Kind::Shown, 0));
    times.note(event(Kind::Left, 1000));
    times.note(event(Kind::Shown, 1500, true));
    times.note(event(Kind::Recovered, 1600, false, 2));
    times.note(event(Kind::Left, 2000));
    times.note(event(Kind::Shown, 2500));
    QCOMPARE(times.longest(60'000), 1500);
}

TREL_TEST(tst_OffTimes, QCoreApplication)
#include "tst_OffTimes.moc"
