#include "SignalCounts.h"
#include "StoreFixture.h"
#include "catalogue/ProgramCatalogue.h"
#include "faults/FaultWords.h"
#include "store/ScheduleDatabase.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <limits>

using namespace trel::mediadispatch;

namespace {

void touch(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("content");
}

MediaSource fileSource(const QString& path, double durationMs = 1000.0)
{
    return {QFileInfo(path).completeBaseName(), path, durationMs, ProgramKind::Video};
}

PlayTask taskWith(const std::vector<struProgInfo>& entries)
{
    PlayTask task = sampleSchedule(1, 1, 0).at(1);
    task.plans[0].programs = entries;
    return task;
}

/// The entries of the first plan of the stored task as one line each.
QStringList storedEntries()
{
    QStringList lines;
    const PlayTask task = scheduleManage::getInstance().getgTaskMap().at(1);
    for (const struProgInfo& entry : task.plans.at(0).programs) {
        lines.append(QStringLiteral("%1 %2%3")
                         .arg(entry.progIndex)
                         .arg(QString::fromStdString(entry.progName),
                              QLatin1String(entry.isInvalid ? " invalid" : "")));
    }
    return lines;
}

} // namespace

/// Programs, their indexes, their files, and what plans make of programs that have gone.
class tst_ProgramCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void knownPathKeepsItsIndex();
    void samePathTwiceInOneImport();
    void aSecondImportWritesWhatIsNew();
    void indexesAreNeverGivenOutAgain();
    void indexesRunOut();
    void removedProgramKeepsItsName();
    void removedProgramMarksEntries();
    void fileThatHasGone();
    void filesAsTheyWereChangeNothing();
    void liveSourcesAreAlwaysThere();
    void oddSources();
    void emissions();
    void oneByOneBesideAnotherEditor();
    void addTaskEmitsNothing();
    void replacingTheScheduleUnderAnEditor();
    void twentyThousandPrograms();
};

void tst_ProgramCatalogue::knownPathKeepsItsIndex()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(3)).store);
    const ImportResult result = store.host.addPrograms(
        {{QStringLiteral("new name"), QStringLiteral("udp://239.0.0.1:2"), 77.5,
          ProgramKind::Other},
         {QStringLiteral("fourth"), QStringLiteral("udp://other"), 0.0, ProgramKind::Live}});
    QVERIFY(result.store);
    QCOMPARE(result.updated, std::vector<int>{2});
    QCOMPARE(result.added, std::vector<int>{4});
    for (int round = 0; round < 2; ++round) {
        const ProgramIten program = store.manager.getProgramItemByIndex(2);
        QCOMPARE(program.progName, std::string("new name"));
        QCOMPARE(program.durationMs, 77.5);
        QVERIFY(program.kind == ProgramKind::Other);
        store.restart();
    }
}

void tst_ProgramCatalogue::samePathTwiceInOneImport()
{
    StoreFixture store;
    std::vector<MediaSource> sources = samplePrograms(2);
    sources[1].path = sources[0].path;
    const ImportResult result = store.host.addPrograms(sources);
    QCOMPARE(result.added, std::vector<int>{1});
    QCOMPARE(result.updated, std::vector<int>());
    QCOMPARE(store.manager.getProgramNameByProgIndex(1), std::string("program 2"));
}

// More than are looked up with one statement, in every place.
void tst_ProgramCatalogue::aSecondImportWritesWhatIsNew()
{
    constexpr int many = 450;
    StoreFixture store;
    std::vector<MediaSource> sources = samplePrograms(many);
    QVERIFY(store.host.addPrograms(sources).store);
    QVERIFY(store.host.removeProgram(many));
    sources[0].name = QStringLiteral("renamed");
    sources[200].durationMs = 0.5;
    sources[400].kind = ProgramKind::Other;
    // Once more as it was, behind a state that it does not keep.
    sources.push_back(sources[10]);
    sources[10].name = QStringLiteral("for a moment");
    const ImportResult again = store.host.addPrograms(sources);
    QVERIFY(again.store);
    QCOMPARE(again.added, std::vector<int>{many + 1});
    QCOMPARE(again.updated.size(), std::size_t(many - 1));
    QCOMPARE(again.updated.front(), 1);
    QCOMPARE(again.updated.back(), many - 1);
    for (int round = 0; round < 2; ++round) {
        const auto programs = store.manager.getPrograms();
        QCOMPARE(programs.size(), std::size_t(many));
        QCOMPARE(programs.at(1).progName, std::string("renamed"));
        QCOMPARE(programs.at(201).durationMs, 0.5);
        QVERIFY(programs.at(401).kind == ProgramKind::Other);
        QCOMPARE(programs.at(11).progName, sources.back().name.toStdString());
        QCOMPARE(programs.at(200).progName, sources[199].name.toStdString());
        store.restart();
    }
}

