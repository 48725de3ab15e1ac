#pragma once

#include "service/ScheduleRecords.h"
#include "trelprogramschedule/dispatch/SoughtPlay.h"

#include <QtGlobal>

#include <limits>
#include <map>
#include <optional>
#include <vector>

namespace trel::mediadispatch {

/// A length of time in whole microseconds.
using Microseconds = qint64;

/// The length of what does not end.
inline constexpr Microseconds kEndless = std::numeric_limits<Microseconds>::max();

/// What of a list is reached a while after its start.
struct ListMoment
{
    enum class Kind {
        Nothing, ///< None of its entries can be seen.
        Playing,
        RanOut, ///< It has run as often as it should; the numbers are those of its last play.
    };
    Kind kind = Kind::Nothing;
    int entry = -1;
    int progIndex = -1;
    int play = -1;
    qint64 run = -1;
    Microseconds begin = 0;      ///< Since the start of the list, when this began.
    Microseconds end = kEndless; ///< And when it is over.
    Microseconds length = 0;     ///< Of the program.

    /// How far into the program a time since the start of the list lies, or where it stopped.
    Microseconds position(Microseconds elapsed) const
    {
        const Microseconds played = elapsed - begin;
        return kind == Kind::RanOut || played > length ? length : played;
    }
};

/// A plan's list as it runs: which play is on after a while.
///
/// Entries that have gone bad, whose program is not there or takes no time are passed over. A
/// program without a length of its own holds the screen for good.
class PlayList
{
public:
    /// How often a list runs that repeats.
    static constexpr qint64 kRepeated = std::numeric_limits<qint64>::max();

    PlayList() = default;
    /// With no runs, or fewer, there is nothing to be seen.
    PlayList(const std::vector<struProgInfo>& entries, const std::map<int, ProgramIten>& catalogue,
             qint64 runs);

    bool isEmpty() const { return m_items.empty(); }
    /// When it has run as often as it should, since its start. 0 for an empty list.
    Microseconds length() const;
    /// Costs the logarithm of the number of entries.
    ListMoment at(Microseconds elapsed) const;
    /// The first whole millisecond from one time on and before another, since the start of the
    /// list, at which a sought play is on. Plays that fall between two milliseconds are not seen.
    /// Costs the number of entries once where a sought entry lasts for a millisecond, and a
    /// thousand times at most where none does.
    std::optional<Microseconds> firstShown(const SoughtPlay& sought, Microseconds from,
                                           Microseconds to) const;

private:
    struct Item
    {
        int entry = 0;
        int progIndex = 0;
        Microseconds begin = 0; ///< Within the run.
        Microseconds length = 0;
        int playCount = 0;
        /// Of all its plays in a row.
        Microseconds lengthOfAll = 0;
    };

    std::optional<Microseconds> firstShownInRun(const SoughtPlay& sought, Microseconds runBegin,
                                                Microseconds from, Microseconds to) const;
    void append(int entry, const struProgInfo& info, const ProgramIten& program);
    ListMoment ranOut() const;

    std::vector<Item> m_items;
    Microseconds m_runLength = 0;
    qint64 m_runs = 0;
};

} // namespace trel::mediadispatch
