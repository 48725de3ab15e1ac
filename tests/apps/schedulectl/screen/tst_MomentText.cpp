#include "screen/MomentText.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::console;

using trel::mediadispatch::isDated;
using trel::mediadispatch::kNever;
using trel::mediadispatch::MomentFormat;

namespace {

MomentFormat berlin()
{
    return MomentFormat(QTimeZone("Europe/Berlin"));
}

/// What was read, as one line: the moment in UTC, and what is to be said about it.
QString line(const MomentReading& reading)
{
    if (!reading.instant) {
        return reading.error;
    }
    const QString moment = QDateTime::fromMSecsSinceEpoch(*reading.instant, Qt::UTC)
                               .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    return reading.remark.isEmpty() ? moment : moment + QLatin1Char('|') + reading.remark;
}

} // namespace

class tst_MomentText : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
    void places_data();
    void places();
    void dateAlone();
    void shownTexts();
    void daysOfChange();
    void stretchesInAnyOrder();
    void zonesOfTheirOwnKind_data();
    void zonesOfTheirOwnKind();
};

void tst_MomentText::read_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("moment");
    const auto row = [](const char* text, const char* moment) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(moment);
    };
    row("2024-01-31 08:00", "2024-01-31 07:00:00.000");
    row("2024-01-31 08:00:05", "2024-01-31 07:00:05.000");
    row("2024-07-31T08:00", "2024-07-31 06:00:00.000");
    row("2024-07-31T08:00:59.5", "2024-07-31 06:00:59.500");
    row("2024-07-31T08:00:59.04", "2024-07-31 06:00:59.040");
    row("2024-07-31T08:00:59.123", "2024-07-31 06:00:59.123");
    row("2024-07-31T08:00Z", "2024-07-31 08:00:00.000");
    row("2024-07-31 08:00:01.250Z", "2024-07-31 08:00:01.250");
    row("2024-07-31T08:00+05:30", "2024-07-31 02:30:00.000");
    row("2024-07-31T08:00+0530", "2024-07-31 02:30:00.000");
    row("2024-07-31T08:00-03", "2024-07-31 11:00:00.000");
    row("2024-07-31 08:00:00 -03:30:52", "2024-07-31 11:30:52.000");
    row("2024-07-31 08:00:00 -09:30", "2024-07-31 17:30:00.000");
    row("2024-07-31 08:00 +14:00", "2024-07-30 18:00:00.000");
    row("08:30", "2024-06-15 06:30:00.000");
    row("08:30:15", "2024-06-15 06:30:15.000");
    row("23:30Z", "2024-06-15 23:30:00.000");
    row("2024-02-29 00:00", "2024-02-28 23:00:00.000");
    row("0001-01-01 00:00Z", "0001-01-01 00:00:00.000");
    row("9999-12-31 23:59:59.999Z", "9999-12-31 23:59:59.999");
    row("2024-07-31 08:00+00:59:59", "2024-07-31 07:00:01.000");
    row("2024-07-31 08:00 +14:00:00", "2024-07-30 18:00:00.000");

    row("2024-03-31 01:59:59", "2024-03-31 00:59:59.000");
    row("2024-03-31 02:00",
        "2024-03-31 01:00:00.000|Local time leaves \"2024-03-31 02:00\" out, since the clock is "
        "put forward; 2024-03-31 03:00:00 +02:00 was taken.");
    row("2024-03-31 02:59:59.999",
        "2024-03-31 01:00:00.000|Local time leaves \"2024-03-31 02:59:59.999\" out, since the "
        "clock is put forward; 2024-03-31 03:00:00 +02:00 was taken.");
    row("2024-03-31 03:00", "2024-03-31 01:00:00.000");
    row("2024-10-27 01:59:59", "2024-10-26 23:59:59.000");
    row("2024-10-27 02:00",
        "2024-10-27 00:00:00.000|Local time has \"2024-10-27 02:00\" twice, since the clock is put "
        "back; 2024-10-27 02:00:00 +02:00 was taken, and 2024-10-27 02:00:00 +01:00 is the other.");
    row("2024-10-27 02:30 +02:00", "2024-10-27 00:30:00.000");
    row("2024-10-27 02:30 +01:00", "2024-10-27 01:30:00.000");
    row("2024-10-27 03:00", "2024-10-27 02:00:00.000");
    // Far behind the last year that a table of the zone may have.
    row("2091-10-28 02:30 +01:00", "2091-10-28 01:30:00.000");
    row("2091-07-01 12:00", "2091-07-01 10:00:00.000");
    row("2091-12-01 12:00", "2091-12-01 11:00:00.000");
}

