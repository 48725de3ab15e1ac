#include "service/ScheduleRecords.h"
#include "service/TimeText.h"
#include "support/TestProgram.h"

#include <QTest>

#include <random>

using namespace trel::mediadispatch;

namespace {

QTime toolkitTime(const std::string& text)
{
    return QTime::fromString(QString::fromStdString(text), QString(kTimeFormat));
}

} // namespace

class tst_TimeText : public QObject
{
    Q_OBJECT

private slots:
    void everySecondOfTheDay();
    void dropsMilliseconds();
    void invalidTimeIsEmpty();
    void readsOddTexts_data();
    void readsOddTexts();
    void readsRandomTexts();
};

void tst_TimeText::everySecondOfTheDay()
{
    for (int second = 0; second < 24 * 60 * 60; ++second) {
        const QTime time = QTime(0, 0).addSecs(second);
        const std::string text = time.toString(QString(kTimeFormat)).toStdString();
        QCOMPARE(timeToText(time), text);
        QCOMPARE(timeFromText(text), time);
    }
}

void tst_TimeText::dropsMilliseconds()
{
    QCOMPARE(timeToText(QTime(10, 0, 1, 999)), std::string("10:00:01"));
}

void tst_TimeText::invalidTimeIsEmpty()
{
    QCOMPARE(timeToText(QTime()), std::string());
}

void tst_TimeText::readsOddTexts_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"",           "8:00:00",  "08:00",     "08:00:0",   "24:00:00",   "23:60:00", "23:59:60",
          "99:99:99",   "08-00-00", "08:00:00 ", " 8:00:00",  "08:00:00.5", "8:0:0",    "ab:cd:ef",
          "08:00:00am", "+8:00:00", "-1:00:00",  "08:00:000", "::",         "8",        "080000"}) {
        QTest::addRow("\"%s\"", text) << QString::fromLatin1(text);
    }
}

void tst_TimeText::readsOddTexts()
{
    QFETCH(QString, text);
    QCOMPARE(timeFromText(text.toStdString()), toolkitTime(text.toStdString()));
}

void tst_TimeText::readsRandomTexts()
{
    std::mt19937 random(5);
    const std::string letters = "0123456789:: .x";
    for (int i = 0; i < 20000; ++i) {
        std::string text("12:34:56");
        for (std::size_t changes = random() % 4; changes > 0; --changes) {
            text[random() % text.size()] = letters[random() % letters.size()];
        }
        text.resize(random() % 8 == 0 ? random() % 9 : text.size());
        QVERIFY2(timeFromText(text) == toolkitTime(text), text.c_str());
    }
}

TREL_TEST(tst_TimeText, trel::tests::NoApplication)
#include "tst_TimeText.moc"
