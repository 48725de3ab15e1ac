#include "catalogue/ProgramImporter.h"
#include "catalogue/StoredContents.h"
#include "libs/trelprogramschedule/StoreFixture.h"
#include "store/ScheduleDatabase.h"
#include "support/FolderSnapshot.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

using namespace trel::mediadispatch;

namespace {

ProgramContent content(char digit, qint64 size = 3)
{
    return {size, 1'700'000'000'123'456'789, QByteArray(64, digit)};
}

MediaSource source(const char* name, const ProgramContent& holds = {})
{
    MediaSource made;
    made.name = QLatin1String(name);
    made.path = QStringLiteral("/media/") + made.name;
    made.durationMs = 1000;
    made.kind = ProgramKind::Video;
    made.content = holds;
    return made;
}

/// What is known of programs, such as "1: 3 aa, 2: 5 bb", with the first digits of each hash.
QString known()
{
    ProgramContents contents;
    if (!readStoredContents(contents)) {
        return QStringLiteral("refused");
    }
    QStringList lines;
    for (const auto& [index, one] : contents) {
        lines.append(QStringLiteral("%1: %2 %3")
                         .arg(index)
                         .arg(one.size)
                         .arg(QString::fromLatin1(one.sha256.left(2))));
    }
    return lines.join(QStringLiteral(", "));
}

} // namespace

/// What the store keeps of the files of programs.
class tst_ProgramContents : public QObject
{
    Q_OBJECT

private slots:
    void comesWithAnImport();
    void keepsEveryField();
    void theNextImportReplacesIt();
    void theLastOfAPathCounts();
    void goesWithItsProgram();
    void manyAtOnce();
    void isFoundByPath();
    void isOneChange();
    void whatHasNoFormIsNotKept();
    void whatHasNoFormIsPassedOver();
    void withoutAStore();
    void aFormerSchemaKnowsNothing();
};

void tst_ProgramContents::comesWithAnImport()
{
    StoreFixture store;
    QCOMPARE(known(), QString());
    QVERIFY(store.host
                .addPrograms({source("a", content('a')), source("b"), source("c", content('c', 5))})
                .store);
    QCOMPARE(known(), QStringLiteral("1: 3 aa, 3: 5 cc"));
    store.restart();
    QCOMPARE(known(), QStringLiteral("1: 3 aa, 3: 5 cc"));
}

void tst_ProgramContents::keepsEveryField()
{
    StoreFixture store;
    const ProgramContent large = {qint64(1) << 53, -1, QByteArray(64, '7')};
    QVERIFY(store.host.addPrograms({source("a", content('a')), source("b", large)}).store);
    ProgramContents contents;
    QVERIFY(readStoredContents(contents));
    QCOMPARE(contents.at(1).size, qint64(3));
    QCOMPARE(contents.at(1).modifiedNs, qint64(1'700'000'000'123'456'789));
    QCOMPARE(contents.at(1).sha256, QByteArray(64, 'a'));
    QCOMPARE(contents.at(2).size, large.size);
    QCOMPARE(contents.at(2).modifiedNs, large.modifiedNs);
    QCOMPARE(contents.at(2).sha256, large.sha256);
}

// Also where it does not know: what was known is of a file that is no longer there.
void tst_ProgramContents::theNextImportReplacesIt()
{
    StoreFixture store;
    QVERIFY(
        store.host.addPrograms({source("a", content('a')), source("b", content('b')), source("c")})
            .store);
    const ImportResult again = store.host.addPrograms(
        {source("a", content('d', 4)), source("b"), source("c", content('c'))});
    QCOMPARE(again.updated, (std::vector<int>{1, 2, 3}));
    QCOMPARE(known(), QStringLiteral("1: 4 dd, 3: 3 cc"));
}

void tst_ProgramContents::theLastOfAPathCounts()
{
    StoreFixture store;
    QVERIFY(store.host
                .addPrograms({source("a", content('a')), source("b", content('b')),
                              source("a", content('c')), source("b")})
                .store);
    QCOMPARE(known(), QStringLiteral("1: 3 cc"));
}

void tst_ProgramContents::goesWithItsProgram()
{
    StoreFixture store;
    QVERIFY(store.host.addPrograms({source("a", content('a')), source("b", content('b'))}).store);
    QVERIFY(store.host.removeProgram(1));
    QCOMPARE(known(), QStringLiteral("2: 3 bb"));
    // Under another index, it is another program.
    QVERIFY(store.host.addPrograms({source("a")}).store);
    QCOMPARE(known(), QStringLiteral("2: 3 bb"));
}