void tst_ProgramCatalogue::indexesAreNeverGivenOutAgain()
{
    StoreFixture store;
    QCOMPARE(store.host.addPrograms(samplePrograms(3)).added, (std::vector<int>{1, 2, 3}));
    QVERIFY(store.host.removeProgram(3));
    QVERIFY(store.host.removeProgram(2));
    QCOMPARE(store.host.addPrograms(samplePrograms(1, 3)).added, std::vector<int>{4});
    QVERIFY(store.host.removeProgram(4));
    QVERIFY(store.host.removeProgram(1));
    store.restart();
    QVERIFY(store.manager.getPrograms().empty());
    QCOMPARE(store.host.addPrograms(samplePrograms(3)).added, (std::vector<int>{5, 6, 7}));
    // Neither a program that is not there nor an import that fails uses an index up.
    QVERIFY(store.host.removeProgram(99));
    QVERIFY(store.host.removeProgram(-1));
    QCOMPARE(store.host.addPrograms(samplePrograms(1, 50)).added, std::vector<int>{8});
}

void tst_ProgramCatalogue::indexesRunOut()
{
    StoreFixture store;
    store.host.close();
    {
        const auto connection = connectionTo(store.path);
        connection->run(QStringLiteral("UPDATE store SET next_prog_index = 65533"));
    }
    store.open();
    const ImportResult tooMany = store.host.addPrograms(samplePrograms(3));
    QCOMPARE(tooMany.store.problem, StoreProblem::Full);
    QVERIFY2(englishText(tooMany.store).contains(store.path),
             qPrintable(englishText(tooMany.store)));
    QVERIFY(tooMany.added.empty());
    QVERIFY(store.manager.getPrograms().empty());

    QCOMPARE(store.host.addPrograms(samplePrograms(2)).added, (std::vector<int>{65533, 65534}));
    QCOMPARE(store.host.addPrograms(samplePrograms(1, 9)).store.problem, StoreProblem::Full);
    QCOMPARE(store.host.addPrograms(samplePrograms(2)).updated, (std::vector<int>{65533, 65534}));
    QVERIFY(store.host.removeProgram(65534));
    QCOMPARE(store.host.addPrograms(samplePrograms(1, 9)).store.problem, StoreProblem::Full);
}

void tst_ProgramCatalogue::removedProgramKeepsItsName()
{
    StoreFixture store;
    QVERIFY(store.host
                .addPrograms(
                    {{QStringLiteral("节目"), QStringLiteral("/a"), 500.0, ProgramKind::Image}})
                .store);
    QVERIFY(store.host.removeProgram(1));
    for (int round = 0; round < 2; ++round) {
        QVERIFY(store.manager.getPrograms().empty());
        QCOMPARE(store.manager.getProgramNameByProgIndex(1), std::string("节目"));
        const ProgramIten program = store.manager.getProgramItemByIndex(1);
        QVERIFY(program.isNull);
        QCOMPARE(program.progIndex, 1);
        QCOMPARE(program.progName, std::string("节目"));
        QCOMPARE(store.manager.getDurationByIndex(1), 0.0);
        QVERIFY(!store.manager.isNoDurationType(1));
        store.restart();
    }
}

void tst_ProgramCatalogue::removedProgramMarksEntries()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(2)).store);
    store.save({{1, taskWith({{1, false, "one", 1},
                              {2, false, "my two", 1},
                              {9, false, "never given", 1},
                              {65535, false, "last", 1},
                              {kInvalidProgIndex, false, "nothing", 1},
                              {70000, true, "bad already", 1}})}});
    QVERIFY(store.host.removeProgram(2));
    QVERIFY(!store.host.hasUnsavedChanges());

    const QStringList expected = {QStringLiteral("1 one"),
                                  QStringLiteral("2 my two invalid"),
                                  QStringLiteral("9 never given invalid"),
                                  QStringLiteral("65535 last invalid"),
                                  QStringLiteral("65536 nothing"),
                                  QStringLiteral("70000 bad already invalid")};
    QCOMPARE(storedEntries(), expected);
    store.manager.updateUItask();
    QVERIFY(!store.host.hasUnsavedChanges());
    QVERIFY(store.manager.getAllTask() == store.manager.getgTaskMap());
    store.restart();
    QCOMPARE(storedEntries(), expected);
    QVERIFY(!store.host.hasUnsavedChanges());
    // The file that comes back is another program.
    QCOMPARE(store.host.addPrograms(samplePrograms(1, 2)).added, std::vector<int>{3});
    store.restart();
    QCOMPARE(storedEntries(), expected);
}

