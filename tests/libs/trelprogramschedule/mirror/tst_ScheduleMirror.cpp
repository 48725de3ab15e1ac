#include "MirrorFixture.h"
#include "catalogue/ProgramContent.h"
#include "faults/FaultWords.h"
#include "mirror/ScheduleMirror.h"
#include "store/ScheduleDatabase.h"
#include "support/FaultyDisk.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <memory>

using namespace trel::mediadispatch;
using namespace trel::tests;

namespace {

const QString kAddress = QStringLiteral("postgresql://anna@desk/schedules?schedule=hall");

/// How many tasks and programs a mirror holds, which save is in effect, and what is cut in.
QString line(const ScheduleMirror& mirror)
{
    return QStringLiteral("%1 tasks of %2, %3 programs, %4 cut in")
        .arg(QString::number(mirror.tasks()->size()),
             QString::number(mirror.start() ? mirror.start()->saved : 0),
             QString::number(mirror.catalogue()->size()),
             QString::number(mirror.insertions().size()));
}

const QString kNothing = QStringLiteral("0 tasks of 0, 0 programs, 0 cut in");

} // namespace

#define DONE(result)                                                                               \
    do {                                                                                           \
        const StoreResult done = (result);                                                         \
        QVERIFY2(done, qPrintable(englishText(done)));                                             \
    } while (false)

/// What a screen keeps of a schedule on a server, whatever it is told.
class tst_ScheduleMirror : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void beginsWithNothing();
    void keepsWhatItTook();
    void keepsAllThereIsOfAProgram();
    void takesAPartFromItsState();
    void refusesAPartFromAnotherState();
    void anInsertionLeavesTheTasks();
    void theEndIsTakenOver();
    void holdsNothingOfAnotherSchedule();
    void isTheSameForAnotherUser();
    void aScheduleInItsPlaceIsTakenWhole();
    void leavesAScheduleAlone();
    void outlastsASuddenEnd();
    void aDiskThatRefusesLeavesItAsItWas_data();
    void aDiskThatRefusesLeavesItAsItWas();
    void putsAsideWhatIsDamaged();
    void readsWhatItMayNotWrite();
    void isMadeAnewWhenTakenAway();
    void twoMayHaveOne();
    void entriesOfNoProgramAreLost();
    void filesComeAndGo();
    void filesOfItsOwnStandUnderTheirHash();

private:
    QString file() const { return m_folder->filePath(QStringLiteral("deep/mirror.db")); }
    /// The mirror of another start of the player.
    QString lineOfRestart() const
    {
        ScheduleMirror mirror(file(), kAddress);
        const StoreResult opened = mirror.open();
        return opened ? line(mirror) : englishText(opened);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ScheduleMirror::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_ScheduleMirror::cleanup()
{
    m_folder.reset();
}

void tst_ScheduleMirror::beginsWithNothing()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    QCOMPARE(line(mirror), kNothing);
    QVERIFY(mirror.state() == MirrorState());
    QVERIFY(QFileInfo::exists(file()));
}

void tst_ScheduleMirror::keepsWhatItTook()
{
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id 1", 3, 2), 4, 5)));
        QCOMPARE(line(mirror), QStringLiteral("4 tasks of 3, 5 programs, 0 cut in"));
        QVERIFY(mirror.state() == state("id 1", 3, 2));
    }
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    QCOMPARE(line(mirror), QStringLiteral("4 tasks of 3, 5 programs, 0 cut in"));
    QVERIFY(mirror.state() == state("id 1", 3, 2));
    QVERIFY(*mirror.tasks() == effect(4, 3).tasks);
    QCOMPARE(mirror.start()->by, QStringLiteral("desk@hall"));
    // It is a store as any other, for those who look into it.
    ScheduleDatabase store;
    DONE(store.open(file(), StoreOpenMode::ReadOnly));
    std::vector<ScheduleVersion> versions;
    DONE(store.readVersions(versions));
    QCOMPARE(versions.size(), std::size_t(1));
}

