#include "libs/trelprogramschedule/StoreFixture.h"
#include "store/ScheduleDatabase.h"
#include "store/StoreSchema.h"
#include "store/sqlite/SqliteConnection.h"
#include "support/FaultyDisk.h"
#include "support/FolderSnapshot.h"
#include "support/RandomEdits.h"
#include "support/TestClock.h"
#include "support/TestProgram.h"
#include "trelprogramschedule/json/ScheduleJson.h"

#include <QCoreApplication>
#include <QtTest>

#include <cerrno>
#include <iterator>
#include <set>

using namespace trel::mediadispatch;

namespace {

using TaskMap = std::map<int, PlayTask>;

constexpr unsigned kSeed = 20261123;

QDateTime start()
{
    return {QDate(2026, 11, 2), QTime(8, 0), Qt::UTC};
}

std::vector<ScheduleVersion> versionsOf(const ScheduleHost& host)
{
    std::vector<ScheduleVersion> versions;
    const StoreResult result = host.versions(versions);
    if (!result) {
        qWarning("%s", qPrintable(englishText(result)));
    }
    return versions;
}

/// "3: +1 ~2 -0 (1 4 5) of 1 'name' 'note'", newest first; the version that was brought back and
/// the texts only where there are any.
QStringList lines(const ScheduleHost& host)
{
    QStringList lines;
    for (const ScheduleVersion& version : versionsOf(host)) {
        QStringList ids;
        for (const int id : version.change.taskIds) {
            ids.append(QString::number(id));
        }
        QString line = QStringLiteral("%1: +%2 ~%3 -%4 (%5)")
                           .arg(version.number)
                           .arg(version.change.added)
                           .arg(version.change.changed)
                           .arg(version.change.removed)
                           .arg(ids.join(QLatin1Char(' ')));
        if (version.restored != kNoVersion) {
            line += QStringLiteral(" of %1").arg(version.restored);
        }
        if (!version.name.isEmpty() || !version.note.isEmpty()) {
            line += QStringLiteral(" '%1' '%2'").arg(version.name, version.note);
        }
        lines.append(line);
    }
    return lines;
}

/// As JSON, the way every reading has it where the catalogue is empty.
QByteArray textOf(TaskMap tasks)
{
    for (auto& [id, task] : tasks) {
        for (PlayPlan& plan : task.plans) {
            for (struProgInfo& entry : plan.programs) {
                entry.isInvalid = entry.isInvalid || entry.progIndex < kInvalidProgIndex;
            }
        }
    }
    return scheduleToJson(tasks);
}

/// The schedule of a version as JSON; the code of the refusal where there is one.
QByteArray contentOf(const ScheduleHost& host, qint64 number)
{
    TaskMap tasks;
    const StoreResult result = host.versionTasks(number, tasks);
    return result ? scheduleToJson(tasks) : faultName(result.cause.code).toUtf8();
}

const char* nameOf(int call)
{
    constexpr const char* names[] = {"open",   "read", "write", "sync", "truncate",
                                     "delete", "size", "lock",  "map"};
    return names[call];
}

} // namespace

/// What was saved before stays in the store.
class tst_StoreVersions : public QObject
{
    Q_OBJECT

private slots:
    void eachSaveMakesOne();
    void namesAreKept();
    void namesThatAreNone_data();
    void namesThatAreNone();
    void everyStateComesBack();
    void whatIsBroughtBackCanBeUndone();
    void thinsOutWithAge();
    void aTaskOfAnySizeIsKept();
    void twoProgramsShareThem();
    void aStoreThatIsOnlyReadShowsThem();
    void formerSchemasAreTakenOver_data();
    void formerSchemasAreTakenOver();
    void aFormerSchemaIsReadUnchanged();
    void damageIsToldAndInNobodysWay_data();
    void damageIsToldAndInNobodysWay();
    void savesAreKeptWholeOrNotAtAll_data();
    void savesAreKeptWholeOrNotAtAll();
    void aSaveOfOneTaskKeepsOneTask();
    void aSaveLeavesNothingOpen();
    void damageStaysWhenVersionsGo();
};

