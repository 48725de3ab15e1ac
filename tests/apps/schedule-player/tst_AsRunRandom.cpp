#include "AsRunFixture.h"
#include "RandomPlans.h"
#include "asrun/AsRunKeeper.h"
#include "trelprogramschedule/asrun/AsRunVerification.h"

#include "support/TestProgram.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <set>
#include <vector>

using namespace trel::mediadispatch;
using namespace trel::player;
using namespace trel::screen;

namespace {

constexpr std::uint32_t kSeeds = 40;
constexpr int kLives = 5;
constexpr char kMost[] = "AAABBBCKKHIMLD";
const QString kScreen = QStringLiteral("hall");
const QByteArray kBoot(16, 'b');

/// How often the player looks, and writes; milliseconds.
constexpr qint64 kLookEvery = 2000;
constexpr qint64 kWorkEvery = 1000;
/// What a kill may cost.
constexpr qint64 kMostLost = 5000;
constexpr qint64 kGrace = 100;

/// What was on the screen at a moment, and what the schedule had.
struct Sample
{
    qint64 steady = 0;
    Instant moment = 0;
    bool hasSchedule = false;
    ScreenState planned;
    StagePicture::Kind picture = StagePicture::Kind::Black;
    QString media;   ///< Of a deck that is out.
    QString caption; ///< Of a stand-by picture.
};

/// A screen to which things happen, with a player that is killed now and then. Its spool and its
/// database lie in memory where the system has a place for that.
class World
{
public:
    explicit World(std::uint32_t seed)
        : m_draw(seed)
        , m_folder(QDir(QStringLiteral("/dev/shm")).exists()
                       ? QStringLiteral("/dev/shm/as-run-XXXXXX")
                       : QDir::tempPath() + QStringLiteral("/as-run-XXXXXX"))
    {
        QFile store(path("store"));
        QVERIFY(store.open(QIODevice::WriteOnly));
    }