void tst_ScheduleMirror::keepsAllThereIsOfAProgram()
{
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id", 1, 1), 1, 2)));
    }
    ScheduleDatabase store;
    DONE(store.open(file(), StoreOpenMode::ReadOnly));
    StoreContents contents;
    DONE(store.read(StorePart::Catalogue, contents));
    QCOMPARE(contents.programs.size(), std::size_t(2));
    const ProgramIten& second = contents.programs.at(2);
    QCOMPARE(second.progName, std::string("program 2"));
    QCOMPARE(second.mediaPath, std::string("rtsp://camera/2"));
    QVERIFY(second.kind == ProgramKind::Live);
    QCOMPARE(contents.removedNames.at(3), std::string("gone"));
    ProgramContents files;
    DONE(store.readContents(files));
    QCOMPARE(files.size(), std::size_t(1));
    QCOMPARE(files.at(1).size, qint64(12));
    QCOMPARE(files.at(1).sha256, QByteArray(64, 'a'));
}

void tst_ScheduleMirror::takesAPartFromItsState()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    DONE(mirror.take(whole(state("id", 1, 1), 1, 1)));
    MirrorNews news;
    news.from = state("id", 1, 1);
    news.to = state("id", 1, 2);
    news.catalogue = catalogue(7);
    DONE(mirror.take(news));
    QCOMPARE(line(mirror), QStringLiteral("1 tasks of 1, 7 programs, 0 cut in"));
    news = MirrorNews();
    news.from = state("id", 1, 2);
    news.to = state("id", 2, 2);
    news.effect = effect(3, 2);
    DONE(mirror.take(news));
    QCOMPARE(line(mirror), QStringLiteral("3 tasks of 2, 7 programs, 0 cut in"));
    QCOMPARE(lineOfRestart(), line(mirror));
}

void tst_ScheduleMirror::refusesAPartFromAnotherState()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    DONE(mirror.take(whole(state("id", 1, 1), 1, 1)));
    MirrorNews news;
    news.from = state("id", 2, 1);
    news.to = state("id", 3, 1);
    news.effect = effect(3, 3);
    QCOMPARE(mirror.take(news).problem, StoreProblem::MovedOn);
    QCOMPARE(line(mirror), QStringLiteral("1 tasks of 1, 1 programs, 0 cut in"));
    QCOMPARE(lineOfRestart(), line(mirror));
    // From now on nothing but everything will do.
    QVERIFY(mirror.state() == MirrorState());
    news.from = state("id", 1, 1);
    QCOMPARE(mirror.take(news).problem, StoreProblem::MovedOn);
    DONE(mirror.take(whole(state("id", 3, 1), 3, 1)));
    QCOMPARE(lineOfRestart(), QStringLiteral("3 tasks of 3, 1 programs, 0 cut in"));
}

void tst_ScheduleMirror::anInsertionLeavesTheTasks()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    DONE(mirror.take(whole(state("id", 1, 1), 3, 1)));
    const auto tasks = mirror.tasks();
    MirrorNews news;
    news.from = state("id", 1, 1);
    news.to = state("id", 2, 1);
    news.effect = effect(3, 1);
    news.effect->insertions = {insertion(17)};
    DONE(mirror.take(news));
    QCOMPARE(line(mirror), QStringLiteral("3 tasks of 1, 1 programs, 1 cut in"));
    QVERIFY(mirror.tasks() == tasks);
    {
        ScheduleMirror again(file(), kAddress);
        DONE(again.open());
        QCOMPARE(line(again), line(mirror));
        QCOMPARE(again.insertions().front().number, qint64(17));
        QVERIFY(*again.tasks() == *tasks);
    }
    news.from = news.to;
    news.to = state("id", 3, 1);
    news.effect->insertions.clear();
    DONE(mirror.take(news));
    QCOMPARE(lineOfRestart(), QStringLiteral("3 tasks of 1, 1 programs, 0 cut in"));
}

