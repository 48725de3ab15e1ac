#include "RecordedPlayer.h"

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

/// What a kill may cost.
constexpr qint64 kMostLost = 5000;
/// Of the long form, by TREL_KILLS: players side by side, and how long one plays at most.
constexpr int kMostScreens = 8;
constexpr int kLongestLife = 9000; // milliseconds

/// Only the kills have left gaps.
void expectGaps(const std::vector<AsRunRecord>& records)
{
    for (const AsRunRecord& record : records) {
        QVERIFY2(record.kind != AsRunKind::Gap || record.outcome == AsRunOutcome::PlayerWasKilled ||
                     record.outcome == AsRunOutcome::NothingReadYet,
                 qPrintable(QStringLiteral("record %1").arg(record.number)));
    }
}

/// The last record of the play before the one of a record. On a busy machine a play can have two:
/// of what was on until it was ready, and its own.
const AsRunRecord& playBefore(const std::vector<AsRunRecord>& records, const AsRunRecord& later)
{
    return *std::find_if(records.rbegin(), records.rend(), [&later](const AsRunRecord& record) {
        return record.number < later.number && record.plannedBegin != later.plannedBegin;
    });
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

    Killer(const PlayedFixture& fixture, int screens, int longestLife)
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

    const PlayedFixture& m_fixture;
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
    const PlayedFixture fixture;
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
    const AsRunRecord& last = records[records.size() - 2];
    const AsRunRecord& before = playBefore(records, last);
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
    const PlayedFixture fixture;
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
    const PlayedFixture fixture;
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
    const PlayedFixture fixture;
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
