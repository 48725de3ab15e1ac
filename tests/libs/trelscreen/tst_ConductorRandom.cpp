#include "RandomPlans.h"
#include "ScreenWatch.h"

#include "support/TestProgram.h"

#include <QtTest>

#include <algorithm>
#include <set>
#include <vector>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

constexpr std::uint32_t kSeeds = 24;
constexpr char kMost[] = "AAABBBCKKHIML";

/// A screen to which things happen.
class World
{
public:
    explicit World(std::uint32_t seed)
        : m_draw(seed)
        , m_screen("07:59:50")
        , m_watch(m_screen)
    {
        for (RecordedDeck* deck : {&m_screen.one, &m_screen.two}) {
            deck->setTrouble([this](const QString& media) {
                return m_broken.count(media) > 0 ? DeckTrouble::Unreadable : DeckTrouble::None;
            });
        }
        m_screen.follow(plansText(m_draw, kMost).toLatin1().constData());
    }

    QString run(int seconds)
    {
        const Instant end = m_screen.clock.msecsSinceEpoch() + seconds * 1000;
        while (m_screen.clock.msecsSinceEpoch() < end) {
            for (RecordedDeck* deck : {&m_screen.one, &m_screen.two}) {
                deck->setReadyAfter(m_draw.between(1, 240));
                deck->setSeekTakes(m_draw.between(0, 200));
            }
            if (m_draw.oneIn(150)) {
                happen();
            }
            const QString problem = m_watch.step(m_draw.between(1, 60));
            if (!problem.isEmpty()) {
                return problem + QLatin1Char('\n') +
                       m_happened.mid(std::max(0, m_happened.size() - 6)).join(QLatin1Char('\n'));
            }
        }
        return {};
    }

    void mend()
    {
        for (const QString& media : m_broken) {
            m_watch.expectBroken(media, false);
        }
        m_broken.clear();
    }

    const ScreenWatch& watch() const { return m_watch; }

private:
    void happen()
    {
        switch (m_draw.below(9)) {
        case 0:
            tell("the same again");
            m_screen.followAgain();
            break;
        case 1:
            tell("cut in at once");
            m_watch.expectChange();
            insert(false);
            break;
        case 2:
            tell("cut in delayed");
            // One that waited already gives way.
            m_watch.expectChange();
            insert(true);
            break;
        case 3:
            tell("cut in no more");
            m_watch.expectChange();
            m_screen.cancelInsertion();
            break;
        case 4:
            tell("leap");
            m_watch.expectChange();
            m_screen.clock.set(m_screen.clock.now().addMSecs(m_draw.between(-20'000, 20'000)));
            m_watch.expectLeap();
            break;
        case 5:
            changeLength();
            break;
        case 6:
            breakMedia();
            break;
        case 7:
            drift();
            break;
        case 8:
            breakOff();
            break;
        }
    }

    void insert(bool isDelayed)
    {
        const QTime time = m_screen.clock.now().time();
        const int now = QTime(8, 0).secsTo(time);
        m_screen.insert(planText(m_draw, std::max(0, now - 10), now + m_draw.between(3, 40), kMost)
                            .toLatin1()
                            .constData(),
                        isDelayed);
    }

    void changeLength()
    {
        const char letter = m_draw.oneIn(2) ? 'A' : 'B';
        tell("another length");
        m_watch.expectChange();
        m_screen.catalogue[programOf(QLatin1Char(letter))].durationMs = m_draw.between(1000, 9000);
        m_screen.followAgain();
    }

    void breakMedia()
    {
        const QString media = QString(QLatin1Char("ABCHIL"[m_draw.below(6)]));
        if (m_broken.erase(media) == 0) {
            m_broken.insert(media);
        }
        tell(m_broken.count(media) > 0 ? "broken " : "mended ", media);
        m_watch.expectBroken(media, m_broken.count(media) > 0);
    }

    RecordedDeck* deckOnStage()
    {
        const StagePicture& picture = m_screen.stage.picture();
        if (picture.kind != StagePicture::Kind::Deck) {
            return nullptr;
        }
        return picture.deck == &m_screen.one ? &m_screen.one : &m_screen.two;
    }

    void drift()
    {
        RecordedDeck* deck = deckOnStage();
        if (deck && deck->isPlaying()) {
            const int by = m_draw.between(-900, 900);
            tell("drift ", QString::number(by));
            deck->drift(by);
            m_watch.expectFault();
        }
    }

