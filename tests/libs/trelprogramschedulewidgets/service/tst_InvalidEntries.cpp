#include "service/InvalidEntries.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

class tst_InvalidEntries : public QObject
{
    Q_OBJECT

private slots:
    void burying_data();
    void burying();
    void aTombstoneStaysAsItIs();
    void readBack_data();
    void readBack();
    void theLastEntryDecides();
};

void tst_InvalidEntries::burying_data()
{
    QTest::addColumn<int>("progIndex");
    QTest::addColumn<bool>("isInvalid");
    QTest::addColumn<bool>("buried");
    QTest::newRow("gone bad") << 100 << true << true;
    QTest::newRow("gone bad, no index") << -1 << true << true;
    QTest::newRow("gone bad, last below the bound") << 65535 << true << true;
    QTest::newRow("at the bound") << 65536 << true << false;
    QTest::newRow("above the bound") << 65537 << true << false;
    QTest::newRow("good") << 100 << false << false;
    QTest::newRow("good, above the bound") << 70000 << false << false;
}

void tst_InvalidEntries::burying()
{
    QFETCH(int, progIndex);
    QFETCH(bool, isInvalid);
    QFETCH(bool, buried);
    const struProgInfo before{progIndex, isInvalid, "Name", 3};
    struProgInfo entry = before;
    QCOMPARE(buryInvalidEntry(entry, "(bad)"), buried);
    const struProgInfo tombstone{65536, true, "Name(bad)", 3};
    QVERIFY(entry == (buried ? tombstone : before));
}

void tst_InvalidEntries::aTombstoneStaysAsItIs()
{
    struProgInfo entry{4, true, "Name", 1};
    QVERIFY(buryInvalidEntry(entry, "(bad)"));
    QVERIFY(!buryInvalidEntry(entry, "(bad)"));
    QCOMPARE(entry.progName, std::string("Name(bad)"));
}

void tst_InvalidEntries::readBack_data()
{
    QTest::addColumn<int>("progIndex");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<bool>("isInvalid");
    QTest::newRow("gone, below the bound") << 65534 << true << false;
    QTest::newRow("gone, at the bound") << 65535 << true << true;
    QTest::newRow("gone, tombstone") << 65536 << true << true;
    QTest::newRow("there, at the bound") << 65535 << false << false;
    QTest::newRow("there") << 5 << false << false;
}

void tst_InvalidEntries::readBack()
{
    QFETCH(int, progIndex);
    QFETCH(bool, isNull);
    QTEST(isInvalidReadBack(progIndex, isNull), "isInvalid");
}

void tst_InvalidEntries::theLastEntryDecides()
{
    PlayPlan plan;
    plan.programs = {{1, true, "A", 1}, {2, false, "B", 1}, {1, false, "A", 1}, {2, true, "B", 1}};
    QVERIFY(!holdsAsInvalid(plan, 1));
    QVERIFY(holdsAsInvalid(plan, 2));
    QVERIFY(!holdsAsInvalid(plan, 3));
    QVERIFY(!holdsAsInvalid(PlayPlan(), 1));
}

TREL_TEST(tst_InvalidEntries, trel::tests::NoApplication)

#include "tst_InvalidEntries.moc"
