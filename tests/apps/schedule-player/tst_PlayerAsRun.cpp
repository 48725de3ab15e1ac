#include "CtlFixture.h"
#include "support/NumberedClip.h"
#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <memory>
#include <random>

using namespace trel::mediadispatch;

namespace {

constexpr int kPatience = 20000; // milliseconds, for programs that start on a busy machine
/// What a kill may cost.
constexpr qint64 kMostLost = 5000;
/// Of the long form, by TREL_KILLS: players side by side, and how long one plays at most.
constexpr int kMostScreens = 8;
constexpr int kLongestLife = 9000; // milliseconds
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

    std::vector<AsRunRecord> records(const QString& screen = kScreen) const
    {
        std::vector<AsRunRecord> records;
        AsRunDatabase asRun;
        if (asRun.open(AsRunDatabase::pathFor(database()), StoreOpenMode::ReadOnly)) {
            asRun.visit(screen, {1, 1'000'000}, [&records](const AsRunRecord& record) {
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
    explicit PlayerProcess(const Fixture& fixture, const QStringList& options = {},
                           const QString& screen = kScreen)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), fixture.path(QStringLiteral("state")));
        m_process.setProcessEnvironment(environment);
        m_process.setReadChannel(QProcess::StandardError);
        m_process.start(QStringLiteral(SCHEDULE_PLAYER),
                        QStringList({QStringLiteral("--database"), fixture.database(),
                                     QStringLiteral("--screen"), screen, QStringLiteral("--mute"),
                                     QStringLiteral("--window")}) +
                            options);
        m_process.waitForStarted();
    }
    ~PlayerProcess() { end(SIGKILL); }
    Q_DISABLE_COPY(PlayerProcess)

    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    void end(int signal)
    {
        if (isRunning()) {
            ::kill(static_cast<pid_t>(m_process.processId()), signal);
            m_process.waitForFinished(kPatience);
        }
    }
    QString log()
    {
        m_log += QString::fromUtf8(m_process.readAllStandardError());
        return m_log;
    }
    QString howItEnded()
    {
        return QStringLiteral("status %1, code %2, error %3: %4")
            .arg(static_cast<int>(m_process.exitStatus()))
            .arg(m_process.exitCode())
            .arg(static_cast<int>(m_process.error()))
            .arg(log());
    }

private:
    QProcess m_process;
    QString m_log;
};

/// Each record begins where the one before has ended, and nothing is told twice.
void expectNoHole(const std::vector<AsRunRecord>& records)
{
    for (std::size_t at = 1; at < records.size(); ++at) {
        const AsRunRecord& former = records[at - 1];
        const AsRunRecord& next = records[at];
        const QString place = QStringLiteral("record %1").arg(next.number);
        QVERIFY2(next.number == former.number + 1, qPrintable(place));
        QVERIFY2(next.steadyBegin == former.steadyEnd, qPrintable(place));
        QVERIFY2(next.steadyEnd >= next.steadyBegin, qPrintable(place));
        QVERIFY2(next.steadyEnd > next.steadyBegin || next.kind != former.kind, qPrintable(place));
    }
}

QString textOf(const AsRunRecord& record)
{
    return QStringLiteral("\n  %1: kind %2, shown %3, outcome %4, %5 to %6, planned %7 to %8, late "
                          "%9, entry ")
               .arg(record.number)
               .arg(static_cast<int>(record.kind))
               .arg(static_cast<int>(record.shown))
               .arg(static_cast<int>(record.outcome))
               .arg(record.begins)
               .arg(record.ends)
               .arg(record.plannedBegin)
               .arg(record.plannedEnd)
               .arg(record.late) +
           QString::number(record.entry) + QLatin1Char(' ') + record.why;
}

/// What is not explained, with the records about it.
QString textOf(const AsRunVerdict& verdict, AsRunDatabase& database)
{
    QString text = QStringLiteral("%1 breaks, %2 deviations on %3")
                       .arg(verdict.breakCount)
                       .arg(verdict.deviationCount)
                       .arg(verdict.screen.name);
    for (const AsRunDeviation& deviation : verdict.deviations) {
        text += QStringLiteral("\n kind %1, %2 to %3")
                    .arg(static_cast<int>(deviation.kind))
                    .arg(deviation.from)
                    .arg(deviation.to);
        database.visit(verdict.screen.name, {1, verdict.screen.lastNumber},
                       [&](const AsRunRecord& record) {
                           constexpr Instant about = 2000;
                           if (record.ends >= deviation.from - about &&
                               record.begins <= deviation.to + about) {
                               text += textOf(record);
                           }
                           return true;
                       });
    }
    return text;
}

/// The chains of all screens are whole, and explain all.
void expectVerified(const Fixture& fixture)
{
    AsRunDatabase database;
    QVERIFY(database.open(AsRunDatabase::pathFor(fixture.database()), StoreOpenMode::ReadOnly));
    std::vector<AsRunScreen> screens;
    QVERIFY(database.screens(screens));
    QVERIFY(!screens.empty());
    for (const AsRunScreen& screen : screens) {
        AsRunVerdict verdict;
        QVERIFY(verifyAsRun(database, screen, kEver, kNever, verdict));
        QVERIFY2(verdict.isGood(), qPrintable(textOf(verdict, database)));
        QVERIFY(verdict.isWhole);
    }
}

/// Only the kills have left gaps.
void expectGaps(const std::vector<AsRunRecord>& records)
{
    for (const AsRunRecord& record : records) {
        QVERIFY2(record.kind != AsRunKind::Gap || record.outcome == AsRunOutcome::PlayerWasKilled ||
                     record.outcome == AsRunOutcome::NothingReadYet,
                 qPrintable(QStringLiteral("record %1").arg(record.number)));
    }
}

/// Kills players at random moments, of their beginning too, and starts them again.
class Killer
{
public:
    struct Life
    {
        Instant begun = 0; ///< When it played.
        Instant killed = 0;
    };
    struct Victim
    {
        QString screen;
        std::unique_ptr<PlayerProcess> player;
        Instant killAt = 0;
        Instant begun = 0; ///< 0 until it plays.
        std::vector<Life> lives;
    };

