#include "ScheduleImporter.h"
#include "ScheduleLimits.h"
#include "SignalCounts.h"
#include "StoreFixture.h"
#include "catalogue/StoredContents.h"
#include "effect/OtherProgram.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

PlayTask taskWith(const std::vector<struProgInfo>& entries, int id = 1)
{
    PlayTask task = sampleSchedule(1, 1, 0).at(1);
    task.id = id;
    task.plans[0].programs = entries;
    return task;
}

/// The entries of the first plan of a task, such as "3 News, 65536 Weather invalid".
QString entries(const std::map<int, PlayTask>& tasks, int taskId = 1)
{
    QStringList texts;
    for (const struProgInfo& entry : tasks.at(taskId).plans.at(0).programs) {
        texts.append(QStringLiteral("%1 %2%3").arg(
            QString::number(entry.progIndex), QString::fromStdString(entry.progName),
            QLatin1String(entry.isInvalid ? " invalid" : "")));
    }
    return texts.join(QStringLiteral(", "));
}

/// A schedule that plays program 2 of the catalogue as its 7, and brings two of its own.
ScheduleImport sampleImport()
{
    ScheduleImport import;
    import.tasks = {
        { 1,
          taskWith({{7, false, "seven", 1}, {1, false, "one", 2}, {2, false, "two", 1}, {
                        3,
                        false,
                        "three",
                        1
                    }}) }};
    import.known = {{ 7, 2 }};
    import.sources = samplePrograms(2, 50);
    import.sources[1].content = {5, 6, QByteArray(64, 'a')};
    import.coming = {{1, 1}, { 2, 0 }};
    return import;
}

const QString kImported = QStringLiteral("2 seven, 5 one, 4 two, 65536 three invalid");

} // namespace

/// A schedule that comes with its programs.
class tst_ScheduleImporter : public QObject
{
    Q_OBJECT

private slots:
    void comesAsOneChange();
    void endsFollowFromTheProgramsThatCome();
    void nothingToBring();
    void isRefusedAsAWhole();
    void isRefusedBehindAnotherProgram_data();
    void isRefusedBehindAnotherProgram();
    void aPathThatIsKnownKeepsItsProgram();
    void withoutAStore();
};

void tst_ScheduleImporter::comesAsOneChange()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    store.save({{1, everyFieldTask(1)}, {6, everyFieldTask(6)}});
    OtherProgram other(store.path);
    StoreRevision before;
    QVERIFY(other.database().readRevision(before));
    SignalCounts counts;
    QVERIFY(counts.isValid());

    const StoreResult result = importSchedule(sampleImport());

    QVERIFY2(result, qPrintable(englishText(result)));
    QCOMPARE(counts.take(), QStringLiteral("programs, conflict, stored, catalogue"));
    StoreRevision after;
    QVERIFY(other.database().readRevision(after));
    QCOMPARE(after.schedule, before.schedule + 1);
    QCOMPARE(after.catalogue, before.catalogue + 1);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(store.manager.getgTaskMap().size(), std::size_t(1));
        QCOMPARE(entries(store.manager.getgTaskMap()), kImported);
        QCOMPARE(entries(store.manager.getAllTask()), kImported);
        QVERIFY(!store.host.hasUnsavedChanges());
        QCOMPARE(store.manager.getPrograms().size(), std::size_t(5));
        QCOMPARE(store.manager.getProgramNameByProgIndex(5), std::string("program 51"));
        ProgramContents contents;
        QVERIFY(readStoredContents(contents));
        QCOMPARE(contents.size(), std::size_t(1));
        QCOMPARE(contents.at(5).sha256, QByteArray(64, 'a'));
        store.restart();
    }
    // What was there before is a version.
    std::vector<ScheduleVersion> versions;
    QVERIFY(store.host.versions(versions));
    std::map<int, PlayTask> former;
    QVERIFY(store.host.versionTasks(versions.at(1).number, former));
    QCOMPARE(former.size(), std::size_t(2));
    // The next save goes on from here.
    QVERIFY(store.host.replaceSchedule({}));
    QVERIFY(store.host.addPrograms(samplePrograms(1, 90)).store);
}

