#include "faults/FaultWords.h"
#include "support/TestProgram.h"
#include "json/ScheduleJson.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <limits>
#include <random>

using namespace trel::mediadispatch;

using Schedule = std::map<int, PlayTask>;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

PlayPlan fullPlan()
{
    PlayPlan plan;
    plan.id = 4;
    plan.mode = FrequencyMode;
    plan.weeks = "1,3,5";
    plan.startTime = "08:00:00";
    plan.endTime = "08:01:30";
    plan.times = 3;
    plan.endAction = FreezeCurrentFrame;
    plan.programs = {{7, false, "Morning news", 2}, {65536, true, "Weather (invalid)", 1}};
    plan.hasNoDuration = true;
    plan.isConflict = true;
    plan.serviceCount = -12;
    plan.serviceList = {1, std::numeric_limits<std::int64_t>::min(),
                        std::numeric_limits<std::int64_t>::max()};
    plan.serviceTime = "23:59:59";
    plan.serviceFlagA = true;
    plan.serviceFlagB = false;
    return plan;
}

Schedule fullSchedule()
{
    PlayTask first;
    first.id = 1;
    first.startDate = "2024.01.01";
    first.endDate = "2024.01.31";
    first.plans = {fullPlan(), PlayPlan()};
    PlayTask second;
    second.id = 9;
    second.startDate = "2024.02.01";
    second.endDate = "2024.02.29";
    return {{1, first}, {9, second}};
}

Schedule withPlan(const PlayPlan& plan)
{
    PlayTask task;
    task.id = 1;
    task.plans = {plan};
    return {{1, task}};
}

PlayPlan firstPlan(const Schedule& schedule)
{
    return schedule.begin()->second.plans.front();
}

/// Schedules without rhyme or reason: any number, any bytes, any length.
class RandomSchedules
{
public:
    explicit RandomSchedules(unsigned seed)
        : m_engine(seed)
    {}

    Schedule next()
    {
        Schedule schedule;
        for (unsigned count = below(6); count > 0; --count) {
            PlayTask task = nextTask();
            schedule[task.id] = task;
        }
        return schedule;
    }

private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(m_engine() % bound); }
    bool coin() { return below(2) == 1; }

    int number()
    {
        switch (below(4)) {
        case 0:
            return kLeast + static_cast<int>(below(3));
        case 1:
            return kMost - static_cast<int>(below(3));
        default:
            return static_cast<int>(below(9)) - 3;
        }
    }

    std::int64_t longNumber()
    {
        const auto upper = static_cast<std::int64_t>(m_engine());
        return coin() ? number() : upper * number();
    }

    std::string text()
    {
        std::string bytes;
        const unsigned kinds = coin() ? 0x80 : 0x100; // half of the texts are plain ASCII
        for (unsigned length = below(12); length > 0; --length) {
            bytes.push_back(static_cast<char>(below(kinds)));
        }
        return below(4) == 0 ? std::string("\xE6\x96\xB0\xE9\x97\xBB \"\\") : bytes;
    }

    struProgInfo nextEntry() { return {number(), coin(), text(), number()}; }

    PlayPlan nextPlan()
    {
        PlayPlan plan;
        plan.mode = number();
        plan.id = number();
        plan.startTime = text();
        plan.endTime = text();
        plan.times = number();
        plan.serviceCount = number();
        plan.endAction = number();
        for (unsigned count = below(4); count > 0; --count) {
            plan.serviceList.push_back(longNumber());
        }
        for (unsigned count = below(4); count > 0; --count) {
            plan.programs.push_back(nextEntry());
        }
        plan.isConflict = coin();
        plan.weeks = text();
        plan.serviceTime = text();
        plan.hasNoDuration = coin();
        plan.serviceFlagA = coin();
        plan.serviceFlagB = coin();
        return plan;
    }

    PlayTask nextTask()
    {
        PlayTask task;
        task.id = number();
        task.startDate = text();
        task.endDate = text();
        for (unsigned count = below(4); count > 0; --count) {
            task.plans.push_back(nextPlan());
        }
        return task;
    }

    std::mt19937 m_engine;
};