void tst_StoreVersions::eachSaveMakesOne()
{
    TestClock clock(start());
    StoreFixture store;
    QCOMPARE(lines(store.host), QStringList{QStringLiteral("0: +0 ~0 -0 ()")});
    QCOMPARE(versionsOf(store.host).front().saved, 0);
    store.save(sampleSchedule(3, 1, 1));
    clock.advance(1000);
    // What changes nothing is no save.
    QVERIFY(store.host.trySave());
    PlayTask task = sampleSchedule(3, 1, 1).at(2);
    task.endDate = "2031.01.01";
    store.manager.addTask(task);
    store.manager.deleteTask(1);
    store.save({{7, everyFieldTask(7)}});
    QCOMPARE(lines(store.host), (QStringList{QStringLiteral("2: +1 ~1 -1 (1 2 7)"),
                                             QStringLiteral("1: +3 ~0 -0 (1 2 3)"),
                                             QStringLiteral("0: +0 ~0 -0 ()")}));
    const ScheduleVersion newest = versionsOf(store.host).front();
    QCOMPARE(newest.saved, clock.now().toMSecsSinceEpoch());
    QVERIFY2(newest.by.startsWith(QCoreApplication::applicationName() + QLatin1Char('@')),
             qPrintable(newest.by));
    QCOMPARE(newest.bytes, 0);
    QVERIFY(versionsOf(store.host).at(1).bytes > 0);
    store.restart();
    QCOMPARE(contentOf(store.host, 0), textOf({}));
    QCOMPARE(contentOf(store.host, 1), textOf(sampleSchedule(3, 1, 1)));
    QCOMPARE(contentOf(store.host, 2), textOf(store.manager.getgTaskMap()));
    QCOMPARE(contentOf(store.host, 3), QByteArray("versionUnknown"));
    QCOMPARE(contentOf(store.host, -1), QByteArray("versionUnknown"));

    // Marks of collision are kept, but are no change of a task.
    task = everyFieldTask(7);
    task.plans.front().isConflict = !task.plans.front().isConflict;
    store.save({{7, task}});
    QCOMPARE(lines(store.host).front(), QStringLiteral("3: +0 ~0 -0 ()"));
    QVERIFY(contentOf(store.host, 2) != contentOf(store.host, 3));

    store.save(sampleSchedule(40, 1, 1, 9));
    QCOMPARE(lines(store.host).front(), QStringLiteral("4: +37 ~3 -0 (1 2 3 4 5 6 7 8)"));
}

void tst_StoreVersions::namesAreKept()
{
    StoreFixture store;
    store.save(sampleSchedule(1, 1, 1));
    store.save(sampleSchedule(1, 1, 1, 2));
    const QString name = QStringLiteral("Frühling 春 \U0001F337");
    QVERIFY(store.host.nameVersion(1, name, QStringLiteral("as agreed")));
    QVERIFY(store.host.nameVersion(2, QStringLiteral("now"), QString()));
    store.restart();
    QCOMPARE(lines(store.host).at(0), QStringLiteral("2: +0 ~1 -0 (1) 'now' ''"));
    QCOMPARE(lines(store.host).at(1), QStringLiteral("1: +1 ~0 -0 (1) '%1' 'as agreed'").arg(name));
    QVERIFY(store.host.nameVersion(2, QString(), QString()));
    QCOMPARE(lines(store.host).at(0), QStringLiteral("2: +0 ~1 -0 (1)"));
    const StoreResult unknown = store.host.nameVersion(3, name, QString());
    QCOMPARE(unknown.cause.code, FaultCode::VersionUnknown);
    QVERIFY2(englishText(unknown).contains(QLatin1String("no version 3")),
             qPrintable(englishText(unknown)));
}

void tst_StoreVersions::namesThatAreNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("note");
    QTest::addColumn<int>("code");
    const auto row = [](const char* what, const QString& name, const QString& note,
                        FaultCode code) { QTest::newRow(what) << name << note << int(code); };
    const QString flower = QStringLiteral("\U0001F337");
    row("longest", flower.repeated(kLongestVersionName), flower.repeated(kLongestVersionNote),
        FaultCode::None);
    row("too long", flower.repeated(kLongestVersionName + 1), QString(),
        FaultCode::VersionTextTooLong);
    row("note too long", QString(), QString(kLongestVersionNote + 1, QLatin1Char('x')),
        FaultCode::VersionTextTooLong);
    row("line feed", QStringLiteral("a\nb"), QString(), FaultCode::VersionTextHidden);
    row("escape", QStringLiteral("\x1b[2J"), QString(), FaultCode::VersionTextHidden);
    row("right to left", QStringLiteral("a\u202Eb"), QString(), FaultCode::VersionTextHidden);
    row("line separator", QString(), QStringLiteral("a\u2028b"), FaultCode::VersionTextHidden);
    row("half a character", QString(QChar(0xd83c)), QString(), FaultCode::VersionTextHidden);
    row("zero", QString(), QString(QChar(0)), FaultCode::VersionTextHidden);
}

