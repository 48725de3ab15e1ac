#include "FailEverywhere.h"

#include "support/SampleSchedule.h"
#include "trelprogramschedule/json/ScheduleJson.h"
#include "tstranslate/Translator.h"

using namespace trel::mediadispatch;

/// What reads files refuses when memory runs out, and does not end the program.
class tst_OutOfMemory : public QObject
{
    Q_OBJECT

private slots:
    void json_data() { addLastings(); }
    void json();
    void languages_data() { addLastings(); }
    void languages();
};

void tst_OutOfMemory::json()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const auto tasks = sampleSchedule(2, 1, 2);
    const QByteArray json = scheduleToJson(tasks);
    ScheduleFromJson read = scheduleFromJson(json); // With all that is made once.
    QVERIFY(!read.fault);
    failEverywhere(
        lasting, [&] { read = scheduleFromJson(json); },
        [&](bool hasFailed) {
            QVERIFY(read.fault ? read.tasks.empty() : read.tasks == tasks);
            QVERIFY(hasFailed || !read.fault);
            QVERIFY(!read.fault || read.fault.code == FaultCode::NoMemory);
        });
}

void tst_OutOfMemory::languages()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const QString file = QStringLiteral(LANGUAGE_FILE);
    const auto text = [](const tessark::trans::Translator& translator) {
        return tessark::trans::translate(translator, QStringLiteral("SheduleWidgets"),
                                         QStringLiteral("Widget"), QStringLiteral("zhSave"));
    };
    tessark::trans::Translator translator;
    QVERIFY(translator.load(file));
    translator.switchLanguage(QStringLiteral("de_DE"));
    const QString expected = text(translator);
    bool isLoaded = false;
    failEverywhere(
        lasting, [&] { isLoaded = translator.load(file); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || isLoaded);
            QCOMPARE(text(translator), expected);
        });
}

QTEST_GUILESS_MAIN(tst_OutOfMemory)
#include "tst_OutOfMemory.moc"