void tst_ProgramCatalogue::fileThatHasGone()
{
    StoreFixture store;
    const QString path = store.folder.filePath(QStringLiteral("film.mp4"));
    touch(path);
    QVERIFY(store.host.addPrograms({fileSource(path)}).store);
    QVERIFY(!store.manager.getProgramItemByIndex(1).isNull);
    store.save({{1, taskWith({{1, false, "film", 1}})}});

    SignalCounts counts;
    QVERIFY(counts.isValid());
    QVERIFY(QFile::remove(path));
    store.manager.getgTaskMap();
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    QVERIFY(store.manager.getProgramItemByIndex(1).isNull);
    QVERIFY(store.manager.getPrograms().at(1).isNull);
    QCOMPARE(store.manager.getProgramNameByProgIndex(1), std::string("film"));
    QCOMPARE(storedEntries(), QStringList{QStringLiteral("1 film")});
    QCOMPARE(counts.take(), QString());

    // A folder in its place is no film.
    QVERIFY(QDir().mkpath(path));
    store.restart();
    QVERIFY(store.manager.getProgramItemByIndex(1).isNull);
    QVERIFY(QDir().rmdir(path));

    touch(path);
    QVERIFY(store.host.reload());
    QVERIFY(!store.manager.getProgramItemByIndex(1).isNull);
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
}

void tst_ProgramCatalogue::filesAsTheyWereChangeNothing()
{
    ProgramCatalogue catalogue;
    for (const int index : {1, 2}) {
        ProgramIten program;
        program.progIndex = index;
        program.mediaPath = "/nowhere/" + std::to_string(index);
        catalogue.put(program);
    }
    const auto file = [](int index, bool isThere) {
        return ProgramFile{index, QStringLiteral("/nowhere/%1").arg(index), isThere};
    };
    const auto before = catalogue.shared();
    QVERIFY(!catalogue.takeFiles({}));
    QVERIFY(!catalogue.takeFiles({file(1, true), file(2, true)}));
    // Taken out while its file was looked for.
    QVERIFY(!catalogue.takeFiles({file(3, false)}));
    QVERIFY(!catalogue.checkFile(3));
    QCOMPARE(catalogue.shared(), before);

    QVERIFY(catalogue.takeFiles({file(1, false), file(2, true)}));
    QVERIFY(catalogue.shared() != before);
    QVERIFY(catalogue.programs().at(1).isNull);
    QVERIFY(!catalogue.programs().at(2).isNull);
    QVERIFY(!catalogue.takeFiles({file(1, false)}));
    QVERIFY(catalogue.takeFiles({file(1, true), file(2, false)}));
    QVERIFY(!catalogue.programs().at(1).isNull);
    QVERIFY(catalogue.programs().at(2).isNull);
}

void tst_ProgramCatalogue::liveSourcesAreAlwaysThere()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(1)).store);
    store.restart();
    QVERIFY(!store.manager.getProgramItemByIndex(1).isNull);
}

void tst_ProgramCatalogue::oddSources()
{
    StoreFixture store;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const ImportResult result =
        store.host.addPrograms({{QString(), QStringLiteral("/a"), nan, ProgramKind::Video},
                                {QString(), QString(), infinite, ProgramKind::Video},
                                {QStringLiteral("x"), QStringLiteral("/b"), -5.0, {}}});
    QVERIFY2(result.store, qPrintable(englishText(result.store)));
    QCOMPARE(store.manager.getDurationByIndex(1), -1.0);
    QCOMPARE(store.manager.getDurationByIndex(2), -1.0);
    QCOMPARE(store.manager.getDurationByIndex(3), -5.0);
    QVERIFY(store.host.addPrograms({}).store);
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(3));
}

void tst_ProgramCatalogue::emissions()
{
    StoreFixture store;
    SignalCounts counts;
    QVERIFY(counts.isValid());

    store.host.addPrograms(samplePrograms(3));
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    store.host.addPrograms(samplePrograms(3));
    QCOMPARE(counts.take(), QString());

    std::vector<MediaSource> sources = samplePrograms(1);
    sources[0].name = QStringLiteral("renamed");
    store.host.addPrograms(sources);
    QCOMPARE(counts.take(), QStringLiteral("programs, catalogue"));
    sources[0].durationMs = 5.0;
    store.host.addPrograms(sources);
    QCOMPARE(counts.take(), QStringLiteral("programs, ends, catalogue"));

    store.host.removeProgram(3);
    QCOMPARE(counts.take(), QStringLiteral("programs, ends, catalogue"));
    store.host.removeProgram(3);
    QCOMPARE(counts.take(), QString());

    store.manager.addTask(sampleSchedule(1, 1, 1).at(1));
    store.manager.save();
    QCOMPARE(counts.take(), QStringLiteral("stored"));
    store.manager.save();
    QCOMPARE(counts.take(), QString());
    store.manager.getgTaskMap();
    store.manager.updateUItask();
    store.host.reload();
    QCOMPARE(counts.take(), QString());
    store.restart();
    QCOMPARE(counts.take(), QString());
}

