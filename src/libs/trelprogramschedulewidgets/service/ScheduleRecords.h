#pragma once

#include <QLatin1String>
#include <QMetaType>

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

/// The records that carry a schedule: plain values, copied freely, owning nothing but their own
/// text. Every time and date in them is text of a fixed width, so that the byte order of two texts
/// is the order of the moments they name.
namespace trel::mediadispatch {

/// Format of every time of day in a record and on screen: 24 hours, always eight characters.
inline constexpr QLatin1String kTimeFormat("hh:mm:ss", 8);
/// Format of every date in a record and on screen: always ten characters.
inline constexpr QLatin1String kDateFormat("yyyy.MM.dd", 10);

/// The earliest time of day.
inline constexpr char kDayStart[] = "00:00:00";
/// The latest time of day; no plan ends later.
inline constexpr char kDayEnd[] = "23:59:59";

/// From this number upward an index refers to no program.
inline constexpr int kInvalidProgIndex = 65536;

/// How the end of a plan is fixed; the values of PlayPlan::mode.
enum PlanMode {
    TimeMode = 0,      ///< The operator sets start and end.
    FrequencyMode = 1, ///< The operator sets start and number of runs; the end follows from them.
};

/// What the screen does when a plan ends; the values of PlayPlan::endAction.
enum PlanEndAction {
    BlackScreen = 0,
    FreezeCurrentFrame = 1,
};

/// The day numbers in PlayPlan::weeks.
enum WeekDay {
    EveryDay = 0,
    Monday,
    Tuesday,
    Wednesday,
    Thursday,
    Friday,
    Saturday,
    Sunday,
    WeekDayCount
};

/// Which combo box of a plan row has changed. The value 1 is not used.
enum ComBoxType {
    ModeCombo = 0,
    EndActionCombo = 2,
};

/// How a date compares with today.
enum DataCompareType {
    DateBeforeToday = 0,
    DateIsToday = 1,
    DateAfterToday = 2,
};

/// The table that a check mark belongs to. Receivers ignore any other value.
enum CheckType : int {
    ProgramListCheck = 0, ///< All programs on offer.
    PlanListCheck = 1,    ///< The programs of the plan.
};

/// What a program of the catalogue is made of.
enum class ProgramKind {
    Video = 0,
    Audio = 1,
    Image = 2, ///< Has no length of its own.
    Live = 3,  ///< A stream that is always on; has no length of its own.
    Other = 4,
};

/// A program of the catalogue, as the service hands it out.
struct ProgramIten
{
    int progIndex = -1; ///< Its number in the catalogue, the reference that everything else takes.
    std::string progName;    ///< UTF-8, as it is shown.
    std::string mediaPath;   ///< UTF-8: absolute path of the file, or address of a live source.
    double durationMs = 0.0; ///< One play, in milliseconds; negative when it is not known.
    ProgramKind kind = ProgramKind::Other; ///< What it is made of.
    bool isNull = false;                   ///< True when nothing stands behind the index any more.
};

/// Whether a play of the program ends by itself. Its length may be unknown all the same.
inline bool hasOwnLength(const ProgramIten& program)
{
    return program.kind != ProgramKind::Image && program.kind != ProgramKind::Live;
}

/// One entry of a plan's list: a reference to a program and what the plan remembers of it.
struct struProgInfo
{
    int progIndex = -1;     ///< From kInvalidProgIndex upward it refers to nothing.
    bool isInvalid = false; ///< The entry has gone bad; its own name is all that is left.
    std::string progName;   ///< UTF-8: the name at the moment the entry was made.
    int playCount = 1;      ///< How often in a row the program plays, 1 to 999.
};

/// When, on which days and how often a list of programs plays.
struct PlayPlan
{
    int mode = TimeMode;                   ///< A PlanMode.
    int id = 0;                            ///< Within the task; -1 while none has been given.
    std::string startTime;                 ///< kTimeFormat.
    std::string endTime;                   ///< kTimeFormat.
    int times = 0;                         ///< Runs of the whole list in FrequencyMode.
    std::int32_t serviceCount = 0;         ///< Carried for the service.
    int endAction = BlackScreen;           ///< A PlanEndAction.
    std::vector<std::int64_t> serviceList; ///< Carried for the service.
    std::vector<struProgInfo> programs;    ///< In playing order.
    bool isConflict = false;               ///< Collides with an earlier plan of the same task.
    std::string weeks;                     ///< Day numbers joined by commas; empty means every day.
    std::string serviceTime;               ///< Carried for the service.
    bool hasNoDuration = false;            ///< At least one program has no length of its own.
    bool serviceFlagA = false;             ///< Carried for the service.
    bool serviceFlagB = false;             ///< Carried for the service.
};

/// A period of validity with its plans, in the order of their rows.
struct PlayTask
{
    int id = -1;                 ///< Its key in a set of tasks; -1 stands for none.
    std::string startDate;       ///< kDateFormat: first day of validity.
    std::string endDate;         ///< kDateFormat: last day of validity.
    std::vector<PlayPlan> plans; ///< In the order of their rows.
};

/// Whether all fields are the same.
inline bool operator==(const struProgInfo& a, const struProgInfo& b)
{
    return std::tie(a.progIndex, a.isInvalid, a.progName, a.playCount) ==
           std::tie(b.progIndex, b.isInvalid, b.progName, b.playCount);
}

/// Whether a field is another one.
inline bool operator!=(const struProgInfo& a, const struProgInfo& b)
{
    return !(a == b);
}

/// Whether all fields are the same, those of the entries included.
inline bool operator==(const PlayPlan& a, const PlayPlan& b)
{
    return std::tie(a.mode, a.id, a.startTime, a.endTime, a.times, a.serviceCount, a.endAction,
                    a.serviceList, a.programs, a.isConflict, a.weeks, a.serviceTime,
                    a.hasNoDuration, a.serviceFlagA, a.serviceFlagB) ==
           std::tie(b.mode, b.id, b.startTime, b.endTime, b.times, b.serviceCount, b.endAction,
                    b.serviceList, b.programs, b.isConflict, b.weeks, b.serviceTime,
                    b.hasNoDuration, b.serviceFlagA, b.serviceFlagB);
}

/// Whether a field is another one.
inline bool operator!=(const PlayPlan& a, const PlayPlan& b)
{
    return !(a == b);
}

/// Whether all fields are the same, those of the plans included.
inline bool operator==(const PlayTask& a, const PlayTask& b)
{
    return std::tie(a.id, a.startDate, a.endDate, a.plans) ==
           std::tie(b.id, b.startDate, b.endDate, b.plans);
}

/// Whether a field is another one.
inline bool operator!=(const PlayTask& a, const PlayTask& b)
{
    return !(a == b);
}

} // namespace trel::mediadispatch

Q_DECLARE_METATYPE(trel::mediadispatch::ComBoxType)
Q_DECLARE_METATYPE(trel::mediadispatch::CheckType)
