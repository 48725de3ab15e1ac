#include "FrameRecord.h"
#include "deck/PlayerDeck.h"
#include "stage/SoftwareStage.h"
#include "support/MediaFiles.h"
#include "support/NumberedClip.h"
#include "support/RunningClock.h"
#include "support/TestProgram.h"
#include "trelscreen/Conductor.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cstdlib>

using namespace trel::mediadispatch;
using namespace trel::player;
using namespace trel::screen;

/// Real decks that play real clips by a schedule: each picture that reaches the screen is held
/// against what the timeline says of its moment.
class tst_PlayedSchedule : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPictureIsTheRightOne_data();
    void everyPictureIsTheRightOne();

private:
    QTemporaryDir m_folder;
    std::shared_ptr<const std::map<int, ProgramIten>> m_catalogue;
};

namespace {

constexpr int kFramesPerSecond = 25;
constexpr qint64 kFrameLength = 1000 / kFramesPerSecond;
/// Seconds that each screen plays.
constexpr int kRun = 14;
/// A busy machine is late by less than that. Nothing that is wrong stands on a screen for longer.
constexpr Instant kPatience = 300;
/// The number in the stand-by picture.
constexpr int kStandBy = 200;

enum Programs { Short = 1, Middle, Long, Longer, Still, Sound };

PlayPlan planOf(int id, const QTime& start, const QTime& end, const std::vector<int>& programs)
{
    PlayPlan plan;
    plan.id = id;
    plan.startTime = start.toString(QStringLiteral("hh:mm:ss")).toStdString();
    plan.endTime = end.toString(QStringLiteral("hh:mm:ss")).toStdString();
    for (const int program : programs) {
        struProgInfo entry;
        entry.progIndex = program;
        plan.programs.push_back(entry);
    }
    return plan;
}

std::map<int, PlayTask> taskOf(std::vector<PlayPlan> plans)
{
    PlayTask task;
    task.id = 1;
    task.startDate = "2000.01.01";
    task.endDate = "2099.12.31";
    task.plans = std::move(plans);
    return {{1, task}};
}

std::map<int, PlayTask> allDay(const std::vector<int>& programs)
{
    return taskOf({planOf(1, QTime(0, 0, 0), QTime(23, 59, 59), programs)});
}

/// Plans of three seconds with a second between them, around each hour of the night: some leave
/// black, some their last frame, some run twice through their list.
std::map<int, PlayTask> shortPlans()
{
    std::vector<PlayPlan> plans;
    for (int hour = 1; hour <= 3; ++hour) {
        for (int second = -32; second < 32; second += 4) {
            const int number = static_cast<int>(plans.size());
            const QTime start = QTime(hour, 0).addSecs(second);
            PlayPlan plan =
                planOf(number + 1, start, start.addSecs(3),
                       number % 3 == 2 ? std::vector<int>{Still} : std::vector<int>{Short, Middle});
            plan.endAction = number % 2 == 0 ? FreezeCurrentFrame : BlackScreen;
            if (number % 3 == 1) {
                plan.mode = FrequencyMode;
                plan.times = 2;
            }
            plans.push_back(plan);
        }
    }
    return taskOf(plans);
}

ScreenInsertion insertionOf(int program)
{
    ScreenInsertion insertion;
    insertion.taskId = 1;
    insertion.planId = 1;
    insertion.plan = planOf(1, QTime(0, 0, 0), QTime(23, 59, 59), {program});
    insertion.plan.serviceFlagB = true;
    return insertion;
}

class EventRecord : public ScreenLog
{
public:
    void note(const ScreenEvent& event) override { events.push_back(event); }

    /// Whether something about that moment explains that a picture was missing.
    bool explains(Instant moment) const
    {
        return std::any_of(events.begin(), events.end(), [moment](const ScreenEvent& event) {
            const bool isTrouble =
                event.kind == ScreenEvent::Kind::Fault || event.kind == ScreenEvent::Kind::Late;
            return isTrouble && std::abs(event.moment - moment) <= 2 * kPatience;
        });
    }

    std::vector<ScreenEvent> events;
};

/// A screen that plays, and all that it showed.
class Screen
{
public:
    Screen(const QString& name, const std::map<int, PlayTask>& tasks,
           std::shared_ptr<const std::map<int, ProgramIten>> catalogue)
        : name(name)
        , m_stage({QSize(320, 180), 0}, media::clipPicture({kStandBy, 0}, QSize(320, 180)))
        , m_conductor(m_stage, m_first, m_second, m_log)
    {
        m_stage.add(m_first);
        m_stage.add(m_second);
        m_stage.add(m_record);
        m_schedule.catalogue = std::move(catalogue);
        m_schedule.timeline = std::make_shared<const ScreenTimeline>(tasks, *m_schedule.catalogue,
                                                                     Clock::current().zone());
        m_schedule.start = EffectStart();
        m_conductor.setSchedule(m_schedule);
    }