void tst_ScheduleMirror::theEndIsTakenOver()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    MirrorNews news = whole(state("id", 1, 1), 3, 1);
    news.effect->insertions = {insertion(17)};
    DONE(mirror.take(news));
    news = MirrorNews();
    news.from = state("id", 1, 1);
    news.to = state("id", 2, 1);
    news.effect = StoredEffect();
    DONE(mirror.take(news));
    QCOMPARE(line(mirror), QStringLiteral("0 tasks of 0, 1 programs, 0 cut in"));
    QCOMPARE(lineOfRestart(), line(mirror));
}

void tst_ScheduleMirror::holdsNothingOfAnotherSchedule()
{
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
    }
    ScheduleMirror other(file(), QStringLiteral("postgresql://anna@desk/schedules?schedule=foyer"));
    DONE(other.open());
    QCOMPARE(line(other), kNothing);
    QVERIFY(other.state() == MirrorState());
    DONE(other.take(whole(state("id", 1, 1), 1, 1)));
    QCOMPARE(line(other), QStringLiteral("1 tasks of 1, 1 programs, 0 cut in"));
}

void tst_ScheduleMirror::isTheSameForAnotherUser()
{
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
    }
    ScheduleMirror other(file(), QStringLiteral("postgres://desk:5432/schedules?schedule=hall"));
    DONE(other.open());
    QCOMPARE(line(other), QStringLiteral("3 tasks of 1, 3 programs, 0 cut in"));
}

void tst_ScheduleMirror::aScheduleInItsPlaceIsTakenWhole()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    DONE(mirror.take(whole(state("id 1", 1, 1), 3, 3)));
    const auto tasks = mirror.tasks();
    // The same start, as it was when the copy was made.
    DONE(mirror.take(whole(state("id 2", 1, 1), 1, 2)));
    QVERIFY(mirror.tasks() != tasks);
    QCOMPARE(line(mirror), QStringLiteral("1 tasks of 1, 2 programs, 0 cut in"));
    QCOMPARE(lineOfRestart(), line(mirror));
}

void tst_ScheduleMirror::leavesAScheduleAlone()
{
    QVERIFY(QDir().mkpath(QFileInfo(file()).absolutePath()));
    {
        ScheduleDatabase own;
        DONE(own.open(file(), StoreOpenMode::CreateIfMissing));
        StoreContents contents;
        DONE(own.addPrograms(samplePrograms(2), contents).store);
    }
    ScheduleMirror mirror(file(), kAddress);
    QCOMPARE(mirror.open().problem, StoreProblem::Foreign);
    QCOMPARE(mirror.take(whole(state("id", 1, 1), 3, 3)).problem, StoreProblem::Foreign);
    QCOMPARE(line(mirror), kNothing);
    ScheduleDatabase own;
    DONE(own.open(file(), StoreOpenMode::ReadOnly));
    StoreContents contents;
    DONE(own.read(StorePart::Both, contents));
    QCOMPARE(contents.programs.size(), std::size_t(2));
}

void tst_ScheduleMirror::outlastsASuddenEnd()
{
    const QString left = m_folder->filePath(QStringLiteral("left.db"));
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
        MirrorNews news;
        news.from = state("id", 1, 1);
        news.to = state("id", 1, 2);
        news.catalogue = catalogue(5);
        DONE(mirror.take(news));
        DONE(mirror.take(whole(state("id", 2, 3), 2, 2)));
        // What a kill leaves.
        QVERIFY(QFile::copy(file(), left));
        QVERIFY(QFile::copy(file() + QStringLiteral("-wal"), left + QStringLiteral("-wal")));
    }
    ScheduleMirror mirror(left, kAddress);
    DONE(mirror.open());
    QCOMPARE(line(mirror), QStringLiteral("2 tasks of 2, 2 programs, 0 cut in"));
    QVERIFY(!QFileInfo::exists(left + QStringLiteral("-damaged")));
}

