#include "common/DisplayText.h"
#include "support/TestProgram.h"
#include "text/TextTable.h"

#include <QtTest>

using namespace trel::console;
using namespace trel::hosts;

class tst_TextTable : public QObject
{
    Q_OBJECT

private slots:
    void displayWidthCountsColumns_data();
    void displayWidthCountsColumns();
    void printableHidesNothing_data();
    void printableHidesNothing();
    void shortenedKeepsBothEnds_data();
    void shortenedKeepsBothEnds();
    void durations_data();
    void durations();
    void columnsAreAlignedByWhatIsSeen();
    void namesAreCutToTheTerminal();
    void emptyTableHasNoLines();
};

void tst_TextTable::displayWidthCountsColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");

    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("ASCII") << QStringLiteral("News") << 4;
    QTest::newRow("accents") << QStringLiteral("Caf\u00e9") << 4;
    QTest::newRow("combining accent") << QStringLiteral("Cafe\u0301") << 4;
    QTest::newRow("Chinese") << QStringLiteral("\u665a\u95f4\u65b0\u95fb") << 8;
    QTest::newRow("Japanese") << QStringLiteral("\u30cb\u30e5\u30fc\u30b9") << 8;
    QTest::newRow("Korean") << QStringLiteral("\ub274\uc2a4") << 4;
    QTest::newRow("Korean in letters") << QStringLiteral("\u1112\u1161\u11ab") << 2;
    QTest::newRow("full-width comma") << QStringLiteral("a\uff0cb") << 4;
    QTest::newRow("half-width kana") << QStringLiteral("\uff76\uff85") << 2;
    QTest::newRow("emoji") << QString::fromUtf8("\xF0\x9F\x8E\xAC") << 2;
    QTest::newRow("rare Chinese") << QString::fromUtf8("\xF0\xA0\x80\x80") << 2;
    QTest::newRow("Arabic") << QStringLiteral("\u062e\u0628\u0631") << 3;
    QTest::newRow("ring around") << QStringLiteral("1\u20dd") << 1;
    QTest::newRow("joiner") << QStringLiteral("a\u200db") << 2;
}

void tst_TextTable::displayWidthCountsColumns()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QCOMPARE(displayWidth(text), width);
}

void tst_TextTable::printableHidesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");

    QTest::newRow("plain") << QStringLiteral("a \u65b0 b") << QStringLiteral("a \u65b0 b");
    QTest::newRow("lines") << QStringLiteral("a\nb\r\tc") << QStringLiteral("a\\nb\\r\\tc");
    QTest::newRow("colour") << QStringLiteral("\x1B[31mred") << QStringLiteral("\\x1b[31mred");
    QTest::newRow("NUL") << QString(QChar(0)) << QStringLiteral("\\x00");
    QTest::newRow("upper controls") << QStringLiteral("\u009b") << QStringLiteral("\\x9b");
    QTest::newRow("line separator") << QStringLiteral("\u2028") << QStringLiteral("\\u2028");
    QTest::newRow("paragraph separator") << QStringLiteral("\u2029") << QStringLiteral("\\u2029");
    QTest::newRow("as long as may be")
        << QString(512, QLatin1Char('x')) << QString(512, QLatin1Char('x'));
    QTest::newRow("too long") << QString(513, QLatin1Char('x'))
                              << QString(255, QLatin1Char('x')) + QChar(0x2026) +
                                     QString(256, QLatin1Char('x'));
    QTest::newRow("direction") << QStringLiteral("a\u202egpm") << QStringLiteral("a\\u202egpm");
    QTest::newRow("emoji stays") << QString::fromUtf8("\xF0\x9F\x8E\xAC")
                                 << QString::fromUtf8("\xF0\x9F\x8E\xAC");
}

void tst_TextTable::printableHidesNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(printable(text), shown);
}

void tst_TextTable::shortenedKeepsBothEnds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("shown");

    const QString path = QStringLiteral("/media/a/long/way/clip.mp4");
    QTest::newRow("fits") << path << 26 << path;
    QTest::newRow("one too many") << path << 25 << QStringLiteral("/media/a/lon\u2026way/clip.mp4");
    QTest::newRow("half") << path << 13 << QStringLiteral("/media\u2026ip.mp4");
    QTest::newRow("wide") << QStringLiteral("\u665a\u95f4\u65b0\u95fb") << 6
                          << QStringLiteral("\u665a\u2026\u95fb");
    QTest::newRow("one column") << path << 1 << QStringLiteral("\u2026");
}

