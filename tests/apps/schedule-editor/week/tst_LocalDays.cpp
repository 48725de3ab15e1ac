#include "support/TestProgram.h"
#include "week/LocalDays.h"

#include <QDateTime>
#include <QtTest>

using namespace trel::desktop;
using namespace trel::mediadispatch;
using namespace trel::desktop::week;

/// How instants lie on the wall clocks of some days.
class tst_LocalDays : public QObject
{
    Q_OBJECT

private slots:
    void days_data();
    void days();
    void spansAreCutAtTheirEnds();
    void instantsOfSeconds();
};

namespace {

QString textOf(int second)
{
    return QStringLiteral("%1:%2")
        .arg(second / 3600, 2, 10, QLatin1Char('0'))
        .arg(second / 60 % 60, 2, 10, QLatin1Char('0'));
}

QString linesOf(const LocalDays& clock, const QDate& first, Instant from, Instant to)
{
    QStringList lines;
    for (const LocalSpan& span : clock.spans(from, to)) {
        const char* const passes[] = {"", " first", " second"};
        lines.append(QStringLiteral("%1: %2-%3%4")
                         .arg(span.day)
                         .arg(textOf(span.from), textOf(span.to),
                              QLatin1String(passes[static_cast<int>(span.pass)])));
    }
    for (const ClockChange& change : clock.changes()) {
        lines.append(
            QStringLiteral("%1: %2-%3 %4")
                .arg(first.daysTo(change.date))
                .arg(textOf(change.begin), textOf(change.end),
                     change.isLeftOut() ? QStringLiteral("left out") : QStringLiteral("twice")));
    }
    return lines.join(QLatin1Char('\n'));
}

Instant instantOf(const char* text, const QTimeZone& zone)
{
    QDateTime time = QDateTime::fromString(QString::fromLatin1(text), Qt::ISODate);
    time.setTimeZone(zone);
    return time.toMSecsSinceEpoch();
}

} // namespace

void tst_LocalDays::days_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* zone, const QDate& first, int count,
                        const char* expected) {
        QTest::newRow(name) << QByteArray(zone) << first << count << QString::fromLatin1(expected);
    };
    row("plain days", "Europe/Berlin", QDate(2026, 3, 9), 2, "0: 00:00-24:00\n1: 00:00-24:00");
    row("UTC has no changes", "UTC", QDate(2026, 3, 29), 1, "0: 00:00-24:00");
    row("spring", "Europe/Berlin", QDate(2026, 3, 29), 1,
        "0: 00:00-02:00\n0: 03:00-24:00\n0: 02:00-03:00 left out");
    row("autumn", "Europe/Berlin", QDate(2026, 10, 25), 1,
        "0: 00:00-02:00\n0: 02:00-03:00 first\n0: 02:00-03:00 second\n0: 03:00-24:00"
        "\n0: 02:00-03:00 twice");
    row("half an hour", "Australia/Lord_Howe", QDate(2026, 10, 4), 1,
        "0: 00:00-02:00\n0: 02:30-24:00\n0: 02:00-02:30 left out");
    row("half an hour twice", "Australia/Lord_Howe", QDate(2026, 4, 5), 1,
        "0: 00:00-01:30\n0: 01:30-02:00 first\n0: 01:30-02:00 second\n0: 02:00-24:00"
        "\n0: 01:30-02:00 twice");
    row("a day that begins at one", "America/Sao_Paulo", QDate(2018, 11, 4), 1,
        "0: 01:00-24:00\n0: 00:00-01:00 left out");
    row("a day whose last hour comes twice", "America/Sao_Paulo", QDate(2018, 2, 17), 2,
        "0: 00:00-23:00\n0: 23:00-24:00 first\n0: 23:00-24:00 second\n1: 00:00-24:00"
        "\n0: 23:00-24:00 twice");
    row("back over midnight", "America/St_Johns", QDate(2010, 11, 6), 2,
        "0: 00:00-23:01\n0: 23:01-24:00 first\n1: 00:00-00:01 first\n0: 23:01-24:00 second"
        "\n1: 00:00-00:01 second\n1: 00:01-24:00\n0: 23:01-24:00 twice\n1: 00:00-00:01 twice");
    row("a whole day is left out", "Pacific/Apia", QDate(2011, 12, 29), 3,
        "0: 00:00-24:00\n2: 00:00-24:00\n1: 00:00-24:00 left out");
}

void tst_LocalDays::days()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, first);
    QFETCH(int, count);
    const LocalDays clock(first, count, QTimeZone(zone));
    QTEST(linesOf(clock, first, clock.begin(), clock.end()), "expected");
    QTEST(linesOf(clock, first, std::numeric_limits<Instant>::min(), kNever), "expected");
}

void tst_LocalDays::spansAreCutAtTheirEnds()
{
    const QTimeZone zone("Europe/Berlin");
    const QDate first(2026, 3, 9);
    const LocalDays clock(first, 2, zone);
    const Instant evening = instantOf("2026-03-09T20:30:00", zone);
    const Instant morning = instantOf("2026-03-10T08:15:00", zone);
    QCOMPARE(linesOf(clock, first, evening, morning),
             QStringLiteral("0: 20:30-24:00\n1: 00:00-08:15"));
    QCOMPARE(linesOf(clock, first, morning, morning), QString());
    QCOMPARE(linesOf(clock, first, clock.end(), kNever), QString());
    QCOMPARE(linesOf(clock, first, 0, clock.begin()), QString());
}

void tst_LocalDays::instantsOfSeconds()
{
    const QTimeZone zone("Europe/Berlin");
    const LocalDays clock(QDate(2026, 10, 24), 2, zone);
    constexpr int kHalfPastTwo = 2 * 3600 + 1800;
    const Instant first = QDateTime({2026, 10, 25}, {0, 30}, Qt::UTC).toMSecsSinceEpoch();
    QCOMPARE(clock.instant(1, kHalfPastTwo), first);
    QCOMPARE(clock.instant(1, kHalfPastTwo, Pass::First), first);
    QCOMPARE(clock.instant(1, kHalfPastTwo, Pass::Second), first + 3600 * 1000);
    QCOMPARE(clock.instant(0, 12 * 3600), instantOf("2026-10-24T12:00:00", zone));
}

TREL_TEST(tst_LocalDays, trel::tests::NoApplication)
#include "tst_LocalDays.moc"