Schedule largeSchedule(int tasks, int plansEach, int entriesEach)
{
    PlayPlan plan = fullPlan();
    plan.programs.assign(static_cast<std::size_t>(entriesEach),
                         {12, false, "\xE6\x99\xA9\xE9\x97\xB4\xE6\x96\xB0\xE9\x97\xBB", 1});
    PlayTask task;
    task.startDate = "2024.01.01";
    task.endDate = "2024.01.01";
    task.plans.assign(static_cast<std::size_t>(plansEach), plan);
    Schedule schedule;
    for (task.id = 1; task.id <= tasks; ++task.id) {
        schedule.emplace_hint(schedule.end(), task.id, task);
    }
    return schedule;
}

} // namespace

class tst_ScheduleJson : public QObject
{
    Q_OBJECT

private slots:
    void emptyScheduleHasAHeading();
    void theFormIsAsDocumented();
    void everyFieldSurvives();
    void numbersSurvive_data();
    void numbersSurvive();
    void wordsAndTheirNumbersMeanTheSame();
    void textsSurvive_data();
    void textsSurvive();
    void randomSchedulesSurvive();
    void theSameScheduleGivesTheSameBytes();
    void otherReadersUnderstandIt();
    void orderAndBlanksDoNotMatter();
    void aKeyThatIsTheIdIsTaken();
    void byteOrderMarkIsPassedOver();
    void escapesAreUnderstood();
    void largeScheduleSurvives();
    void fileIsReplacedWhole();
    void fileThatCannotBeWrittenIsRefused();
};

void tst_ScheduleJson::emptyScheduleHasAHeading()
{
    const QByteArray json = scheduleToJson({});
    QCOMPARE(json, QByteArray("{\n"
                              "  \"format\": \"trel-schedule\",\n"
                              "  \"version\": 1,\n"
                              "  \"tasks\": []\n"
                              "}\n"));
    const ScheduleFromJson read = scheduleFromJson(json);
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks.empty());
}

void tst_ScheduleJson::theFormIsAsDocumented()
{
    Schedule schedule = fullSchedule();
    schedule.at(1).plans.pop_back();
    const QByteArray expected = R"json({
  "format": "trel-schedule",
  "version": 1,
  "tasks": [
    {
      "id": 1,
      "startDate": "2024.01.01",
      "endDate": "2024.01.31",
      "plans": [
        {
          "id": 4,
          "mode": "frequency",
          "weeks": "1,3,5",
          "startTime": "08:00:00",
          "endTime": "08:01:30",
          "times": 3,
          "endAction": "freeze",
          "programs": [
            { "progIndex": 7, "progName": "Morning news", "playCount": 2, "isInvalid": false },
            { "progIndex": 65536, "progName": "Weather (invalid)", "playCount": 1, "isInvalid": true }
          ],
          "hasNoDuration": true,
          "isConflict": true,
          "serviceCount": -12,
          "serviceList": [
            "1",
            "-9223372036854775808",
            "9223372036854775807"
          ],
          "serviceTime": "23:59:59",
          "serviceFlagA": true,
          "serviceFlagB": false
        }
      ]
    },
    {
      "id": 9,
      "startDate": "2024.02.01",
      "endDate": "2024.02.29",
      "plans": []
    }
  ]
}
)json";
    QCOMPARE(scheduleToJson(schedule), expected);
}

void tst_ScheduleJson::everyFieldSurvives()
{
    const Schedule schedule = fullSchedule();
    const ScheduleFromJson read = scheduleFromJson(scheduleToJson(schedule));
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks == schedule);
    QVERIFY(firstPlan(read.tasks) == fullPlan());
}

void tst_ScheduleJson::numbersSurvive_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("0") << 0;
    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
    QTest::newRow("-7") << -7;
    QTest::newRow("least") << kLeast;
    QTest::newRow("most") << kMost;
}

void tst_ScheduleJson::numbersSurvive()
{
    QFETCH(int, number);
    PlayPlan plan;
    plan.mode = number;
    plan.endAction = number;
    plan.id = number;
    plan.times = number;
    plan.serviceCount = number;
    plan.programs = {{number, false, "x", number}};

    const ScheduleFromJson read = scheduleFromJson(scheduleToJson(withPlan(plan)));
    QCOMPARE(englishText(read), QString());
    QVERIFY(firstPlan(read.tasks) == plan);
}