void tst_StoreVersions::namesThatAreNone()
{
    QFETCH(QString, name);
    QFETCH(QString, note);
    QFETCH(int, code);
    QCOMPARE(int(faultOfVersionTexts(name, note).code), code);
    StoreFixture store;
    const StoreResult result = store.host.nameVersion(0, name, note);
    QCOMPARE(int(result.cause.code), code);
    const ScheduleVersion version = versionsOf(store.host).front();
    QCOMPARE(version.name, result ? name : QString());
    QCOMPARE(version.note, result ? note : QString());
}

/// Through any edits, names and thinning.
void tst_StoreVersions::everyStateComesBack()
{
    TestClock clock(start());
    StoreFixture store;
    std::mt19937 random(kSeed);
    std::map<qint64, QByteArray> states{{0, textOf({})}};
    std::set<qint64> named;
    TaskMap tasks;
    // On a server each statement has its way there and back.
    const qint64 saves = storeServer().isEmpty() ? 420 : 70;
    qint64 number = 0;
    while (number < saves) {
        const TaskMap before = tasks;
        for (int edits = 1 + int(random() % 3); edits > 0; --edits) {
            editAtRandom(tasks, random);
        }
        QVERIFY(store.host.replaceSchedule(tasks));
        if (tasks == before) {
            continue;
        }
        states[++number] = textOf(tasks);
        clock.advance(qint64(random() % 100) * 3600000);
        if (random() % 20 == 0) {
            const qint64 any = std::prev(states.end(), 1 + int(random() % 10))->first;
            QVERIFY(store.host.nameVersion(any, QStringLiteral("kept"), QString()));
            named.insert(any);
        }
        if (number % 70 == 0) {
            store.restart();
            for (const ScheduleVersion& version : versionsOf(store.host)) {
                QVERIFY2(contentOf(store.host, version.number) == states.at(version.number),
                         qPrintable(QString::number(version.number)));
            }
        }
    }
    std::set<qint64> left;
    for (const ScheduleVersion& version : versionsOf(store.host)) {
        left.insert(version.number);
    }
    for (qint64 last = number; last >= qMax(number - 200, qint64(0)); --last) {
        QVERIFY(left.count(last) > 0);
    }
    for (const qint64 one : named) {
        QVERIFY(left.count(one) > 0);
    }
    QVERIFY2(left.size() < 330, qPrintable(QString::number(left.size())));
    QVERIFY(qint64(named.size()) > saves / 84);
}

void tst_StoreVersions::whatIsBroughtBackCanBeUndone()
{
    StoreFixture store;
    const TaskMap first = sampleSchedule(3, 2, 2);
    const TaskMap second = {{2, everyFieldTask(2)}, {9, everyFieldTask(9)}};
    QVERIFY(store.host.replaceSchedule(first));
    QVERIFY(store.host.replaceSchedule(second));
    store.manager.addTask(everyFieldTask(11));
    QVERIFY(store.host.restoreVersion(1));
    QVERIFY(!store.host.hasUnsavedChanges());
    QCOMPARE(contentOf(store.host, 3), textOf(first));
    QCOMPARE(textOf(store.host.workingSet()), textOf(first));
    QCOMPARE(lines(store.host).front(), QStringLiteral("3: +2 ~1 -1 (1 2 3 9) of 1"));
    QVERIFY(store.host.restoreVersion(2));
    QCOMPARE(lines(store.host).front(), QStringLiteral("4: +1 ~1 -2 (1 2 3 9) of 2"));
    store.restart();
    QCOMPARE(textOf(store.host.workingSet()), contentOf(store.host, 2));
    // The same once more is nothing.
    QVERIFY(store.host.restoreVersion(2));
    QCOMPARE(versionsOf(store.host).size(), std::size_t(5));
    const StoreResult unknown = store.host.restoreVersion(77);
    QCOMPARE(unknown.cause.code, FaultCode::VersionUnknown);
    QVERIFY(store.host.restoreVersion(0));
    QVERIFY(store.host.workingSet().empty());
}

