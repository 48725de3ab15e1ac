#include "CtlFixture.h"
#include "clock/Clock.h"
#include "support/TestClock.h"
#include "trelscreen/ScheduleFeed.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

#include <vector>

using namespace trel::mediadispatch;
using namespace trel::screen;

/// What a screen learns of a store that another program works on.
class tst_ScheduleFeed : public QObject
{
    Q_OBJECT

private slots:
    void tellsAtOnceWhatIsInEffect();
    void withoutAStoreNothingIsInEffect();
    void aStoreThatComesLater();
    void startsAndStopsOfOthers();
    void insertionsKeepTheTimeline();
    void savesAreNoMatter();
    void programsOfOthers();
    void filesThatGoAndComeBack();
    void aStoreThatIsTakenAway();
    void anotherStoreInItsPlace();
    void aDamagedStoreIsToldOnce();
    void anotherZone();
    void nothingIsWritten();
};

namespace {

constexpr int kPatience = 5000; // milliseconds, for what is to come within about one second
constexpr int kFirst = 1;       ///< The first index that a catalog gives out.

/// A database with two programs and a task that plays the first all day, every day.
class Fixture : public CtlFixture
{
public:
    Fixture()
    {
        writeClip(QStringLiteral("a.wav"), 1000);
        writeClip(QStringLiteral("b.wav"), 2000);
        ctl({QStringLiteral("import"), path(QStringLiteral("a.wav")),
             path(QStringLiteral("b.wav"))});
        save(1);
    }

    void ctl(const QStringList& arguments) const
    {
        const CtlResult result = onDatabase(arguments);
        QVERIFY2(result.status == 0, qPrintable(result.err));
    }
    void start() const { ctl({QStringLiteral("start")}); }
    /// A schedule that is told by the number of its tasks.
    void save(int tasks) const
    {
        Schedule schedule;
        for (int id = 1; id <= tasks; ++id) {
            PlayTask task;
            task.id = id;
            task.startDate = "2000.01.01";
            task.endDate = "2099.12.31";
            task.plans = {timePlan(1, "00:00:00", "23:59:59", "", kFirst)};
            schedule.emplace(id, task);
        }
        store(schedule);
    }
};

/// The feed, and everything that it told.
class Fed
{
public:
    explicit Fed(const QString& store)
        : m_feed(store)
    {
        QObject::connect(&m_feed, &ScheduleFeed::changed, &m_context,
                         [this](const ScreenSchedule& schedule) { told.push_back(schedule); });
        QObject::connect(&m_feed, &ScheduleFeed::lost, &m_context,
                         [this](const StoreResult& reason) { losses.push_back(reason.problem); });
        QObject::connect(&m_feed, &ScheduleFeed::found, &m_context, [this] { ++finds; });
        m_feed.start();
    }
    ~Fed() { m_feed.stop(); }
    Q_DISABLE_COPY(Fed)

    const ScreenSchedule& last() const { return told.back(); }
    ScreenState now() const
    {
        return last().timeline->at(Clock::current().msecsSinceEpoch(), last().insertions);
    }
    bool isPlaying() const { return now().isPlaying(); }
    /// Whether anything new comes within so many milliseconds.
    bool tellsWithin(int milliseconds) const
    {
        return QSignalSpy(&m_feed, &ScheduleFeed::changed).wait(milliseconds);
    }

    std::vector<ScreenSchedule> told;
    std::vector<StoreProblem> losses;
    int finds = 0;

private:
    ScheduleFeed m_feed;
    QObject m_context;
};

} // namespace

void tst_ScheduleFeed::tellsAtOnceWhatIsInEffect()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    QCOMPARE(fed.told.size(), 1U);
    QVERIFY(fed.last().start);
    QVERIFY(fed.isPlaying());
    QCOMPARE(fed.now().progIndex, kFirst);
    QCOMPARE(fed.last().catalogue->size(), 2U);
    QVERIFY(fed.losses.empty());
}

