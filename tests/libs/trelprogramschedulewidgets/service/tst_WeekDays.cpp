#include "LiteralRules.h"
#include "support/TestProgram.h"

#include "service/WeekDays.h"

#include <QTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

QString numbersText(const std::vector<int>& numbers)
{
    return QString::fromStdString(joinWeeks(numbers));
}

// Digits, blanks, signs and commas, and now and then a number that no int holds.
std::string randomWeeks(std::mt19937& random)
{
    static const std::string pieces[] = {"0", "1", "7", "8",  "-",           "+",         ",",
                                         ",", " ", "a", "\t", "99999999999", "4294967297"};
    std::string weeks;
    for (std::size_t left = random() % 9; left > 0; --left) {
        weeks += pieces[random() % std::size(pieces)];
    }
    return weeks;
}

} // namespace

class tst_WeekDays : public QObject
{
    Q_OBJECT

private slots:
    void parses_data();
    void parses();
    void appendsToWhatIsThere();
    void readsLikeTheLiteralRule();
    void overlaps_data();
    void overlaps();
    void joins();
};

void tst_WeekDays::parses_data()
{
    QTest::addColumn<QByteArray>("weeks");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<bool>("everyDay");

    const auto row = [](const char* name, const QByteArray& weeks, const char* numbers,
                        bool everyDay) {
        QTest::newRow(name) << weeks << QString::fromLatin1(numbers) << everyDay;
    };
    row("empty", "", "0", true);
    row("every day", "0", "0", true);
    row("in the order given", "5,1,3", "5,1,3", false);
    row("repeated", "2,2", "2,2", false);
    row("every day among others", "3,0,4", "3,0,4", true);
    row("no number", "abc", "0", true);
    row("no number after one", "1,abc", "1,0", true);
    row("digits before letters", "3rd", "3", false);
    row("beyond the week", "8,-1", "8,-1", false);
    row("empty token inside", "1,,2", "1,0,2", true);
    row("comma at the end", "1,", "1,0", true);
    row("comma at the head", ",1", "0,1", true);
    row("commas alone", ",,", "0,0,0", true);
    row("blanks before", "1, 2,\t3", "1,2,3", false);
    row("blank behind", "1 ,2", "1,2", false);
    row("blank alone", " ", "0", true);
    row("plus sign", "+3", "3", false);
    row("sign alone", "-,2", "0,2", true);
    row("blank between sign and digits", "- 1", "0", true);
    row("leading zeros", "007", "7", false);
    row("past 32 bits", "4294967297", "1", false);
    row("a multiple of 2 to the 32", "4294967296", "0", true);
    row("past 64 bits", "99999999999999999999", "-1", false);
    row("below 64 bits", "-99999999999999999999", "0", true);
    row("end of text within a token", QByteArray("1\0,2", 4), "1,2", false);
}

void tst_WeekDays::parses()
{
    QFETCH(QByteArray, weeks);
    QFETCH(QString, numbers);
    QFETCH(bool, everyDay);

    std::vector<int> parsed;
    QCOMPARE(parseWeeks(weeks.toStdString(), parsed), everyDay);
    QCOMPARE(numbersText(parsed), numbers);
}

void tst_WeekDays::appendsToWhatIsThere()
{
    std::vector<int> numbers{9};
    QVERIFY(!parseWeeks("1,2", numbers));
    QCOMPARE(numbersText(numbers), QStringLiteral("9,1,2"));
}

void tst_WeekDays::readsLikeTheLiteralRule()
{
    std::mt19937 random(71);
    for (int i = 0; i < 50000; ++i) {
        const std::string a = randomWeeks(random);
        const std::string b = randomWeeks(random);
        std::vector<int> numbers;
        std::vector<int> expected;
        const bool everyDay = parseWeeks(a, numbers);
        const bool expectedEveryDay = literal::parseWeeks(a, expected);
        QVERIFY2(everyDay == expectedEveryDay && numbers == expected, a.c_str());
        const QByteArray both = QByteArray::fromStdString(a) + " and " + b.c_str();
        QVERIFY2(weeksOverlap(a, b) == literal::weeksOverlap(a, b), both.constData());
    }
}

void tst_WeekDays::overlaps_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("expected");

    const auto row = [](const char* a, const char* b, bool expected) {
        QTest::addRow("\"%s\" and \"%s\"", a, b)
            << QString::fromLatin1(a) << QString::fromLatin1(b) << expected;
    };
    row("", "3", true);
    row("0", "3", true);
    row("abc", "8", true);
    row("1,2", "2,3", true);
    row("1,2", "3,4", false);
    row("8", "8", true);
    row("8", "1,2,3,4,5,6,7", false);
    row("-1", "-1", true);
    row("8", "-1", false);
    row("1,1", "1", true);
    row("1,2,0", "5", true);
}

void tst_WeekDays::overlaps()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, expected);

    QCOMPARE(weeksOverlap(a.toStdString(), b.toStdString()), expected);
    QCOMPARE(weeksOverlap(b.toStdString(), a.toStdString()), expected);
}

void tst_WeekDays::joins()
{
    QCOMPARE(joinWeeks({}), std::string());
    QCOMPARE(joinWeeks({0}), std::string("0"));
    QCOMPARE(joinWeeks({5, 1, 1, -1}), std::string("5,1,1,-1"));
}

TREL_TEST(tst_WeekDays, trel::tests::NoApplication)
#include "tst_WeekDays.moc"
