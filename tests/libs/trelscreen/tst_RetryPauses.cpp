#include "trelscreen/RetryPauses.h"

#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::screen;

class tst_RetryPauses : public QObject
{
    Q_OBJECT

private slots:
    void growToASecond()
    {
        QCOMPARE(retryPause(1), 250);
        QCOMPARE(retryPause(2), 500);
        QCOMPARE(retryPause(3), 1000);
        QCOMPARE(retryPause(4), 1000);
        QCOMPARE(retryPause(100'000), 1000);
    }
};

TREL_TEST(tst_RetryPauses, trel::tests::NoApplication)
#include "tst_RetryPauses.moc"
