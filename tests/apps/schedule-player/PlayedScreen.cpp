#include "PlayedScreen.h"

#include "clock/Clock.h"
#include "support/MediaFiles.h"
#include "support/NumberedClip.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <iterator>

using namespace trel::mediadispatch;
using namespace trel::screen;

namespace {

constexpr int kFramesPerSecond = 25;
constexpr qint64 kFrameLength = 1000 / kFramesPerSecond;
const QSize kSize(320, 180);
/// The number in the stand-by picture.
constexpr int kStandBy = 200;
constexpr int kSoundLength = 700; // milliseconds
constexpr int kStreamTime = 5000; // milliseconds that it is played at a time
/// What a fault explains at most, where its play goes on for longer; milliseconds.
constexpr Instant kLongest = 5000;
/// What a busy machine may take to load what could not be foreseen; milliseconds.
constexpr Instant kLoading = 1000;

int framesOf(PlayedProgram program)
{
    switch (program) {
    case Short:
        return 10;
    case Middle:
        return 15;
    case Long:
        return 25;
    case Longer:
        return 60;
    case Stream:
        return PlayedPrograms::kStreamLength / kFrameLength;
    case Still:
    case Sound:
        break;
    }
    return 0;
}

bool makeFilm(const QString& path, PlayedProgram program)
{
    media::ClipOrder order;
    order.program = program;
    order.frames = framesOf(program);
    order.framesPerSecond = kFramesPerSecond;
    order.size = kSize;
    return media::makeClip(path, order);
}

ScreenInsertion insertionOf(int program)
{
    ScreenInsertion insertion;
    insertion.taskId = 1;
    insertion.planId = 1;
    insertion.plan = playedPlan(1, QTime(0, 0, 0), QTime(23, 59, 59), {program});
    insertion.plan.serviceFlagB = true;
    return insertion;
}

} // namespace

PlayedPrograms::PlayedPrograms(const QString& stream)
{
    Catalogue catalogue;
    for (const PlayedProgram program : {Short, Middle, Long, Longer, Still, Sound}) {
        ProgramIten& entry = catalogue[program];
        entry.progIndex = program;
        entry.mediaPath = path(program).toStdString();
        entry.progName = "program " + std::to_string(program);
        if (program == Still) {
            entry.kind = ProgramKind::Image;
            m_areMade &= media::clipPicture({Still, 0}, kSize).save(path(program));
        } else if (program == Sound) {
            entry.kind = ProgramKind::Audio;
            entry.durationMs = kSoundLength;
            // A name would be written over the numbers in the stand-by picture.
            entry.progName.clear();
            m_areMade &= media::makeWav(path(program), kSoundLength);
        } else {
            entry.kind = ProgramKind::Video;
            entry.durationMs = static_cast<double>(framesOf(program) * kFrameLength);
            m_areMade &= makeFilm(path(program), program);
        }
    }
    if (!stream.isEmpty()) {
        ProgramIten& entry = catalogue[Stream];
        entry.progIndex = Stream;
        entry.mediaPath = stream.toStdString();
        entry.progName = "stream";
        entry.kind = ProgramKind::Live;
        entry.durationMs = kStreamTime;
        m_areMade &= makeFilm(path(Stream), Stream);
        QFile file(path(Stream));
        m_areMade &= file.open(QIODevice::ReadOnly);
        m_stream = file.readAll();
    }
    m_catalogue = std::make_shared<const Catalogue>(std::move(catalogue));
}

QString PlayedPrograms::path(PlayedProgram program) const
{
    const char* const suffix = program == Still    ? "png"
                               : program == Sound  ? "wav"
                               : program == Stream ? "ts"
                                                   : "mp4";
    return m_folder.filePath(
        QStringLiteral("program%1.%2").arg(program).arg(QLatin1String(suffix)));
}

PlayPlan playedPlan(int id, const QTime& start, const QTime& end, const std::vector<int>& programs)
{
    PlayPlan plan;
    plan.id = id;
    plan.startTime = start.toString(kTimeFormat).toStdString();
    plan.endTime = end.toString(kTimeFormat).toStdString();
    for (const int program : programs) {
        struProgInfo entry;
        entry.progIndex = program;
        plan.programs.push_back(entry);
    }
    return plan;
}

std::map<int, PlayTask> playedTask(std::vector<PlayPlan> plans)
{
    PlayTask task;
    task.id = 1;
    task.startDate = "2000.01.01";
    task.endDate = "2099.12.31";
    task.plans = std::move(plans);
    return {{1, task}};
}

std::map<int, PlayTask> playedAllDay(const std::vector<int>& programs)
{
    return playedTask({playedPlan(1, QTime(0, 0, 0), QTime(23, 59, 59), programs)});
}

void PlayedScreen::EventRecord::note(const ScreenEvent& event)
{
    for (ScreenLog* listener : m_listeners) {
        listener->note(event);
    }
    if (event.kind == ScreenEvent::Kind::Fault || event.kind == ScreenEvent::Kind::Late ||
        event.kind == ScreenEvent::Kind::Recovered) {
        // A play that cannot be loaded is told of before its time, once for all that it lasts.
        const ScreenState& state = event.play.state;
        m_troubles.push_back(
            {std::min(event.moment, state.since),
             std::max(event.moment, std::min(state.until, event.moment + kLongest))});
    }
}

