#include "support/TestProgram.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <QtTest>

using namespace trel::mediadispatch;

/// Which days may have a time twice, and how the two are told apart.
class tst_MomentFormat : public QObject
{
    Q_OBJECT

private slots:
    void daysOfChange_data();
    void daysOfChange();
    void aTimeThatComesTwiceIsToldApart_data();
    void aTimeThatComesTwiceIsToldApart();
    void offsetsWithSeconds();
};

void tst_MomentFormat::daysOfChange_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QString>("days");
    const auto row = [](const char* name, const char* zone, const QDate& from, const char* days) {
        QTest::newRow(name) << QByteArray(zone) << from << QString::fromLatin1(days);
    };
    row("in the night", "Europe/Berlin", QDate(2024, 10, 25), "--x--");
    row("back at one past midnight", "America/St_Johns", QDate(2010, 11, 4), "--xx-");
    row("forward at one past midnight", "America/St_Johns", QDate(2010, 3, 12), "--x--");
    row("back at midnight", "America/Asuncion", QDate(2022, 3, 24), "--x--");
    row("forward at midnight", "America/Asuncion", QDate(2022, 9, 29), "---x-");
    row("a day left out", "Pacific/Apia", QDate(2011, 12, 28), "--x--");
    row("never", "UTC", QDate(2024, 10, 25), "-----");
}

void tst_MomentFormat::daysOfChange()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, from);
    QFETCH(QString, days);
    const MomentFormat local{QTimeZone(zone)};
    QString found;
    for (int day = 0; day < days.size(); ++day) {
        found += QLatin1Char(local.changesOn(from.addDays(day)) ? 'x' : '-');
    }
    QCOMPARE(found, days);
}

void tst_MomentFormat::aTimeThatComesTwiceIsToldApart_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("in the night") << QByteArray("Europe/Berlin") << QDate(2024, 10, 27)
                                  << QTime(2, 30) << QStringLiteral("2024-10-27 02:30:00 +02:00")
                                  << QStringLiteral("2024-10-27 02:30:00 +01:00");
    QTest::newRow("the evening before")
        << QByteArray("America/St_Johns") << QDate(2010, 11, 6) << QTime(23, 30)
        << QStringLiteral("2010-11-06 23:30:00 -02:30")
        << QStringLiteral("2010-11-06 23:30:00 -03:30");
    QTest::newRow("the minute behind midnight")
        << QByteArray("America/St_Johns") << QDate(2010, 11, 7) << QTime(0, 0, 30)
        << QStringLiteral("2010-11-07 00:00:30 -02:30")
        << QStringLiteral("2010-11-07 00:00:30 -03:30");
    QTest::newRow("an offset with seconds")
        << QByteArray("America/St_Johns") << QDate(1917, 9, 17) << QTime(1, 30)
        << QStringLiteral("1917-09-17 01:30:00 -02:30:52")
        << QStringLiteral("1917-09-17 01:30:00 -03:30:52");
}

void tst_MomentFormat::aTimeThatComesTwiceIsToldApart()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    const MomentFormat local{QTimeZone(zone)};
    const MomentFormat::Occurrence found = local.find(date, time);
    QVERIFY(found.second);
    QTEST(local.text(found.first), "first");
    QTEST(local.text(*found.second), "second");
}

void tst_MomentFormat::offsetsWithSeconds()
{
    QCOMPARE(MomentFormat::offsetText(19800), QStringLiteral("+05:30"));
    QCOMPARE(MomentFormat::offsetText(-12652), QStringLiteral("-03:30:52"));
}

TREL_TEST(tst_MomentFormat, trel::tests::NoApplication)
#include "tst_MomentFormat.moc"