void tst_StoreVersions::thinsOutWithAge()
{
    TestClock clock(start());
    StoreFixture store;
    QVERIFY(store.host.nameVersion(0, QStringLiteral("the first"), QString()));
    for (int save = 1; save <= 256; ++save) {
        QVERIFY(store.host.replaceSchedule(sampleSchedule(1, 1, 1, save)));
        clock.advance(1000);
    }
    // All of one day.
    QStringList left;
    for (const ScheduleVersion& version : versionsOf(store.host)) {
        if (version.number < 60) {
            left.append(QString::number(version.number));
        }
    }
    QCOMPARE(left.join(QLatin1Char(' ')), QStringLiteral("59 58 57 56 55 0"));
    QCOMPARE(versionsOf(store.host).size(), std::size_t(201 + 1 + 1));
    clock.advance(3660LL * 24 * 3600000);
    for (int save = 257; save <= 272; ++save) {
        QVERIFY(store.host.replaceSchedule(sampleSchedule(1, 1, 1, save)));
    }
    QCOMPARE(versionsOf(store.host).size(), std::size_t(201 + 1));
    QCOMPARE(contentOf(store.host, 0), textOf({}));
    QCOMPARE(contentOf(store.host, 100), textOf(sampleSchedule(1, 1, 1, 100)));
}

/// A value may have a size in a store, and a task more than that.
void tst_StoreVersions::aTaskOfAnySizeIsKept()
{
    StoreFixture store;
    std::mt19937 random(kSeed);
    PlayTask task = everyFieldTask(1);
    // On a server a value may have any size, and each row has its way there and back.
    const int values = storeServer().isEmpty() ? 200000 : 10000;
    for (int count = 0; count < values; ++count) {
        task.plans.front().serviceList.push_back(std::int64_t(random()) << 32 |
                                                 std::int64_t(random()));
    }
    QVERIFY(store.host.replaceSchedule({{1, task}}));
    QVERIFY(store.host.replaceSchedule({}));
    QVERIFY(versionsOf(store.host).at(1).bytes > qint64(values) * 6);
    store.restart();
    TaskMap tasks;
    QVERIFY(store.host.versionTasks(1, tasks));
    QCOMPARE(textOf(tasks), textOf({{1, task}}));
}

void tst_StoreVersions::twoProgramsShareThem()
{
    StoreFixture store;
    store.save(sampleSchedule(2, 1, 1));
    {
        ScheduleDatabase other;
        QVERIFY(other.open(store.path, StoreOpenMode::MustExist));
        const TaskMap before = sampleSchedule(2, 1, 1);
        const TaskMap after = sampleSchedule(4, 1, 1);
        qint64 revision = 1;
        QVERIFY(other.writeTasks(after, editsBetween(before, after), revision));
        QVERIFY(other.nameVersion(1, QStringLiteral("theirs"), QString()));
    }
    QCOMPARE(lines(store.host).at(1), QStringLiteral("1: +2 ~0 -0 (1 2) 'theirs' ''"));
    QCOMPARE(contentOf(store.host, 2), textOf(sampleSchedule(4, 1, 1)));
    // What was not seen is not brought back over.
    QCOMPARE(int(store.host.restoreVersion(0).problem), int(StoreProblem::MovedOn));
    QVERIFY(store.host.reload());
    QVERIFY(store.host.restoreVersion(0));
}

void tst_StoreVersions::aStoreThatIsOnlyReadShowsThem()
{
    StoreFixture store;
    store.save(sampleSchedule(2, 1, 1));
    store.save(sampleSchedule(2, 1, 1, 5));
    const QStringList before = lines(store.host);
    store.host.close();
    const FolderSnapshot files(store.folder.path());
    QVERIFY(store.host.open(store.path, ScheduleHost::OpenMode::ReadOnly));
    QCOMPARE(lines(store.host), before);
    QCOMPARE(contentOf(store.host, 1), textOf(sampleSchedule(2, 1, 1)));
    QCOMPARE(int(store.host.nameVersion(1, QString(), QString()).problem),
             int(StoreProblem::ReadOnly));
    QCOMPARE(int(store.host.restoreVersion(1).problem), int(StoreProblem::ReadOnly));
    store.host.close();
    QCOMPARE(files.differences(FolderSnapshot(store.folder.path())), QStringList());
    std::vector<ScheduleVersion> none;
    QCOMPARE(int(store.host.versions(none).problem), int(StoreProblem::NotOpen));
}

