#include "TaskSets.h"
#include "faults/FaultWords.h"
#include "store/ScheduleDatabase.h"
#include "store/StorePlace.h"
#include "store/postgres/PostgresConnection.h"
#include "store/postgres/PostgresSetup.h"
#include "store/postgres/PostgresWords.h"
#include "support/PostgresServer.h"
#include "support/SampleSchedule.h"
#include "support/ServerRelay.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QtTest>

#include <memory>

using namespace trel::mediadispatch;

namespace {

const QString kName = QStringLiteral("hall");

StorePlace placeOf(const PostgresServer& server, const QString& name = kName)
{
    return StorePlace(server.address(name));
}

/// A desk that saves one schedule after the other.
class Desk
{
public:
    explicit Desk(const StorePlace& place)
    {
        const StoreResult opened = m_database.open(place.text(), StoreOpenMode::MustExist);
        [&opened] { QVERIFY2(opened, qPrintable(englishText(opened))); }();
    }

    StoreResult save()
    {
        TaskMap next = sampleSchedule(1, 1, 0, ++m_generation);
        StoreResult result = m_database.writeTasks(next, editsBetween(m_saved, next), m_revision);
        if (result) {
            m_saved = std::move(next);
        }
        return result;
    }
    /// As one that has not seen the last save.
    StoreResult saveLate()
    {
        qint64 former = m_revision - 1;
        const TaskMap next = sampleSchedule(1, 1, 0, ++m_generation);
        return m_database.writeTasks(next, editsBetween(m_saved, next), former);
    }
    ScheduleDatabase& database() { return m_database; }

private:
    ScheduleDatabase m_database;
    TaskMap m_saved;
    qint64 m_revision = 0;
    int m_generation = 0;
};

/// A connection that listens, as a screen's.
class Listener
{
public:
    explicit Listener(const StorePlace& place)
        : connection(place, PostgresConnection::Access::ReadOnly)
    {
        connection.listen([this] { ++heard; });
    }
    Q_DISABLE_COPY(Listener)

    /// Something to ask, which makes the connection again where it has gone.
    void ask() const
    {
        StoreTransaction transaction(connection, StorePurpose::Read);
        connection.value(QStringLiteral("SELECT schedule_revision FROM store"));
        transaction.commit();
    }

    int heard = 0;
    PostgresConnection connection;
};

} // namespace

/// That changes of a schedule on a server are told to those who listen.
class tst_PostgresNotices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void eachChangeIsTold();
    void whatIsRefusedIsNotTold();
    void otherSchedulesAreNotTold();
    void anyNameCanBeListenedTo();
    void screensMayListen();
    void whatIsToldAmidAReadingIsHeard();
    void aRestartIsSeenWithoutAsking();
    void aConnectionThatWasCutIsSeen();
    void channelsAreApart();

private:
    std::unique_ptr<PostgresServer> m_server;
};

void tst_PostgresNotices::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY(m_server->isRunning());
}

void tst_PostgresNotices::init()
{
    if (!m_server->isRunning()) {
        QVERIFY(m_server->start());
    }
    QVERIFY(PostgresSetup::run(placeOf(*m_server)));
}

void tst_PostgresNotices::cleanup()
{
    if (!m_server->isRunning()) {
        QVERIFY(m_server->start());
    }
    QVERIFY(
        !m_server->run(QStringLiteral("DROP SCHEMA trel_schedule_%1 CASCADE").arg(kName)).isNull());
}

void tst_PostgresNotices::eachChangeIsTold()
{
    Listener screen(placeOf(*m_server));
    Desk desk(placeOf(*m_server));
    QVERIFY(desk.save());
    QTRY_COMPARE(screen.heard, 1);
    StoredEffect effect;
    QVERIFY(desk.database().startEffect({}, effect));
    QTRY_COMPARE(screen.heard, 2);
    StoreContents contents;
    QVERIFY(desk.database().addPrograms(samplePrograms(1), contents).store);
    QTRY_COMPARE(screen.heard, 3);
    ScreenInsertions none;
    QVERIFY(desk.database().writeInsertions(none, effect.revision));
    QTRY_COMPARE(screen.heard, 4);
    QVERIFY(desk.database().stopEffect(effect));
    QTRY_COMPARE(screen.heard, 5);
}

