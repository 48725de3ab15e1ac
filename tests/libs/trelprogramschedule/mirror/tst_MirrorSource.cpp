#include "faults/FaultWords.h"
#include "mirror/MirrorSource.h"
#include "store/ScheduleDatabase.h"
#include "store/StorePlace.h"
#include "store/postgres/PostgresSetup.h"
#include "support/PostgresServer.h"
#include "support/SampleSchedule.h"
#include "support/ServerRelay.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <memory>
#include <vector>

using namespace trel::mediadispatch;

namespace {

const QString kName = QStringLiteral("hall");
constexpr int kPatience = 30000; // milliseconds, where a server is started

/// A desk on a schedule.
class Desk
{
public:
    explicit Desk(const QString& address)
    {
        const StoreResult opened = m_database.open(address, StoreOpenMode::MustExist);
        [&opened] { QVERIFY2(opened, qPrintable(englishText(opened))); }();
    }

    bool save(int tasks)
    {
        StoreContents contents;
        const StoreResult read = m_database.read(StorePart::Schedule, contents);
        TaskMap next = sampleSchedule(tasks, 1, 1, ++m_generation);
        return read && m_database.writeTasks(next, editsBetween(contents.tasks, next),
                                             contents.revision.schedule);
    }
    bool start()
    {
        EffectStart start;
        start.since = ++m_generation;
        start.by = QStringLiteral("desk@hall");
        return bool(m_database.startEffect(start, m_effect));
    }
    bool import(int programs)
    {
        StoreContents contents;
        return bool(m_database.addPrograms(samplePrograms(programs), contents).store);
    }

private:
    ScheduleDatabase m_database;
    StoredEffect m_effect;
    int m_generation = 0;
};

/// A source in this thread, and everything that it told.
class Told
{
public:
    explicit Told(const QString& address, const MirrorState& mirror = {})
        : source(address)
    {
        QObject::connect(&source, &MirrorSource::told, &m_context,
                         [this](const MirrorNewsPointer& one) { news.push_back(one); });
        QObject::connect(&source, &MirrorSource::lost, &m_context,
                         [this](const StoreResult& reason) { losses.push_back(reason.problem); });
        QObject::connect(&source, &MirrorSource::found, &m_context, [this] { ++finds; });
        source.begin(mirror);
    }
    ~Told() { source.end(); }
    Q_DISABLE_COPY(Told)

    int count() const { return static_cast<int>(news.size()); }
    const MirrorNews& last() const { return *news.back(); }

    std::vector<MirrorNewsPointer> news;
    std::vector<StoreProblem> losses;
    int finds = 0;
    MirrorSource source;

private:
    QObject m_context;
};

} // namespace

/// What a screen is told of a schedule on a server.
class tst_MirrorSource : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void everythingAtFirst();
    void aScreenMayReadIt();
    void nothingToWhoHasIt();
    void changesAsTheyCome();
    void savesAreNoMatter();
    void aScheduleThatComesLater();
    void aRestartOfTheServer();
    void aConnectionThatIsCut();
    void anotherScheduleInItsPlace();
    void whatWasNotTakenComesAgain();
    void aLossIsToldOnce();

private:
    QString address() const { return m_server->address(kName); }
    bool setUp() const { return bool(PostgresSetup::run(StorePlace(address()))); }
    bool tearDown() const
    {
        return !m_server
                    ->run(
                        QStringLiteral("DROP SCHEMA IF EXISTS trel_schedule_%1 CASCADE").arg(kName))
                    .isNull();
    }

    std::unique_ptr<PostgresServer> m_server;
};

void tst_MirrorSource::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY(m_server->isRunning());
}

void tst_MirrorSource::init()
{
    if (!m_server->isRunning()) {
        QVERIFY(m_server->start());
    }
    QVERIFY(setUp());
}

void tst_MirrorSource::cleanup()
{
    if (!m_server->isRunning()) {
        QVERIFY(m_server->start());
    }
    QVERIFY(tearDown());
}

void tst_MirrorSource::everythingAtFirst()
{
    Desk desk(address());
    QVERIFY(desk.import(2));
    QVERIFY(desk.save(3));
    QVERIFY(desk.start());
    Told screen(address());
    QTRY_COMPARE(screen.count(), 1);
    QVERIFY(screen.last().isWhole());
    QVERIFY(screen.last().from == MirrorState());
    QVERIFY(!screen.last().to.identity.isEmpty());
    QCOMPARE(screen.last().effect->tasks.size(), std::size_t(3));
    QCOMPARE(screen.last().effect->start->saved, qint64(1));
    QCOMPARE(screen.last().catalogue->programs.size(), std::size_t(2));
    QVERIFY(screen.losses.empty());
}

void tst_MirrorSource::aScreenMayReadIt()
{
    QVERIFY(
        !m_server->run(QStringLiteral("CREATE ROLE lobby LOGIN IN ROLE schedule_screen")).isNull());
    Told screen(m_server->address(kName, QStringLiteral("lobby")));
    QTRY_COMPARE(screen.count(), 1);
    QVERIFY(screen.last().isWhole());
    Desk desk(address());
    QVERIFY(desk.import(3));
    QTRY_COMPARE(screen.count(), 2);
    QCOMPARE(screen.last().catalogue->programs.size(), std::size_t(3));
    QVERIFY(screen.losses.empty());
}

