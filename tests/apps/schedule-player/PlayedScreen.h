#pragma once

#include "FrameRecord.h"
#include "deck/PlayerDeck.h"
#include "service/ScheduleRecords.h"
#include "stage/SoftwareStage.h"
#include "trelscreen/Conductor.h"
#include "trelscreen/ScreenLog.h"

#include <QString>
#include <QTemporaryDir>

#include <map>
#include <memory>
#include <vector>

/// The programs that a PlayedScreen plays: films of 0.4, 0.6, 1 and 2.4 seconds whose pictures tell
/// which they are, an image, a sound of 0.7 seconds and a stream that is played for five.
enum PlayedProgram { Short = 1, Middle, Long, Longer, Still, Sound, Stream };

/// Their files, made in a folder of their own.
class PlayedPrograms
{
public:
    using Catalogue = std::map<int, trel::mediadispatch::ProgramIten>;

    /// With the address of the stream, which somebody has to serve; there is none without it.
    explicit PlayedPrograms(const QString& stream = QString());

    /// False when a file could not be made.
    bool areMade() const { return m_areMade; }
    QString path(PlayedProgram program) const;
    /// What is to be served as the stream, and for how long it lasts.
    const QByteArray& stream() const { return m_stream; }
    static constexpr int kStreamLength = 40'000; // milliseconds
    const std::shared_ptr<const Catalogue>& catalogue() const { return m_catalogue; }

private:
    QTemporaryDir m_folder;
    std::shared_ptr<const Catalogue> m_catalogue;
    QByteArray m_stream;
    bool m_areMade = true;
};

/// A plan in TimeMode.
trel::mediadispatch::PlayPlan playedPlan(int id, const QTime& start, const QTime& end,
                                         const std::vector<int>& programs);
/// A schedule of one task that is valid on every day.
std::map<int, trel::mediadispatch::PlayTask>
playedTask(std::vector<trel::mediadispatch::PlayPlan> plans);
/// Programs that play round and round, all day.
std::map<int, trel::mediadispatch::PlayTask> playedAllDay(const std::vector<int>& programs);

/// A screen of real decks that plays, and all that it showed, to be held against the timeline.
class PlayedScreen
{
public:
    using Instant = trel::mediadispatch::Instant;
    using ScreenState = trel::mediadispatch::ScreenState;

    /// A busy machine is late by less than that. Nothing that is wrong stands on a screen for
    /// longer. Milliseconds.
    static constexpr Instant kPatience = 300;

    /// Plays from now on.
    PlayedScreen(const QString& name, const std::map<int, trel::mediadispatch::PlayTask>& tasks,
                 std::shared_ptr<const PlayedPrograms::Catalogue> catalogue);

    /// Cuts a program in, to be played once.
    void cutIn(PlayedProgram program, bool isDelayed);

    /// All plays and pictures from one moment to another, each with the moment of its position as
    /// the one since when it is.
    std::vector<ScreenState> plays(Instant from, Instant to) const;
    /// Why the picture is a wrong one; empty when it is right, or when a fault explains that there
    /// was none, or another one of the same program.
    QString fault(const RecordedFrame& frame) const;
    /// Whether the picture is the one that the timeline has at its moment.
    bool isRight(const RecordedFrame& frame) const;
    /// Whether it is the one for when there is none.
    static bool isStandBy(const RecordedFrame& frame);
    /// Whether the picture stood on the screen soon after its beginning, or came later.
    bool hasShown(const ScreenState& state) const;
    /// Whether a fault about that moment, or what was cut in at once and had to be loaded, explains
    /// that a picture was missing.
    bool explains(Instant moment) const;

    const QString& name() const { return m_name; }
    const std::vector<RecordedFrame>& frames() const { return m_record.frames(); }
    /// Forgets what was on the screen before that moment, so that a long run does not fill the
    /// memory; what stood there at the moment stays.
    void forgetFramesBefore(Instant moment) { m_record.forgetBefore(moment); }
    const trel::screen::Conductor& conductor() const { return m_conductor; }
    const trel::screen::ScreenTally& tally() const { return m_conductor.tally(); }
    qint64 droppedFrames() const { return m_first.droppedFrames() + m_second.droppedFrames(); }
    const trel::player::PlayerDeck& firstDeck() const { return m_first; }
    const trel::player::PlayerDeck& secondDeck() const { return m_second; }
    /// Hears of all events from now on; outlives the screen.
    void addListener(trel::screen::ScreenLog& listener) { m_log.add(listener); }

private:
    class EventRecord : public trel::screen::ScreenLog
    {
    public:
        void note(const trel::screen::ScreenEvent& event) override;
        bool explains(Instant moment) const;
        void add(trel::screen::ScreenLog& listener) { m_listeners.push_back(&listener); }

    private:
        struct Trouble
        {
            Instant from;
            Instant to;
        };

        std::vector<Trouble> m_troubles;
        std::vector<trel::screen::ScreenLog*> m_listeners;
    };

    static bool fits(const RecordedFrame& frame, const ScreenState& state);

    const QString m_name;
    trel::player::PlayerDeck m_first{true};
    trel::player::PlayerDeck m_second{true};
    FrameRecord m_record;
    trel::player::SoftwareStage m_stage;
    EventRecord m_log;
    trel::screen::ScreenSchedule m_schedule;
    /// What was cut in, by when it was.
    std::map<Instant, trel::mediadispatch::ScreenInsertions> m_insertions;
    trel::screen::Conductor m_conductor;
};