void tst_MomentText::read()
{
    QFETCH(QString, text);
    QFETCH(QString, moment);
    QCOMPARE(line(readMoment(text, berlin(), QDate(2024, 6, 15), DateAlone::Refused)), moment);
}

void tst_MomentText::places_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* text, int place, const char* expected) {
        QTest::newRow(text) << QString::fromUtf8(text) << place << QString::fromUtf8(expected);
    };
    row("now", 1, "a year from 0001 to 9999");
    row("2024", 5, "\"-\"");
    row("0000-01-01 08:00", 1, "a year from 0001 to 9999");
    row("24-01-01 08:00", 1, "a year from 0001 to 9999");
    row("2024.01.01 08:00", 5, "\"-\"");
    row("2024-1-01 08:00", 6, "a month from 01 to 12");
    row("2024-13-01 08:00", 6, "a month from 01 to 12");
    row("2024-01-00 08:00", 9, "a day from 01 to 31");
    row("2024-02-30 08:00", 9, "a day from 01 to 29");
    row("2023-02-29 08:00", 9, "a day from 01 to 28");
    row("2024-01x31 08:00", 8, "\"-\"");
    // The characters right before and behind the digits.
    row("2024-01-3: 08:00", 9, "a day from 01 to 31");
    row("2024-01-/1 08:00", 9, "a day from 01 to 31");
    row("2024-02-29", 11, "a blank or \"T\" and a time of day");
    row("2024-02-29  08:00", 12, "an hour from 00 to 23");
    row("2024-02-29t08:00", 11, "a blank or \"T\" and a time of day");
    row("2024-02-29 8:00", 12, "an hour from 00 to 23");
    row("2024-02-29 24:00", 12, "an hour from 00 to 23");
    row("2024-02-29 08", 14, "\":\"");
    row("2024-02-29 08:60", 15, "minutes from 00 to 59");
    row("2024-02-29 08:00:60", 18, "seconds from 00 to 59");
    row("2024-02-29 08:00:", 18, "seconds from 00 to 59");
    row("2024-02-29 08:00:00.", 21, "one to three decimals");
    row("2024-02-29 08:00:00.1234", 24, "the end");
    row("2024-02-29 08:00.5", 17, "the end");
    row("2024-02-29 08:00 ", 17, "the end");
    row("2024-02-29 08:00z", 17, "the end");
    row("2024-02-29 08:00 Z", 17, "the end");
    row("2024-02-29 08:00+1", 18, "hours of an offset from 00 to 14");
    row("2024-02-29 08:00+15", 18, "hours of an offset from 00 to 14");
    row("2024-02-29 08:00+14:30", 21, "minutes of an offset from 00 to 00");
    row("2024-02-29 08:00+01:60", 21, "minutes of an offset from 00 to 59");
    row("2024-02-29 08:00+01:00:60", 24, "seconds of an offset from 00 to 59");
    row("2024-02-29 08:00+14:00:01", 24, "seconds of an offset from 00 to 00");
    row("2024-02-29 08:00+01:", 21, "minutes of an offset from 00 to 59");
    row("2024-02-29 08:00+01:00Z", 23, "the end");
    row("08:3", 4, "minutes from 00 to 59");
    row("25:30", 1, "an hour from 00 to 23");
    row("08:30 2024-02-29", 6, "the end");
    row(" 08:30", 1, "a year from 0001 to 9999");
    // Digits of other scripts are no digits here.
    row("\u0662024-01-01 08:00", 1, "a year from 0001 to 9999");
}

void tst_MomentText::places()
{
    QFETCH(QString, text);
    QFETCH(int, place);
    QFETCH(QString, expected);
    const MomentReading reading =
        readMoment(text, berlin(), QDate(2024, 6, 15), DateAlone::Refused);
    QVERIFY(!reading.instant);
    QCOMPARE(reading.error, QStringLiteral("\"%1\" is no moment: at character %2 there should be "
                                           "%3.")
                                .arg(text, QString::number(place), expected));
}

void tst_MomentText::dateAlone()
{
    const auto start = [](const char* date, const char* zone) {
        return line(readMoment(QLatin1String(date), MomentFormat(QTimeZone(zone)),
                               QDate(2024, 6, 15), DateAlone::StartOfDay));
    };
    QCOMPARE(start("2024-01-31", "Europe/Berlin"), QStringLiteral("2024-01-30 23:00:00.000"));
    QCOMPARE(start("2024-13-31", "Europe/Berlin"),
             QStringLiteral("\"2024-13-31\" is no moment: at character 6 there should be a month "
                            "from 01 to 12."));
    QCOMPARE(start("2024-01-31 ", "Europe/Berlin"),
             QStringLiteral("\"2024-01-31 \" is no moment: at character 12 there should be an hour "
                            "from 00 to 23."));
    // A day without a midnight begins with the first moment that it has, and says nothing of it.
    QCOMPARE(start("2024-09-08", "America/Santiago"), QStringLiteral("2024-09-08 04:00:00.000"));
    // One with two midnights begins with the first.
    QCOMPARE(start("2024-11-03", "America/Havana"), QStringLiteral("2024-11-03 04:00:00.000"));
}

