#include "CtlFixture.h"
#include "support/NumberedClip.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The real player beside the real console, on a real store.
class tst_PlayerProgram : public QObject
{
    Q_OBJECT

private slots:
    void playsWhatIsStarted();
    void insertionsOfOthers();
    void aStoreThatComesLater();
    void aSecondPlayerForTheScreen();
    void aSecondPlayerWhoseEndHangs();
    void endsWithinASecond();
    void endsWithinASecondWhereItsLogHangs();
    void playsOnWithoutAReaderOfItsLog();
    void comesBackAfterAKill();
    void tellsWhatItHadLoadedAtASuddenEnd();
    void playsWithoutAFolderForItsStatus();
    void tellsTheManagerOfServices();
    void aStoreThatIsTakenAway();
    void aFileThatIsBroken();
    void aStandByPictureThatIsNone();
    void misuseAndNoDisplay();
};

namespace {

constexpr int kPatience = 20000; // milliseconds, for programs that start on a busy machine

/// A store with two films of two and three seconds, of which the first plays round and round.
class Fixture : public CtlFixture
{
public:
    Fixture()
    {
        for (const int program : {1, 2}) {
            media::ClipOrder order;
            order.program = program;
            order.frames = 25 * (program + 1);
            QVERIFY(media::makeClip(film(program), order));
        }
        ctl({QStringLiteral("import"), film(1), film(2)});
        trel::mediadispatch::PlayTask task;
        task.id = 1;
        task.startDate = "2000.01.01";
        task.endDate = "2099.12.31";
        task.plans = {timePlan(1, "00:00:00", "23:59:59", "", 1)};
        store({{1, task}});
        ctl({QStringLiteral("start")});
    }

    QString film(int program) const { return path(QStringLiteral("film%1.mp4").arg(program)); }
    void ctl(const QStringList& arguments) const
    {
        const CtlResult result = onDatabase(arguments);
        QVERIFY2(result.status == 0, qPrintable(result.err));
    }
};

QJsonObject screenOf(const CtlFixture& fixture)
{
    const CtlResult result =
        fixture.onDatabase({QStringLiteral("screens"), QStringLiteral("--json")});
    return result.json().value(QLatin1String("screens")).toArray().at(0).toObject();
}

/// The name of the program that the player tells of; empty for none.
QString shownBy(const CtlFixture& fixture)
{
    return screenOf(fixture)
        .value(QLatin1String("shows"))
        .toObject()
        .value(QLatin1String("name"))
        .toString();
}

class PlayerProcess
{
public:
    explicit PlayerProcess(const CtlFixture& fixture, const QStringList& options = {},
                           const QProcessEnvironment& given = environment())
    {
        m_process.setProcessEnvironment(given);
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(QStringLiteral(SCHEDULE_PLAYER),
                        QStringList({QStringLiteral("--database"), fixture.database(),
                                     QStringLiteral("--screen"), QStringLiteral("lobby"),
                                     QStringLiteral("--mute"), QStringLiteral("--window")}) +
                            options);
        m_process.waitForStarted();
    }
    ~PlayerProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(PlayerProcess)

    static QProcessEnvironment environment()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        return environment;
    }

    QString log()
    {
        m_log += QString::fromUtf8(m_process.readAllStandardError());
        return m_log;
    }
    QProcess& process() { return m_process; }
    void stop(int signal) { ::kill(static_cast<pid_t>(m_process.processId()), signal); }

private:
    QProcess m_process;
    QString m_log;
};

} // namespace

void tst_PlayerProgram::playsWhatIsStarted()
{
    const Fixture fixture;
    PlayerProcess player(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    const QJsonObject screen = screenOf(fixture);
    QCOMPARE(screen.value(QLatin1String("screen")).toString(), QStringLiteral("lobby"));
    QCOMPARE(screen.value(QLatin1String("silent")).toBool(), false);
    QVERIFY(
        screen.value(QLatin1String("player"))
            .toString()
            .startsWith(QStringLiteral("schedule-player %1@").arg(player.process().processId())));
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("plays \"film1\" (task 1, row 1, "
                                                                  "plan 1)")),
                             kPatience);
    // What plays changes nothing in the store.
    QCOMPARE(fixture.onDatabase({QStringLiteral("check")}).status, 0);
}

