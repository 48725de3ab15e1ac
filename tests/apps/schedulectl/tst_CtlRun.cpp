#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

#include <csignal>
#include <cstdio>

using namespace trel::mediadispatch;

/// The command run, as a program that goes on by itself.
class tst_CtlRun : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void endsCleanlyOnASignal_data();
    void endsCleanlyOnASignal();
    void tellsEventsInOrder();
    void noticesFilesThatComeAndGo();
    void takesOverWhatOthersSave();
    void otherWritesChangeNothing();
    void playsOnWhileTheDatabaseIsGone();
    void takesOverAnotherDatabase();

private:
    void import(const QString& source) const;

    QSharedPointer<CtlFixture> m_fixture;
};

namespace {

constexpr int kPatience = 60000; // milliseconds

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '));
}

/// The program runs on after a failure otherwise.
struct Run
{
    QProcess process;

    ~Run()
    {
        process.kill();
        process.waitForFinished();
    }

    QByteArray line()
    {
        while (!process.canReadLine() && process.waitForReadyRead(kPatience)) {
        }
        return process.readLine();
    }

    /// Reads the standard error up to a line that ends so.
    bool hasTold(const QString& end)
    {
        const auto isTold = [&] {
            m_told += QString::fromUtf8(process.readAllStandardError());
            return m_told.contains(end + QLatin1Char('\n'));
        };
        return QTest::qWaitFor(isTold, kPatience);
    }

    QJsonObject event() { return QJsonDocument::fromJson(line()).object(); }

private:
    QString m_told;
};

/// Plays all day on every day there is.
CtlFixture::Schedule allDay(const std::vector<struProgInfo>& programs)
{
    PlayPlan plan = timePlan(1, "00:00:00", "23:59:59", "", 1);
    plan.programs = programs;
    plan.endAction = FreezeCurrentFrame;
    PlayTask task = januaryTask(1, {plan});
    task.startDate = "2000.01.01";
    task.endDate = "2999.12.31";
    return {{1, task}};
}

} // namespace

void tst_CtlRun::init()
{
    m_fixture = QSharedPointer<CtlFixture>::create();
    import(QStringLiteral("rtsp://host/first"));
    import(QStringLiteral("rtsp://host/second"));
}

void tst_CtlRun::import(const QString& source) const
{
    QCOMPARE(m_fixture->onDatabase({QStringLiteral("import"), source}).status, 0);
}

void tst_CtlRun::endsCleanlyOnASignal_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("interrupted") << SIGINT;
    QTest::newRow("told to terminate") << SIGTERM;
}

void tst_CtlRun::endsCleanlyOnASignal()
{
    QFETCH(int, number);
    m_fixture->store({});
    Run run;
    m_fixture->start(run.process, words("run"));
    const QString line = QString::fromUtf8(run.line());
    QVERIFY2(
        line.endsWith(QStringLiteral("  black screen until further notice. No plan has started "
                                     "yet.\n")),
        qPrintable(line));
    QCOMPARE(::kill(static_cast<pid_t>(run.process.processId()), number), 0);
    QVERIFY(run.process.waitForFinished(kPatience));
    QCOMPARE(run.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(run.process.exitCode(), 0);
    QCOMPARE(run.process.readAllStandardOutput(), QByteArray());
    QCOMPARE(run.process.readAllStandardError(), QByteArray());
}

void tst_CtlRun::tellsEventsInOrder()
{
    m_fixture->writeClip(QStringLiteral("a.wav"), 300);
    m_fixture->writeClip(QStringLiteral("b.wav"), 200);
    import(QStringLiteral("a.wav"));
    import(QStringLiteral("b.wav"));
    m_fixture->store(allDay({{3, false, "a", 1}, {4, false, "b", 2}}));
    Run run;
    m_fixture->start(run.process, words("run --json"));
    QString since;
    QString until;
    for (int i = 0; i < 8; ++i) {
        const QJsonObject event = run.event();
        QVERIFY(event.contains(QStringLiteral("since")));
        QVERIFY2(event[QStringLiteral("since")].toString() > since, qPrintable(since));
        QVERIFY(event[QStringLiteral("moment")].toString() >=
                event[QStringLiteral("since")].toString());
        since = event[QStringLiteral("since")].toString();
        if (event[QStringLiteral("screen")] == QStringLiteral("playing")) {
            QCOMPARE(event[QStringLiteral("name")].toString(), event[QStringLiteral("entry")] == 1
                                                                   ? QStringLiteral("a")
                                                                   : QStringLiteral("b"));
        }
    }
    run.process.terminate();
    QVERIFY(run.process.waitForFinished(kPatience));
    QCOMPARE(run.process.exitCode(), 0);
}

void tst_CtlRun::noticesFilesThatComeAndGo()
{
    m_fixture->writeClip(QStringLiteral("media/a.wav"), 60000);
    import(QStringLiteral("media/a.wav"));
    m_fixture->store(allDay({{3, false, "a", 1}}));
    Run run;
    m_fixture->start(run.process, words("run --json"));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(3));
    for (int round = 0; round < 2; ++round) {
        QVERIFY(QDir(m_fixture->path(QStringLiteral("media"))).removeRecursively());
        QJsonObject event = run.event();
        if (event[QStringLiteral("reason")] == QStringLiteral("planPlays")) {
            // At a full minute the clip begins anew.
            event = run.event();
        }
        QCOMPARE(event[QStringLiteral("reason")].toString(), QStringLiteral("planHasNothing"));
        m_fixture->writeClip(QStringLiteral("media/a.wav"), 60000);
        QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(3));
    }
    run.process.terminate();
    QVERIFY(run.process.waitForFinished(kPatience));
    QCOMPARE(run.process.exitCode(), 0);
    QCOMPARE(run.process.readAllStandardError(), QByteArray());
}