void tst_ScheduleFeed::withoutAStoreNothingIsInEffect()
{
    const CtlFixture fixture;
    const Fed fed(fixture.database());
    QCOMPARE(fed.told.size(), 1U);
    QVERIFY(!fed.last().start);
    QVERIFY(fed.last().timeline);
    QVERIFY(fed.last().catalogue);
    QCOMPARE(fed.now().reason, ScreenReason::NoPlanYet);
    QCOMPARE(fed.losses, std::vector<StoreProblem>{StoreProblem::FileMissing});
    QVERIFY(fixture.files().isEmpty());
    // It is looked for every second, which is nothing to tell of.
    QVERIFY(!fed.tellsWithin(1500));
    QCOMPARE(fed.losses.size(), 1U);
}

void tst_ScheduleFeed::aStoreThatComesLater()
{
    const Fixture fixture;
    fixture.start();
    const QString later = fixture.path(QStringLiteral("later.db"));
    const Fed fed(later);
    QVERIFY(QFile::copy(fixture.database(), later));
    QTRY_VERIFY_WITH_TIMEOUT(fed.isPlaying(), kPatience);
    QCOMPARE(fed.finds, 1);
    QCOMPARE(fed.losses.size(), 1U);
}

void tst_ScheduleFeed::startsAndStopsOfOthers()
{
    const Fixture fixture;
    const Fed fed(fixture.database());
    QVERIFY(!fed.isPlaying());
    fixture.start();
    QTRY_VERIFY_WITH_TIMEOUT(fed.isPlaying(), kPatience);
    QVERIFY(fed.last().start);
    fixture.ctl({QStringLiteral("stop")});
    QTRY_VERIFY_WITH_TIMEOUT(!fed.isPlaying(), kPatience);
    QVERIFY(!fed.last().start);
}

void tst_ScheduleFeed::insertionsKeepTheTimeline()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    const auto timeline = fed.last().timeline;
    fixture.ctl({QStringLiteral("insert"), QString::number(kFirst + 1)});
    QTRY_COMPARE_WITH_TIMEOUT(fed.last().insertions.size(), 1U, kPatience);
    QCOMPARE(fed.now().progIndex, kFirst + 1);
    QVERIFY(fed.last().timeline == timeline);
    fixture.start();
    QTRY_VERIFY_WITH_TIMEOUT(fed.last().insertions.empty(), kPatience);
    QVERIFY(fed.last().timeline != timeline);
}

void tst_ScheduleFeed::savesAreNoMatter()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    fixture.save(2);
    fixture.ctl({QStringLiteral("insert"), QString::number(kFirst + 1)});
    QTRY_COMPARE_WITH_TIMEOUT(fed.told.size(), 2U, kPatience);
    QCOMPARE(fed.last().timeline, fed.told.front().timeline);
}

void tst_ScheduleFeed::programsOfOthers()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    fixture.writeClip(QStringLiteral("c.wav"), 1000);
    fixture.ctl({QStringLiteral("import"), fixture.path(QStringLiteral("c.wav"))});
    QTRY_COMPARE_WITH_TIMEOUT(fed.last().catalogue->size(), 3U, kPatience);
    QVERIFY(fed.isPlaying());
    fixture.ctl({QStringLiteral("remove-program"), QString::number(kFirst)});
    QTRY_COMPARE_WITH_TIMEOUT(fed.last().catalogue->size(), 2U, kPatience);
    QTRY_VERIFY_WITH_TIMEOUT(!fed.isPlaying(), kPatience);
}

void tst_ScheduleFeed::filesThatGoAndComeBack()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    const QString clip = fixture.path(QStringLiteral("a.wav"));
    QVERIFY(QFile::rename(clip, clip + QLatin1Char('~')));
    QTRY_VERIFY_WITH_TIMEOUT(!fed.isPlaying(), kPatience);
    QVERIFY(QFile::rename(clip + QLatin1Char('~'), clip));
    QTRY_VERIFY_WITH_TIMEOUT(fed.isPlaying(), kPatience);
}