void tst_MirrorSource::nothingToWhoHasIt()
{
    Desk desk(address());
    QVERIFY(desk.import(2));
    MirrorState state;
    {
        Told screen(address());
        QTRY_COMPARE(screen.count(), 1);
        state = screen.last().to;
    }
    Told screen(address(), state);
    QVERIFY(desk.save(1));
    QVERIFY(desk.start());
    QTRY_COMPARE(screen.count(), 1);
    QVERIFY(screen.last().from == state);
    QVERIFY(!screen.last().catalogue);
    QCOMPARE(screen.last().effect->tasks.size(), std::size_t(1));
}

void tst_MirrorSource::changesAsTheyCome()
{
    Desk desk(address());
    QVERIFY(desk.save(1));
    Told screen(address());
    QTRY_COMPARE(screen.count(), 1);
    QVERIFY(desk.start());
    QTRY_COMPARE(screen.count(), 2);
    QVERIFY(screen.last().from == screen.news[0]->to);
    QVERIFY(screen.last().effect);
    QVERIFY(!screen.last().catalogue);
    QVERIFY(desk.import(4));
    QTRY_COMPARE(screen.count(), 3);
    QVERIFY(!screen.last().effect);
    QCOMPARE(screen.last().catalogue->programs.size(), std::size_t(4));
}

void tst_MirrorSource::savesAreNoMatter()
{
    Desk desk(address());
    QVERIFY(desk.save(1));
    Told screen(address());
    QTRY_COMPARE(screen.count(), 1);
    for (int tasks = 2; tasks < 6; ++tasks) {
        QVERIFY(desk.save(tasks));
    }
    QVERIFY(desk.start());
    QTRY_COMPARE(screen.count(), 2);
    QCOMPARE(screen.last().effect->tasks.size(), std::size_t(5));
}

void tst_MirrorSource::aScheduleThatComesLater()
{
    QVERIFY(tearDown());
    Told screen(address());
    QTRY_VERIFY(!screen.losses.empty());
    QCOMPARE(screen.losses.front(), StoreProblem::FileMissing);
    QVERIFY(setUp());
    QTRY_COMPARE_WITH_TIMEOUT(screen.finds, 1, kPatience);
    QCOMPARE(screen.count(), 1);
}

void tst_MirrorSource::aRestartOfTheServer()
{
    Desk desk(address());
    QVERIFY(desk.save(1));
    Told screen(address());
    QTRY_COMPARE(screen.count(), 1);
    m_server->stop();
    QTRY_COMPARE_WITH_TIMEOUT(screen.losses.size(), std::size_t(1), kPatience);
    QVERIFY(m_server->start());
    // Before the screen is back: nobody tells it of that.
    QVERIFY(desk.start());
    QTRY_COMPARE_WITH_TIMEOUT(screen.count(), 2, kPatience);
    QCOMPARE(screen.finds, 1);
    QVERIFY(screen.last().effect->start);
    // And it listens again.
    QVERIFY(desk.import(1));
    QTRY_COMPARE(screen.count(), 3);
}

void tst_MirrorSource::aConnectionThatIsCut()
{
    ServerRelay relay(m_server->port());
    Told screen(
        address().replace(QString::number(m_server->port()), QString::number(relay.port())));
    QTRY_COMPARE(screen.count(), 1);
    Desk desk(address());
    for (int programs = 1; programs < 4; ++programs) {
        relay.cut();
        QVERIFY(desk.import(programs));
        QTRY_COMPARE_WITH_TIMEOUT(screen.count(), programs + 1, kPatience);
        QCOMPARE(screen.last().catalogue->programs.size(), static_cast<std::size_t>(programs));
    }
}

void tst_MirrorSource::anotherScheduleInItsPlace()
{
    Desk desk(address());
    QVERIFY(desk.import(2));
    QVERIFY(desk.save(1));
    QVERIFY(desk.start());
    Told screen(address());
    QTRY_COMPARE(screen.count(), 1);
    const QString former = screen.last().to.identity;
    QVERIFY(tearDown());
    QVERIFY(setUp());
    Desk other(address());
    QVERIFY(other.import(1));
    QTRY_COMPARE_WITH_TIMEOUT(screen.count(), 2, kPatience);
    QVERIFY(screen.last().isWhole());
    QVERIFY(screen.last().to.identity != former);
    QVERIFY(!screen.last().effect->start);
    QCOMPARE(screen.last().catalogue->programs.size(), std::size_t(1));
}

void tst_MirrorSource::whatWasNotTakenComesAgain()
{
    Desk desk(address());
    QVERIFY(desk.import(2));
    Told screen(address());
    QTRY_COMPARE(screen.count(), 1);
    screen.source.restart(MirrorState());
    QTRY_COMPARE(screen.count(), 2);
    QVERIFY(screen.last().isWhole());
    QVERIFY(screen.last().to == screen.news[0]->to);
}

void tst_MirrorSource::aLossIsToldOnce()
{
    QVERIFY(tearDown());
    Told screen(address());
    QTRY_COMPARE(screen.losses.size(), std::size_t(1));
    // Tried several times until then.
    QVERIFY(setUp());
    QTRY_COMPARE_WITH_TIMEOUT(screen.finds, 1, kPatience);
    QCOMPARE(screen.losses.size(), std::size_t(1));
}

TREL_TEST(tst_MirrorSource, QCoreApplication)
#include "tst_MirrorSource.moc"