bool PlayedScreen::EventRecord::explains(Instant moment) const
{
    return std::any_of(m_troubles.rbegin(), m_troubles.rend(), [moment](const Trouble& trouble) {
        return moment >= trouble.from - 2 * kPatience && moment <= trouble.to + 2 * kPatience;
    });
}

bool PlayedScreen::explains(Instant moment) const
{
    const auto later = m_insertions.upper_bound(moment);
    return m_log.explains(moment) ||
           (later != m_insertions.begin() && moment - std::prev(later)->first <= kLoading);
}

PlayedScreen::PlayedScreen(const QString& name, const std::map<int, PlayTask>& tasks,
                           std::shared_ptr<const PlayedPrograms::Catalogue> catalogue)
    : m_name(name)
    , m_stage({kSize, 0}, media::clipPicture({kStandBy, 0}, kSize))
    , m_insertions{{kEver, {}}}
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

void PlayedScreen::cutIn(PlayedProgram program, bool isDelayed)
{
    const Instant now = Clock::current().msecsSinceEpoch();
    m_schedule.insertions = m_schedule.timeline->withInsertion(
        m_schedule.insertions, insertionOf(program), now, isDelayed);
    m_insertions.emplace(now, m_schedule.insertions);
    m_conductor.setSchedule(m_schedule);
}

std::vector<ScreenState> PlayedScreen::plays(Instant from, Instant to) const
{
    std::vector<ScreenState> states;
    // What was cut in is forgotten with the next that is.
    for (auto part = m_insertions.begin(); part != m_insertions.end(); ++part) {
        const auto next = std::next(part);
        const Instant begin = std::max(from, part->first);
        const Instant end = next == m_insertions.end() ? to : std::min(to, next->first);
        m_schedule.timeline->visitPlays(begin, end, part->second, [&](const ScreenState& state) {
            states.push_back(state);
            states.back().since = std::max(begin, state.since);
            return begin < end;
        });
    }
    return states;
}

QString PlayedScreen::fault(const RecordedFrame& frame) const
{
    if (frame.content == RecordedFrame::Content::Other) {
        return QStringLiteral("a mixture");
    }
    if (isRight(frame)) {
        return QString();
    }
    const bool isNone = frame.content == RecordedFrame::Content::Black || isStandBy(frame);
    const std::vector<ScreenState> about = plays(frame.moment - kPatience, frame.moment + 1);
    const bool isOfAPlay =
        std::any_of(about.begin(), about.end(), [&frame](const ScreenState& state) {
            return state.progIndex == frame.mark.program;
        });
    if ((isNone || isOfAPlay) && explains(frame.moment)) {
        return QString();
    }
    return isNone ? QStringLiteral("no picture")
                  : QStringLiteral("program %1, frame %2")
                        .arg(frame.mark.program)
                        .arg(frame.mark.frame);
}

bool PlayedScreen::isRight(const RecordedFrame& frame) const
{
    const std::vector<ScreenState> about = plays(frame.moment - kPatience, frame.moment + 1);
    return std::any_of(about.begin(), about.end(),
                       [&frame](const ScreenState& state) { return fits(frame, state); });
}

bool PlayedScreen::hasShown(const ScreenState& state) const
{
    const std::vector<RecordedFrame>& frames = m_record.frames();
    const auto isLater = [](Instant moment, const RecordedFrame& frame) {
        return moment < frame.moment;
    };
    const auto firstAfter = std::upper_bound(frames.begin(), frames.end(), state.since, isLater);
    const auto over = std::upper_bound(frames.begin(), frames.end(), state.until, isLater);
    const auto first = firstAfter == frames.begin() ? firstAfter : std::prev(firstAfter);
    return std::any_of(first, over, [&](const RecordedFrame& frame) { return fits(frame, state); });
}

bool PlayedScreen::isStandBy(const RecordedFrame& frame)
{
    return frame.content == RecordedFrame::Content::Clip && frame.mark.program == kStandBy;
}

bool PlayedScreen::fits(const RecordedFrame& frame, const ScreenState& state)
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
    if (state.progIndex == Still || state.progIndex == Stream) {
        return true;
    }
    // A frame stands for its whole length, and position is that of its beginning.
    const Instant moving = state.isPlaying() ? std::max<Instant>(0, frame.moment - state.since) : 0;
    const qint64 position = state.position + moving;
    const qint64 shown = frame.mark.frame * kFrameLength;
    // What is cut in at once is loaded for a moment that is still to come, and may stand until
    // then; where it comes later, it is sought only when it is half a second behind.
    const qint64 ahead = state.isInserted() ? kPatience : 2 * kFrameLength;
    const qint64 behind = state.isInserted() ? 2 * kPatience : kPatience;
    return shown <= position + ahead && shown >= position - behind;
}