void tst_StoreVersions::formerSchemasAreTakenOver_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isInEffect");
    QTest::newRow("1") << QFINDTESTDATA("../stores/store-1.db") << false;
    QTest::newRow("2") << QFINDTESTDATA("../stores/store-2.db") << true;
    QTest::newRow("3") << QFINDTESTDATA("../stores/store-3.db") << true;
}

void tst_StoreVersions::formerSchemasAreTakenOver()
{
    QFETCH(QString, file);
    QFETCH(bool, isInEffect);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    QVERIFY(QFile::copy(file, path));
    QFile text(QFINDTESTDATA("../stores/store-1.json"));
    QVERIFY(text.open(QIODevice::ReadOnly));
    const QByteArray expected = text.readAll();
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path));
    QCOMPARE(scheduleToJson(host.workingSet()), expected);
    QCOMPARE(host.started().has_value(), isInEffect);
    QCOMPARE(lines(host), QStringList{QStringLiteral("1: +0 ~0 -0 ()")});
    QVERIFY(host.replaceSchedule({{5, everyFieldTask(5)}}));
    QCOMPARE(contentOf(host, 1), expected);
    QVERIFY(host.nameVersion(1, QStringLiteral("from before"), QString()));
    QVERIFY(host.open(path));
    QCOMPARE(contentOf(host, 1), expected);
    host.close();
    const SqliteConnection connection(path, SqliteConnection::Access::ReadWrite);
    QVERIFY(StoreSchema::isNewest(connection));
    StoreSchema::checkElements(connection, path);
}

void tst_StoreVersions::aFormerSchemaIsReadUnchanged()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    QVERIFY(QFile::copy(QFINDTESTDATA("../stores/store-2.db"), path));
    const FolderSnapshot before(folder.path());
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path, ScheduleHost::OpenMode::ReadOnly));
    QVERIFY(versionsOf(host).empty());
    QCOMPARE(contentOf(host, 1), QByteArray("versionUnknown"));
    host.close();
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
}

void tst_StoreVersions::damageIsToldAndInNobodysWay_data()
{
    QTest::addColumn<QByteArray>("statement");
    QTest::addColumn<QByteArray>("read"); ///< Empty where the version is as it was.
    const auto row = [](const char* name, const char* statement, const char* read) {
        QTest::newRow(name) << QByteArray(statement) << QByteArray(read);
    };
    row("other content", "UPDATE version_part SET content = x'0741'", "versionDamaged");
    row("no content", "UPDATE version_part SET content = x''", "versionDamaged");
    row("cut short", "UPDATE version_part SET content = substr(content, 1, length(content) - 1)",
        "versionDamaged");
    row("an aspect that is none", "UPDATE version_part SET content = x'0001030000000700000000'",
        "versionDamaged");
    row("a part that is missing", "UPDATE version_part SET part = part + 1", "versionDamaged");
    row("no parts", "DELETE FROM version_part", "versionDamaged");
    row("more to come", "UPDATE version_part SET content = x'0000'", "versionDamaged");
    row("a part too many",
        "INSERT INTO version_part SELECT version, 1, content FROM version_part WHERE version = 1",
        "versionDamaged");
    row("a task that is not whole",
        "UPDATE version_part SET content = x'00010300000000020000000000'", "versionDamaged");
    row("no list of them", "DELETE FROM version", "versionUnknown");
    row("no entry of what is saved", "DELETE FROM version WHERE number = 2", "");
    row("from after all saves",
        "INSERT INTO version SELECT 9, saved_ms, saved_by, added, changed, removed, task_ids,"
        " restored, name, note FROM version WHERE number = 2",
        "");
    row("of what is saved", "INSERT INTO version_part VALUES (2, 0, x'00')", "");
    row("texts of any kind",
        "UPDATE version SET task_ids = 'a,,9999999999999,' || hex(zeroblob(1000)),"
        " name = char(27) || char(10), restored = -7",
        "");
}

