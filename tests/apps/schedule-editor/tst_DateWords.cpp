#include "DateWords.h"

#include "support/TestProgram.h"

#include <QApplication>
#include <QDateTime>
#include <QLocale>
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
    QCOMPARE(dateAndTimeText(moment), QStringLiteral("\u20662026.03.08 09:05\u2069"));
}

TREL_TEST(tst_DateWords, QApplication)
#include "tst_DateWords.moc"