void tst_ScheduleImporter::endsFollowFromTheProgramsThatCome()
{
    StoreFixture store;
    ScheduleImport import;
    PlayTask task = taskWith({{9, false, "film", 1}});
    task.plans[0].mode = FrequencyMode;
    task.plans[0].startTime = "08:00:00";
    task.plans[0].endTime = "08:00:01";
    task.plans[0].times = 2;
    import.tasks = {{ 1, task }};
    import.sources = samplePrograms(1);
    import.sources[0].kind = ProgramKind::Other;
    import.sources[0].durationMs = 60000.0;
    import.coming = {{ 9, 0 }};
    QVERIFY(importSchedule(import));
    QVERIFY(!store.host.hasUnsavedChanges());
    store.restart();
    QCOMPARE(store.manager.getgTaskMap().at(1).plans[0].endTime, std::string("08:02:00"));
    QVERIFY(!store.host.hasUnsavedChanges());
}

void tst_ScheduleImporter::nothingToBring()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(2)).store);
    ScheduleImport import;
    import.tasks = {{ 3, taskWith({{ 5, false, "five", 1 }}, 4) }};
    import.known = {{ 5, 1 }};
    SignalCounts counts;
    QVERIFY(importSchedule(import));
    QCOMPARE(counts.take(), QStringLiteral("conflict, stored"));
    // Filed under its own id.
    QCOMPARE(entries(store.manager.getgTaskMap(), 4), QStringLiteral("1 five"));
    // Once more, nothing is written.
    OtherProgram other(store.path);
    StoreRevision before;
    QVERIFY(other.database().readRevision(before));
    QVERIFY(importSchedule(import));
    StoreRevision after;
    QVERIFY(other.database().readRevision(after));
    QCOMPARE(after.schedule, before.schedule);
    QCOMPARE(after.catalogue, before.catalogue);
}

void tst_ScheduleImporter::isRefusedAsAWhole()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    store.save({{1, taskWith({{1, false, "before", 1}})}});
    SignalCounts counts;

    ScheduleImport tooLong = sampleImport();
    tooLong.tasks.at(1).plans[0].weeks = std::string(kLongestText + 1, '1');
    QVERIFY(importSchedule(tooLong).problem == StoreProblem::TooLarge);
    ScheduleImport longName = sampleImport();
    longName.sources[1].name = QString(int(kLongestText) + 1, QLatin1Char('n'));
    QVERIFY(importSchedule(longName).problem == StoreProblem::TooLarge);

    QCOMPARE(counts.take(), QString());
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(entries(store.manager.getgTaskMap()), QStringLiteral("1 before"));
        QCOMPARE(store.manager.getPrograms().size(), std::size_t(3));
        store.restart();
    }
    // No index was used up.
    QVERIFY(importSchedule(sampleImport()));
    QCOMPARE(entries(store.manager.getgTaskMap()), kImported);
}

void tst_ScheduleImporter::isRefusedBehindAnotherProgram_data()
{
    QTest::addColumn<bool>("isCatalogue");
    QTest::newRow("it saved") << false;
    QTest::newRow("it took out a program") << true;
}

void tst_ScheduleImporter::isRefusedBehindAnotherProgram()
{
    QFETCH(bool, isCatalogue);
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    store.save({{1, taskWith({{1, false, "before", 1}})}});
    OtherProgram other(store.path);
    if (isCatalogue) {
        StoreRevision revision;
        QVERIFY(other.database().removePrograms({2}, revision));
    } else {
        other.save({{1, taskWith({{3, false, "theirs", 1}})}});
    }
    QVERIFY(importSchedule(sampleImport()).problem == StoreProblem::MovedOn);
    QCOMPARE(entries(store.manager.getAllTask()), QStringLiteral("1 before"));
    store.restart();
    QCOMPARE(entries(store.manager.getgTaskMap()),
             isCatalogue ? QStringLiteral("1 before") : QStringLiteral("3 theirs"));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(isCatalogue ? 2 : 3));
}

void tst_ScheduleImporter::aPathThatIsKnownKeepsItsProgram()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    ScheduleImport import = sampleImport();
    import.sources[0].path = samplePrograms(3)[2].path;
    import.sources[1].path = import.sources[0].path;
    QVERIFY(importSchedule(import));
    QCOMPARE(entries(store.manager.getgTaskMap()),
             QStringLiteral("2 seven, 3 one, 3 two, 65536 three invalid"));
    QCOMPARE(store.manager.getProgramNameByProgIndex(3), std::string("program 51"));
}

void tst_ScheduleImporter::withoutAStore()
{
    QVERIFY(importSchedule(sampleImport()).problem == StoreProblem::NotOpen);
}

TREL_TEST(tst_ScheduleImporter, QCoreApplication)
#include "tst_ScheduleImporter.moc"
