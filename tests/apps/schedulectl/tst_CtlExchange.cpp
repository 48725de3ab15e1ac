#include "CtlFixture.h"

#include "support/SampleSchedule.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/json/NamedSchedule.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <thread>

#include <sys/stat.h>

using namespace trel::mediadispatch;

/// The commands export and import-schedule.
class tst_CtlExchange : public QObject
{
    Q_OBJECT

private slots:
    void roundTripChangesNoByte_data();
    void roundTripChangesNoByte();
    void standardStreamsCarryASchedule();
    void exportReplacesAFile();
    void exportRefusals();
    void importReplacesTheWholeSchedule();
    void importMakesADatabase();
    void importTellsWhatIsOdd();
    void importNamesDatesThatAreNone();
    void importWarnsOfOtherNames();
    void programsAreFoundUnderOtherNumbers();
    void whatIsTakenIsTold();
    void whatIsMissingIsRefused();
    void badFilesChangeNothing_data();
    void badFilesChangeNothing();
    void aPipeIsReadToItsEnd();
};

namespace {

const QString kExport = QStringLiteral("export");
const QString kImportSchedule = QStringLiteral("import-schedule");
const QString kStream = QStringLiteral("-");
const QString kFile = QStringLiteral("schedule.json");

QString told(const QString& sentence)
{
    return QStringLiteral("schedulectl: %1\n").arg(sentence);
}

/// What is exported of a schedule that plays nothing.
QByteArray unnamed(const CtlFixture::Schedule& schedule)
{
    return namedScheduleToJson(schedule, {});
}

/// A clip that no other is like, in the catalogue of a database.
void importClip(const CtlFixture& fixture, const QString& database, const QString& name, int msecs)
{
    fixture.writeClip(name, msecs);
    QCOMPARE(fixture
                 .run({QStringLiteral("import"), name, QStringLiteral("--database"),
                       fixture.path(database)})
                 .status,
             0);
}

/// The numbers of the entries of the first plan, such as "2 1", with "-" for one that is invalid.
QString numbersOf(const QByteArray& json)
{
    QStringList numbers;
    const ScheduleFromJson schedule = scheduleFromJson(json);
    for (const struProgInfo& entry : schedule.tasks.at(1).plans.at(0).programs) {
        numbers.append(entry.isInvalid ? kStream : QString::number(entry.progIndex));
    }
    return numbers.join(QLatin1Char(' '));
}

/// A database with a schedule that plays News, Weather and News, and what is exported of it.
QByteArray makeNews(const CtlFixture& fixture)
{
    for (const char* clip : {"News", "Weather"}) {
        importClip(fixture, QStringLiteral("test.db"), QLatin1String(clip) + QStringLiteral(".wav"),
                   clip[0] == 'N' ? 100 : 200);
    }
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "", 1);
    plan.programs = {{1, false, "News", 1}, {2, false, "Weather", 1}, {1, false, "News", 3}};
    fixture.store({{1, januaryTask(1, {plan})}});
    return fixture.exported();
}

/// The command that fills a catalogue with what the schedules refer to, and needs no files.
QStringList fivePrograms()
{
    QStringList command = {QStringLiteral("import")};
    for (int port = 1; port <= 5; ++port) {
        command.append(QStringLiteral("udp://239.0.0.1:%1").arg(port));
    }
    return command;
}

} // namespace

void tst_CtlExchange::roundTripChangesNoByte_data()
{
    QTest::addColumn<QByteArray>("json");

    const auto row = [](const char* name, const CtlFixture::Schedule& schedule) {
        QTest::newRow(name) << scheduleToJson(schedule);
    };
    row("empty", {});
    row("every field", {{7, everyFieldTask(7)}});
    row("many tasks", sampleSchedule(100, 5, 5));
    PlayTask odd = everyFieldTask(-3);
    odd.plans[0].programs = {{-1, true, "", -4},
                             {70000, true, "line\nbreak \"quote\" \\ \x1B", 999},
                             {65535, true, "\xE6\x96\xB0\xF0\x9F\x8E\xAC", 0}};
    odd.plans[0].weeks = "8,abc,,1";
    odd.plans[0].mode = -7;
    odd.plans[0].endAction = 2;
    odd.plans[0].startTime = "no time";
    odd.startDate.clear();
    row("odd values", {{-3, odd}});
}

