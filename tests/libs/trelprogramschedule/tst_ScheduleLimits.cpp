#include "ScheduleLimits.h"
#include "StoreFixture.h"
#include "faults/FaultWords.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"
#include "json/JsonTree.h"
#include "json/ScheduleJson.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QtTest>

#include <sqlite3.h>

using namespace trel::mediadispatch;

namespace {

using Schedule = std::map<int, PlayTask>;

std::string& textOf(const QString& kind, PlayTask& task, PlayPlan& plan)
{
    const std::map<QString, std::string*> texts = {
        {QStringLiteral("start date"), &task.startDate},
        {QStringLiteral("end date"), &task.endDate},
        {QStringLiteral("weeks"), &plan.weeks},
        {QStringLiteral("start"), &plan.startTime},
        {QStringLiteral("end"), &plan.endTime},
        {QStringLiteral("service time"), &plan.serviceTime},
        {QStringLiteral("text"), &plan.programs.front().progName},
    };
    return *texts.at(kind);
}

/// More of one kind than a schedule may hold.
Schedule beyond(const QString& kind)
{
    Schedule tasks;
    if (kind == QLatin1String("tasks")) {
        for (int id = 0; id <= int(kMostTasks); ++id) {
            tasks.emplace_hint(tasks.end(), id, PlayTask())->second.id = id;
        }
        return tasks;
    }
    PlayTask task;
    task.id = 1;
    PlayPlan plan;
    if (kind == QLatin1String("plans")) {
        task.plans.resize(kMostPlans + 1);
    } else if (kind == QLatin1String("entries")) {
        plan.programs.resize(kMostEntries + 1);
        task.plans = {plan};
    } else if (kind == QLatin1String("numbers")) {
        plan.serviceList.resize(kMostServiceValues + 1);
        task.plans = {plan};
    } else {
        plan.programs.resize(1);
        textOf(kind, task, plan) = std::string(kLongestText + 1, 'x');
        task.plans = {plan};
    }
    return {{1, task}};
}

/// A message that fits on a screen, whatever was in the file.
bool isShort(const QString& message)
{
    return !message.isEmpty() && message.size() < 300;
}

} // namespace

/// What is larger than any schedule is refused with the limit that it breaks, by file and store.
class tst_ScheduleLimits : public QObject
{
    Q_OBJECT

private slots:
    void tooMuchIsRefused_data();
    void tooMuchIsRefused();
    void whatJustFitsIsTaken();
    void jsonHasBounds_data();
    void jsonHasBounds();
    void longTextsDoNotFillMessages_data();
    void longTextsDoNotFillMessages();
    void readingStops();
    void programsHaveBounds();
    void aStoreThatHoldsTooMuchIsRefused();
};

void tst_ScheduleLimits::tooMuchIsRefused_data()
{
    QTest::addColumn<QString>("number");
    QTest::newRow("tasks") << QString::number(kMostTasks);
    QTest::newRow("plans") << QString::number(kMostPlans);
    QTest::newRow("entries") << QString::number(kMostEntries);
    QTest::newRow("numbers") << QString::number(kMostServiceValues);
    for (const char* text :
         {"text", "start date", "end date", "weeks", "start", "end", "service time"}) {
        QTest::newRow(text) << QString::number(kLongestText);
    }
}

void tst_ScheduleLimits::tooMuchIsRefused()
{
    QFETCH(QString, number);
    const Schedule tasks = beyond(QString::fromLatin1(QTest::currentDataTag()));
    StoreFixture store;
    store.save({{5, everyFieldTask(5)}});
    const Schedule before = store.manager.getgTaskMap();

    StoreResult result = store.host.replaceSchedule(tasks);
    QCOMPARE(int(result.problem), int(StoreProblem::TooLarge));
    QVERIFY2(englishText(result).contains(number) && isShort(englishText(result)),
             qPrintable(englishText(result)));
    for (const auto& [id, task] : tasks) {
        store.manager.addTask(task);
    }
    result = store.host.trySave();
    QCOMPARE(int(result.problem), int(StoreProblem::TooLarge));
    QVERIFY(store.manager.getgTaskMap() == before);

    const ScheduleFromJson read = scheduleFromJson(scheduleToJson(tasks));
    QVERIFY2(englishText(read).contains(number) && isShort(englishText(read)),
             qPrintable(englishText(read)));
    QVERIFY(read.tasks.empty());
}

void tst_ScheduleLimits::whatJustFitsIsTaken()
{
    Schedule tasks = beyond(QStringLiteral("text"));
    struProgInfo& entry = tasks[1].plans[0].programs[0];
    entry.progName.pop_back();
    entry.isInvalid = true; // As one of a program that nobody has comes back.
    tasks[1].plans[0].weeks = std::string(kLongestText, '\xFF'); // In Base64, a third longer.
    StoreFixture store;
    QVERIFY(store.host.replaceSchedule(tasks));
    store.restart();
    QVERIFY(store.manager.getgTaskMap() == tasks);
    const ScheduleFromJson read = scheduleFromJson(scheduleToJson(tasks));
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks == tasks);

    // One byte more is told where it stands.
    tasks[1].plans[0].weeks += 'x';
    const ScheduleFromJson refused = scheduleFromJson(scheduleToJson(tasks));
    QCOMPARE(int(refused.fault.code), int(FaultCode::JsonTextTooLong));
    QCOMPARE(refused.place, QStringLiteral("tasks[0].plans[0].weeks"));
}