void tst_ProgramContents::manyAtOnce()
{
    StoreFixture store;
    constexpr int many = 450;
    std::vector<MediaSource> sources;
    for (int number = 1; number <= many; ++number) {
        sources.push_back(source(qPrintable(QString::number(number)), content('a', number)));
    }
    QVERIFY(store.host.addPrograms(sources).store);
    for (MediaSource& one : sources) {
        one.content.size += many;
    }
    QVERIFY(store.host.addPrograms(sources).store);
    ProgramContents contents;
    QVERIFY(readStoredContents(contents));
    QCOMPARE(contents.size(), std::size_t(many));
    for (const auto& [index, one] : contents) {
        QCOMPARE(one.size, qint64(index) + many);
    }
}

void tst_ProgramContents::isFoundByPath()
{
    StoreFixture store;
    QVERIFY(
        store.host.addPrograms({source("a", content('a')), source("b"), source("c", content('c'))})
            .store);
    const FileContents files = storedFileContents();
    QCOMPARE(files.size(), std::size_t(2));
    QCOMPARE(files.at(QStringLiteral("/media/a")).sha256, QByteArray(64, 'a'));
    QCOMPARE(files.at(QStringLiteral("/media/c")).sha256, QByteArray(64, 'c'));
}

// A log is known by the number of the state that each change makes.
void tst_ProgramContents::isOneChange()
{
    StoreFixture store;
    ScheduleDatabase other;
    QVERIFY(other.open(store.path, StoreOpenMode::MustExist));
    for (qint64 changes = 1; changes <= 3; ++changes) {
        QVERIFY(store.host.addPrograms({source("a", content('a', changes))}).store);
        StoreRevision revision;
        QVERIFY(other.readRevision(revision));
        QCOMPARE(revision.catalogue, changes);
        QCOMPARE(revision.schedule, qint64(0));
        ProgramContents contents;
        QVERIFY(other.readContents(contents));
        QCOMPARE(contents.at(1).size, changes);
    }
}

void tst_ProgramContents::whatHasNoFormIsNotKept()
{
    StoreFixture store;
    ProgramContent capital = content('A');
    QVERIFY(store.host
                .addPrograms({source("a", capital), source("b", content('b', -3)),
                              source("c", {3, 0, "abc"})})
                .store);
    QCOMPARE(known(), QString());
    const QString rows = QStringLiteral("SELECT count(*) FROM program_content");
    QCOMPARE(connectionTo(store.path)->value(rows).toInt(), 0);
}

// As another program may have written it.
void tst_ProgramContents::whatHasNoFormIsPassedOver()
{
    StoreFixture store;
    QVERIFY(store.host
                .addPrograms({source("a", content('a')), source("b", content('b')),
                              source("c", content('c'))})
                .store);
    const auto connection = connectionTo(store.path);
    connection->run(
        QStringLiteral("UPDATE program_content SET size_bytes = -1 WHERE prog_index = 1"));
    connection->run(QStringLiteral("UPDATE program_content SET sha256 = (SELECT name FROM program"
                                   " WHERE prog_index = 2) WHERE prog_index = 2"));
    QCOMPARE(known(), QStringLiteral("3: 3 cc"));
}

void tst_ProgramContents::withoutAStore()
{
    ProgramContents contents = {{1, content('a')}};
    QCOMPARE(int(readStoredContents(contents).problem), int(StoreProblem::NotOpen));
    QCOMPARE(contents.size(), std::size_t(1));
    QVERIFY(storedFileContents().empty());
}

void tst_ProgramContents::aFormerSchemaKnowsNothing()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("store.db"));
    QVERIFY(QFile::copy(QFINDTESTDATA("../stores/store-3.db"), path));
    const FolderSnapshot before(folder.path());
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(path, ScheduleHost::OpenMode::ReadOnly));
    QCOMPARE(known(), QString());
    host.close();
    QCOMPARE(before.differences(FolderSnapshot(folder.path())), QStringList());
    // Once it has the new one, the next import tells.
    QVERIFY(host.open(path));
    QCOMPARE(known(), QString());
    const std::size_t programs = host.catalogue()->size();
    MediaSource film = source("Weather.mp4", content('a'));
    film.path = QStringLiteral("/srv/media/Weather.mp4");
    QVERIFY(host.addPrograms({film}).store);
    QCOMPARE(host.catalogue()->size(), programs);
    QCOMPARE(known(), QStringLiteral("7: 3 aa"));
    host.close();
}

TREL_TEST(tst_ProgramContents, QCoreApplication)
#include "tst_ProgramContents.moc"