void tst_TextTable::shortenedKeepsBothEnds()
{
    QFETCH(QString, text);
    QFETCH(int, columns);
    QFETCH(QString, shown);
    QCOMPARE(shortened(text, columns), shown);
    QVERIFY(displayWidth(shortened(text, columns)) <= columns);
}

void tst_TextTable::durations_data()
{
    QTest::addColumn<double>("milliseconds");
    QTest::addColumn<QString>("text");

    QTest::newRow("just below a minute") << 59999.0 << QStringLiteral("0:00:59.999");
    QTest::newRow("nothing") << 0.0 << QStringLiteral("0:00:00.000");
    QTest::newRow("rounded") << 1500.6 << QStringLiteral("0:00:01.501");
    QTest::newRow("minutes") << 90500.0 << QStringLiteral("0:01:30.500");
    QTest::newRow("carry") << 59999.7 << QStringLiteral("0:01:00.000");
    QTest::newRow("days") << 90000000.0 << QStringLiteral("25:00:00.000");
}

void tst_TextTable::durations()
{
    QFETCH(double, milliseconds);
    QFETCH(QString, text);
    QCOMPARE(durationText(milliseconds), text);
}

void tst_TextTable::columnsAreAlignedByWhatIsSeen()
{
    TextTable table({{QStringLiteral("Index"), TextTable::Align::Right},
                     {QStringLiteral("Name")},
                     {QStringLiteral("File")}});
    table.addRow({QStringLiteral("7"), QStringLiteral("News"), QStringLiteral("/n.mp4")});
    table.addRow({QStringLiteral("1234567"), QStringLiteral("\u65b0\u95fb\u8054"), QString()});
    QCOMPARE(table.text(1).split(QLatin1Char('\n')),
             (QStringList{QStringLiteral("   Index  Name    File"),
                          QStringLiteral("       7  News    /n.mp4"),
                          QStringLiteral(" 1234567  \u65b0\u95fb\u8054"), QString()}));
}

void tst_TextTable::namesAreCutToTheTerminal()
{
    TextTable table({{QStringLiteral("Index"), TextTable::Align::Right},
                     {QStringLiteral("Name")},
                     {QStringLiteral("File")}});
    table.addRow({QStringLiteral("1234567890123456"), QStringLiteral("Evening news of Friday"),
                  QStringLiteral("/srv/media/evening/news-of-friday.mp4")});
    table.addRow({QStringLiteral("7"), QStringLiteral("News"), QStringLiteral("/n.mp4")});
    const QString whole = table.text(1);
    QCOMPARE(table.text(1, 0), whole);
    const int width = displayWidth(whole.section(QLatin1Char('\n'), 1, 1));
    QCOMPARE(table.text(1, width), whole);

    // The widest column gives way first, and numbers stay.
    for (int columns = 50; columns < width; ++columns) {
        const QStringList lines = table.text(1, columns).split(QLatin1Char('\n'));
        QCOMPARE(displayWidth(lines[1]), columns);
        QVERIFY(lines[1].contains(QStringLiteral(" 1234567890123456  Even")));
        QVERIFY(lines[1].endsWith(QStringLiteral(".mp4")));
        QVERIFY(lines[2].endsWith(QStringLiteral("/n.mp4")));
    }
    QVERIFY(table.text(1, width - 1).contains(QStringLiteral("Evening news of Friday")));
    // What can still be told apart stays, however narrow the terminal.
    QVERIFY(displayWidth(table.text(1, 5).section(QLatin1Char('\n'), 1, 1)) >= 40);
}

void tst_TextTable::emptyTableHasNoLines()
{
    const TextTable table({{QStringLiteral("Index")}});
    QVERIFY(table.isEmpty());
    QCOMPARE(table.text(), QString());
}

TREL_TEST(tst_TextTable, trel::tests::NoApplication)
#include "tst_TextTable.moc"
