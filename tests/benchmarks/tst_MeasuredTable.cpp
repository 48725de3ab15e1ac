#include "MeasuredTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <stdexcept>

using namespace bench;

namespace {

const char kResults[] = R"({
  "context": { "num_cpus": 2 },
  "benchmarks": [
    { "name": "Build, against a floor/10 plans/iterations:5",
      "run_name": "Build, against a floor/10 plans/iterations:5",
      "iterations": 5, "ratio": 1.25, "target": 1.15 },
    { "name": "Build, against steps/10 plans", "run_name": "Build, against steps/10 plans",
      "iterations": 5, "ratio": 0.0021, "target": 0.02 }
  ]
})";

const MeasuredTable kTable = {{"Build, against a floor", "10 plans", 1.25, 1.15},
                              {"Build, against steps", "10 plans", 0.0021, 0.02}};

QStringList lines(const std::string& text)
{
    return QString::fromStdString(text).split(QLatin1Char('\n'));
}

} // namespace

class TestMeasuredTable : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatABenchmarkHasWritten();
    void refusesWhatIsNoResult_data();
    void refusesWhatIsNoResult();
    void printsColumns();
    void writesARowACase();
    void meetsATargetThatItReaches();
    void replacesTheTableOfADocument();
    void replacesTheTableOfAName();
    void tellsOfEachCaseWhereItIsNearestToItsTarget();
    void refusesADocumentWithoutMarkers();
};

void TestMeasuredTable::readsWhatABenchmarkHasWritten()
{
    const MeasuredTable table = readResults(kResults);

    QCOMPARE(table.size(), std::size_t(2));
    QCOMPARE(table[0].name, std::string("Build, against a floor"));
    QCOMPARE(table[0].size, std::string("10 plans"));
    QCOMPARE(table[0].ratio, 1.25);
    QCOMPARE(table[0].target, 1.15);
    QCOMPARE(table[1].size, std::string("10 plans"));
}

void TestMeasuredTable::refusesWhatIsNoResult_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("cut off") << QByteArray(kResults).left(80);
    QTest::newRow("no benchmarks") << QByteArray("{}");
    QTest::newRow("no ratio") << QByteArray(R"({"benchmarks": [{"run_name": "a/b"}]})");
    QTest::newRow("failed") << QByteArray(
        R"({"benchmarks": [{"run_name": "a/b", "error_occurred": true, "ratio": 1, "target": 2}]})");
}

void TestMeasuredTable::refusesWhatIsNoResult()
{
    QFETCH(QByteArray, json);
    QVERIFY_EXCEPTION_THROWN(readResults(json.toStdString()), std::runtime_error);
}

void TestMeasuredTable::printsColumns()
{
    const QStringList expected = {
        QStringLiteral("Case                    Size        Ratio   Target  Met"),
        QStringLiteral("Build, against a floor  10 plans     1.25     1.15  no"),
        QStringLiteral("Build, against steps    10 plans  0.00210  0.02000  yes"), QString()};
    QCOMPARE(lines(toText(kTable)), expected);
}

void TestMeasuredTable::writesARowACase()
{
    const QJsonArray rows =
        QJsonDocument::fromJson(QByteArray::fromStdString(toJson(kTable))).array();

    QCOMPARE(rows.size(), 2);
    const QJsonObject row = rows.at(0).toObject();
    QCOMPARE(row.keys(),
             QStringList({QStringLiteral("case"), QStringLiteral("met"), QStringLiteral("ratio"),
                          QStringLiteral("size"), QStringLiteral("target")}));
    QCOMPARE(row.value(QLatin1String("case")).toString(), QStringLiteral("Build, against a floor"));
    QCOMPARE(row.value(QLatin1String("size")).toString(), QStringLiteral("10 plans"));
    QCOMPARE(row.value(QLatin1String("ratio")).toDouble(), 1.25);
    QCOMPARE(row.value(QLatin1String("target")).toDouble(), 1.15);
    QCOMPARE(row.value(QLatin1String("met")), QJsonValue(false));
    QCOMPARE(rows.at(1).toObject().value(QLatin1String("met")), QJsonValue(true));
}

void TestMeasuredTable::meetsATargetThatItReaches()
{
    QVERIFY((MeasuredRow{"a", "b", 1.15, 1.15}.isMet()));
    QVERIFY(!(MeasuredRow{"a", "b", 1.16, 1.15}.isMet()));
}

void TestMeasuredTable::replacesTheTableOfADocument()
{
    const std::string document = "Before\n<!-- table: start -->\nold\n<!-- table: end -->\nAfter\n";
    const std::string once = withTable(document, toMarkdown(kTable, "a machine"));

    const QStringList expected = {
        QStringLiteral("Before"),
        QStringLiteral("<!-- table: start -->"),
        QString(),
        QStringLiteral("| Case | Size | Ratio | Target | Met |"),
        QStringLiteral("|---|---|---:|---:|---|"),
        QStringLiteral("| Build, against a floor | 10 plans | 1.25 | "
                       "1.15 | no |"),
        QStringLiteral("| Build, against steps | 10 plans | 0.00210 | "
                       "0.02000 | yes |"),
        QString(),
        QStringLiteral("1 of 2 rows meet their target. Measured on a machine."),
        QString(),
        QStringLiteral("<!-- table: end -->"),
        QStringLiteral("After"),
        QString()};
    QCOMPARE(lines(once), expected);
    QCOMPARE(withTable(once, toMarkdown(kTable, "a machine")), once);
}

void TestMeasuredTable::replacesTheTableOfAName()
{
    const std::string first = "<!-- table: start -->\nold\n<!-- table: end -->\n";
    const std::string second = "<!-- table b: start -->\nold\n<!-- table b: end -->\n";
    QCOMPARE(withTable(first + second, "new\n", "b"),
             first + "<!-- table b: start -->\n\nnew\n\n<!-- table b: end -->\n");
    QCOMPARE(withTable(first + second, "new\n"),
             "<!-- table: start -->\n\nnew\n\n<!-- table: end -->\n" + second);
    QVERIFY_EXCEPTION_THROWN(withTable(first + second, "new\n", "c"), std::runtime_error);
}

void TestMeasuredTable::tellsOfEachCaseWhereItIsNearestToItsTarget()
{
    const MeasuredTable table = {{"Build", "10 plans", 1.0, 2.0},
                                 {"Destroy", "10 plans", 3.0, 2.0},
                                 {"Build", "100 plans", 1.8, 2.0},
                                 {"Destroy", "100 plans", 3.6, 3.0},
                                 {"Build", "300 plans", 2.0, 4.0}};

    const QStringList expected = {
        QStringLiteral("| Case | Size | Ratio | Target | Met |"),
        QStringLiteral("|---|---|---:|---:|---|"),
        QStringLiteral("| Build | 100 plans | 1.80 | 2.00 | yes |"),
        QStringLiteral("| Destroy | 10 plans | 3.00 | 2.00 | no |"),
        QString(),
        QStringLiteral("3 of 5 rows meet their target. Measured on a machine."),
        QString()};
    QCOMPARE(lines(toMarkdown(table, "a machine")), expected);
}

void TestMeasuredTable::refusesADocumentWithoutMarkers()
{
    QVERIFY_EXCEPTION_THROWN(withTable("Before\n", "table"), std::runtime_error);
    QVERIFY_EXCEPTION_THROWN(withTable("<!-- table: end -->\n<!-- table: start -->\n", "table"),
                             std::runtime_error);
}

QTEST_APPLESS_MAIN(TestMeasuredTable)
#include "tst_MeasuredTable.moc"