void tst_ScheduleMirror::aDiskThatRefusesLeavesItAsItWas_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    QTest::newRow("a full disk") << int(FaultyDisk::Write) << ENOSPC;
    QTest::newRow("a write that fails") << int(FaultyDisk::Write) << EIO;
    QTest::newRow("a disk that confirms nothing") << int(FaultyDisk::Sync) << EIO;
}

/// At each single call of the kind that taking over makes.
void tst_ScheduleMirror::aDiskThatRefusesLeavesItAsItWas()
{
    QFETCH(int, call);
    QFETCH(int, error);
    bool hasFailed = true;
    int refusals = 0;
    for (int nth = 1; hasFailed; ++nth) {
        cleanup();
        init();
        {
            FaultyDisk disk;
            ScheduleMirror mirror(file(), kAddress);
            DONE(mirror.open());
            DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
            MirrorNews news;
            news.from = state("id", 1, 1);
            news.to = state("id", 2, 1);
            news.effect = effect(2, 2);
            disk.fail(static_cast<FaultyDisk::Call>(call), nth, FaultyDisk::Lasting::Once, error);
            const StoreResult taken = mirror.take(news);
            hasFailed = disk.hasFailed();
            disk.heal();
            QVERIFY(taken || hasFailed);
            refusals += taken ? 0 : 1;
            QCOMPARE(line(mirror), taken ? QStringLiteral("2 tasks of 2, 3 programs, 0 cut in")
                                         : QStringLiteral("3 tasks of 1, 3 programs, 0 cut in"));
            DONE(mirror.take(whole(state("id", 3, 1), 1, 3)));
        }
        QCOMPARE(lineOfRestart(), QStringLiteral("1 tasks of 3, 3 programs, 0 cut in"));
    }
    QVERIFY(refusals > 0);
}

void tst_ScheduleMirror::putsAsideWhatIsDamaged()
{
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
    }
    QFile damaged(file());
    QVERIFY(damaged.open(QIODevice::ReadWrite));
    QVERIFY(damaged.seek(4096));
    damaged.write(QByteArray(8192, 'x'));
    damaged.close();
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    QCOMPARE(line(mirror), kNothing);
    QVERIFY(QFileInfo::exists(file() + QStringLiteral("-damaged")));
    DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
    QCOMPARE(lineOfRestart(), QStringLiteral("3 tasks of 1, 3 programs, 0 cut in"));
}

void tst_ScheduleMirror::readsWhatItMayNotWrite()
{
    {
        ScheduleMirror mirror(file(), kAddress);
        DONE(mirror.open());
        DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
    }
    const QFile::Permissions usual = QFile::permissions(file());
    QVERIFY(QFile::setPermissions(file(), QFile::ReadOwner | QFile::ReadUser));
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    QCOMPARE(line(mirror), QStringLiteral("3 tasks of 1, 3 programs, 0 cut in"));
    QCOMPARE(mirror.take(whole(state("id", 2, 1), 1, 1)).problem, StoreProblem::ReadOnly);
    QCOMPARE(line(mirror), QStringLiteral("3 tasks of 1, 3 programs, 0 cut in"));
    // As soon as it can be written again.
    QVERIFY(QFile::setPermissions(file(), usual));
    DONE(mirror.take(whole(state("id", 2, 1), 1, 1)));
    QCOMPARE(lineOfRestart(), QStringLiteral("1 tasks of 2, 1 programs, 0 cut in"));
}

void tst_ScheduleMirror::isMadeAnewWhenTakenAway()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    DONE(mirror.take(whole(state("id", 1, 1), 3, 3)));
    QVERIFY(QDir(QFileInfo(file()).absolutePath()).removeRecursively());
    MirrorNews news;
    news.from = state("id", 1, 1);
    news.to = state("id", 2, 1);
    news.effect = effect(1, 2);
    QCOMPARE(mirror.take(news).problem, StoreProblem::MovedOn);
    // The screen goes on with what it has.
    QCOMPARE(line(mirror), QStringLiteral("3 tasks of 1, 3 programs, 0 cut in"));
    QVERIFY(mirror.state() == MirrorState());
    DONE(mirror.take(whole(state("id", 2, 1), 1, 3)));
    QCOMPARE(lineOfRestart(), QStringLiteral("1 tasks of 2, 3 programs, 0 cut in"));
}

