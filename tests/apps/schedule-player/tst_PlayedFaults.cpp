#include "FaultInjector.h"
#include "PlayedScreen.h"
#include "clock/Clock.h"
#include "support/RunningClock.h"
#include "support/TestProgram.h"

#include <QGuiApplication>
#include <QtTest>

#include <algorithm>

using namespace trel::mediadispatch;
using Way = FaultInjector::Way;

namespace {

constexpr Instant kSecond = 1000; // milliseconds
/// When all breaks, when an image is cut in, when all is mended, and when the test is over.
constexpr Instant kBreak = 3 * kSecond;
constexpr Instant kCutIn = 4 * kSecond + 500;
constexpr Instant kMend = 6 * kSecond + 200;
constexpr Instant kOver = 9 * kSecond;

using Ways = std::vector<std::pair<PlayedProgram, Way>>;

} // namespace

Q_DECLARE_METATYPE(Ways)

/// Real decks whose programs all break at the same moment, and are mended at the same moment.
class tst_PlayedFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void allBreakAtOnce_data();
    void allBreakAtOnce();

private:
    QString wrongPicture(const PlayedScreen& screen, Instant from, Instant to) const;
    QString stalePicture(const PlayedScreen& screen, Instant from, Instant to) const;

    StreamServer m_server;
    std::unique_ptr<PlayedPrograms> m_programs;
};

void tst_PlayedFaults::initTestCase()
{
    m_programs = std::make_unique<PlayedPrograms>(m_server.address());
    QVERIFY(m_programs->areMade());
    m_server.servePaced(QStringLiteral("/live"), m_programs->stream(),
                        PlayedPrograms::kStreamLength);
}

/// The first picture between two moments that cannot be explained; empty where there is none.
QString tst_PlayedFaults::wrongPicture(const PlayedScreen& screen, Instant from, Instant to) const
{
    for (const RecordedFrame& frame : screen.frames()) {
        const QString fault =
            frame.moment >= from && frame.moment < to ? screen.fault(frame) : QString();
        if (!fault.isEmpty()) {
            return QStringLiteral("%1 at %2").arg(fault).arg(frame.moment - from);
        }
    }
    return QString();
}

/// The first change of program after which the former one stood for longer than it may.
QString tst_PlayedFaults::stalePicture(const PlayedScreen& screen, Instant from, Instant to) const
{
    const std::vector<RecordedFrame>& frames = screen.frames();
    for (const ScreenState& state : screen.plays(from, to)) {
        const Instant by = state.since + PlayedScreen::kPatience;
        if (state.since <= from || state.until <= by) {
            continue;
        }
        const auto after = std::find_if(frames.begin(), frames.end(),
                                        [by](const auto& frame) { return frame.moment > by; });
        if (after == frames.begin()) {
            continue;
        }
        const RecordedFrame& stands = *std::prev(after);
        const bool isForeign = stands.content != RecordedFrame::Content::Black &&
                               !PlayedScreen::isStandBy(stands) &&
                               stands.mark.program != state.progIndex;
        if (isForeign) {
            return QStringLiteral("program %1 stood in the time of %2, at %3")
                .arg(stands.mark.program)
                .arg(state.progIndex)
                .arg(state.since - from);
        }
    }
    return QString();
}

