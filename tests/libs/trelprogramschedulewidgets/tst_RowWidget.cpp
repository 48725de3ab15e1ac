#include "RowWidget.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::mediadispatch;

namespace {

/// "0:a 2:b" for the rows and names of a list.
QString text(const std::vector<RowWidget<QObject>>& widgets)
{
    QStringList texts;
    for (const auto& entry : widgets) {
        texts.append(QStringLiteral("%1:%2").arg(entry.row).arg(
            entry.widget ? entry.widget->objectName() : QStringLiteral("-")));
    }
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// The lists and maps that know rows, and what the removal of a row makes of them.
class tst_RowWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void findsTheFirstOfARow();
    void findsTheRowOfAWidget();
    void losesAWidget();
    void dropsARow_data();
    void dropsARow();
    void dropsEveryEntryOfARow();
    void dropsAKey_data();
    void dropsAKey();
    void dropsAValue();

private:
    QObject m_a;
    QObject m_b;
    QObject m_c;
};

void tst_RowWidget::initTestCase()
{
    m_a.setObjectName(QStringLiteral("a"));
    m_b.setObjectName(QStringLiteral("b"));
    m_c.setObjectName(QStringLiteral("c"));
}

void tst_RowWidget::findsTheFirstOfARow()
{
    const std::vector<RowWidget<QObject>> widgets = {{0, &m_a}, {1, nullptr}, {1, &m_b}, {1, &m_c}};
    QCOMPARE(widgetOfRow(widgets, 0), &m_a);
    QCOMPARE(widgetOfRow(widgets, 1), &m_b);
    QVERIFY(!widgetOfRow(widgets, 2));
}

void tst_RowWidget::findsTheRowOfAWidget()
{
    const std::vector<RowWidget<QObject>> widgets = {{4, nullptr}, {7, &m_a}, {9, &m_a}};
    QCOMPARE(rowOfWidget(widgets, &m_a), 7);
    QCOMPARE(rowOfWidget(widgets, &m_b), -1);
    QCOMPARE(rowOfWidget(widgets, nullptr), -1);
    QCOMPARE(rowOfWidget(std::vector<RowWidget<QObject>>(), &m_a), -1);
}

void tst_RowWidget::losesAWidget()
{
    std::vector<RowWidget<QObject>> widgets = {{0, &m_a}, {1, &m_b}, {2, &m_a}};
    loseWidget(widgets, &m_c);
    QCOMPARE(text(widgets), QStringLiteral("0:a 1:b 2:a"));
    loseWidget(widgets, &m_a);
    QCOMPARE(text(widgets), QStringLiteral("0:- 1:b 2:-"));
}

void tst_RowWidget::dropsARow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("rest");
    QTest::newRow("first") << 0 << "0:b 1:c";
    QTest::newRow("middle") << 1 << "0:a 1:c";
    QTest::newRow("last") << 2 << "0:a 1:b";
    QTest::newRow("none") << 3 << "0:a 1:b 2:c";
}

void tst_RowWidget::dropsARow()
{
    QFETCH(int, row);
    std::vector<RowWidget<QObject>> widgets = {{0, &m_a}, {1, &m_b}, {2, &m_c}};
    dropRow(widgets, row);
    QTEST(text(widgets), "rest");
}

void tst_RowWidget::dropsEveryEntryOfARow()
{
    std::vector<RowWidget<QObject>> widgets = {{1, &m_a}, {1, &m_b}, {2, &m_c}};
    dropRow(widgets, 1);
    QCOMPARE(text(widgets), QStringLiteral("1:c"));
}

void tst_RowWidget::dropsAKey_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVector<int>>("values");
    QTest::newRow("first") << 0 << QVector<int>{20, 30};
    QTest::newRow("middle") << 1 << QVector<int>{10, 30};
    QTest::newRow("last") << 2 << QVector<int>{10, 20};
    QTest::newRow("none") << 3 << QVector<int>{10, 20, 30};
}

void tst_RowWidget::dropsAKey()
{
    QFETCH(int, row);
    QFETCH(QVector<int>, values);
    std::map<int, int> expected;
    for (int i = 0; i < values.size(); ++i) {
        expected[i] = values[i];
    }
    QCOMPARE(withoutRowKey(std::map<int, int>{{0, 10}, {1, 20}, {2, 30}}, row), expected);
}

void tst_RowWidget::dropsAValue()
{
    const std::map<int, int> rows = {{5, 2}, {6, 0}, {7, 1}, {8, 1}};
    QCOMPARE(withoutRowValue(rows, 1), (std::map<int, int>{{5, 1}, {6, 0}}));
    QCOMPARE(withoutRowValue(rows, 9), rows);
}

TREL_TEST(tst_RowWidget, trel::tests::NoApplication)
#include "tst_RowWidget.moc"
