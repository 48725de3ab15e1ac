#include "service/ProgramTotal.h"
#include "support/TestProgram.h"

#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

class tst_ProgramTotal : public QObject
{
    Q_OBJECT

private slots:
    void totals_data();
    void totals();
};

void tst_ProgramTotal::totals_data()
{
    QTest::addColumn<double>("totalMs");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("warned");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("00:00:00.000") << false;
    QTest::newRow("all units") << 3723004.0 << QStringLiteral("01:02:03.004") << false;
    QTest::newRow("fraction cut off") << 999.999 << QStringLiteral("00:00:00.999") << false;
    QTest::newRow("fraction below zero") << -0.5 << QStringLiteral("00:00:00.000") << false;
    QTest::newRow("negative") << -1.0 << QString() << false;
    QTest::newRow("last millisecond") << 86399999.0 << QStringLiteral("23:59:59.999") << false;
    QTest::newRow("fraction short of a day")
        << 86399999.9 << QStringLiteral("23:59:59.999") << false;
    QTest::newRow("a day") << 86400000.0 << QString() << false;
    QTest::newRow("fraction over a day") << 86400000.25 << QString() << true;
    QTest::newRow("over a day") << 86400001.0 << QString() << true;
    QTest::newRow("more than an int holds") << 1e15 << QString() << true;
    QTest::newRow("less than an int holds") << -1e15 << QString() << false;
    QTest::newRow("no end") << std::numeric_limits<double>::infinity() << QString() << true;
}

void tst_ProgramTotal::totals()
{
    QFETCH(double, totalMs);
    QTEST(totalText(totalMs), "text");
    QTEST(exceedsDay(totalMs), "warned");
}

TREL_TEST(tst_ProgramTotal, trel::tests::NoApplication)

#include "tst_ProgramTotal.moc"