void tst_PlayedFaults::allBreakAtOnce_data()
{
    QTest::addColumn<Ways>("ways");
    QTest::newRow("stalls") << Ways{
        {Short, Way::Missing}, {Middle, Way::Text},  {Long, Way::CutShort}, {Longer, Way::Emptied},
        {Still, Way::Pipe},    {Sound, Way::Folder}, {Stream, Way::Stalls}};
    QTest::newRow("breaks off") << Ways{{Short, Way::Emptied},   {Middle, Way::Folder},
                                        {Long, Way::Pipe},       {Longer, Way::CutShort},
                                        {Still, Way::Text},      {Sound, Way::Missing},
                                        {Stream, Way::BreaksOff}};
    // The others have nothing to do with it.
    QTest::newRow("silent") << Ways{
        {Short, Way::Text},   {Middle, Way::Missing}, {Long, Way::Missing}, {Longer, Way::Text},
        {Still, Way::Folder}, {Sound, Way::Emptied},  {Stream, Way::Silent}};
    QTest::newRow("dead") << Ways{
        {Short, Way::Pipe},    {Middle, Way::Pipe}, {Long, Way::Folder}, {Longer, Way::Missing},
        {Still, Way::Missing}, {Sound, Way::Text},  {Stream, Way::Dead}};
    QTest::newRow("unreachable") << Ways{{Short, Way::CutShort},    {Middle, Way::CutShort},
                                         {Long, Way::Text},         {Longer, Way::Folder},
                                         {Still, Way::Emptied},     {Sound, Way::Pipe},
                                         {Stream, Way::Unreachable}};
}

void tst_PlayedFaults::allBreakAtOnce()
{
    QFETCH(Ways, ways);
    const RunningClock clock(
        QDateTime(QDate(2024, 3, 5), QTime(12, 0), QTimeZone("Europe/Berlin")));
    const Instant from = clock.msecsSinceEpoch();
    std::vector<std::unique_ptr<PlayedScreen>> screens;
    const auto add = [&](const char* name, const std::vector<int>& programs) {
        screens.push_back(std::make_unique<PlayedScreen>(
            QLatin1String(name), playedAllDay(programs), m_programs->catalogue()));
    };
    add("films", {Short, Middle, Long});
    add("of all kinds", {Longer, Sound});
    PlayedScreen& ofAllKinds = *screens.back();
    add("stream", {Stream});
    FaultInjector faults(*m_programs, m_server);
    const auto reached = [&](Instant moment) { return clock.msecsSinceEpoch() >= from + moment; };
    QTRY_VERIFY_WITH_TIMEOUT(reached(kBreak), 2 * kOver);
    for (const auto& [program, way] : ways) {
        faults.breakNow(program, way);
    }
    QTRY_VERIFY_WITH_TIMEOUT(reached(kCutIn), 2 * kOver);
    ofAllKinds.cutIn(Still, false);
    QTRY_VERIFY_WITH_TIMEOUT(reached(kMend), 2 * kOver);
    const Instant mended = clock.msecsSinceEpoch();
    faults.mend();
    QTRY_VERIFY_WITH_TIMEOUT(reached(kOver), 2 * kOver);

    for (const std::unique_ptr<PlayedScreen>& screen : screens) {
        const auto of = [&screen](const QString& what) {
            return qPrintable(screen->name() + QStringLiteral(": ") + what);
        };
        const QString wrong = wrongPicture(*screen, from + 2 * kSecond, from + kOver);
        QVERIFY2(wrong.isEmpty(), of(wrong));
        const QString stale = stalePicture(*screen, from + 2 * kSecond, from + kOver);
        QVERIFY2(stale.isEmpty(), of(stale));
        // All that it had was broken.
        QVERIFY2(screen->tally().faults() >= 1, of(QStringLiteral("no fault")));
        QVERIFY2(screen->conductor().longestOff() > 0, of(QStringLiteral("was never off")));
        const auto isBack = [&](const RecordedFrame& frame) {
            return frame.moment > mended && frame.moment <= mended + 2 * kSecond &&
                   screen->isRight(frame);
        };
        QVERIFY2(std::any_of(screen->frames().begin(), screen->frames().end(), isBack),
                 of(QStringLiteral("is not back in time")));
        QVERIFY2(screen->conductor().status().isOnTimeline, of(QStringLiteral("is not back")));
        qInfo("%s: %lld faults, off for %lld ms", qPrintable(screen->name()),
              screen->tally().faults(), screen->conductor().longestOff());
    }
}

TREL_TEST(tst_PlayedFaults, QGuiApplication)
#include "tst_PlayedFaults.moc"