void tst_ScheduleJson::wordsAndTheirNumbersMeanTheSame()
{
    QByteArray json = scheduleToJson(withPlan(fullPlan()));
    QVERIFY(json.contains("\"mode\": \"frequency\""));
    QVERIFY(json.contains("\"endAction\": \"freeze\""));
    json.replace("\"frequency\"", "1");
    json.replace("\"freeze\"", "1");
    QVERIFY(firstPlan(scheduleFromJson(json).tasks) == fullPlan());
}

void tst_ScheduleJson::textsSurvive_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("empty") << QByteArray("") << QByteArray("\"\"");
    QTest::newRow("CJK") << QByteArray("\xE6\x96\xB0\xE9\x97\xBB")
                         << QByteArray("\"\xE6\x96\xB0\xE9\x97\xBB\"");
    QTest::newRow("beyond the first plane")
        << QByteArray("\xF0\x9F\x8E\xAC") << QByteArray("\"\xF0\x9F\x8E\xAC\"");
    QTest::newRow("quotes") << QByteArray("a \"b\" \\ c") << QByteArray(R"("a \"b\" \\ c")");
    QTest::newRow("lines") << QByteArray("a\nb\r\tc\b\f") << QByteArray(R"("a\nb\r\tc\b\f")");
    QTest::newRow("NUL inside") << QByteArray("a\0b", 3) << QByteArray(R"("a\u0000b")");
    QTest::newRow("control characters")
        << QByteArray("\x1B[31m\x7F") << QByteArray(R"("\u001b[31m\u007f")");
    // On both sides of every border of what a terminal would obey.
    for (const int obeyed : {0x80, 0x9F, 0x61C, 0x200E, 0x200F, 0x2028, 0x202E, 0x2066, 0x2069}) {
        QTest::addRow("U+%04X", obeyed)
            << QString(QChar(obeyed)).toUtf8()
            << QByteArray("\"\\u") + QByteArray::number(obeyed, 16).rightJustified(4, '0') + '"';
    }
    for (const int harmless :
         {0x7E, 0xA0, 0x61B, 0x61D, 0x200D, 0x2010, 0x2027, 0x202F, 0x2065, 0x206A}) {
        const QByteArray bytes = QString(QChar(harmless)).toUtf8();
        QTest::addRow("U+%04X", harmless) << bytes << '"' + bytes + '"';
    }
    QTest::newRow("no UTF-8") << QByteArray("caf\xE9") << QByteArray(R"({ "base64": "Y2Fm6Q==" })");
    QTest::newRow("half a surrogate pair")
        << QByteArray("\xED\xA0\x80") << QByteArray(R"({ "base64": "7aCA" })");
    QTest::newRow("overlong") << QByteArray("\xC0\xAF") << QByteArray(R"({ "base64": "wK8=" })");
    QTest::newRow("sequence cut off")
        << QByteArray("\xE6\x96") << QByteArray(R"({ "base64": "5pY=" })");
    QTest::newRow("beyond Unicode")
        << QByteArray("\xF4\x90\x80\x80") << QByteArray(R"({ "base64": "9JCAgA==" })");
    QTest::newRow("last character")
        << QByteArray("\xF4\x8F\xBF\xBF") << QByteArray("\"\xF4\x8F\xBF\xBF\"");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "a")
                                     << QByteArray("\"\xEF\xBB\xBF"
                                                   "a\"");
}

void tst_ScheduleJson::textsSurvive()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, written);
    PlayPlan plan;
    plan.weeks = bytes.toStdString();
    plan.startTime = plan.weeks;
    plan.programs = {{1, false, plan.weeks, 1}};

    const QByteArray json = scheduleToJson(withPlan(plan));
    QVERIFY2(json.contains("\"progName\": " + written + ","), json.constData());
    const ScheduleFromJson read = scheduleFromJson(json);
    QCOMPARE(englishText(read), QString());
    QVERIFY(firstPlan(read.tasks) == plan);
}

void tst_ScheduleJson::randomSchedulesSurvive()
{
    RandomSchedules schedules(20240131);
    for (int run = 0; run < 1000; ++run) {
        const Schedule schedule = schedules.next();
        const QByteArray json = scheduleToJson(schedule);
        const ScheduleFromJson read = scheduleFromJson(json);
        QVERIFY2(englishText(read).isEmpty(), qPrintable(englishText(read)));
        QVERIFY2(read.tasks == schedule, json.constData());
        QCOMPARE(scheduleToJson(read.tasks), json);
        QVERIFY(!QJsonDocument::fromJson(json).isNull());
    }
}

