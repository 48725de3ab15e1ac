#include "clock/Clock.h"
#include "support/PostgresServer.h"
#include "support/SampleSchedule.h"
#include "support/TestClock.h"
#include "trelprogramschedule/ScheduleHost.h"
#include "trelprogramschedule/catalogue/ProgramImporter.h"
#include "trelprogramschedule/faults/FaultWords.h"
#include "trelprogramschedule/store/StoreEngines.h"
#include "trelscreen/MirrorFeed.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <vector>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

constexpr int kPatience = 30000; // milliseconds, where a server is started

/// The desk, which is this process's one service.
class Desk
{
public:
    explicit Desk(const QString& address)
    {
        const StoreResult opened = m_host.open(address);
        [&opened] { QVERIFY2(opened, qPrintable(englishText(opened))); }();
    }
    ~Desk() { m_host.close(); }
    Q_DISABLE_COPY(Desk)

    /// Puts a schedule into effect that is told by the number of its tasks.
    void start(int tasks)
    {
        const StoreResult saved = m_host.replaceSchedule(sampleSchedule(tasks, 1, 0, tasks));
        const StoreResult started = m_host.startSchedule();
        [&] { QVERIFY2(saved && started, qPrintable(englishText(saved ? started : saved))); }();
    }

private:
    ScheduleHost& m_host = ScheduleHost::instance();
};

/// The feed of a screen, in this thread, and everything that it told.
class Fed
{
public:
    Fed(const QString& address, const QString& mirror, const QString& media = {})
        : m_feed({address, media, 0}, mirror)
    {
        QObject::connect(&m_feed, &ScreenFeed::changed, &m_context,
                         [this](const ScreenSchedule& schedule) { told.push_back(schedule); });
        QObject::connect(&m_feed, &ScreenFeed::lost, &m_context,
                         [this](const StoreResult& reason) { losses.push_back(reason.problem); });
        QObject::connect(&m_feed, &ScreenFeed::found, &m_context, [this] { ++finds; });
        QObject::connect(&m_feed, &MirrorFeed::mediaFailed, &m_context,
                         [this](const QString& program, MediaTrouble trouble) {
                             failures.append(QStringLiteral("%1 %2").arg(
                                 program, QString::number(static_cast<int>(trouble))));
                         });
        m_feed.start();
    }
    ~Fed() { m_feed.stop(); }
    Q_DISABLE_COPY(Fed)

    const ScreenSchedule& last() const { return told.back(); }
    int tasks() const { return static_cast<int>(last().tasks->size()); }

    std::vector<ScreenSchedule> told;
    std::vector<StoreProblem> losses;
    int finds = 0;
    QStringList failures;

private:
    MirrorFeed m_feed;
    QObject m_context;
};

} // namespace

/// What a screen learns of a schedule on a server, by way of its mirror.
class tst_MirrorFeed : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void tellsAtOnceAndThenWhatThereIs();
    void changesComeOverWhileItPlays();
    void withoutAServerTheMirrorPlays();
    void whatWasDoneMeanwhileIsTakenOver();
    void aMirrorThatCannotBeWrittenIsTold();
    void theFolderOfAScheduleIsLeftAlone();
    void anotherZone();
    void mediaAreFetchedAndPlayedFromThere();
    void itEndsBeforeTheServerWasAsked();

private:
    QString address() const { return m_server->address(QStringLiteral("hall")); }
    QString mirror() const { return m_folder->filePath(QStringLiteral("mirror.db")); }

    std::unique_ptr<PostgresServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_MirrorFeed::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY(m_server->isRunning());
}

void tst_MirrorFeed::init()
{
    QVERIFY(setUpStore(address()));
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_MirrorFeed::cleanup()
{
    if (!m_server->isRunning()) {
        QVERIFY(m_server->start());
    }
    QVERIFY(!m_server->run(QStringLiteral("DROP SCHEMA trel_schedule_hall CASCADE")).isNull());
    m_folder.reset();
}

void tst_MirrorFeed::tellsAtOnceAndThenWhatThereIs()
{
    Desk(address()).start(2);
    const Fed fed(address(), mirror());
    QCOMPARE(fed.told.size(), std::size_t(1));
    QVERIFY(!fed.last().start);
    QCOMPARE(fed.tasks(), 0);
    QTRY_COMPARE(fed.tasks(), 2);
    QVERIFY(fed.last().start);
    QVERIFY(fed.losses.empty());
}

void tst_MirrorFeed::changesComeOverWhileItPlays()
{
    Desk desk(address());
    const Fed fed(address(), mirror());
    for (int tasks = 1; tasks < 5; ++tasks) {
        desk.start(tasks);
        QTRY_COMPARE(fed.tasks(), tasks);
    }
    // Each of them whole.
    for (const ScreenSchedule& schedule : fed.told) {
        const auto size = static_cast<int>(schedule.tasks->size());
        QVERIFY(*schedule.tasks == sampleSchedule(size, 1, 0, size) || size == 0);
    }
}

void tst_MirrorFeed::withoutAServerTheMirrorPlays()
{
    {
        Desk(address()).start(3);
        const Fed fed(address(), mirror());
        QTRY_COMPARE(fed.tasks(), 3);
    }
    m_server->stop();
    const Fed fed(address(), mirror());
    QCOMPARE(fed.told.size(), std::size_t(1));
    QCOMPARE(fed.tasks(), 3);
    QVERIFY(fed.last().start);
    QTRY_VERIFY_WITH_TIMEOUT(!fed.losses.empty(), kPatience);
    QCOMPARE(fed.tasks(), 3);
    QVERIFY(m_server->start());
    QTRY_COMPARE_WITH_TIMEOUT(fed.finds, 1, kPatience);
    QCOMPARE(fed.tasks(), 3);
}

void tst_MirrorFeed::whatWasDoneMeanwhileIsTakenOver()
{
    Desk desk(address());
    desk.start(1);
    const Fed fed(address(), mirror());
    QTRY_COMPARE(fed.tasks(), 1);
    m_server->stop();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.losses.empty(), kPatience);
    QVERIFY(m_server->start());
    desk.start(4);
    QTRY_COMPARE_WITH_TIMEOUT(fed.tasks(), 4, kPatience);
    QCOMPARE(fed.finds, 1);
}