void tst_StoreVersions::damageIsToldAndInNobodysWay()
{
    QFETCH(QByteArray, statement);
    QFETCH(QByteArray, read);
    if (!storeServer().isEmpty() && statement.contains("zeroblob")) {
        QSKIP("Files alone have these words.");
    }
    StoreFixture store;
    // The one task that goes stands in a version alone.
    QVERIFY(store.host.replaceSchedule(sampleSchedule(3, 2, 2)));
    QVERIFY(store.host.replaceSchedule(sampleSchedule(2, 2, 2)));
    store.host.close();
    {
        const auto connection = connectionTo(store.path);
        QString words = QString::fromLatin1(statement);
        if (storeServer().isEmpty()) {
            connection->run(QStringLiteral("PRAGMA foreign_keys = ON"));
        } else {
            connection->run(QStringLiteral("SET session_replication_role = DEFAULT"));
            words.replace(QRegularExpression(QStringLiteral("\\bx'")), QStringLiteral("'\\x"));
        }
        connection->run(words);
    }
    store.open();
    QCOMPARE(store.host.workingSet().size(), std::size_t(2));
    const QByteArray expected = read.isEmpty() ? textOf(sampleSchedule(3, 2, 2)) : read;
    QCOMPARE(contentOf(store.host, 1), expected);
    const std::size_t count = versionsOf(store.host).size();
    QVERIFY(count <= 4);
    for (const ScheduleVersion& version : versionsOf(store.host)) {
        QVERIFY(version.change.taskIds.size() <= std::size_t(kMostVersionTasks));
    }
    // Whatever it is, it is in the way of no save, and what is saved from now on comes back.
    QVERIFY(store.host.replaceSchedule(sampleSchedule(1, 2, 2)));
    QCOMPARE(contentOf(store.host, 2), textOf(sampleSchedule(2, 2, 2)));
    QCOMPARE(contentOf(store.host, 3), textOf(sampleSchedule(1, 2, 2)));
    QCOMPARE(versionsOf(store.host).front().number, 3);
    QVERIFY(store.host.restoreVersion(2));
    QCOMPARE(store.host.workingSet().size(), std::size_t(2));
}

void tst_StoreVersions::savesAreKeptWholeOrNotAtAll_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<bool>("isForGood");
    for (int call = 0; call < FaultyDisk::CallCount; ++call) {
        for (const bool isForGood : {false, true}) {
            QTest::addRow("%s %s", nameOf(call), isForGood ? "for good" : "once")
                << call << isForGood;
        }
    }
}

/// From opening to closing, every call of the kind in turn.
void tst_StoreVersions::savesAreKeptWholeOrNotAtAll()
{
    if (!storeServer().isEmpty()) {
        QSKIP("The calls that fail are those of files.");
    }
    QFETCH(int, call);
    QFETCH(bool, isForGood);
    const auto lasting = isForGood ? FaultyDisk::Lasting::ForGood : FaultyDisk::Lasting::Once;
    StoreFixture store;
    const auto generation = [](int number) { return sampleSchedule(3, 2, 1, number); };
    QVERIFY(store.host.replaceSchedule(generation(1)));
    int saved = 1;
    QString name;
    for (int nth = 1;; ++nth) {
        store.host.close();
        bool hasFailed = false;
        {
            FaultyDisk disk;
            disk.fail(FaultyDisk::Call(call), nth, lasting, EIO);
            if (store.host.open(store.path)) {
                saved += store.host.replaceSchedule(generation(saved + 1)) ? 1 : 0;
                const QString other = QString::number(nth);
                name = store.host.nameVersion(1, other, QString()) ? other : name;
            }
            store.host.close();
            hasFailed = disk.hasFailed();
        }
        store.open();
        const std::vector<ScheduleVersion> versions = versionsOf(store.host);
        QCOMPARE(versions.front().number, qint64(saved));
        QCOMPARE(versions.size(), std::size_t(saved + 1));
        QCOMPARE(versions[versions.size() - 2].name, name);
        for (int number = qMax(1, saved - 2); number <= saved; ++number) {
            QCOMPARE(contentOf(store.host, number), textOf(generation(number)));
        }
        if (!hasFailed) {
            break;
        }
    }
}