void tst_CtlExchange::roundTripChangesNoByte()
{
    QFETCH(QByteArray, json);
    const CtlFixture fixture;
    const QString other = fixture.path(QStringLiteral("other.db"));
    const QString option = QStringLiteral("--database");
    for (const QString& database : {fixture.database(), other}) {
        QCOMPARE(fixture.run(fivePrograms() + QStringList{option, database}).status, 0);
    }
    fixture.writeFile(kFile, json);
    const CtlResult read = fixture.onDatabase({kImportSchedule, kFile});
    QVERIFY2(read.status == 0, qPrintable(read.err));
    const QString again = QStringLiteral("again.json");
    QCOMPARE(fixture.onDatabase({kExport, again}).status, 0);
    const QByteArray named = fixture.fileContent(again);
    QCOMPARE(scheduleToJson(scheduleFromJson(named).tasks), json);
    // And once more, into another database.
    QCOMPARE(fixture.run({kImportSchedule, again, option, other}).status, 0);
    QCOMPARE(fixture.run({kExport, kStream, option, other}).out, named);
}

void tst_CtlExchange::standardStreamsCarryASchedule()
{
    const CtlFixture fixture;
    const QByteArray json = scheduleToJson(sampleSchedule(3, 2, 0));
    const CtlResult read = fixture.onDatabase({kImportSchedule, kStream}, json);
    QCOMPARE(read.status, 0);
    QCOMPARE(read.text(),
             QStringLiteral("3 tasks with 6 plans read from the standard input, in the "
                            "place of 0 tasks with 0 plans.\n"));
    const CtlResult written = fixture.onDatabase({kExport, kStream});
    QCOMPARE(written.status, 0);
    QCOMPARE(written.err, QString());
    QCOMPARE(written.out, unnamed(sampleSchedule(3, 2, 0)));
    QVERIFY(!QFileInfo::exists(fixture.path(kStream)));
}

void tst_CtlExchange::exportReplacesAFile()
{
    const CtlFixture fixture;
    fixture.store({{1, januaryTask(1)}});
    fixture.writeFile(kFile, QByteArray(100000, 'x'));
    const CtlResult result = fixture.onDatabase({kExport, kFile});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(), QStringLiteral("1 task with 0 plans written to schedule.json.\n"));
    QCOMPARE(fixture.fileContent(kFile), fixture.exported());
}

void tst_CtlExchange::exportRefusals()
{
    const CtlFixture fixture;
    fixture.store({{1, januaryTask(1)}});
    const QByteArray before = fixture.exported();

    const CtlResult nowhere = fixture.onDatabase({kExport, QStringLiteral("nowhere/x.json")});
    QCOMPARE(nowhere.status, 1);
    QVERIFY2(
        nowhere.err.startsWith(QStringLiteral("schedulectl: nowhere/x.json cannot be written: ")),
        qPrintable(nowhere.err));

    QVERIFY(QDir(fixture.path(QString())).mkdir(QStringLiteral("folder")));
    QCOMPARE(fixture.onDatabase({kExport, QStringLiteral("folder")}).status, 1);

    // By any of its names.
    QVERIFY(QFile::link(fixture.database(), fixture.path(QStringLiteral("link.db"))));
    for (const char* name : {"test.db", "folder/../test.db", "link.db"}) {
        const CtlResult itself = fixture.onDatabase({kExport, QString::fromLatin1(name)});
        QCOMPARE(itself.status, 1);
        QCOMPARE(itself.err,
                 told(QStringLiteral("%1 is the database itself and is not written over.")
                          .arg(QString::fromLatin1(name))));
    }
    QCOMPARE(fixture.exported(), before);
}

void tst_CtlExchange::importReplacesTheWholeSchedule()
{
    const CtlFixture fixture;
    fixture.store(sampleSchedule(4, 2, 0));
    fixture.writeFile(kFile, scheduleToJson({{9, januaryTask(9)}}));
    const CtlResult result = fixture.onDatabase({kImportSchedule, kFile});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.text(), QStringLiteral("1 task with 0 plans read from schedule.json, in the "
                                           "place of 4 tasks with 8 plans.\n"));
    QCOMPARE(fixture.exported(), unnamed({{9, januaryTask(9)}}));
}

