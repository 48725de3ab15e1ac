#include "FailEverywhere.h"
#include "QuickFolder.h"

#include "catalogue/ProgramImporter.h"
#include "store/ScheduleDatabase.h"
#include "support/SampleSchedule.h"
#include "trelprogramschedule/faults/FaultWords.h"

#include <QDir>

using namespace trel::mediadispatch;

namespace {

/// The store's own allocations and the toolkit's in C++. The toolkit's driver ends the program
/// where the database itself lacks memory.
constexpr FailingMemory::Kind kKind = FailingMemory::Kind::Objects;

bool isWellRefused(const StoreResult& result)
{
    return result.problem == StoreProblem::Other && result.cause.code == FaultCode::NoMemory &&
           !result.path.isEmpty();
}

MediaSource source(const QString& name)
{
    MediaSource source;
    source.name = name;
    source.path = QStringLiteral("rtsp://host/") + name;
    return source;
}

} // namespace

/// Where memory runs out, the store refuses, stays whole, and goes on as soon as there is some.
class tst_StoreOutOfMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    // Once only: the toolkit takes memory to close what could not be opened in full.
    void making();
    void opening();
    void reopening();
    void reading_data() { addLastings(); }
    void reading();
    void saving_data() { addLastings(); }
    void saving();
    void importing_data() { addLastings(); }
    void importing();
    void removing_data() { addLastings(); }
    void removing();

private:
    /// Opens a store in a folder, with these tasks in it.
    static void make(ScheduleDatabase& store, const QuickFolder& folder, const TaskMap& tasks);
    static QString pathIn(const QuickFolder& folder);
    static void verifyPrograms(ScheduleDatabase& store, std::size_t count);
};

void tst_StoreOutOfMemory::initTestCase()
{
    // The toolkit loads its drivers with the first store, and never again where that went wrong.
    const QuickFolder folder;
    ScheduleDatabase store;
    make(store, folder, {});
}

QString tst_StoreOutOfMemory::pathIn(const QuickFolder& folder)
{
    return folder.filePath(QStringLiteral("schedule.db"));
}

void tst_StoreOutOfMemory::make(ScheduleDatabase& store, const QuickFolder& folder,
                                const TaskMap& tasks)
{
    QVERIFY(store.open(pathIn(folder), StoreOpenMode::CreateIfMissing));
    StoreContents contents;
    QVERIFY(store.read(StorePart::Both, contents));
    QVERIFY(store.writeTasks(tasks, editsBetween({}, tasks), contents.revision.schedule));
}

void tst_StoreOutOfMemory::making()
{
    const QuickFolder folder;
    const QString path = pathIn(folder);
    StoreResult result;
    failEverywhere(
        FailingMemory::Lasting::Once,
        [&] {
            ScheduleDatabase store;
            result = store.open(path, StoreOpenMode::CreateIfMissing);
        },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result);
            QVERIFY2(result || isWellRefused(result), qPrintable(englishText(result)));
            ScheduleDatabase store;
            QVERIFY(!result || store.open(path, StoreOpenMode::MustExist));
            QVERIFY(store.open(path, StoreOpenMode::CreateIfMissing));
            StoreContents found;
            QVERIFY(store.read(StorePart::Both, found));
            store.close();
            const QStringList files = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
            for (const QString& file : files) {
                QVERIFY(QFile::remove(folder.filePath(file)));
            }
        },
        kKind);
}

void tst_StoreOutOfMemory::opening()
{
    const QuickFolder folder;
    const QString path = pathIn(folder);
    const TaskMap tasks = sampleSchedule(2, 1, 0);
    ScheduleDatabase store;
    make(store, folder, tasks);
    StoreResult result;
    failEverywhere(
        FailingMemory::Lasting::Once, [&] { result = store.open(path, StoreOpenMode::MustExist); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result);
            QVERIFY2(result || isWellRefused(result), qPrintable(englishText(result)));
            QCOMPARE(store.isOpen(), bool(result));
            QVERIFY(result || store.open(path, StoreOpenMode::MustExist));
            StoreContents found;
            QVERIFY(store.read(StorePart::Both, found));
            QVERIFY(found.tasks == tasks);
        },
        kKind);
}