void tst_ScheduleLimits::jsonHasBounds_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("number");
    QTest::newRow("values") << "[" + QByteArray("1,").repeated(int(kMostJsonValues)) + "1]"
                            << QString::number(kMostJsonValues);
    QTest::newRow("text") << "[\"" + QByteArray(200000, 'x') + "\"]" << QStringLiteral("bytes");
    QTest::newRow("name") << "{\"" + QByteArray(200000, 'x') + "\":1}" << QStringLiteral("bytes");
    QTest::newRow("size") << QByteArray(int(kLargestJson) + 1, ' ')
                          << QString::number(kLargestJson);
}

void tst_ScheduleLimits::jsonHasBounds()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, number);
    const ParsedJson parsed = parseJson(json);
    QVERIFY2(englishClause(parsed.fault).contains(number) && isShort(englishClause(parsed.fault)),
             qPrintable(englishClause(parsed.fault)));
}

void tst_ScheduleLimits::longTextsDoNotFillMessages_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    const QByteArray longText(60000, 'x');
    QTest::newRow("member") << QByteArray("\"plans\"") << "\"" + longText + "\"";
    QTest::newRow("format") << QByteArray("trel-schedule") << longText;
    QTest::newRow("number") << QByteArray("\"id\": 5") << "\"id\": " + QByteArray(60000, '9');
    QTest::newRow("fraction") << QByteArray("\"id\": 5") << "\"id\": 0." + QByteArray(60000, '9');
    QTest::newRow("mode") << QByteArray("\"mode\": ") << "\"mode\": \"" + longText + "\", \"x\": ";
}

void tst_ScheduleLimits::longTextsDoNotFillMessages()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QByteArray json = scheduleToJson({{5, everyFieldTask(5)}});
    QVERIFY(json.contains(from));
    json.replace(from, to);
    const ScheduleFromJson read = scheduleFromJson(json);
    QVERIFY2(isShort(englishText(read)), qPrintable(englishText(read).left(2000)));
}

void tst_ScheduleLimits::readingStops()
{
    /// A device that never ends, as some do.
    class Endless : public QIODevice
    {
    public:
        qint64 given = 0;

    protected:
        qint64 readData(char* data, qint64 size) override
        {
            std::fill_n(data, size, ' ');
            given += size;
            return size;
        }
        qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }
    };
    Endless device;
    QVERIFY(device.open(QIODevice::ReadOnly));
    const QByteArray json = readScheduleJson(device);
    QVERIFY(json.size() > kLargestJson);
    QVERIFY(device.given < kLargestJson + 4 * 1024 * 1024);
    QVERIFY(englishText(scheduleFromJson(json)).contains(QString::number(kLargestJson)));
    QByteArray short_ = "{}";
    QBuffer buffer(&short_);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(readScheduleJson(buffer), short_);
}

void tst_ScheduleLimits::programsHaveBounds()
{
    StoreFixture store;
    const QString longText(int(kLongestText) + 1, QLatin1Char('x'));
    for (const MediaSource& source :
         {MediaSource{longText, QStringLiteral("udp://a"), 0.0, ProgramKind::Live},
          MediaSource{QStringLiteral("a"), QStringLiteral("udp://") + longText, 0.0,
                      ProgramKind::Live}}) {
        const ImportResult result = store.host.addPrograms({source});
        QCOMPARE(int(result.store.problem), int(StoreProblem::TooLarge));
        QVERIFY2(isShort(englishText(result.store)),
                 qPrintable(englishText(result.store).left(2000)));
        QVERIFY(store.manager.getPrograms().empty());
    }
}

void tst_ScheduleLimits::aStoreThatHoldsTooMuchIsRefused()
{
    StoreFixture store;
    store.save({{1, PlayTask{1, {}, {}, {}}}});
    store.host.close();
    sqlite3* handle = nullptr;
    QCOMPARE(sqlite3_open(QFile::encodeName(store.path).constData(), &handle), SQLITE_OK);
    const QByteArray fill =
        "WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n LIMIT " +
        QByteArray::number(qulonglong(kMostTasks)) + ") INSERT INTO task SELECT i, '', '' FROM n";
    QCOMPARE(sqlite3_exec(handle, fill.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(handle);
    const FolderSnapshot before(store.folder.path());
    const StoreResult result = store.host.open(store.path);
    QCOMPARE(int(result.problem), int(StoreProblem::TooLarge));
    QVERIFY2(englishText(result).contains(QString::number(kMostTasks)),
             qPrintable(englishText(result)));
    QCOMPARE(before.differences(FolderSnapshot(store.folder.path())), QStringList());
}

TREL_TEST(tst_ScheduleLimits, QCoreApplication)
#include "support/TestProgram.h"
#include "tst_ScheduleLimits.moc"