void tst_CtlExchange::importMakesADatabase()
{
    const CtlFixture fixture;
    fixture.writeFile(kFile, scheduleToJson({}));
    QCOMPARE(fixture.run({kImportSchedule, kFile}).status, 0);
    QVERIFY(fixture.files().contains(QStringLiteral("data/trel/schedule/schedule.db")));
    const CtlResult nowhere =
        fixture.run({kImportSchedule, kFile, QStringLiteral("--database=nowhere/x.db")});
    QCOMPARE(nowhere.status, 1);
    QVERIFY(nowhere.err.contains(QStringLiteral("nowhere/x.db cannot be opened: its folder does "
                                                "not exist.\n")));
}

void tst_CtlExchange::importTellsWhatIsOdd()
{
    const CtlFixture fixture;
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "", 12);
    plan.programs.push_back({5, false, "five", 1});
    plan.programs.push_back({12, false, "twelve", 1});
    plan.programs.push_back({65536, true, "tomb", 1});
    fixture.writeFile(kFile, scheduleToJson({{1, januaryTask(1, {plan})}, {2, januaryTask(2)}}));
    const CtlResult result = fixture.onDatabase({kImportSchedule, kFile});
    QCOMPARE(result.status, 0);
    QCOMPARE(
        result.err,
        told(QStringLiteral("Periods of tasks overlap, so the editor would refuse to save this "
                            "schedule; see \"schedulectl check\".")) +
            told(QStringLiteral("Plans refer to programs that the catalog does not have, so "
                                "their entries are invalid: 5, 12.")));
}

void tst_CtlExchange::importNamesDatesThatAreNone()
{
    const CtlFixture fixture;
    PlayTask task = januaryTask(7);
    task.startDate = "2024.13.01";
    task.endDate = "soon";
    fixture.writeFile(kFile, scheduleToJson({{2, januaryTask(2)}, {7, task}}));
    const CtlResult result = fixture.onDatabase({kImportSchedule, kFile});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err,
             told(QStringLiteral("Task 7, startDate: \"2024.13.01\" is not a date in the form "
                                 "yyyy.MM.dd, so the task is never valid.")) +
                 told(QStringLiteral("Task 7, endDate: \"soon\" is not a date in the form "
                                     "yyyy.MM.dd, so the task is never valid.")));
}

void tst_CtlExchange::importWarnsOfOtherNames()
{
    const CtlFixture fixture;
    for (const char* clip : {"News", "Weather"}) {
        const QString name = QLatin1String(clip) + QStringLiteral(".wav");
        fixture.writeClip(name, 100);
        QCOMPARE(fixture.onDatabase({QStringLiteral("import"), name}).status, 0);
    }
    PlayPlan plan = timePlan(1, "08:00:00", "09:00:00", "", 1);
    plan.programs = {{1, false, "News", 1}, {2, false, "Sports", 1}};
    fixture.writeFile(kFile, scheduleToJson({{1, januaryTask(1, {plan})}}));
    const CtlResult result = fixture.onDatabase({kImportSchedule, kFile});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, told(QStringLiteral("Program 2 is \"Sports\" in this schedule, and"
                                             " \"Weather\" in the catalog: what plays is the"
                                             " latter.")));
}

// In another database each number means another program.
void tst_CtlExchange::programsAreFoundUnderOtherNumbers()
{
    const CtlFixture fixture;
    const QByteArray json = makeNews(fixture);
    QCOMPARE(numbersOf(json), QStringLiteral("1 2 1"));
    fixture.writeFile(kFile, json);
    const QString other = QStringLiteral("other.db");
    importClip(fixture, other, QStringLiteral("Spot.wav"), 300);
    importClip(fixture, other, QStringLiteral("Weather.wav"), 200);
    importClip(fixture, other, QStringLiteral("copy/same.wav"), 100);
    const QStringList option = {QStringLiteral("--database"), fixture.path(other)};
    const CtlResult read = fixture.run(QStringList{kImportSchedule, kFile} + option);
    QCOMPARE(read.err, QString());
    QCOMPARE(read.status, 0);
    QCOMPARE(read.text(), QStringLiteral("2 programs found in the catalog: 2 by content.\n"
                                         "1 task with 1 plan read from schedule.json, in the place "
                                         "of 0 tasks with 0 plans.\n"));
    QCOMPARE(numbersOf(fixture.run(QStringList{kExport, kStream} + option).out),
             QStringLiteral("3 2 3"));
}