    void cutIn(int program, bool isDelayed)
    {
        const Instant now = Clock::current().msecsSinceEpoch();
        m_schedule.insertions = m_schedule.timeline->withInsertion(
            m_schedule.insertions, insertionOf(program), now, isDelayed);
        m_insertions.emplace(now, m_schedule.insertions);
        m_conductor.setSchedule(m_schedule);
    }

    /// All plays and pictures from one moment to another, each with the moment of its position as
    /// the one since when it is.
    std::vector<ScreenState> plays(Instant from, Instant to) const
    {
        std::vector<ScreenState> states;
        // What was cut in is forgotten with the next that is.
        for (auto part = m_insertions.begin(); part != m_insertions.end(); ++part) {
            const auto next = std::next(part);
            const Instant begin = std::max(from, part->first);
            const Instant end = next == m_insertions.end() ? to : std::min(to, next->first);
            m_schedule.timeline->visitPlays(begin, end, part->second,
                                            [&](const ScreenState& state) {
                                                states.push_back(state);
                                                states.back().since = std::max(begin, state.since);
                                                return begin < end;
                                            });
        }
        return states;
    }

    /// Why the picture is a wrong one; empty when it is right.
    QString fault(const RecordedFrame& frame) const
    {
        if (frame.content == RecordedFrame::Content::Other) {
            return QStringLiteral("a mixture");
        }
        for (const ScreenState& state : plays(frame.moment - kPatience, frame.moment + 1)) {
            if (fits(frame, state)) {
                return QString();
            }
        }
        const bool isNone = frame.content == RecordedFrame::Content::Black || isStandBy(frame);
        if (isNone && m_log.explains(frame.moment)) {
            return QString();
        }
        return isNone ? QStringLiteral("no picture")
                      : QStringLiteral("program %1, frame %2")
                            .arg(frame.mark.program)
                            .arg(frame.mark.frame);
    }

    /// Whether the picture stood on the screen soon after its beginning, or came later.
    bool hasShown(const ScreenState& state) const
    {
        const std::vector<RecordedFrame>& frames = m_record.frames();
        const auto isLater = [](Instant moment, const RecordedFrame& frame) {
            return moment < frame.moment;
        };
        const auto firstAfter =
            std::upper_bound(frames.begin(), frames.end(), state.since, isLater);
        const auto over = std::upper_bound(frames.begin(), frames.end(), state.until, isLater);
        const auto first = firstAfter == frames.begin() ? firstAfter : std::prev(firstAfter);
        return std::any_of(first, over,
                           [&](const RecordedFrame& frame) { return fits(frame, state); });
    }

    const QString name;
    const std::vector<RecordedFrame>& frames() const { return m_record.frames(); }
    const ScreenTally& tally() const { return m_conductor.tally(); }
    const EventRecord& log() const { return m_log; }

private:
    static bool isStandBy(const RecordedFrame& frame)
    {
        return frame.content == RecordedFrame::Content::Clip && frame.mark.program == kStandBy;
    }

    bool fits(const RecordedFrame& frame, const ScreenState& state) const
    {
        if (state.picture == ScreenPicture::Black) {
            return frame.content == RecordedFrame::Content::Black;
        }
        if (frame.content != RecordedFrame::Content::Clip) {
            return false;
        }
        if (state.progIndex == Sound) {
            return isStandBy(frame);
        }
        if (frame.mark.program != state.progIndex) {
            return false;
        }
        if (state.progIndex == Still) {
            return true;
        }
        // A frame stands for its whole length, and position is that of its beginning.
        const Instant moving =
            state.isPlaying() ? std::max<Instant>(0, frame.moment - state.since) : 0;
        const qint64 position = state.position + moving;
        const qint64 shown = frame.mark.frame * kFrameLength;
        // What is cut in at once is loaded for a moment that is still to come, and may stand until
        // then; where it comes later, it is sought only when it is half a second behind.
        const qint64 ahead = state.isInserted() ? kPatience : 2 * kFrameLength;
        const qint64 behind = state.isInserted() ? 2 * kPatience : kPatience;
        return shown <= position + ahead && shown >= position - behind;
    }

    PlayerDeck m_first{true};
    PlayerDeck m_second{true};
    FrameRecord m_record;
    SoftwareStage m_stage;
    EventRecord m_log;
    ScreenSchedule m_schedule;
    std::map<Instant, ScreenInsertions> m_insertions{{kEver, {}}}; ///< By when they came.
    Conductor m_conductor;
};

} // namespace