/// However large the schedule is.
void tst_StoreVersions::aSaveOfOneTaskKeepsOneTask()
{
    for (const int tasks : {10, 400}) {
        StoreFixture store;
        QVERIFY(store.host.addPrograms(samplePrograms(5)).store);
        QVERIFY(store.host.replaceSchedule(sampleSchedule(tasks, 5, 5)));
        PlayTask task = store.host.workingSet().at(3);
        task.endDate = "2031.01.01";
        store.save({{3, task}});
        task.plans[2].endTime = "23:00:00";
        store.save({{3, task}});
        task.plans[2].programs.pop_back();
        store.save({{3, task}});
        const auto versions = versionsOf(store.host);
        // The dates, then the fields of the plans, then their lists.
        QVERIFY2(versions.at(3).bytes < 50, qPrintable(QString::number(versions.at(3).bytes)));
        QVERIFY2(versions.at(2).bytes < 260, qPrintable(QString::number(versions.at(2).bytes)));
        QVERIFY2(versions.at(1).bytes < 500, qPrintable(QString::number(versions.at(1).bytes)));
    }
}

/// The statements that stay ready from one save to the next hold nothing: the log can be worked
/// into the file, and the store be left.
void tst_StoreVersions::aSaveLeavesNothingOpen()
{
    if (!storeServer().isEmpty()) {
        QSKIP("The log is one of files.");
    }
    StoreFixture store;
    store.save(sampleSchedule(2, 1, 1));
    store.save(sampleSchedule(2, 1, 1, 5));
    {
        const SqliteConnection other(store.path, SqliteConnection::Access::ReadWrite);
        QCOMPARE(other.value(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).toInt(), 0);
    }
    store.save(sampleSchedule(3, 1, 1));
    QCOMPARE(versionsOf(store.host).size(), std::size_t(4));
    const QString second = store.folder.filePath(QStringLiteral("second.db"));
    QVERIFY(store.host.open(second));
    store.save(sampleSchedule(1, 1, 1));
    QCOMPARE(versionsOf(store.host).size(), std::size_t(2));
    QVERIFY(store.host.open(store.path));
    QCOMPARE(versionsOf(store.host).size(), std::size_t(4));
}

/// Of versions that go together, those from the damaged one on stay, so that it is still told.
void tst_StoreVersions::damageStaysWhenVersionsGo()
{
    TestClock clock(start());
    StoreFixture store;
    for (int save = 1; save <= 207; ++save) {
        QVERIFY(store.host.replaceSchedule(sampleSchedule(1 + save % 3, 1, 1, save)));
        clock.advance(1000);
    }
    QVERIFY(store.host.nameVersion(1, QStringLiteral("kept"), QString()));
    const QByteArray first = contentOf(store.host, 1);
    const auto setPart = [&store](int part) {
        store.host.close();
        {
            connectionTo(store.path)
                ->run(QStringLiteral("UPDATE version_part SET part = %1 WHERE version = 4")
                          .arg(part));
        }
        store.open();
    };
    setPart(7);
    // The 208th looks through them: from 2 on as many go as are more than 200.
    QVERIFY(store.host.replaceSchedule(sampleSchedule(1, 1, 1, 208)));
    QStringList left;
    for (const ScheduleVersion& version : versionsOf(store.host)) {
        if (version.number < 9) {
            left.append(QString::number(version.number));
        }
    }
    QCOMPARE(left.join(QLatin1Char(' ')), QStringLiteral("8 7 6 5 4 1"));
    QCOMPARE(contentOf(store.host, 5), textOf(sampleSchedule(1 + 5 % 3, 1, 1, 5)));
    QCOMPARE(contentOf(store.host, 4), QByteArray("versionDamaged"));
    QCOMPARE(contentOf(store.host, 1), QByteArray("versionDamaged"));
    // Mended, those that have gone are found to have left what the first one needs.
    setPart(0);
    QCOMPARE(contentOf(store.host, 1), first);
    QCOMPARE(first, textOf(sampleSchedule(1 + 1 % 3, 1, 1, 1)));
}

TREL_TEST(tst_StoreVersions, QCoreApplication)
#include "tst_StoreVersions.moc"