    void breakOff()
    {
        RecordedDeck* deck = deckOnStage();
        if (!deck || !deck->isPlaying()) {
            return;
        }
        m_watch.expectFault();
        switch (m_draw.below(3)) {
        case 0:
            tell("failed");
            deck->tellFailed(DeckTrouble::BrokeOff);
            break;
        case 1:
            tell("ended");
            deck->tellEnded();
            break;
        default:
            tell("stalled");
            deck->setStalled(true);
        }
    }

    void tell(const char* words, const QString& what = {})
    {
        m_happened += m_screen.clock.now().toString(QStringLiteral("hh:mm:ss.zzz ")) +
                      QLatin1String(words) + what;
    }

    Draw m_draw;
    ScreenFixture m_screen;
    ScreenWatch m_watch;
    std::set<QString> m_broken;
    QStringList m_happened;
};

} // namespace

/// Schedules as no sane operator would write them, and a world that goes wrong.
class tst_ConductorRandom : public QObject
{
    Q_OBJECT

private slots:
    void neverShowsTheWrongPicture()
    {
        int exact = 0;
        int standBys = 0;
        int formers = 0;
        int stills = 0;
        for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
            World world(seed);
            QString problem = world.run(240);
            world.mend();
            if (problem.isEmpty()) {
                problem = world.run(30);
            }
            QVERIFY2(problem.isEmpty(),
                     qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(problem)));
            exact += world.watch().exact();
            standBys += world.watch().standBys();
            formers += world.watch().formers();
            stills += world.watch().stills();
        }
        qInfo("%d exact, %d stand-bys, %d former pictures, %d stills", exact, standBys, formers,
              stills);
        // All of it has been met.
        QVERIFY(exact > 100'000);
        QVERIFY(standBys > 1000);
        QVERIFY(formers > 100);
        QVERIFY(stills > 1000);
    }

    /// Where nothing goes wrong, each picture comes at its moment, from one load, and that is all.
    void showsEachPictureOnceAtItsMoment()
    {
        int plays = 0;
        for (std::uint32_t seed = 1; seed <= 40; ++seed) {
            Draw draw(seed);
            ScreenFixture screen("07:59:50", 150);
            screen.follow(plansText(draw, "AAABBBH").toLatin1().constData());
            screen.takeCalls();
            const Instant begin = screen.clock.msecsSinceEpoch();
            screen.advance(300'000);

            QStringList expected;
            QStringList loaded;
            ScreenState former;
            screen.timeline->visitPlays(begin, begin + 300'001, {}, [&](const ScreenState& state) {
                const QString time =
                    screen.timeline->local(state.since).toString(QStringLiteral("hh:mm:ss "));
                if (state.isPlaying()) {
                    expected += time + QStringLiteral("play");
                    loaded += QStringLiteral("load %1 at %2")
                                  .arg(letterOf(state.progIndex))
                                  .arg(state.position);
                    ++plays;
                } else if (state.picture == ScreenPicture::Frozen) {
                    expected += time + QStringLiteral("pause");
                } else if (former.isPlaying()) {
                    expected += time + QStringLiteral("black");
                }
                former = state;
                return true;
            });
            QStringList shown;
            QStringList loads;
            for (const QString& call : screen.takeCalls()) {
                const QString what = call.section(QStringLiteral(": "), 1);
                if (what.startsWith(QStringLiteral("load"))) {
                    loads += what;
                } else if (what == QStringLiteral("play") || what == QStringLiteral("pause") ||
                           what == QStringLiteral("black")) {
                    shown += call.section(QLatin1Char(' '), 0, 0) + QLatin1Char(' ') + what;
                } else {
                    QVERIFY2(what == QStringLiteral("clear") || what == QStringLiteral("one") ||
                                 what == QStringLiteral("two"),
                             qPrintable(call));
                }
            }
            QCOMPARE(shown, expected);
            // What is next at the end may be loaded already.
            QCOMPARE(loads.mid(0, loaded.size()), loaded);
            QVERIFY(loads.size() <= loaded.size() + 1);
            QCOMPARE(screen.conductor.longestOff(), 0);
        }
        QVERIFY(plays > 500);
    }
};

TREL_TEST(tst_ConductorRandom, QCoreApplication)
#include "tst_ConductorRandom.moc"