void tst_PlayedSchedule::initTestCase()
{
    std::map<int, ProgramIten> catalogue;
    const auto add = [&](int index, const QString& file, ProgramKind kind, double length) {
        ProgramIten program;
        program.progIndex = index;
        program.progName = file.toStdString();
        program.mediaPath = m_folder.filePath(file).toStdString();
        program.kind = kind;
        program.durationMs = length;
        catalogue.emplace(index, program);
    };
    const std::map<int, int> lengths = {{Short, 10}, {Middle, 15}, {Long, 25}, {Longer, 60}};
    for (const auto& [index, frames] : lengths) {
        const QString file = QStringLiteral("clip%1.mp4").arg(index);
        media::ClipOrder order;
        order.program = index;
        order.frames = frames;
        order.framesPerSecond = kFramesPerSecond;
        QVERIFY(media::makeClip(m_folder.filePath(file), order));
        add(index, file, ProgramKind::Video, static_cast<double>(frames * kFrameLength));
    }
    const QString still = QStringLiteral("still.png");
    QVERIFY(media::clipPicture({Still, 0}, QSize(320, 180)).save(m_folder.filePath(still)));
    add(Still, still, ProgramKind::Image, 0.0);
    const QString sound = QStringLiteral("sound.wav");
    QVERIFY(media::makeWav(m_folder.filePath(sound), 700));
    add(Sound, sound, ProgramKind::Audio, 700.0);
    // A name would be written over the numbers in the stand-by picture.
    catalogue.at(Sound).progName.clear();
    m_catalogue = std::make_shared<const std::map<int, ProgramIten>>(std::move(catalogue));
}

void tst_PlayedSchedule::everyPictureIsTheRightOne_data()
{
    QTest::addColumn<QDateTime>("start");
    const QTimeZone berlin("Europe/Berlin");
    // Seven seconds before the clock goes from 2 to 3, and from 3 to 2.
    QTest::newRow("spring")
        << QDateTime(QDate(2024, 3, 31), QTime(0, 59, 53), Qt::UTC).toTimeZone(berlin);
    QTest::newRow("autumn")
        << QDateTime(QDate(2024, 10, 27), QTime(0, 59, 53), Qt::UTC).toTimeZone(berlin);
}

void tst_PlayedSchedule::everyPictureIsTheRightOne()
{
    QFETCH(QDateTime, start);
    const RunningClock clock(start);
    const Instant from = clock.msecsSinceEpoch();
    const Instant to = from + kRun * 1000;
    std::vector<std::unique_ptr<Screen>> screens;
    const auto add = [&](const char* name, const std::map<int, PlayTask>& tasks) -> Screen& {
        screens.push_back(std::make_unique<Screen>(QLatin1String(name), tasks, m_catalogue));
        return *screens.back();
    };
    add("round and round", allDay({Short, Middle, Short, Long}));
    add("short plans", shortPlans());
    add("sound between", allDay({Middle, Sound, Short}));
    Screen& cutInto = add("cut into", allDay({Long, Middle}));
    QTimer::singleShot(3000, this, [&cutInto] { cutInto.cutIn(Longer, false); });
    QTimer::singleShot(7200, this, [&cutInto] { cutInto.cutIn(Longer, true); });
    QTRY_VERIFY_WITH_TIMEOUT(clock.msecsSinceEpoch() >= to, 2 * kRun * 1000);

    qint64 switches = 0;
    for (const std::unique_ptr<Screen>& screen : screens) {
        const qint64 second = 1000;
        for (const RecordedFrame& frame : screen->frames()) {
            // The first pictures are those of a screen that has just begun.
            if (frame.moment < from + second || frame.moment > to) {
                continue;
            }
            const QString fault = screen->fault(frame);
            QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("%1 after %2 ms: %3")
                                                     .arg(screen->name)
                                                     .arg(frame.moment - from)
                                                     .arg(fault)));
        }
        for (const ScreenState& state : screen->plays(from + second, to - second)) {
            QVERIFY2(screen->hasShown(state) || screen->log().explains(state.since),
                     qPrintable(QStringLiteral("%1: program %2 after %3 ms was not shown")
                                    .arg(screen->name)
                                    .arg(state.progIndex)
                                    .arg(state.since - from)));
        }
        switches += screen->tally().switches();
        QCOMPARE(screen->tally().seeks(), 0);
        QCOMPARE(screen->tally().faults(), 0);
        qInfo("%s: %lld switches, lateness %lld in the middle and %lld ms at worst, %lld late, "
              "%lld faults",
              qPrintable(screen->name), screen->tally().switches(), screen->tally().lateness(50),
              screen->tally().worstLateness(), screen->tally().lates(), screen->tally().faults());
    }
    QVERIFY2(switches > 50, qPrintable(QString::number(switches)));
}

TREL_TEST(tst_PlayedSchedule, QGuiApplication)
#include "tst_PlayedSchedule.moc"