void tst_CtlRun::takesOverWhatOthersSave()
{
    m_fixture->store(allDay({{1, false, "first", 1}}));
    Run run;
    m_fixture->start(run.process, words("run --json"));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(1));
    m_fixture->store(allDay({{2, false, "second", 1}}));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(2));
    QCOMPARE(m_fixture->onDatabase(words("remove-program 2")).status, 0);
    QCOMPARE(run.event()[QStringLiteral("reason")].toString(), QStringLiteral("planHasNothing"));
    m_fixture->store({});
    QCOMPARE(run.event()[QStringLiteral("reason")].toString(), QStringLiteral("noPlanYet"));
    run.process.terminate();
    QVERIFY(run.process.waitForFinished(kPatience));
    QCOMPARE(run.process.exitCode(), 0);
}

/// A catalogue that grows is no event, and neither is a save of the same schedule.
void tst_CtlRun::otherWritesChangeNothing()
{
    m_fixture->store(allDay({{1, false, "first", 1}}));
    Run run;
    m_fixture->start(run.process, words("run --json"));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(1));
    import(QStringLiteral("rtsp://host/third"));
    m_fixture->store(allDay({{1, false, "first", 1}}));
    m_fixture->store(allDay({{3, false, "third", 1}}));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(3));
}

void tst_CtlRun::playsOnWhileTheDatabaseIsGone()
{
    m_fixture->writeClip(QStringLiteral("a.wav"), 300);
    import(QStringLiteral("a.wav"));
    m_fixture->store(allDay({{3, false, "a", 1}}));
    const QString database = m_fixture->database();
    Run run;
    m_fixture->start(run.process, words("run --json"));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(3));
    const QString aside = m_fixture->path(QStringLiteral("aside.db"));
    QVERIFY(QFile::rename(database, aside));
    QVERIFY(run.hasTold(QStringLiteral("schedulectl: %1 does not exist. What was read before goes "
                                       "on; the file is tried again every two seconds.")
                            .arg(database)));
    run.process.readAllStandardOutput();
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(3));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(3));
    QVERIFY(QFile::rename(aside, database));
    QVERIFY(run.hasTold(QStringLiteral("schedulectl: %1 is read again.").arg(database)));
    m_fixture->store(allDay({{1, false, "first", 1}}));
    QJsonValue program;
    while (program != QJsonValue(1)) {
        program = run.event()[QStringLiteral("program")];
        QVERIFY(program.isDouble());
    }
    run.process.terminate();
    QVERIFY(run.process.waitForFinished(kPatience));
    QCOMPARE(run.process.exitCode(), 0);
}

void tst_CtlRun::takesOverAnotherDatabase()
{
    const QString database = m_fixture->database();
    const QString other = m_fixture->path(QStringLiteral("other.db"));
    m_fixture->store(allDay({{2, false, "second", 1}}));
    QVERIFY(QFile::copy(database, other));
    m_fixture->store(allDay({{1, false, "first", 1}}));
    Run run;
    m_fixture->start(run.process, words("run --json"));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(1));
    QCOMPARE(std::rename(qPrintable(other), qPrintable(database)), 0);
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(2));
    QVERIFY(run.hasTold(QStringLiteral("1 task with 1 plan play now.")));
    // The new file is watched like the former one.
    m_fixture->store(allDay({{1, false, "first", 1}}));
    QCOMPARE(run.event()[QStringLiteral("program")], QJsonValue(1));
    run.process.terminate();
    QVERIFY(run.process.waitForFinished(kPatience));
    QCOMPARE(run.process.exitCode(), 0);
}

TREL_TEST(tst_CtlRun, QCoreApplication)
#include "tst_CtlRun.moc"