void tst_PlayerProgram::insertionsOfOthers()
{
    const Fixture fixture;
    PlayerProcess player(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    fixture.ctl({QStringLiteral("insert"), QStringLiteral("2")});
    QTRY_VERIFY_WITH_TIMEOUT(
        player.log().contains(QStringLiteral("plays \"film2\" (task 1, row 1, plan 1, inserted)")),
        kPatience);
    fixture.ctl({QStringLiteral("stop")});
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("black screen")), kPatience);
}

void tst_PlayerProgram::aStoreThatComesLater()
{
    const CtlFixture empty;
    PlayerProcess player(empty);
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("the file is tried again")),
                             kPatience);
    const Fixture full;
    QVERIFY(QFile::copy(full.database(), empty.database()));
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(empty), QStringLiteral("film1"), kPatience);
    QVERIFY(player.log().contains(QStringLiteral("is read again")));
}

void tst_PlayerProgram::aSecondPlayerForTheScreen()
{
    const Fixture fixture;
    PlayerProcess first(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    PlayerProcess second(fixture);
    QVERIFY(second.process().waitForFinished(kPatience));
    QCOMPARE(second.process().exitCode(), 1);
    QVERIFY2(
        second.log().contains(QStringLiteral("Another player shows the screen \"lobby\" of this "
                                             "schedule: process %1 on ")
                                  .arg(first.process().processId())),
        qPrintable(second.log()));
    QCOMPARE(first.process().state(), QProcess::Running);
    PlayerProcess third(fixture, {QStringLiteral("--screen"), QStringLiteral("bar")});
    QTRY_VERIFY_WITH_TIMEOUT(third.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
}

/// Something in it does not come to its end, as a driver that is taken down may not.
void tst_PlayerProgram::aSecondPlayerWhoseEndHangs()
{
    const Fixture fixture;
    PlayerProcess first(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    QProcessEnvironment environment = PlayerProcess::environment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(HANGING_END));
    // It comes before the sanitizer's own library, where there is one.
    environment.insert(QStringLiteral("ASAN_OPTIONS"),
                       QStringLiteral("verify_asan_link_order=0:detect_leaks=0"));
    PlayerProcess second(fixture, {}, environment);
    QVERIFY(second.process().waitForFinished(kPatience));
    QVERIFY(second.log().contains(QStringLiteral("Another player shows the screen")));
    QCOMPARE(second.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.process().exitCode(), 1);
}

void tst_PlayerProgram::endsWithinASecond()
{
    const Fixture fixture;
    PlayerProcess player(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    QElapsedTimer timer;
    timer.start();
    player.stop(SIGTERM);
    QVERIFY(player.process().waitForFinished(kPatience));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(player.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(player.process().exitCode(), 0);
    QVERIFY(player.log().endsWith(QStringLiteral("  ends\n")));
    QVERIFY(screenOf(fixture).isEmpty());
}

/// Nothing reads its log.
void tst_PlayerProgram::endsWithinASecondWhereItsLogHangs()
{
    const Fixture fixture;
    const QByteArray pipe = QFile::encodeName(fixture.path(QStringLiteral("log")));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    const int end = ::open(pipe.constData(), O_RDWR | O_NONBLOCK);
    QVERIFY(end >= 0);
    QProcess player;
    player.setProcessEnvironment(PlayerProcess::environment());
    player.setStandardErrorFile(fixture.path(QStringLiteral("log")));
    player.start(QStringLiteral(SCHEDULE_PLAYER),
                 {QStringLiteral("--database"), fixture.database(), QStringLiteral("--screen"),
                  QStringLiteral("lobby"), QStringLiteral("--mute"), QStringLiteral("--window")});
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    // Full, so that the next line hangs.
    const QByteArray line(4096, 'x');
    while (::write(end, line.constData(), static_cast<std::size_t>(line.size())) > 0) {
    }
    fixture.ctl({QStringLiteral("insert"), QStringLiteral("2")});
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film2"), kPatience);
    QElapsedTimer timer;
    timer.start();
    player.terminate();
    QVERIFY(player.waitForFinished(kPatience));
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(player.exitStatus(), QProcess::NormalExit);
    QCOMPARE(player.exitCode(), 0);
    ::close(end);
}

void tst_PlayerProgram::playsOnWithoutAReaderOfItsLog()
{
    const Fixture fixture;
    PlayerProcess player(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    player.process().closeReadChannel(QProcess::StandardError);
    fixture.ctl({QStringLiteral("insert"), QStringLiteral("2")});
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film2"), kPatience);
    fixture.ctl({QStringLiteral("stop")});
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QString(), kPatience);
    QCOMPARE(player.process().state(), QProcess::Running);
}

void tst_PlayerProgram::comesBackAfterAKill()
{
    const Fixture fixture;
    {
        PlayerProcess player(fixture);
        QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
        player.stop(SIGKILL);
        QVERIFY(player.process().waitForFinished(kPatience));
    }
    // What it told stays, and says by its moment that it is no longer heard.
    QCOMPARE(shownBy(fixture), QStringLiteral("film1"));
    PlayerProcess again(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(again.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
}

void tst_PlayerProgram::tellsWhatItHadLoadedAtASuddenEnd()
{
    const Fixture fixture;
    for (int turn = 0; turn < 2; ++turn) {
        PlayerProcess player(fixture);
        QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("plays \"film1\"")),
                                 kPatience);
        player.stop(SIGKILL);
        QVERIFY(player.process().waitForFinished(kPatience));
    }
    PlayerProcess again(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(again.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
    QVERIFY2(again.log().contains(
                 QStringLiteral("the player before this one ended without notice, 2 times in a "
                                "row; it had loaded \"%1\"")
                     .arg(fixture.film(1))),
             qPrintable(again.log()));
    again.stop(SIGTERM);
    QVERIFY(again.process().waitForFinished(kPatience));
    PlayerProcess last(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(last.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
    QVERIFY(!last.log().contains(QStringLiteral("without notice")));
}

void tst_PlayerProgram::playsWithoutAFolderForItsStatus()
{
    const Fixture fixture;
    // A file in the place of the folder, which keeps the administrator out as well.
    fixture.writeFile(QStringLiteral("test.db-screens"), "x");
    PlayerProcess player(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(
        player.log().contains(QStringLiteral("\"schedulectl screens\" does not hear of this")),
        kPatience);
    // Its name is taken all the same.
    PlayerProcess second(fixture);
    QVERIFY(second.process().waitForFinished(kPatience));
    QVERIFY(second.log().contains(QStringLiteral("Another player shows the screen")));
}

void tst_PlayerProgram::tellsTheManagerOfServices()
{
    const Fixture fixture;
    QProcess player;
    QProcessEnvironment environment = PlayerProcess::environment();
    // The tool of the manager's own package would do as well, where it is installed.
    const QString socket = fixture.path(QStringLiteral("notify"));
    environment.insert(QStringLiteral("NOTIFY_SOCKET"), socket);
    environment.insert(QStringLiteral("WATCHDOG_USEC"), QStringLiteral("400000"));
    player.setProcessEnvironment(environment);
    QProcess manager;
    manager.start(QStringLiteral("python3"),
                  {QStringLiteral("-c"),
                   QStringLiteral("import socket,sys\n"
                                  "s=socket.socket(socket.AF_UNIX,socket.SOCK_DGRAM)\n"
                                  "s.bind(sys.argv[1]); print('bound',flush=True)\n"
                                  "while True: print(s.recv(4096).decode(),flush=True)\n"),
                   socket});
    QByteArray heard;
    const auto hears = [&](const char* words) {
        manager.waitForReadyRead(100);
        heard += manager.readAllStandardOutput();
        return heard.contains(words);
    };
    QTRY_VERIFY_WITH_TIMEOUT(hears("bound"), kPatience);
    player.start(QStringLiteral(SCHEDULE_PLAYER),
                 {QStringLiteral("--database"), fixture.database(), QStringLiteral("--mute")});
    QTRY_VERIFY_WITH_TIMEOUT(hears("READY=1"), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(hears("STATUS=plays \"film1\""), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(hears("WATCHDOG=1"), kPatience);
    player.terminate();
    QTRY_VERIFY_WITH_TIMEOUT(hears("STOPPING=1"), kPatience);
    QVERIFY(player.waitForFinished(kPatience));
    manager.kill();
    QVERIFY(manager.waitForFinished(kPatience));
}

void tst_PlayerProgram::aStoreThatIsTakenAway()
{
    const Fixture fixture;
    PlayerProcess player(fixture);
    QTRY_COMPARE_WITH_TIMEOUT(shownBy(fixture), QStringLiteral("film1"), kPatience);
    const QString aside = fixture.path(QStringLiteral("aside.db"));
    QVERIFY(QFile::rename(fixture.database(), aside));
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("What was read before goes on")),
                             kPatience);
    const int plays = player.log().count(QStringLiteral("plays \"film1\""));
    QTRY_VERIFY_WITH_TIMEOUT(player.log().count(QStringLiteral("plays \"film1\"")) > plays,
                             kPatience);
    QVERIFY(QFile::rename(aside, fixture.database()));
    fixture.ctl({QStringLiteral("stop")});
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("black screen")), kPatience);
}

void tst_PlayerProgram::aFileThatIsBroken()
{
    const Fixture fixture;
    QFile::remove(fixture.film(1));
    fixture.writeFile(QStringLiteral("film1.mp4"), QByteArray(5000, 'x'));
    PlayerProcess player(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(
        player.log().contains(QStringLiteral("cannot show \"film1\": It cannot be decoded.")),
        kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(screenOf(fixture).value(QLatin1String("standIn")).toBool(), kPatience);
    // It is tried again for as long as its time lasts, and comes by itself.
    QVERIFY(QFile::rename(fixture.film(2), fixture.film(1) + QLatin1Char('~')));
    QFile::remove(fixture.film(1));
    QVERIFY(QFile::rename(fixture.film(1) + QLatin1Char('~'), fixture.film(1)));
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(!screenOf(fixture).value(QLatin1String("standIn")).toBool(),
                             kPatience);
    QVERIFY(screenOf(fixture).value(QLatin1String("faults")).toInt() > 0);
    QVERIFY(screenOf(fixture)
                .value(QLatin1String("lastFault"))
                .toString()
                .startsWith(QStringLiteral("\"film1\": It cannot be decoded.")));
}

void tst_PlayerProgram::aStandByPictureThatIsNone()
{
    const Fixture fixture;
    PlayerProcess player(fixture, {QStringLiteral("--standby"), fixture.database()});
    QTRY_VERIFY_WITH_TIMEOUT(
        player.log().contains(QStringLiteral("the stand-by picture cannot be read")), kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("plays \"film1\"")), kPatience);
}

void tst_PlayerProgram::misuseAndNoDisplay()
{
    QProcess player;
    player.start(QStringLiteral(SCHEDULE_PLAYER), {QStringLiteral("--loud")});
    QVERIFY(player.waitForFinished(kPatience));
    QCOMPARE(player.exitCode(), 2);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environment.remove(QLatin1String(name));
    }
    player.setProcessEnvironment(environment);
    player.start(QStringLiteral(SCHEDULE_PLAYER), {});
    QVERIFY(player.waitForFinished(kPatience));
    QCOMPARE(player.exitStatus(), QProcess::NormalExit);
    QCOMPARE(player.exitCode(), 1);
    QVERIFY(player.readAllStandardError().contains("There is no display"));
}

QTEST_GUILESS_MAIN(tst_PlayerProgram)
#include "tst_PlayerProgram.moc"