void tst_ScheduleJson::theSameScheduleGivesTheSameBytes()
{
    QCOMPARE(scheduleToJson(fullSchedule()), scheduleToJson(fullSchedule()));
}

void tst_ScheduleJson::otherReadersUnderstandIt()
{
    PlayPlan plan = fullPlan();
    plan.programs = {{3, false, "\"\xE6\x96\xB0\"\n\x01\xF0\x9F\x8E\xAC", 1}};
    const QJsonDocument document = QJsonDocument::fromJson(scheduleToJson(withPlan(plan)));
    const QJsonObject object =
        document[QStringLiteral("tasks")][0][QStringLiteral("plans")][0].toObject();
    QCOMPARE(object.size(), 15);
    QCOMPARE(object[QStringLiteral("programs")][0][QStringLiteral("progName")].toString(),
             QString::fromStdString(plan.programs[0].progName));
    QCOMPARE(object[QStringLiteral("serviceList")][1].toString(),
             QStringLiteral("-9223372036854775808"));
}

void tst_ScheduleJson::orderAndBlanksDoNotMatter()
{
    // QJsonDocument sorts the members by name, which moves the heading behind the tasks.
    const QByteArray json = scheduleToJson(fullSchedule());
    for (const auto layout : {QJsonDocument::Compact, QJsonDocument::Indented}) {
        QByteArray shuffled = QJsonDocument::fromJson(json).toJson(layout);
        const ScheduleFromJson read = scheduleFromJson(shuffled.replace("\n", "\r\n"));
        QCOMPARE(englishText(read), QString());
        QVERIFY(read.tasks == fullSchedule());
    }
}

void tst_ScheduleJson::aKeyThatIsTheIdIsTaken()
{
    const std::map<int, PlayTask> tasks = {{5, PlayTask{5, "2024.01.01", "2024.01.31", {}}}};
    QByteArray json = scheduleToJson(tasks);
    json.replace("\"id\": 5", "\"key\": 5, \"id\": 5");
    QVERIFY(json.contains("\"key\""));
    const ScheduleFromJson read = scheduleFromJson(json);
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks == tasks);
}

void tst_ScheduleJson::byteOrderMarkIsPassedOver()
{
    const ScheduleFromJson read = scheduleFromJson("\xEF\xBB\xBF" + scheduleToJson(fullSchedule()));
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks == fullSchedule());
}

void tst_ScheduleJson::escapesAreUnderstood()
{
    QByteArray json = scheduleToJson(withPlan(fullPlan()));
    json.replace("Morning news", R"(\"\\\/\b\f\n\r\t\u00e9\u65B0\ud83c\udfac)");
    QCOMPARE(firstPlan(scheduleFromJson(json).tasks).programs[0].progName,
             std::string("\"\\/\b\f\n\r\t\xC3\xA9\xE6\x96\xB0\xF0\x9F\x8E\xAC"));
}

void tst_ScheduleJson::largeScheduleSurvives()
{
    const Schedule schedule = largeSchedule(2000, 5, 5);
    const ScheduleFromJson read = scheduleFromJson(scheduleToJson(schedule));
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.tasks == schedule);
}

void tst_ScheduleJson::fileIsReplacedWhole()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("\u65b0 schedule.json"));
    QVERIFY(!writeScheduleFile(path, largeSchedule(10, 2, 2)));
    QVERIFY(!writeScheduleFile(path, fullSchedule()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), scheduleToJson(fullSchedule()));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

void tst_ScheduleJson::fileThatCannotBeWrittenIsRefused()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("nowhere/schedule.json"));
    const Fault missing = writeScheduleFile(path, fullSchedule());
    QVERIFY(missing.code == FaultCode::System);
    QCOMPARE(missing.number(0), ENOENT);
    QVERIFY(writeScheduleFile(folder.path(), fullSchedule()).code == FaultCode::IsFolder);
}

TREL_TEST(tst_ScheduleJson, trel::tests::NoApplication)
#include "tst_ScheduleJson.moc"