void tst_ScheduleMirror::twoMayHaveOne()
{
    ScheduleMirror one(file(), kAddress);
    DONE(one.open());
    DONE(one.take(whole(state("id", 1, 1), 3, 3)));
    ScheduleMirror other(file(), kAddress);
    DONE(other.open());
    MirrorNews news;
    news.from = state("id", 1, 1);
    news.to = state("id", 2, 1);
    news.effect = effect(1, 2);
    DONE(one.take(news));
    DONE(other.take(news));
    QCOMPARE(line(other), QStringLiteral("1 tasks of 2, 3 programs, 0 cut in"));
    QCOMPARE(lineOfRestart(), line(other));
}

void tst_ScheduleMirror::entriesOfNoProgramAreLost()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    MirrorNews news = whole(state("id", 1, 1), 1, 1);
    news.effect->tasks.at(1).plans = {samplePlan(1, 2)};
    DONE(mirror.take(news));
    const std::vector<struProgInfo>& entries = mirror.tasks()->at(1).plans.front().programs;
    QCOMPARE(entries.size(), std::size_t(2));
    QVERIFY(!entries[0].isInvalid);
    QVERIFY(entries[1].isInvalid);
}

void tst_ScheduleMirror::filesComeAndGo()
{
    ScheduleMirror mirror(file(), kAddress);
    DONE(mirror.open());
    QSignalSpy changed(&mirror, &ScheduleMirror::filesChanged);
    MirrorNews news = whole(state("id", 1, 1), 1, 1);
    ProgramIten& film = news.catalogue->programs.at(1);
    film.kind = ProgramKind::Video;
    film.mediaPath = m_folder->filePath(QStringLiteral("film.mp4")).toStdString();
    DONE(mirror.take(news));
    QTRY_COMPARE(changed.count(), 1);
    QVERIFY(mirror.catalogue()->at(1).isNull);
    QFile made(m_folder->filePath(QStringLiteral("film.mp4")));
    QVERIFY(made.open(QIODevice::WriteOnly));
    made.close();
    QTRY_COMPARE(changed.count(), 2);
    QVERIFY(!mirror.catalogue()->at(1).isNull);
}

void tst_ScheduleMirror::filesOfItsOwnStandUnderTheirHash()
{
    const QString media = m_folder->filePath(QStringLiteral("media"));
    QVERIFY(QDir().mkpath(media));
    ScheduleMirror mirror(file(), kAddress);
    mirror.setMediaFolder(media);
    DONE(mirror.open());
    QSignalSpy changed(&mirror, &ScheduleMirror::filesChanged);
    MirrorNews news = whole(state("id", 1, 1), 1, 3);
    news.catalogue->programs.at(1).kind = ProgramKind::Video;
    DONE(mirror.take(news));
    const QString path = media + QLatin1Char('/') + QString(64, QLatin1Char('a'));
    QCOMPARE(QString::fromStdString(mirror.catalogue()->at(1).mediaPath), path);
    // Known at once, so that nothing is begun that is not there.
    QVERIFY(mirror.catalogue()->at(1).isNull);
    QCOMPARE(mirror.catalogue()->at(2).mediaPath, std::string("rtsp://camera/2"));
    QVERIFY(!mirror.catalogue()->at(2).isNull);
    QCOMPARE(mirror.contents().at(1).size, qint64(12));
    QFile made(path);
    QVERIFY(made.open(QIODevice::WriteOnly));
    made.close();
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, 30000);
    QVERIFY(!mirror.catalogue()->at(1).isNull);
}

TREL_TEST(tst_ScheduleMirror, QCoreApplication)
#include "tst_ScheduleMirror.moc"
