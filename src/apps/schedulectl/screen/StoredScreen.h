#pragma once

#include "Command.h"
#include "Database.h"
#include "MomentText.h"
#include "ScreenReport.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <functional>
#include <map>
#include <optional>

namespace trel::console {

class Console;

/// What the stored schedule of a database shows at any moment.
class StoredScreen
{
public:
    /// The clock has to live on.
    StoredScreen(const Database& database, const trel::mediadispatch::MomentFormat& local);
    Q_DISABLE_COPY(StoredScreen)

    const trel::mediadispatch::ScreenTimeline& timeline() const { return m_timeline; }
    const std::map<int, trel::mediadispatch::PlayTask>& tasks() const { return m_tasks; }
    const std::map<int, trel::mediadispatch::ProgramIten>& programs() const { return m_programs; }
    const ScreenReport& words() const { return m_words; }

private:
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

/// Does it at the moment of the option "--at".
ExitStatus atMoment(const Invocation& invocation, Console& console, const ScreenWork& work);

} // namespace trel::console