void tst_PostgresNotices::whatIsRefusedIsNotTold()
{
    Listener screen(placeOf(*m_server));
    Desk desk(placeOf(*m_server));
    QVERIFY(desk.save());
    QTRY_COMPARE(screen.heard, 1);
    QCOMPARE(desk.saveLate().problem, StoreProblem::MovedOn);
    StoreContents contents;
    QVERIFY(desk.database().read(StorePart::Both, contents));
    // The next one that is told comes right after the first.
    QVERIFY(desk.save());
    QTRY_COMPARE(screen.heard, 2);
    screen.ask();
    QCoreApplication::processEvents();
    QCOMPARE(screen.heard, 2);
}

void tst_PostgresNotices::otherSchedulesAreNotTold()
{
    const StorePlace other = placeOf(*m_server, QStringLiteral("foyer"));
    QVERIFY(PostgresSetup::run(other));
    Listener screen(placeOf(*m_server));
    Desk elsewhere(other);
    QVERIFY(elsewhere.save());
    Desk desk(placeOf(*m_server));
    QVERIFY(desk.save());
    QTRY_VERIFY(screen.heard > 0);
    screen.ask();
    QCoreApplication::processEvents();
    QCOMPARE(screen.heard, 1);
    QVERIFY(!m_server->run(QStringLiteral("DROP SCHEMA trel_schedule_foyer CASCADE")).isNull());
}

void tst_PostgresNotices::anyNameCanBeListenedTo()
{
    for (const char* const name : {"North hall", "a.b", "\"'; NOTIFY x; --", "大厅", "x%1$$"}) {
        const StorePlace place = placeOf(*m_server, QString::fromUtf8(name));
        QVERIFY2(place.flaw() == StorePlace::Flaw::None, name);
        QVERIFY2(PostgresSetup::run(place), name);
        Listener screen(place);
        Desk desk(place);
        QVERIFY2(desk.save(), name);
        QTRY_COMPARE(screen.heard, 1);
    }
}

void tst_PostgresNotices::screensMayListen()
{
    QVERIFY(
        !m_server->run(QStringLiteral("CREATE ROLE lobby LOGIN IN ROLE schedule_screen")).isNull());
    Listener screen(StorePlace(m_server->address(kName, QStringLiteral("lobby"))));
    Desk desk(placeOf(*m_server));
    QVERIFY(desk.save());
    QTRY_COMPARE(screen.heard, 1);
}

void tst_PostgresNotices::whatIsToldAmidAReadingIsHeard()
{
    Listener screen(placeOf(*m_server));
    Desk desk(placeOf(*m_server));
    {
        StoreTransaction transaction(screen.connection, StorePurpose::Read);
        screen.connection.value(QStringLiteral("SELECT schedule_revision FROM store"));
        QVERIFY(desk.save());
        screen.connection.value(QStringLiteral("SELECT schedule_revision FROM store"));
        transaction.commit();
    }
    QTRY_COMPARE(screen.heard, 1);
}

void tst_PostgresNotices::aRestartIsSeenWithoutAsking()
{
    Listener screen(placeOf(*m_server));
    QVERIFY(screen.connection.isConnected());
    m_server->stop();
    QTRY_VERIFY(!screen.connection.isConnected());
    QVERIFY(m_server->start());
    QVERIFY(!screen.connection.isConnected());
    Desk desk(placeOf(*m_server));
    // Nobody listens yet.
    QVERIFY(desk.save());
    screen.ask();
    QVERIFY(screen.connection.isConnected());
    QVERIFY(desk.save());
    QTRY_COMPARE(screen.heard, 1);
}

void tst_PostgresNotices::aConnectionThatWasCutIsSeen()
{
    ServerRelay relay(m_server->port());
    QString address = m_server->address(kName);
    address.replace(QString::number(m_server->port()), QString::number(relay.port()));
    Listener screen{StorePlace(address)};
    QVERIFY(screen.connection.isConnected());
    relay.cut();
    QTRY_VERIFY(!screen.connection.isConnected());
    screen.ask();
    QVERIFY(screen.connection.isConnected());
    Desk desk(placeOf(*m_server));
    QVERIFY(desk.save());
    QTRY_COMPARE(screen.heard, 1);
}

void tst_PostgresNotices::channelsAreApart()
{
    const QString one = postgresChannel(QStringLiteral("trel_schedule_a"));
    const QString other = postgresChannel(QStringLiteral("trel_schedule_A"));
    QVERIFY(one != other);
    // The server cuts longer names.
    constexpr int longest = 63;
    QVERIFY(one.size() <= longest);
    QVERIFY(!one.contains(QLatin1Char('.')));
}

TREL_TEST(tst_PostgresNotices, QCoreApplication)
#include "tst_PostgresNotices.moc"