void tst_CtlExchange::whatIsTakenIsTold()
{
    const CtlFixture fixture;
    fixture.writeFile(kFile, makeNews(fixture));
    const QString other = QStringLiteral("other.db");
    // News is at its path with another content, Weather only has its name and length.
    importClip(fixture, other, QStringLiteral("News.wav"), 700);
    fixture.writeFile(QStringLiteral("sub/x"), {});
    QVERIFY(QFile::copy(fixture.path(QStringLiteral("Weather.wav")),
                        fixture.path(QStringLiteral("sub/Weather.wav"))));
    QFile weather(fixture.path(QStringLiteral("sub/Weather.wav")));
    QVERIFY(weather.open(QIODevice::ReadWrite) && weather.seek(weather.size() - 1));
    QVERIFY(weather.putChar('\x55') && weather.flush());
    const QStringList option = {QStringLiteral("--database"), fixture.path(other)};
    QCOMPARE(
        fixture
            .run(QStringList{QStringLiteral("import"), QStringLiteral("sub/Weather.wav")} + option)
            .status,
        0);
    const QStringList command = QStringList{kImportSchedule, kFile} + option;
    const QString doubts =
        told(QStringLiteral("Program 1, \"News\", is program 1, \"News\", in the catalog, found "
                            "by path; its file has another content.")) +
        told(QStringLiteral("Program 2, \"Weather\", is program 2, \"Weather\", in the catalog, "
                            "found by name with length; its file has another content."));
    const CtlResult read = fixture.run(command);
    QCOMPARE(read.status, 0);
    QCOMPARE(read.err, doubts);
    QCOMPARE(read.lines().first(),
             QStringLiteral("2 programs found in the catalog: 1 by path, 1 by "
                            "name with length."));
    const CtlResult json = fixture.run(command + QStringList{QStringLiteral("--json")});
    QCOMPARE(json.err, doubts);
    QCOMPARE(json.json()[QStringLiteral("isImported")].toBool(), true);
    QCOMPARE(json.json()[QStringLiteral("tasks")].toInt(), 1);
    QCOMPARE(QString::fromUtf8(QJsonDocument(json.json()[QStringLiteral("programs")].toArray())
                                   .toJson(QJsonDocument::Compact)),
             QStringLiteral(R"([{"foundBy":"path","index":1,"isGone":false,"isOtherContent":true,)"
                            R"("isPlayed":true,"name":"News","program":1},)"
                            R"({"foundBy":"name","index":2,"isGone":false,"isOtherContent":true,)"
                            R"("isPlayed":true,"name":"Weather","program":2}])"));
}

void tst_CtlExchange::whatIsMissingIsRefused()
{
    const CtlFixture fixture;
    fixture.writeFile(kFile, makeNews(fixture));
    const QString other = QStringLiteral("other.db");
    importClip(fixture, other, QStringLiteral("Spot.wav"), 300);
    importClip(fixture, other, QStringLiteral("News.wav"), 100);
    const QStringList option = {QStringLiteral("--database"), fixture.path(other)};
    const QStringList command = QStringList{kImportSchedule, kFile} + option;
    const QString missing = told(QStringLiteral("Program 2, \"Weather\", is not in the catalog."));
    const QString refused =
        missing + told(QStringLiteral("Nothing was written. Import what is missing first, or give "
                                      "--keep-missing, which makes its entries invalid."));
    const CtlResult read = fixture.run(command);
    QCOMPARE(read.status, 1);
    QCOMPARE(read.err, refused);
    QCOMPARE(read.out, QByteArray());
    const CtlResult json = fixture.run(command + QStringList{QStringLiteral("--json")});
    QCOMPARE(json.status, 1);
    QCOMPARE(json.err, refused);
    QCOMPARE(json.json()[QStringLiteral("isImported")].toBool(true), false);
    QVERIFY(json.json()[QStringLiteral("programs")]
                .toArray()
                .at(1)
                .toObject()[QStringLiteral("program")]
                .isNull());
    QCOMPARE(fixture.run(QStringList{kExport, kStream} + option).out, unnamed({}));

    const CtlResult kept = fixture.run(command + QStringList{QStringLiteral("--keep-missing")});
    QCOMPARE(kept.status, 0);
    QCOMPARE(kept.err, missing);
    const QByteArray exported = fixture.run(QStringList{kExport, kStream} + option).out;
    QCOMPARE(numbersOf(exported), QStringLiteral("2 - 2"));
    // No program takes the place of the one that is missing.
    QVERIFY(exported.contains("\"progIndex\": 65536, \"progName\": \"Weather\""));
}

