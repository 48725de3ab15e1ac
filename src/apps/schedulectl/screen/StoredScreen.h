#pragma once

#include "Command.h"
#include "Database.h"
#include "MomentText.h"
#include "ScreenWords.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "trelprogramschedule/dispatch/ScreenTimeline.h"

#include <map>
#include <optional>

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
    const ScreenWords& words() const { return m_words; }

private:
    std::map<int, trel::mediadispatch::PlayTask> m_tasks;
    std::map<int, trel::mediadispatch::ProgramIten> m_programs;
    trel::mediadispatch::ScreenTimeline m_timeline;
    ScreenWords m_words;
};

/// The moment that an option names, or now where the option is not given. None, and the user is
/// told why, where it names none.
std::optional<trel::mediadispatch::Instant>
momentOption(const Invocation& invocation, const char* option,
             const trel::mediadispatch::MomentFormat& local, DateAlone dateAlone, Console& console);