    void run()
    {
        QDateTime now = ScreenFixture::moment("07:59:50");
        qint64 steady = 1000;
        for (int life = 0; life < kLives; ++life) {
            begin(now, steady);
            live(m_draw.between(10, 90) * 1000);
            const bool isLast = life == kLives - 1;
            if (isLast || m_draw.oneIn(3)) {
                const AsRunRecord left = m_run->recorder.end();
                post();
                m_mail->post(left);
                m_keeper->stop();
            } else {
                m_killedAt.push_back(m_run->steady());
            }
            const int down = m_draw.between(1, 20'000);
            now = m_run->screen.clock.now().addMSecs(down);
            steady = m_run->steady() + down;
            m_keeper.reset();
            m_run.reset();
        }
    }

    std::vector<AsRunRecord> records() const
    {
        std::vector<AsRunRecord> records;
        AsRunDatabase database;
        if (database.open(AsRunDatabase::pathFor(path("store")), StoreOpenMode::ReadOnly)) {
            database.visit(kScreen, {1, 1'000'000}, [&records](const AsRunRecord& record) {
                records.push_back(record);
                return true;
            });
        }
        return records;
    }

    const std::vector<Sample>& samples() const { return m_samples; }
    QString path(const char* file) const { return m_folder.filePath(QLatin1String(file)); }
    bool isLostByAKill(qint64 steady) const
    {
        return std::any_of(m_killedAt.begin(), m_killedAt.end(), [steady](qint64 killed) {
            return steady <= killed && steady > killed - kMostLost;
        });
    }
    /// What was done to it about a time.
    QStringList happened(Instant from, Instant to) const
    {
        QStringList lines;
        for (const auto& [moment, what] : m_happened) {
            if (moment >= from - 15'000 && moment <= to) {
                lines += QStringLiteral("%1 %2").arg(moment - from).arg(what);
            }
        }
        return lines;
    }
    int kills() const { return static_cast<int>(m_killedAt.size()); }

private:
    void begin(const QDateTime& now, qint64 steady)
    {
        m_run = std::make_unique<AsRunFixture>(now, steady);
        m_mail = std::make_shared<AsRunMail>();
        m_posted = 0;
        m_keeper = std::make_unique<AsRunKeeper>(
            m_mail, AsRunPlace{path("store"), kScreen, path("spool")}, kBoot,
            // It works when the test says so.
            std::chrono::hours(1));
        m_keeper->start(m_run->recorder.open());
        for (RecordedDeck* deck : decks()) {
            deck->setTrouble([this](const QString& media) {
                return m_broken.count(media) > 0 ? DeckTrouble::Unreadable : DeckTrouble::None;
            });
        }
        m_hasSchedule = false;
        // A player reads its schedule a little after it has begun.
        step(m_draw.between(1, 300));
        if (m_plans.isEmpty()) {
            m_plans = plansText(m_draw, kMost);
        }
        m_run->screen.start->saved = m_saved;
        follow();
    }

    void live(qint64 length)
    {
        const qint64 end = m_run->steady() + length;
        qint64 lookAt = m_run->steady() + kLookEvery;
        qint64 workAt = m_run->steady() + kWorkEvery;
        while (m_run->steady() < end) {
            for (RecordedDeck* deck : decks()) {
                deck->setReadyAfter(m_draw.between(1, 240));
            }
            if (m_draw.oneIn(25)) {
                happen();
            }
            step(m_draw.between(1, 300));
            if (m_run->steady() >= lookAt) {
                lookAt += kLookEvery;
                m_run->look();
                post();
                m_mail->post(m_run->recorder.open());
            }
            if (m_run->steady() >= workAt) {
                workAt += kWorkEvery;
                post();
                m_keeper->work();
            }
        }
        post();
    }

    void post()
    {
        for (; m_posted < m_run->entries.size(); ++m_posted) {
            m_mail->post(m_run->entries[m_posted]);
        }
    }

    void step(qint64 milliseconds)
    {
        m_run->screen.advance(milliseconds);
        Sample sample;
        sample.steady = m_run->steady();
        sample.moment = m_run->screen.clock.msecsSinceEpoch();
        sample.hasSchedule = m_hasSchedule;
        if (m_hasSchedule) {
            sample.planned = m_run->screen.timeline->at(sample.moment, m_run->screen.insertions);
        }
        const StagePicture& picture = m_run->screen.stage.picture();
        sample.picture = picture.kind;
        sample.caption = picture.caption;
        if (picture.kind == StagePicture::Kind::Deck) {
            sample.media = m_run->screen.stage.deck()->loaded().media;
        }
        m_samples.push_back(sample);
    }

    void follow()
    {
        m_run->screen.insertions.clear();
        m_hasSchedule = true;
        m_run->screen.follow(m_plans.toLatin1().constData());
        m_run->look();
    }

    void happen()
    {
        ScreenFixture& screen = m_run->screen;
        const int what = m_draw.below(11);
        m_happened.emplace_back(screen.clock.msecsSinceEpoch(),
                                QStringLiteral("happening %1").arg(what));
        switch (what) {
        case 0:
            screen.followAgain();
            break;
        case 1:
            insert(false);
            break;
        case 2:
            insert(true);
            break;
        case 3:
            screen.cancelInsertion();
            break;
        case 4:
            screen.clock.set(screen.clock.now().addMSecs(m_draw.between(-20'000, 20'000)));
            break;
        case 5:
            screen.catalogue[programOf(QLatin1Char(m_draw.oneIn(2) ? 'A' : 'B'))].durationMs =
                m_draw.between(1000, 9000);
            screen.followAgain();
            break;
        case 6:
            breakMedia();
            break;
        case 7:
            breakOff();
            break;
        case 8:
            m_plans = plansText(m_draw, kMost);
            screen.start.emplace().saved = ++m_saved;
            follow();
            break;
        case 9:
            screen.stop();
            break;
        case 10:
            m_run->sleep(m_draw.between(2000, 20'000));
            break;
        }
        m_run->look();
    }

    void insert(bool isDelayed)
    {
        if (!m_run->screen.start) {
            return;
        }
        const int now = QTime(8, 0).secsTo(m_run->screen.clock.now().time());
        m_run->screen.insert(
            planText(m_draw, std::max(0, now - 10), now + m_draw.between(3, 40), kMost)
                .toLatin1()
                .constData(),
            isDelayed);
    }

    void breakMedia()
    {
        const auto media = QString(QLatin1Char("ABCHIL"[m_draw.below(6)]));
        if (m_broken.erase(media) == 0) {
            m_broken.insert(media);
        }
    }

    void breakOff()
    {
        for (RecordedDeck* deck : decks()) {
            if (deck != m_run->screen.stage.deck() || !deck->isPlaying() ||
                m_run->screen.stage.picture().kind != StagePicture::Kind::Deck) {
                continue;
            }
            switch (m_draw.below(3)) {
            case 0:
                deck->tellFailed(DeckTrouble::BrokeOff);
                break;
            case 1:
                deck->tellEnded();
                break;
            default:
                deck->setStalled(true);
            }
        }
    }

    std::vector<RecordedDeck*> decks() { return {&m_run->screen.one, &m_run->screen.two}; }

    Draw m_draw;
    QTemporaryDir m_folder;
    QString m_plans;
    qint64 m_saved = 1;
    bool m_hasSchedule = false;
    std::set<QString> m_broken;
    std::unique_ptr<AsRunFixture> m_run;
    std::shared_ptr<AsRunMail> m_mail;
    std::unique_ptr<AsRunKeeper> m_keeper;
    std::size_t m_posted = 0;
    std::vector<Sample> m_samples;
    std::vector<qint64> m_killedAt;
    std::vector<std::pair<Instant, QString>> m_happened;
};

/// Those who hold records against the timelines by themselves say the same.
void expectVerified(const World& world)
{
    AsRunDatabase database;
    QVERIFY(database.open(AsRunDatabase::pathFor(world.path("store")), StoreOpenMode::ReadOnly));
    std::vector<AsRunScreen> screens;
    QVERIFY(database.screens(screens));
    QCOMPARE(screens.size(), std::size_t(1));
    AsRunVerdict verdict;
    QVERIFY(verifyAsRun(database, screens.front(), kEver, kNever, verdict));
    QVERIFY(verdict.isWhole);
    QCOMPARE(verdict.breakCount, 0);
    QStringList lines;
    for (const AsRunDeviation& deviation : verdict.deviations) {
        lines += QStringLiteral("%1 for %2 ms: %3 is planned")
                     .arg(static_cast<int>(deviation.kind))
                     .arg(deviation.to - deviation.from)
                     .arg(deviation.plannedProgram);
        database.visit(kScreen, {deviation.number - 2, deviation.number + 1},
                       [&lines](const AsRunRecord& record) {
                           lines += AsRunFixture::lineOf(record) + QStringLiteral(" (of %1 to %2)")
                                                                       .arg(record.plannedBegin)
                                                                       .arg(record.plannedEnd);
                           return true;
                       });
        lines += world.happened(deviation.from, deviation.to);
    }
    QVERIFY2(lines.isEmpty(), qPrintable(lines.join(QLatin1Char('\n'))));
}

/// Why a record does not tell what was on the screen; empty where it does.
QString faultOf(const AsRunRecord& record, const Sample& sample, const World& world)
{
    const ScreenState& planned = sample.planned;
    if (record.kind == AsRunKind::Gap) {
        if (record.outcome == AsRunOutcome::NothingReadYet) {
            return sample.hasSchedule ? QStringLiteral("there was a schedule") : QString();
        }
        return record.outcome == AsRunOutcome::PlayerWasKilled && world.isLostByAKill(sample.steady)
                   ? QString()
                   : QStringLiteral("a gap");
    }
    // What is shorter than a picture, and the borders of what is, cannot be seen.
    const bool isAtBorder = (planned.since != kEver && sample.moment - planned.since < kFrame) ||
                            (planned.until != kNever && planned.until - sample.moment < kFrame);
    if (isAtBorder) {
        return {};
    }
    if (record.picture != planned.picture) {
        return QStringLiteral("another picture is planned");
    }
    const bool isBlack = planned.picture == ScreenPicture::Black;
    if (!isBlack && (record.taskId != planned.taskId || record.planId != planned.planId ||
                     record.entry != planned.entry || record.play != planned.play ||
                     record.run != planned.run || record.progIndex != planned.progIndex)) {
        return QStringLiteral("another play is planned");
    }
    switch (record.shown) {
    case AsRunShown::AsPlanned:
        if (isBlack) {
            return sample.picture == StagePicture::Kind::Black ? QString()
                                                               : QStringLiteral("not black");
        }
        return sample.media == record.program || sample.caption == record.program
                   ? QString()
                   : QStringLiteral("it was not on");
    case AsRunShown::StandBy:
        return sample.picture == StagePicture::Kind::StandBy && sample.caption.isEmpty()
                   ? QString()
                   : QStringLiteral("it was no stand-by picture");
    case AsRunShown::LastFrame:
        return sample.media == record.program ? QString()
                                              : QStringLiteral("it was not its picture");
    case AsRunShown::FormerPicture:
        return sample.steady - record.steadyBegin <= kGrace + 1
                   ? QString()
                   : QStringLiteral("it stayed for too long");
    }
    return QStringLiteral("no such kind");
}

} // namespace

/// Whatever happens to a screen and to its player, its records tell each moment of it.
class tst_AsRunRandom : public QObject
{
    Q_OBJECT

private slots:
    void tellsEachMoment_data()
    {
        QTest::addColumn<int>("seed");
        for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
            QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << int(seed);
        }
    }
    void tellsEachMoment()
    {
        QFETCH(int, seed);
        World world(static_cast<std::uint32_t>(seed));
        world.run();
        const std::vector<AsRunRecord> records = world.records();
        QVERIFY(records.size() > 10);
        for (std::size_t at = 1; at < records.size(); ++at) {
            const AsRunRecord& former = records[at - 1];
            const AsRunRecord& next = records[at];
            QVERIFY2(next.steadyBegin == former.steadyEnd && next.steadyEnd >= next.steadyBegin,
                     qPrintable(AsRunFixture::lineOf(former) + QLatin1Char('\n') +
                                AsRunFixture::lineOf(next)));
        }
        auto record = records.begin();
        for (const Sample& sample : world.samples()) {
            while (record != records.end() && record->steadyEnd < sample.steady) {
                ++record;
            }
            QVERIFY2(record != records.end(), "after the last record");
            if (record->steadyEnd == sample.steady) {
                continue; // It is of the one or of the other.
            }
            const QString fault = faultOf(*record, sample, world);
            QVERIFY2(
                fault.isEmpty(),
                qPrintable(QStringLiteral("%1 at %2 (steady %3), record %4: %5; picture %6 %7 %8")
                               .arg(fault)
                               .arg(QDateTime::fromMSecsSinceEpoch(sample.moment,
                                                                   QTimeZone("Europe/Berlin"))
                                        .toString(QStringLiteral("hh:mm:ss.zzz")))
                               .arg(sample.steady)
                               .arg(record->number)
                               .arg(AsRunFixture::lineOf(*record))
                               .arg(int(sample.picture))
                               .arg(sample.media, sample.caption)));
        }
        expectVerified(world);
        m_records += static_cast<int>(records.size());
        m_kills += world.kills();
        for (const AsRunRecord& one : records) {
            m_shown.insert(one.shown);
            m_outcomes.insert(one.outcome);
        }
    }

    /// All of it has been met.
    void cleanupTestCase()
    {
        qInfo("%d records, %d kills, %d outcomes", m_records, m_kills, int(m_outcomes.size()));
        QCOMPARE(m_shown.size(), std::size_t(4));
        for (const AsRunOutcome outcome :
             {AsRunOutcome::Complete, AsRunOutcome::CutByInsertion, AsRunOutcome::CutBySchedule,
              AsRunOutcome::CutByStop, AsRunOutcome::CutByPlayerEnd, AsRunOutcome::CutByKill,
              AsRunOutcome::CutByFault, AsRunOutcome::CutByClock, AsRunOutcome::PlayerHadEnded,
              AsRunOutcome::PlayerWasKilled, AsRunOutcome::GoesOn, AsRunOutcome::NothingReadYet,
              AsRunOutcome::MachineHadSlept}) {
            QVERIFY2(m_outcomes.count(outcome) > 0,
                     qPrintable(QString::number(static_cast<int>(outcome))));
        }
    }

private:
    int m_records = 0;
    int m_kills = 0;
    std::set<AsRunShown> m_shown;
    std::set<AsRunOutcome> m_outcomes;
};

TREL_TEST(tst_AsRunRandom, QCoreApplication)
#include "tst_AsRunRandom.moc"