void tst_MomentText::shownTexts()
{
    const MomentFormat local = berlin();
    const auto moment = [&](const char* text) {
        return readMoment(QLatin1String(text), local, QDate(), DateAlone::StartOfDay)
            .instant.value();
    };
    const auto morning = moment("2024-01-31 08:00");
    QCOMPARE(local.text(morning), QStringLiteral("2024-01-31 08:00:00"));
    QCOMPARE(local.text(morning + 5), QStringLiteral("2024-01-31 08:00:00.005"));
    QCOMPARE(local.text(morning, moment("2024-01-31 23:59")), QStringLiteral("08:00:00"));
    QCOMPARE(local.text(morning, moment("2024-02-01 00:00")),
             QStringLiteral("2024-01-31 08:00:00"));
    QCOMPARE(local.text(kNever), QStringLiteral("\u2013"));
    QCOMPARE(local.text(morning, kNever), QStringLiteral("2024-01-31 08:00:00"));
    QCOMPARE(local.isoText(morning + 5), QStringLiteral("2024-01-31T08:00:00.005+01:00"));

    const auto doubled = moment("2024-10-27T02:30+02:00");
    QCOMPARE(local.text(doubled), QStringLiteral("2024-10-27 02:30:00 +02:00"));
    QCOMPARE(local.text(doubled + 3600000), QStringLiteral("2024-10-27 02:30:00 +01:00"));
    QCOMPARE(local.text(doubled, doubled + 1), QStringLiteral("02:30:00 +02:00"));
    QCOMPARE(MomentFormat::offsetText(-34200), QStringLiteral("-09:30"));
    QCOMPARE(MomentFormat::offsetText(0), QStringLiteral("+00:00"));

    QVERIFY(isDated(moment("0001-01-01 12:00")));
    QVERIFY(isDated(moment("9999-12-31 12:00")));
    QVERIFY(!isDated(kNever));
    QVERIFY(!isDated(0 - kNever));
}

void tst_MomentText::daysOfChange()
{
    const MomentFormat local = berlin();
    for (QDate day(2024, 1, 1); day.year() == 2024; day = day.addDays(1)) {
        const bool isChange = day == QDate(2024, 3, 31) || day == QDate(2024, 10, 27);
        QCOMPARE(local.changesOn(day), isChange);
    }
    QVERIFY(!MomentFormat(QTimeZone::utc()).changesOn(QDate(2024, 3, 31)));
}

/// What was looked up before does not colour what is looked up next.
void tst_MomentText::stretchesInAnyOrder()
{
    const QTimeZone zone("Europe/Berlin");
    const MomentFormat local(zone);
    constexpr trel::mediadispatch::Instant step = 7 * 60 * 60 * 1000;
    constexpr int count = 20000; // About sixteen years.
    for (int i = 0; i < count; ++i) {
        // A walk that visits every step once, in leaps.
        const auto moment = ((i * 7919) % count) * step;
        const QDateTime utc = QDateTime::fromMSecsSinceEpoch(moment, Qt::UTC);
        QCOMPARE(local.offsetAt(moment), zone.offsetFromUtc(utc));
    }
}

void tst_MomentText::zonesOfTheirOwnKind_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("moment");
    QTest::newRow("half an hour") << QByteArray("Australia/Lord_Howe")
                                  << QStringLiteral("2024-10-06 02:15")
                                  << QStringLiteral("2024-10-05 15:30:00.000");
    QTest::newRow("a whole day is left out")
        << QByteArray("Pacific/Apia") << QStringLiteral("2011-12-30 12:00")
        << QStringLiteral("2011-12-30 10:00:00.000");
    QTest::newRow("no changes at all") << QByteArray("UTC") << QStringLiteral("2024-03-31 02:30")
                                       << QStringLiteral("2024-03-31 02:30:00.000");
}

void tst_MomentText::zonesOfTheirOwnKind()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, text);
    QFETCH(QString, moment);
    const MomentReading reading =
        readMoment(text, MomentFormat(QTimeZone(zone)), QDate(), DateAlone::Refused);
    QCOMPARE(line(reading).section(QLatin1Char('|'), 0, 0), moment);
}

TREL_TEST(tst_MomentText, trel::tests::NoApplication)
#include "tst_MomentText.moc"
