#include "chooser/CheckOrder.h"

#include "support/StepwiseChecks.h"
#include "support/TestProgram.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace trel::mediadispatch;

class tst_CheckOrder : public QObject
{
    Q_OBJECT

private slots:
    void numbersHaveTwoDigits_data();
    void numbersHaveTwoDigits();
    void startsWithNothingChecked();
    void worksOnWhatItIsGiven();
    void givesPlacesInTheOrderOfChecking();
    void closesUpWhenARowIsUnchecked();
    void uncheckingUncheckedRowsStopsBelowZero();
    void checkingAllNumbersFromTheTop();
    void clearingAllLeavesNothing_data();
    void clearingAllLeavesNothing();
    void anEmptyTableChangesNothingWhenCleared();
    void equalsTheStepwiseWay_data();
    void equalsTheStepwiseWay();
};

namespace {

using Places = QMap<int, int>;

/// An order with the count and the places that it works on.
class OwnOrder
{
public:
    explicit OwnOrder(const std::vector<int>& rows = {})
    {
        for (const int row : rows) {
            order.check(row);
        }
    }

    int count = -1;
    Places places;
    CheckOrder order{count, places};
};

} // namespace

void tst_CheckOrder::numbersHaveTwoDigits_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("one digit") << 7 << QStringLiteral("07");
    QTest::newRow("the last with one digit") << 9 << QStringLiteral("09");
    QTest::newRow("the first with two") << 10 << QStringLiteral("10");
    QTest::newRow("two digits") << 12 << QStringLiteral("12");
    QTest::newRow("five digits") << 20000 << QStringLiteral("20000");
    QTest::newRow("none") << 0 << QStringLiteral("00");
    QTest::newRow("negative") << -3 << QStringLiteral("0-3");
}

void tst_CheckOrder::numbersHaveTwoDigits()
{
    QFETCH(int, number);
    QTEST(formatRowNumber(number), "text");
}

void tst_CheckOrder::startsWithNothingChecked()
{
    const OwnOrder own;
    const CheckOrder& order = own.order;
    QCOMPARE(order.count(), -1);
    QVERIFY(order.places().isEmpty());
    QVERIFY(order.rows().empty());
}

void tst_CheckOrder::worksOnWhatItIsGiven()
{
    OwnOrder own({4});
    QCOMPARE(own.count, 1);
    QCOMPARE(own.places, (Places{{4, 1}}));
    own.count = 2;
    own.places = {{4, 2}, {0, 1}};
    QCOMPARE(own.order.rows(), (std::vector<int>{0, 4}));
    QCOMPARE(own.order.uncheck(0), (std::vector<CheckedRow>{{4, 1}}));
    QCOMPARE(own.count, 1);
    QCOMPARE(own.places, (Places{{4, 1}}));
}

void tst_CheckOrder::givesPlacesInTheOrderOfChecking()
{
    OwnOrder own;
    CheckOrder& order = own.order;
    QCOMPARE(order.check(5), 1);
    QCOMPARE(order.check(1), 2);
    QCOMPARE(order.check(3), 3);
    QCOMPARE(order.rows(), (std::vector<int>{5, 1, 3}));
    QCOMPARE(order.count(), 3);
}

void tst_CheckOrder::closesUpWhenARowIsUnchecked()
{
    OwnOrder own({5, 1, 3, 0});
    CheckOrder& order = own.order;
    QCOMPARE(order.uncheck(1), (std::vector<CheckedRow>{{0, 3}, {3, 2}}));
    QCOMPARE(order.places(), (Places{{5, 1}, {3, 2}, {0, 3}}));
    QCOMPARE(order.count(), 3);
    QVERIFY(order.uncheck(0).empty());
    QCOMPARE(order.count(), 2);
}

void tst_CheckOrder::uncheckingUncheckedRowsStopsBelowZero()
{
    OwnOrder own({2});
    CheckOrder& order = own.order;
    order.uncheck(2);
    QCOMPARE(order.count(), 0);
    order.uncheck(2);
    QCOMPARE(order.count(), -1);
    order.uncheck(2);
    QCOMPARE(order.count(), -1);
    QCOMPARE(order.check(4), 1);
}

void tst_CheckOrder::checkingAllNumbersFromTheTop()
{
    OwnOrder own({2, 0});
    CheckOrder& order = own.order;
    order.checkAll(4);
    QCOMPARE(order.places(), (Places{{0, 1}, {1, 2}, {2, 3}, {3, 4}}));
    QCOMPARE(order.count(), 4);
}

void tst_CheckOrder::clearingAllLeavesNothing_data()
{
    QTest::addColumn<int>("checked");
    QTest::addColumn<int>("count");
    QTest::newRow("all were checked") << 4 << 0;
    QTest::newRow("some were checked") << 3 << -1;
    QTest::newRow("none was checked") << 0 << -1;
}

void tst_CheckOrder::clearingAllLeavesNothing()
{
    QFETCH(int, checked);
    OwnOrder own;
    CheckOrder& order = own.order;
    for (int row = 0; row < checked; ++row) {
        order.check(row);
    }
    order.clearAll(4);
    QVERIFY(order.places().isEmpty());
    QTEST(order.count(), "count");
}

void tst_CheckOrder::anEmptyTableChangesNothingWhenCleared()
{
    OwnOrder own;
    CheckOrder& order = own.order;
    order.checkAll(0);
    QCOMPARE(order.count(), 0);
    order.clearAll(0);
    QCOMPARE(order.count(), 0);
}

void tst_CheckOrder::equalsTheStepwiseWay_data()
{
    QTest::addColumn<int>("rowCount");
    QTest::newRow("one row") << 1;
    QTest::newRow("two rows") << 2;
    QTest::newRow("seven rows") << 7;
    QTest::newRow("thirty rows") << 30;
}

void tst_CheckOrder::equalsTheStepwiseWay()
{
    QFETCH(int, rowCount);
    for (quint32 seed = 0; seed < 60; ++seed) {
        QRandomGenerator random(seed);
        OwnOrder own;
        CheckOrder& quick = own.order;
        StepwiseChecks stepwise(rowCount);
        QStringList history;
        for (int step = 0; step < 120; ++step) {
            const int row = random.bounded(rowCount);
            switch (random.bounded(12)) {
            case 0:
                quick.checkAll(rowCount);
                stepwise.checkAll(true);
                history.append(QStringLiteral("all"));
                break;
            case 1:
                quick.clearAll(rowCount);
                stepwise.checkAll(false);
                history.append(QStringLiteral("none"));
                break;
            case 2:
            case 3:
            case 4:
            case 5:
            case 6:
                // Whatever the row's state, so that unchecked rows are unchecked again.
                quick.uncheck(row);
                stepwise.checkRow(row, false);
                history.append(QStringLiteral("-%1").arg(row));
                break;
            default:
                quick.check(row);
                stepwise.checkRow(row, true);
                history.append(QStringLiteral("+%1").arg(row));
                break;
            }
            QVERIFY2(quick.places() == stepwise.places() && quick.count() == stepwise.count(),
                     qPrintable(history.join(QLatin1Char(' '))));
        }
    }
}

TREL_TEST(tst_CheckOrder, trel::tests::NoApplication)

#include "tst_CheckOrder.moc"
