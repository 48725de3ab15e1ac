#pragma once

#include "Command.h"
#include "Database.h"
#include "MomentText.h"
#include "ScreenReport.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/dispatch/ScreenInsertion.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"
#include "trelprogramschedule/effect/EffectStart.h"

#include <functional>
#include <map>
#include <optional>

namespace trel::console {

class Console;

/// What a database has on screen at any moment: the schedule in effect with its insertions or,
/// where nothing is in effect, what the saved schedule would show.
class StoredScreen
{
public:
    /// The clock has to live on. The saved schedule is taken even where another is in effect when
    /// that is asked for.
    StoredScreen(const Database& database, const trel::mediadispatch::MomentFormat& local,
                 bool isSavedWanted = false);
    Q_DISABLE_COPY(StoredScreen)

    /// How what it shows came into effect; none for a schedule that is only saved.
    const std::optional<trel::mediadispatch::EffectStart>& started() const { return m_started; }
    const trel::mediadispatch::ScreenInsertions& insertions() const { return m_insertions; }
    const trel::mediadispatch::ScreenTimeline& timeline() const { return m_timeline; }
    const std::map<int, trel::mediadispatch::PlayTask>& tasks() const { return m_tasks; }
    const std::map<int, trel::mediadispatch::ProgramIten>& programs() const { return m_programs; }
    const ScreenReport& words() const { return m_words; }

private:
    std::optional<trel::mediadispatch::EffectStart> m_started;
    trel::mediadispatch::ScreenInsertions m_insertions;
    std::map<int, trel::mediadispatch::PlayTask> m_tasks;
    std::map<int, trel::mediadispatch::ProgramIten> m_programs;
    trel::mediadispatch::ScreenTimeline m_timeline;
    ScreenReport m_words;
};

/// The moment that an option names, or now where the option is not given. None, and the user is
/// told why, where it names none.
std::optional<trel::mediadispatch::Instant>
momentOption(const Invocation& invocation, const char* option,
             const trel::mediadispatch::MomentFormat& local, DateAlone dateAlone, Console& console);

/// False, and the user is told why, where the local time is not known.
bool knowsLocalTime(Console& console);

/// What a command does with the screen at a moment.
using ScreenWork = std::function<ExitStatus(const Database& database, const StoredScreen& screen,
                                            trel::mediadispatch::Instant moment)>;

/// The switch that asks for the saved schedule where another is in effect.
CommandOption savedOption();

/// Does it at the moment of the option "--at", with the schedule that the command asks for.
ExitStatus atMoment(const Invocation& invocation, Console& console, const ScreenWork& work);

} // namespace trel::console
