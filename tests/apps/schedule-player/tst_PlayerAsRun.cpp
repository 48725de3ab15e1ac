#include "CtlFixture.h"
#include "support/NumberedClip.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

#include <csignal>
#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr int kPatience = 20000; // milliseconds, for programs that start on a busy machine
/// What a kill may cost.
constexpr qint64 kMostLost = 5000;
const QString kScreen = QStringLiteral("lobby");

/// A store with two films of 0.6 and 0.8 seconds, which play in turn round and round.
class Fixture : public CtlFixture
{
public:
    Fixture()
    {
        for (const int program : {1, 2}) {
            media::ClipOrder order;
            order.program = program;
            order.frames = 10 + 5 * program;
            QVERIFY(media::makeClip(film(program), order));
        }
        ctl({QStringLiteral("import"), film(1), film(2)});
        PlayTask task;
        task.id = 1;
        task.startDate = "2000.01.01";
        task.endDate = "2099.12.31";
        task.plans = {timePlan(1, "00:00:00", "23:59:59", "", 1)};
        task.plans.front().programs.emplace_back().progIndex = 2;
        store({{1, task}});
        ctl({QStringLiteral("start")});
    }

    QString film(int program) const { return path(QStringLiteral("film%1.mp4").arg(program)); }
    void ctl(const QStringList& arguments) const
    {
        const CtlResult result = onDatabase(arguments);
        QVERIFY2(result.status == 0, qPrintable(result.err));
    }

    std::vector<AsRunRecord> records() const
    {
        std::vector<AsRunRecord> records;
        AsRunDatabase asRun;
        if (asRun.open(AsRunDatabase::pathFor(database()), StoreOpenMode::ReadOnly)) {
            asRun.visit(kScreen, {1, 1'000'000}, [&records](const AsRunRecord& record) {
                records.push_back(record);
                return true;
            });
        }
        return records;
    }
    int count(AsRunKind kind, AsRunOutcome outcome) const
    {
        const std::vector<AsRunRecord> all = records();
        return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const AsRunRecord& one) {
            return one.kind == kind && one.outcome == outcome;
        }));
    }
};

class PlayerProcess
{
public:
    explicit PlayerProcess(const Fixture& fixture, const QStringList& options = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), fixture.path(QStringLiteral("state")));
        m_process.setProcessEnvironment(environment);
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(QStringLiteral(SCHEDULE_PLAYER),
                        QStringList({QStringLiteral("--database"), fixture.database(),
                                     QStringLiteral("--screen"), kScreen, QStringLiteral("--mute"),
                                     QStringLiteral("--window")}) +
                            options);
        m_process.waitForStarted();
    }
    ~PlayerProcess() { end(SIGKILL); }
    Q_DISABLE_COPY(PlayerProcess)

    void end(int signal)
    {
        if (m_process.state() != QProcess::NotRunning) {
            ::kill(static_cast<pid_t>(m_process.processId()), signal);
            m_process.waitForFinished(kPatience);
        }
    }
    QString log()
    {
        m_log += QString::fromUtf8(m_process.readAllStandardError());
        return m_log;
    }
    QProcess& process() { return m_process; }

private:
    QProcess m_process;
    QString m_log;
};

/// Each record begins where the one before has ended, and no time is told twice.
void expectNoHole(const std::vector<AsRunRecord>& records)
{
    for (std::size_t at = 1; at < records.size(); ++at) {
        const AsRunRecord& former = records[at - 1];
        const AsRunRecord& next = records[at];
        const QString place = QStringLiteral("record %1").arg(next.number);
        QVERIFY2(next.number == former.number + 1, qPrintable(place));
        QVERIFY2(next.steadyBegin == former.steadyEnd, qPrintable(place));
        QVERIFY2(next.steadyEnd >= next.steadyBegin, qPrintable(place));
    }
}

} // namespace

/// What the real player writes down of what it shows.
class tst_PlayerAsRun : public QObject
{
    Q_OBJECT

private slots:
    void recordsWhatPlays();
    void killedAtAnyMoment();
    void aStoreThatIsTakenAway();
    void aFolderForRecordsThatCannotBeMade();
};

