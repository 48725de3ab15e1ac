#include "DateWords.h"

#include "support/TestClock.h"
#include "support/TestProgram.h"

#include <QApplication>
#include <QDateTime>
#include <QLocale>
#include <QTranslator>
#include <QtTest>

using namespace trel::desktop;

/// Dates in the windows are those of the editor's fields.
class tst_DateWords : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QLocale::setDefault(QLocale::c()); }
    void areTheSameInAllLanguages_data();
    void areTheSameInAllLanguages();
    void aDayHasItsNameInTheLanguage_data();
    void aDayHasItsNameInTheLanguage();
    void aDateStandsWhereItIsAnother();
};

void tst_DateWords::areTheSameInAllLanguages_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"en_US", "de_DE", "zh_CN", "ar_EG"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void tst_DateWords::areTheSameInAllLanguages()
{
    QFETCH(QString, language);
    QLocale::setDefault(QLocale(language));
    const QDateTime moment(QDate(2026, 3, 8), QTime(9, 5, 59));
    QCOMPARE(dateText(moment.date()), QStringLiteral("\u20662026.03.08\u2069"));
    QCOMPARE(dayText(moment.date()), QStringLiteral("\u206603.08\u2069"));
    QCOMPARE(dateAndTimeText(moment), QStringLiteral("\u20662026.03.08 09:05\u2069"));
}

void tst_DateWords::aDayHasItsNameInTheLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("en_US") << QStringLiteral("Monday, \u20662026.11.30\u2069");
    QTest::newRow("de_DE") << QStringLiteral("Montag, \u20662026.11.30\u2069");
    QTest::newRow("fr_FR") << QStringLiteral("lundi \u20662026.11.30\u2069");
    QTest::newRow("zh_CN") << QStringLiteral("\u20662026.11.30\u2069 星期一");
    QTest::newRow("zh_TW") << QStringLiteral("\u20662026.11.30\u2069 星期一");
    QTest::newRow("ja_JP") << QStringLiteral("\u20662026.11.30\u2069 月曜日");
    QTest::newRow("ko_KR") << QStringLiteral("\u20662026.11.30\u2069 월요일");
}

void tst_DateWords::aDayHasItsNameInTheLanguage()
{
    const QString language = QString::fromLatin1(QTest::currentDataTag());
    const QLocale locale(language);
    QTranslator texts;
    QVERIFY(texts.load(
        QStringLiteral(LANGUAGES "/../host-languages/schedule-editor_%1.qm").arg(language)));
    QVERIFY(QCoreApplication::installTranslator(&texts));
    QTEST(weekdayText(QDate(2026, 11, 30), locale), "text");
}

void tst_DateWords::aDateStandsWhereItIsAnother()
{
    const QDate today(2026, 3, 8);
    const QString time = QStringLiteral("09:05:59+01");
    QCOMPARE(momentText(time, today, today), QStringLiteral("\u206609:05:59+01\u2069"));
    QCOMPARE(momentText(time, today.addDays(-1), today),
             QStringLiteral("\u20662026.03.07 09:05:59+01\u2069"));
    // By the clock of this desk.
    const TestClock clock(QDateTime(today, QTime(9, 5, 59)));
    const trel::mediadispatch::Instant now = clock.msecsSinceEpoch();
    QCOMPARE(momentText(now), QStringLiteral("\u206609:05\u2069"));
    QCOMPARE(momentText(now + 86400000), QStringLiteral("\u20662026.03.09 09:05\u2069"));
}

TREL_TEST(tst_DateWords, QApplication)
#include "tst_DateWords.moc"