void tst_ScheduleFeed::aStoreThatIsTakenAway()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    const QString aside = fixture.path(QStringLiteral("aside.db"));
    QVERIFY(QFile::rename(fixture.database(), aside));
    QTRY_COMPARE_WITH_TIMEOUT(fed.losses, std::vector<StoreProblem>{StoreProblem::FileMissing},
                              kPatience);
    QVERIFY(fed.isPlaying());
    QVERIFY(QFile::rename(aside, fixture.database()));
    // The very file that was opened needs no reading: what happens in it is noticed.
    fixture.ctl({QStringLiteral("stop")});
    QTRY_VERIFY_WITH_TIMEOUT(!fed.isPlaying(), kPatience);
}

void tst_ScheduleFeed::anotherStoreInItsPlace()
{
    const Fixture fixture;
    fixture.start();
    const Fed fed(fixture.database());
    // Of the same history, so that its revisions are the same numbers.
    const Fixture other;
    other.start();
    const qint64 since = fed.last().start->since;
    QVERIFY(QFile::rename(fixture.database(), fixture.path(QStringLiteral("former.db"))));
    QVERIFY(QFile::copy(other.database(), fixture.database()));
    QTRY_VERIFY_WITH_TIMEOUT(fed.last().start && fed.last().start->since != since, kPatience);
    QCOMPARE(QString::fromStdString(fed.last().catalogue->at(kFirst).mediaPath),
             other.path(QStringLiteral("a.wav")));
}

void tst_ScheduleFeed::aDamagedStoreIsToldOnce()
{
    const Fixture fixture;
    fixture.start();
    const QString copy = fixture.path(QStringLiteral("copy.db"));
    QVERIFY(QFile::copy(fixture.database(), copy));
    const Fed fed(fixture.database());
    QFile::remove(fixture.database());
    fixture.writeFile(QStringLiteral("test.db"), "not a database, but long enough to be one\n");
    QTRY_VERIFY_WITH_TIMEOUT(!fed.losses.empty() && fed.losses.back() == StoreProblem::NotADatabase,
                             kPatience);
    const std::size_t losses = fed.losses.size();
    // Two more looks.
    QVERIFY(!fed.tellsWithin(2500));
    QCOMPARE(fed.losses.size(), losses);
    QVERIFY(fed.isPlaying());
    QVERIFY(QFile::remove(fixture.database()));
    QVERIFY(QFile::copy(copy, fixture.database()));
    QTRY_COMPARE_WITH_TIMEOUT(fed.finds, 1, kPatience);
    QVERIFY(fed.isPlaying());
}

void tst_ScheduleFeed::anotherZone()
{
    const Fixture fixture;
    fixture.start();
    const QDateTime berlin(QDate(2024, 3, 4), QTime(12, 0), QTimeZone("Europe/Berlin"));
    TestClock clock(berlin);
    const Fed fed(fixture.database());
    const auto timeline = fed.last().timeline;
    const Instant noon = berlin.toMSecsSinceEpoch();
    QCOMPARE(timeline->local(noon).time(), QTime(12, 0));
    clock.set(berlin.toTimeZone(QTimeZone("Asia/Tokyo")));
    QTRY_COMPARE_WITH_TIMEOUT(fed.last().timeline->local(noon).time(), QTime(20, 0), kPatience);
}

void tst_ScheduleFeed::nothingIsWritten()
{
    const Fixture fixture;
    fixture.start();
    const QStringList files = fixture.files();
    const QByteArray content = fixture.fileContent(QStringLiteral("test.db"));
    {
        const Fed fed(fixture.database());
        QVERIFY(!fed.tellsWithin(1500));
        QCOMPARE(fixture.files(), files);
    }
    QCOMPARE(fixture.files(), files);
    QCOMPARE(fixture.fileContent(QStringLiteral("test.db")), content);
}

QTEST_GUILESS_MAIN(tst_ScheduleFeed)
#include "tst_ScheduleFeed.moc"