void tst_ProgramCatalogue::oneByOneBesideAnotherEditor()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms(samplePrograms(1)).store);
    ScheduleDatabase other;
    StoreContents contents;
    StoreRevision revision;
    QVERIFY(other.open(store.path, ScheduleHost::OpenMode::MustExist));
    QCOMPARE(other.addPrograms(samplePrograms(1, 2), contents).added, std::vector<int>{2});
    QVERIFY(other.removePrograms({1}, revision));

    // One's own change brings those of the other along.
    QCOMPARE(store.host.addPrograms(samplePrograms(1, 3)).added, std::vector<int>{3});
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(2));
    QVERIFY(store.manager.getProgramItemByIndex(1).isNull);
    QCOMPARE(store.manager.getProgramNameByProgIndex(1), std::string("program 1"));
    QVERIFY(other.addPrograms(samplePrograms(1, 4), contents).store);
    QVERIFY(store.host.removeProgram(3));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(2));
    QCOMPARE(store.manager.getProgramNameByProgIndex(4), std::string("program 4"));
    // What the other has taken out already cannot be taken out again.
    QVERIFY(other.removePrograms({2}, revision));
    QVERIFY(store.host.removeProgram(2));
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(1));
}

void tst_ProgramCatalogue::addTaskEmitsNothing()
{
    StoreFixture store;
    SignalCounts counts;
    QVERIFY(counts.isValid());
    store.manager.addTask(everyFieldTask(1));
    store.manager.addPlan(1, samplePlan(4, 0));
    store.manager.deleteTask(1);
    store.manager.resetUiTask();
    QCOMPARE(counts.take(), QString());

    // A card answers both signals with its whole task.
    QObject card;
    connect(&store.manager, &scheduleManage::signalReflushConflict, &card,
            [&] { store.manager.addTask(everyFieldTask(1)); });
    connect(&store.manager, &scheduleManage::signalUpdatePlanEndTime, &card,
            [&] { store.manager.addTask(everyFieldTask(1)); });
    store.host.addPrograms(samplePrograms(1));
    store.host.removeProgram(1);
    QCOMPARE(counts.take(), QStringLiteral("programs 2, ends, catalogue 2"));
}

void tst_ProgramCatalogue::replacingTheScheduleUnderAnEditor()
{
    StoreFixture store;
    store.save({{1, everyFieldTask(1)}});
    SignalCounts counts;
    QVERIFY(counts.isValid());
    // A card whose task has gone reads it again and files what it gets.
    QObject card;
    connect(&store.manager, &scheduleManage::signalReflushConflict, &card,
            [&] { store.manager.addTask(store.manager.getTask(1)); });
    const std::map<int, PlayTask> next = {{6, everyFieldTask(6)}};
    QVERIFY(store.host.replaceSchedule(next));
    QCOMPARE(counts.take(), QStringLiteral("conflict, stored"));
    QVERIFY(store.manager.getgTaskMap() == next);
    QVERIFY(store.manager.getAllTask() == next);
    QVERIFY(!store.host.hasUnsavedChanges());
    store.restart();
    QVERIFY(store.manager.getgTaskMap() == next);

    // Tasks are filed under their own ids.
    QVERIFY(store.host.replaceSchedule({{1, everyFieldTask(9)}}));
    QVERIFY(store.manager.getgTaskMap().at(9) == everyFieldTask(9));
}

void tst_ProgramCatalogue::twentyThousandPrograms()
{
    StoreFixture store;
    std::vector<MediaSource> sources;
    // On a server each statement has its way there and back.
    const int count = storeServer().isEmpty() ? 20000 : 2000;
    sources.reserve(std::size_t(count));
    for (int number = 0; number < count; ++number) {
        sources.push_back(
            fileSource(store.folder.filePath(QStringLiteral("clip %1.mp4").arg(number))));
    }
    const ImportResult result = store.host.addPrograms(sources);
    QVERIFY(result.store);
    QCOMPARE(result.added.size(), std::size_t(count));
    QCOMPARE(result.added.back(), count);
    QCOMPARE(store.host.addPrograms(sources).updated, result.added);
    store.restart();
    QCOMPARE(store.manager.getPrograms().size(), std::size_t(count));
    QBENCHMARK_ONCE
    {
        store.manager.getgTaskMap();
    }
}

TREL_TEST(tst_ProgramCatalogue, QCoreApplication)
#include "tst_ProgramCatalogue.moc"