    Killer(const Fixture& fixture, int screens, int longestLife)
        : m_fixture(fixture)
        , m_longestLife(longestLife)
    {
        for (int at = 0; at < screens; ++at) {
            m_victims.emplace_back().screen = QStringLiteral("screen %1").arg(at);
        }
    }

    void kill(int kills)
    {
        while (m_kills < kills && !QTest::currentTestFailed()) {
            for (Victim& victim : m_victims) {
                attend(victim);
            }
            QTest::qWait(1);
        }
    }

    /// They come back once more, tell of the gap, and end in order.
    void endAll()
    {
        for (Victim& victim : m_victims) {
            if (!victim.player) {
                start(victim);
            }
        }
        for (Victim& victim : m_victims) {
            QTRY_VERIFY_WITH_TIMEOUT(isHandedIn(victim), kPatience);
            victim.player->end(SIGTERM);
        }
    }

    const std::vector<Victim>& victims() const { return m_victims; }
    int kills() const { return m_kills; }

private:
    void start(Victim& victim)
    {
        const int life = static_cast<int>(m_random() % static_cast<unsigned>(m_longestLife));
        victim.killAt = QDateTime::currentMSecsSinceEpoch() + life;
        victim.begun = 0;
        victim.player = std::make_unique<PlayerProcess>(m_fixture, QStringList(), victim.screen);
    }

    void attend(Victim& victim)
    {
        if (!victim.player) {
            start(victim);
            return;
        }
        const Instant now = QDateTime::currentMSecsSinceEpoch();
        if (victim.begun == 0 &&
            victim.player->log().contains(QStringLiteral("takes another schedule"))) {
            victim.begun = now;
        }
        if (now >= victim.killAt) {
            QVERIFY2(victim.player->isRunning(), qPrintable(victim.player->howItEnded()));
            victim.player->end(SIGKILL);
            if (victim.begun != 0) {
                victim.lives.push_back({victim.begun, now});
            }
            victim.player.reset();
            ++m_kills;
        }
    }

    bool isHandedIn(const Victim& victim) const
    {
        const std::vector<AsRunRecord> records = m_fixture.records(victim.screen);
        return !records.empty() && victim.player->isRunning() &&
               (victim.lives.empty() || records.back().ends > victim.lives.back().killed);
    }

    const Fixture& m_fixture;
    const int m_longestLife;
    std::mt19937 m_random{20};
    std::vector<Victim> m_victims;
    int m_kills = 0;
};

/// For how long a life, which ended by a kill, is in no record but that of the gap.
qint64 lostOf(const std::vector<AsRunRecord>& records, const Killer::Life& life)
{
    qint64 lost = 0;
    for (const AsRunRecord& record : records) {
        if (record.outcome == AsRunOutcome::PlayerWasKilled) {
            lost += std::max<qint64>(0, std::min(record.ends, life.killed) -
                                            std::max(record.begins, life.begun));
        }
    }
    return lost;
}

bool isKillNamed(const std::vector<AsRunRecord>& records, Instant killed)
{
    constexpr Instant dying = 1000; // milliseconds
    return std::any_of(records.begin(), records.end(), [killed](const AsRunRecord& record) {
        return record.outcome == AsRunOutcome::PlayerWasKilled && record.begins <= killed + dying &&
               record.ends >= killed;
    });
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
    expectVerified(fixture);
}

void tst_PlayerAsRun::killedAtAnyMoment()
{
    bool isLong = false;
    const int kills = qEnvironmentVariableIntValue("TREL_KILLS", &isLong);
    const Fixture fixture;
    Killer killer(fixture, isLong ? kMostScreens : 2, isLong ? kLongestLife : 2500);
    killer.kill(isLong ? kills : 4);
    if (QTest::currentTestFailed()) {
        return;
    }
    killer.endAll();
    qint64 worst = 0;
    for (const Killer::Victim& victim : killer.victims()) {
        const std::vector<AsRunRecord> records = fixture.records(victim.screen);
        expectNoHole(records);
        expectGaps(records);
        for (const Killer::Life& life : victim.lives) {
            const qint64 lost = lostOf(records, life);
            worst = std::max(worst, lost);
            QVERIFY2(lost < kMostLost,
                     qPrintable(QStringLiteral("%1 ms on %2").arg(lost).arg(victim.screen)));
            QVERIFY2(isKillNamed(records, life.killed), qPrintable(victim.screen));
        }
    }
    expectVerified(fixture);
    qInfo("%d kills, %lld ms lost at worst", killer.kills(), worst);
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
    expectVerified(fixture);
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