void tst_StoreOutOfMemory::reopening()
{
    const QuickFolder folder;
    const QString path = pathIn(folder);
    const TaskMap tasks = sampleSchedule(2, 1, 0);
    ScheduleDatabase store;
    make(store, folder, tasks);
    StoreResult result;
    failEverywhere(
        FailingMemory::Lasting::Once, [&] { result = store.reopen(); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result);
            QVERIFY2(result || isWellRefused(result), qPrintable(englishText(result)));
            QVERIFY(result || store.reopen());
            StoreContents found;
            QVERIFY(store.read(StorePart::Both, found));
            QVERIFY(found.tasks == tasks);
        },
        kKind);
}

void tst_StoreOutOfMemory::reading()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const QuickFolder folder;
    const TaskMap tasks = sampleSchedule(2, 1, 0);
    ScheduleDatabase store;
    make(store, folder, tasks);
    StoreContents found;
    StoreResult result;
    failEverywhere(
        lasting, [&] { result = store.read(StorePart::Both, found); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result);
            QVERIFY2(result ? found.tasks == tasks : isWellRefused(result),
                     qPrintable(englishText(result)));
            QVERIFY(store.read(StorePart::Both, found));
            QVERIFY(found.tasks == tasks);
        },
        kKind);
}

void tst_StoreOutOfMemory::saving()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const QuickFolder folder;
    TaskMap before = sampleSchedule(1, 1, 0);
    ScheduleDatabase store;
    make(store, folder, before);
    qint64 revision = 1;
    int generation = 0;
    TaskMap after;
    TaskEdits edits;
    const auto prepare = [&] {
        after = sampleSchedule(2, 1, 0, ++generation);
        edits = editsBetween(before, after);
    };
    prepare();
    StoreResult result;
    failEverywhere(
        lasting, [&] { result = store.writeTasks(after, edits, revision); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result);
            QVERIFY2(result || isWellRefused(result), qPrintable(englishText(result)));
            StoreContents found;
            QVERIFY(store.read(StorePart::Both, found));
            QVERIFY(found.tasks == (result ? after : before));
            QCOMPARE(found.revision.schedule, revision);
            before = found.tasks;
            prepare();
        },
        kKind);
}

void tst_StoreOutOfMemory::verifyPrograms(ScheduleDatabase& store, std::size_t count)
{
    StoreContents found;
    QVERIFY(store.read(StorePart::Both, found));
    QCOMPARE(found.programs.size(), count);
}

void tst_StoreOutOfMemory::importing()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const QuickFolder folder;
    ScheduleDatabase store;
    make(store, folder, {});
    std::size_t programs = 0;
    std::vector<MediaSource> sources;
    const auto prepare = [&] {
        const QString number = QString::number(programs);
        sources = {source(QLatin1Char('a') + number), source(QLatin1Char('b') + number)};
    };
    prepare();
    ImportResult result;
    StoreContents contents;
    failEverywhere(
        lasting, [&] { result = store.addPrograms(sources, contents); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result.store);
            QVERIFY2(result.store || isWellRefused(result.store),
                     qPrintable(englishText(result.store)));
            QCOMPARE(result.added.size(), result.store ? sources.size() : 0);
            programs += result.added.size();
            verifyPrograms(store, programs);
            prepare();
        },
        kKind);
}

void tst_StoreOutOfMemory::removing()
{
    QFETCH(FailingMemory::Lasting, lasting);
    const QuickFolder folder;
    ScheduleDatabase store;
    make(store, folder, {});
    StoreContents contents;
    std::vector<int> both;
    const auto prepare = [&] {
        both = store
                   .addPrograms({source(QStringLiteral("one")), source(QStringLiteral("two"))},
                                contents)
                   .added;
    };
    prepare();
    StoreResult result;
    StoreRevision revision;
    failEverywhere(
        lasting, [&] { result = store.removePrograms(both, revision); },
        [&](bool hasFailed) {
            QVERIFY(hasFailed || result);
            QVERIFY2(result || isWellRefused(result), qPrintable(englishText(result)));
            verifyPrograms(store, result ? 0 : 2);
            if (result) {
                prepare();
            }
        },
        kKind);
}

QTEST_GUILESS_MAIN(tst_StoreOutOfMemory)
#include "tst_StoreOutOfMemory.moc"