void tst_CtlExchange::badFilesChangeNothing_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    const QByteArray good = scheduleToJson({{1, januaryTask(1)}});
    const auto row = [&good](const char* name, const char* before, const char* after,
                             const char* error) {
        QByteArray json = good;
        QTest::newRow(name) << json.replace(before, after) << QString::fromUtf8(error);
    };
    QTest::newRow("empty") << QByteArray()
                           << QStringLiteral(
                                  "not JSON at line 1, column 1: syntax error while parsing value "
                                  "- unexpected end of input; expected '[', '{', or a literal");
    row("no JSON", "\"endDate\"", "endDate",
        "not JSON at line 8, column 7: syntax error while parsing object key - invalid literal; "
        "expected string literal");
    row("wrong kind", "\"2024.01.31\"", "31",
        "tasks[0].endDate (line 8): a text is expected here, not a number");
    row("unknown member", "\"plans\"", "\"plan\\u001b\"",
        "tasks[0].plan\\x1b (line 9): there is no member \"plan\\x1b\" here");
    row("newer version", "\"version\": 1", "\"version\": 3",
        "version (line 3): 3 is newer than 2, the newest that this program reads");
}

void tst_CtlExchange::badFilesChangeNothing()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);

    const CtlFixture fixture;
    fixture.writeFile(kFile, json);
    CtlResult result = fixture.onDatabase({kImportSchedule, kFile});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.err, told(QStringLiteral("schedule.json: %1.").arg(error)));
    QCOMPARE(fixture.files(), QStringList{kFile});

    fixture.store({{5, januaryTask(5)}});
    result = fixture.onDatabase({kImportSchedule, kStream}, json);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err, told(QStringLiteral("the standard input: %1.").arg(error)));
    QCOMPARE(fixture.exported(), unnamed({{5, januaryTask(5)}}));

    result = fixture.onDatabase({kImportSchedule, QStringLiteral("missing.json")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err,
             told(QStringLiteral("missing.json cannot be read: No such file or directory.")));
    QVERIFY(QDir(fixture.path(QString())).mkdir(QStringLiteral("folder")));
    result = fixture.onDatabase({kImportSchedule, QStringLiteral("folder")});
    QCOMPARE(result.status, 1);
    QVERIFY(result.err.startsWith(QStringLiteral("schedulectl: folder cannot be read: ")));
    result = fixture.onDatabase({kImportSchedule, QStringLiteral("/dev/zero")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err, told(QStringLiteral("/dev/zero cannot be read: it is not a file.")));
}

void tst_CtlExchange::aPipeIsReadToItsEnd()
{
    const CtlFixture fixture;
    const QByteArray pipe = QFile::encodeName(fixture.path(QStringLiteral("pipe")));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    std::thread writer([&pipe] {
        QFile end(QFile::decodeName(pipe));
        end.open(QIODevice::WriteOnly);
        end.write(scheduleToJson({{5, januaryTask(5)}}));
    });

    const CtlResult result = fixture.onDatabase({kImportSchedule, QStringLiteral("pipe")});
    writer.join();

    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(fixture.exported(), unnamed({{5, januaryTask(5)}}));
}

TREL_TEST(tst_CtlExchange, QCoreApplication)
#include "tst_CtlExchange.moc"