void tst_PlayerAsRun::recordsWhatPlays()
{
    const Fixture fixture;
    PlayerProcess player(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(fixture.count(AsRunKind::Picture, AsRunOutcome::Complete) >= 4,
                             kPatience);
    QElapsedTimer timer;
    timer.start();
    player.end(SIGTERM);
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    const std::vector<AsRunRecord> records = fixture.records();
    expectNoHole(records);
    QCOMPARE(records[1].kind, AsRunKind::ScheduleTaken);
    QCOMPARE(records[1].revision, 1);
    QCOMPARE(records.back().outcome, AsRunOutcome::CutByPlayerEnd);
    const AsRunRecord& before = records[records.size() - 3];
    const AsRunRecord& last = records[records.size() - 2];
    QCOMPARE(before.outcome, AsRunOutcome::Complete);
    QVERIFY(before.program != last.program);
    QCOMPARE(last.plannedEnd - last.plannedBegin,
             last.program == QLatin1String("film1") ? 600 : 800);
    QCOMPARE(before.plannedEnd, last.plannedBegin);
}

void tst_PlayerAsRun::killedAtAnyMoment()
{
    const Fixture fixture;
    std::mt19937 random(20);
    constexpr int kills = 4;
    Instant killed = 0;
    for (int at = 0; at < kills; ++at) {
        PlayerProcess player(fixture);
        QTRY_VERIFY_WITH_TIMEOUT(player.log().contains(QStringLiteral("plays \"film")), kPatience);
        // Any moment of a play, of a write and of a handing in.
        QTest::qWait(static_cast<int>(random() % 2500));
        killed = QDateTime::currentMSecsSinceEpoch();
        player.end(SIGKILL);
    }
    {
        PlayerProcess player(fixture);
        QTRY_COMPARE_WITH_TIMEOUT(fixture.count(AsRunKind::Gap, AsRunOutcome::PlayerWasKilled),
                                  kills, kPatience);
        player.end(SIGTERM);
    }
    const std::vector<AsRunRecord> records = fixture.records();
    expectNoHole(records);
    const auto lastGap =
        std::find_if(records.rbegin(), records.rend(), [](const AsRunRecord& record) {
            return record.outcome == AsRunOutcome::PlayerWasKilled;
        });
    QVERIFY2(killed - lastGap->begins < kMostLost,
             qPrintable(QString::number(killed - lastGap->begins)));
}

void tst_PlayerAsRun::aStoreThatIsTakenAway()
{
    const Fixture fixture;
    const QString asRun = AsRunDatabase::pathFor(fixture.database());
    PlayerProcess player(fixture);
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.records().empty(), kPatience);
    QDir folder(fixture.path(QString()));
    QVERIFY(folder.mkdir(QStringLiteral("aside")));
    const auto move = [&folder](const QString& file, const char* from, const char* to) {
        return folder.rename(QLatin1String(from) + file, QLatin1String(to) + file);
    };
    const QString store = QFileInfo(fixture.database()).fileName();
    QVERIFY(move(store, "", "aside/"));
    QVERIFY(move(store + QStringLiteral("-as-run"), "", "aside/"));
    const int shown = player.log().count(QStringLiteral("plays"));
    QTRY_VERIFY_WITH_TIMEOUT(player.log().count(QStringLiteral("plays")) >= shown + 3, kPatience);
    QVERIFY(!QFile::exists(asRun));
    QVERIFY(move(store + QStringLiteral("-as-run"), "aside/", ""));
    QVERIFY(move(store, "aside/", ""));
    const std::size_t before = fixture.records().size();
    QTRY_VERIFY_WITH_TIMEOUT(fixture.records().size() >= before + 4, kPatience);
    expectNoHole(fixture.records());
}

void tst_PlayerAsRun::aFolderForRecordsThatCannotBeMade()
{
    const Fixture fixture;
    fixture.writeFile(QStringLiteral("file"), "x");
    PlayerProcess player(fixture,
                         {QStringLiteral("--spool"), fixture.path(QStringLiteral("file"))});
    QTRY_VERIFY_WITH_TIMEOUT(fixture.count(AsRunKind::Picture, AsRunOutcome::Complete) >= 2,
                             kPatience);
    QCOMPARE(player.log().count(QStringLiteral("are kept in memory alone until")), 1);
    QVERIFY(player.log().contains(QStringLiteral("plays \"film2\"")));
}

QTEST_GUILESS_MAIN(tst_PlayerAsRun)
#include "tst_PlayerAsRun.moc"
