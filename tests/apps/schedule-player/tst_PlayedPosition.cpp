#include "deck/PlayedPosition.h"
#include "support/TestProgram.h"

#include <QTest>

using trel::player::PlayedPosition;

namespace {

PlayedPosition::Moment after(int milliseconds)
{
    return PlayedPosition::Moment(std::chrono::milliseconds(1000 + milliseconds));
}

} // namespace

/// Where a program is between two of its pictures.
class tst_PlayedPosition : public QObject
{
    Q_OBJECT

private slots:
    void isUnknownToBeginWith();
    void standsUntilItRuns();
    void goesOnWithTheSpeed();
    void standsWhereNothingMoreHasCome();
    void goesOnAsFarAsWasRead();
};

void tst_PlayedPosition::isUnknownToBeginWith()
{
    PlayedPosition position;
    QVERIFY(!position.at(after(0)));
    position.run(after(0));
    QVERIFY(!position.at(after(50)));
    position.reached(500, after(50));
    QCOMPARE(*position.at(after(60)), 510.0);
    position.forget();
    QVERIFY(!position.at(after(70)));
}

void tst_PlayedPosition::standsUntilItRuns()
{
    PlayedPosition position;
    position.reached(100, after(0));
    QCOMPARE(*position.at(after(100)), 100.0);
    position.run(after(100));
    QCOMPARE(*position.at(after(150)), 150.0);
    position.stand(after(150));
    QCOMPARE(*position.at(after(250)), 150.0);
}

void tst_PlayedPosition::goesOnWithTheSpeed()
{
    PlayedPosition position;
    position.reached(0, after(0));
    position.run(after(0));
    position.setSpeed(1.02, after(100));
    QCOMPARE(*position.at(after(200)), 202.0);
}

void tst_PlayedPosition::standsWhereNothingMoreHasCome()
{
    PlayedPosition position;
    position.reached(1000, after(0));
    position.run(after(0));
    QCOMPARE(*position.at(after(250)), 1250.0);
    QCOMPARE(*position.at(after(900)), 1250.0);
}

void tst_PlayedPosition::goesOnAsFarAsWasRead()
{
    // A picture every two seconds.
    PlayedPosition position;
    position.reached(1000, after(0));
    position.readUntil(3000);
    position.run(after(0));
    QCOMPARE(*position.at(after(1900)), 2900.0);
    QCOMPARE(*position.at(after(5000)), 3000.0);
}

TREL_TEST(tst_PlayedPosition, trel::tests::NoApplication)
#include "tst_PlayedPosition.moc"