void tst_MirrorFeed::aMirrorThatCannotBeWrittenIsTold()
{
    Desk desk(address());
    desk.start(1);
    const Fed fed(address(), mirror());
    QTRY_COMPARE(fed.tasks(), 1);
    const QFile::Permissions usual = QFile::permissions(mirror());
    QVERIFY(QFile::setPermissions(mirror(), QFile::ReadOwner | QFile::ReadUser));
    desk.start(2);
    QTRY_VERIFY(!fed.losses.empty());
    QCOMPARE(fed.losses.front(), StoreProblem::ReadOnly);
    // What is not in the mirror is not on the screen.
    QCOMPARE(fed.tasks(), 1);
    QVERIFY(QFile::setPermissions(mirror(), usual));
    QTRY_COMPARE_WITH_TIMEOUT(fed.tasks(), 2, kPatience);
    QCOMPARE(fed.finds, 1);
    QCOMPARE(fed.losses.size(), std::size_t(1));
}

void tst_MirrorFeed::theFolderOfAScheduleIsLeftAlone()
{
    {
        ScheduleHost& host = ScheduleHost::instance();
        QVERIFY(host.open(mirror()));
        QVERIFY(host.replaceSchedule(sampleSchedule(5, 1, 0)));
        host.close();
    }
    {
        Desk(address()).start(2);
        const Fed fed(address(), mirror());
        QVERIFY(!fed.losses.empty());
        QCOMPARE(fed.losses.front(), StoreProblem::Foreign);
        QCOMPARE(fed.tasks(), 0);
    }
    ScheduleHost& host = ScheduleHost::instance();
    QVERIFY(host.open(mirror()));
    QCOMPARE(host.workingSet().size(), std::size_t(5));
    host.close();
}

void tst_MirrorFeed::anotherZone()
{
    Desk(address()).start(2);
    const QDateTime berlin(QDate(2024, 1, 8), QTime(12, 0), QTimeZone("Europe/Berlin"));
    TestClock clock(berlin);
    const Fed fed(address(), mirror());
    QTRY_COMPARE(fed.tasks(), 2);
    const Instant noon = berlin.toMSecsSinceEpoch();
    QCOMPARE(fed.last().timeline->local(noon).time(), QTime(12, 0));
    clock.set(berlin.toTimeZone(QTimeZone("Asia/Tokyo")));
    QTRY_COMPARE(fed.last().timeline->local(noon).time(), QTime(20, 0));
}

void tst_MirrorFeed::mediaAreFetchedAndPlayedFromThere()
{
    const QByteArray film("a film");
    MediaSource source;
    source.name = QStringLiteral("film");
    source.path = QStringLiteral("/only/at/the/desk/film.mp4");
    source.durationMs = 1000;
    source.kind = ProgramKind::Video;
    source.content.size = film.size();
    source.content.sha256 = QCryptographicHash::hash(film, QCryptographicHash::Sha256).toHex();
    Desk desk(address());
    QVERIFY(ScheduleHost::instance().addPrograms({source}).store);
    std::map<int, PlayTask> tasks = sampleSchedule(1, 1, 1);
    tasks.at(1).endDate = "2099.12.31";
    QVERIFY(ScheduleHost::instance().replaceSchedule(tasks));
    QVERIFY(ScheduleHost::instance().startSchedule());
    const QString shared = m_folder->filePath(QStringLiteral("shared"));
    QVERIFY(QDir().mkpath(shared));

    const Fed fed(address(), mirror(), shared);
    QTRY_COMPARE(fed.tasks(), 1);
    QTRY_COMPARE(fed.failures, QStringList{QStringLiteral("film %1").arg(
                                   static_cast<int>(MediaTrouble::NotThere))});
    QTRY_VERIFY(fed.last().catalogue->at(1).isNull);
    QFile put(shared + QLatin1Char('/') + QString::fromLatin1(source.content.sha256));
    QVERIFY(put.open(QIODevice::WriteOnly));
    put.write(film);
    put.close();
    QTRY_VERIFY_WITH_TIMEOUT(!fed.last().catalogue->at(1).isNull, kPatience);
    QFile kept(QString::fromStdString(fed.last().catalogue->at(1).mediaPath));
    QVERIFY(kept.fileName().startsWith(m_folder->path()));
    QVERIFY(!kept.fileName().startsWith(shared));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), film);
}

void tst_MirrorFeed::itEndsBeforeTheServerWasAsked()
{
    const Fed fed(address(), mirror());
    QCOMPARE(fed.told.size(), std::size_t(1));
}

QTEST_GUILESS_MAIN(tst_MirrorFeed)
#include "tst_MirrorFeed.moc"
