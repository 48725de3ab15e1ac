#include "service/DateText.h"
#include "service/ScheduleRecords.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

QDate toolkitDate(const std::string& text)
{
    return QDate::fromString(QString::fromStdString(text), QString(kDateFormat));
}

} // namespace

/// Dates are read as the toolkit reads them.
class tst_DateText : public QObject
{
    Q_OBJECT

private slots:
    void everyDayOfTwoCenturies();
    void theEndsOfEveryYear();
    void invalidDateIsEmpty();
    void readsOddTexts_data();
    void readsOddTexts();
    void readsRandomTexts();
};

void tst_DateText::everyDayOfTwoCenturies()
{
    for (QDate day(1899, 12, 31); day.year() < 2101; day = day.addDays(1)) {
        const std::string text = day.toString(kDateFormat).toStdString();
        QCOMPARE(dateToText(day), text);
        QCOMPARE(dateFromText(text), day);
    }
}

void tst_DateText::theEndsOfEveryYear()
{
    for (int year = 0; year < 10000; ++year) {
        for (const char* end : {".01.01", ".02.28", ".02.29", ".02.30", ".12.31"}) {
            const std::string text =
                QStringLiteral("%1").arg(year, 4, 10, QLatin1Char('0')).toStdString() + end;
            QVERIFY2(dateFromText(text) == toolkitDate(text), text.c_str());
        }
    }
}

void tst_DateText::invalidDateIsEmpty()
{
    QCOMPARE(dateToText(QDate()), std::string());
}

void tst_DateText::readsOddTexts_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"", "2024.1.1", "2024.01", "2024.01.0", "2024.13.01", "2024.00.10", "2024.04.31",
          "2023.02.29", "2024-01-01", "2024.01.01 ", " 2024.01.01", "24.01.01", "12024.01.01",
          "-024.01.01", "+024.01.01", "abcd.ef.gh", "..", "20240101", "2024.01.012"}) {
        QTest::addRow("\"%s\"", text) << QString::fromLatin1(text);
    }
}

void tst_DateText::readsOddTexts()
{
    QFETCH(QString, text);
    QCOMPARE(dateFromText(text.toStdString()), toolkitDate(text.toStdString()));
}

void tst_DateText::readsRandomTexts()
{
    std::mt19937 random(7);
    const std::string letters = "0123456789.. :x";
    for (int i = 0; i < 20000; ++i) {
        std::string text("2024.06.15");
        for (std::size_t changes = random() % 4; changes > 0; --changes) {
            text[random() % text.size()] = letters[random() % letters.size()];
        }
        text.resize(random() % 8 == 0 ? random() % 11 : text.size());
        QVERIFY2(dateFromText(text) == toolkitDate(text), text.c_str());
    }
}

TREL_TEST(tst_DateText, QCoreApplication)
#include "tst_DateText.moc"
