#include "faults/FaultWords.h"
#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "json/NamedSchedule.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

namespace {

const std::string kHash = "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef";

std::vector<NamedProgram> twoPrograms()
{
    NamedProgram film;
    film.progIndex = 7;
    film.name = "Morning news";
    film.path = "/media/news.mp4";
    film.kind = ProgramKind::Video;
    film.lengthMs = 90500;
    film.size = 9007199254740993;
    film.sha256 = kHash;
    NamedProgram live;
    live.progIndex = 2;
    live.name = "caf\xE9";
    live.path = "udp://239.0.0.1:2";
    live.kind = ProgramKind::Live;
    live.lengthMs = 0;
    return {film, live};
}

PlayTask emptyTask(int id)
{
    PlayTask task;
    task.id = id;
    return task;
}

QByteArray written()
{
    return namedScheduleToJson({{1, emptyTask(1)}}, twoPrograms());
}

} // namespace

/// Schedules in JSON that name their programs.
class tst_NamedSchedule : public QObject
{
    Q_OBJECT

private slots:
    void theFormIsAsDocumented();
    void everyFieldSurvives();
    void allKindsSurvive();
    void theFormerFormIsRead();
    void theTasksAreReadByThemselves();
    void errors_data();
    void errors();
    void fileIsReplacedWhole();
};

void tst_NamedSchedule::theFormIsAsDocumented()
{
    const QByteArray expected = R"json({
  "format": "trel-schedule",
  "version": 2,
  "programs": [
    { "index": 7, "name": "Morning news", "path": "/media/news.mp4", "kind": "video", "length": "90500", "size": "9007199254740993", "sha256": "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef" },
    { "index": 2, "name": { "base64": "Y2Fm6Q==" }, "path": "udp://239.0.0.1:2", "kind": "live", "length": "0", "size": "-1", "sha256": "" }
  ],
  "tasks": [
    {
      "id": 1,
      "startDate": "",
      "endDate": "",
      "plans": []
    }
  ]
}
)json";
    QCOMPARE(written(), expected);
    QCOMPARE(namedScheduleToJson({}, {}), QByteArray("{\n"
                                                     "  \"format\": \"trel-schedule\",\n"
                                                     "  \"version\": 2,\n"
                                                     "  \"programs\": [],\n"
                                                     "  \"tasks\": []\n"
                                                     "}\n"));
}

void tst_NamedSchedule::everyFieldSurvives()
{
    const std::map<int, PlayTask> tasks = {{5, everyFieldTask(5)}, {6, emptyTask(6)}};
    const QByteArray json = namedScheduleToJson(tasks, twoPrograms());
    const NamedScheduleFromJson read = namedScheduleFromJson(json);
    QCOMPARE(englishText(read), QString());
    QVERIFY(read.isNamed);
    QVERIFY(read.tasks == tasks);
    QVERIFY(read.programs == twoPrograms());
    QCOMPARE(namedScheduleToJson(read.tasks, read.programs), json);
}

void tst_NamedSchedule::allKindsSurvive()
{
    std::vector<NamedProgram> programs;
    for (int kind = 0; kind <= static_cast<int>(ProgramKind::Other); ++kind) {
        NamedProgram& program = programs.emplace_back();
        program.progIndex = kind == 0 ? 0 : kInvalidProgIndex - kind;
        program.kind = static_cast<ProgramKind>(kind);
        program.size = std::numeric_limits<qint64>::max();
        program.lengthMs = std::numeric_limits<qint64>::min();
    }
    QVERIFY(namedScheduleFromJson(namedScheduleToJson({}, programs)).programs == programs);
    // One that a later program may know.
    QByteArray json = namedScheduleToJson({}, {programs.front()});
    const NamedScheduleFromJson later = namedScheduleFromJson(json.replace("\"video\"", "17"));
    QCOMPARE(englishText(later), QString());
    QVERIFY(later.programs.front().kind == ProgramKind::Other);
}

void tst_NamedSchedule::theFormerFormIsRead()
{
    const std::map<int, PlayTask> tasks = {{5, everyFieldTask(5)}};
    const NamedScheduleFromJson read = namedScheduleFromJson(scheduleToJson(tasks));
    QCOMPARE(englishText(read), QString());
    QVERIFY(!read.isNamed);
    QVERIFY(read.programs.empty());
    QVERIFY(read.tasks == tasks);
}

void tst_NamedSchedule::theTasksAreReadByThemselves()
{
    const ScheduleFromJson read = scheduleFromJson(written());
    QCOMPARE(englishText(read), QString());
    QCOMPARE(read.tasks.size(), std::size_t(1));
}

void tst_NamedSchedule::errors_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* before, const char* after,
                        const char* error) {
        QByteArray json = written();
        QVERIFY2(json.contains(before), before);
        QTest::newRow(name) << json.replace(before, after) << QString::fromLatin1(error);
    };
    row("no programs", "\"programs\": [", "\"program\": [",
        "program (line 4): there is no member \"program\" here");
    row("programs in the former form", "\"version\": 2", "\"version\": 1",
        "programs (line 4): there is no member \"programs\" here");
    row("a number twice", "\"index\": 2", "\"index\": 7",
        "programs[1].index (line 6): a number from 0 to 65535 that no other program has is "
        "expected here, not another number");
    row("a number of nothing", "\"index\": 2", "\"index\": 65536",
        "programs[1].index (line 6): a number from 0 to 65535 that no other program has is "
        "expected here, not another number");
    row("a number below zero", "\"index\": 2", "\"index\": -1",
        "programs[1].index (line 6): a number from 0 to 65535 that no other program has is "
        "expected here, not another number");
    row("no hash", "\"sha256\": \"\"", "\"sha256\": \"ab\"",
        "programs[1].sha256 (line 6): a SHA-256 in 64 small hexadecimal digits, or an empty text "
        "is expected here, not another text");
    row("a hash in large letters", "9abcdef\"", "9abcdeF\"",
        "programs[0].sha256 (line 5): a SHA-256 in 64 small hexadecimal digits, or an empty text "
        "is expected here, not another text");
    row("a length as a number", "\"90500\"", "90500",
        "programs[0].length (line 5): a whole number written as a text is expected here, not a "
        "number");
    row("another kind", "\"live\"", "\"Live\"",
        "programs[1].kind (line 6): \"video\", \"audio\", \"image\", \"live\", \"other\" or a "
        "number is expected here, not \"Live\"");
    row("a member more", "\"index\": 2", "\"index\": 2, \"id\": 1",
        "programs[1].id (line 6): there is no member \"id\" here");
    row("a member less", "\"index\": 2, ", "",
        "programs[1] (line 6): the member \"index\" is missing");
}

void tst_NamedSchedule::errors()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const NamedScheduleFromJson read = namedScheduleFromJson(json);
    QCOMPARE(englishText(read), error);
    QVERIFY(read.tasks.empty());
    QVERIFY(read.programs.empty());
}

void tst_NamedSchedule::fileIsReplacedWhole()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("schedule.json"));
    QVERIFY(!writeNamedScheduleFile(path, sampleSchedule(10, 2, 2), twoPrograms()));
    QVERIFY(!writeNamedScheduleFile(path, {{1, emptyTask(1)}}, twoPrograms()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), written());
    QVERIFY(writeNamedScheduleFile(folder.path(), {}, {}).code == FaultCode::IsFolder);
}

TREL_TEST(tst_NamedSchedule, trel::tests::NoApplication)
#include "tst_NamedSchedule.moc"
