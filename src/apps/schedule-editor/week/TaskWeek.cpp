#include "week/TaskWeek.h"

#include "service/PlanConflicts.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/ScreenPlan.h"

#include <QTime>

#include <algorithm>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

/// No block is ever high enough for more names.
constexpr std::size_t kMostPrograms = 12;

std::string nameOf(const std::map<int, ProgramIten>& catalogue, const struProgInfo& entry)
{
    const auto found = catalogue.find(entry.progIndex);
    return entry.isInvalid || found == catalogue.end() ? entry.progName : found->second.progName;
}

int secondOf(const QTime& time)
{
    return QTime(0, 0).secsTo(time);
}

void setSpan(WeekBlock& block, const QTime& start, const QTime& end)
{
    if (start.isValid()) {
        block.from = secondOf(start);
        block.to = block.from;
    }
    if (block.never == PlanFault::None) {
        block.to = secondOf(end);
    }
}

WeekBlock blockOf(const PlayPlan& plan, const PlanClaim& claim,
                  const std::map<int, ProgramIten>& catalogue)
{
    WeekBlock block;
    block.planId = plan.id;
    block.start = QString::fromStdString(claim.start);
    block.end = QString::fromStdString(claim.end);
    const std::size_t named = std::min(plan.programs.size(), kMostPrograms);
    block.hasMorePrograms = named < plan.programs.size();
    for (std::size_t i = 0; i < named; ++i) {
        block.programs.append(QString::fromStdString(nameOf(catalogue, plan.programs[i])));
        block.programIndexes.push_back(plan.programs[i].progIndex);
    }
    // One without a day of the week stands on no day.
    block.never = planFault(plan, claim.end);
    block.listOver = listOverAt(plan, claim.end, catalogue);
    setSpan(block, timeFromText(claim.start), timeFromText(claim.end));
    return block;
}

bool isEarlier(const WeekBlock& a, const WeekBlock& b)
{
    return a.from != b.from ? a.from < b.from : a.row < b.row;
}

} // namespace

DayLanes lanesOf(const std::vector<WeekBlock>& blocks, const std::vector<LeftOutTime>& leftOut)
{
    std::vector<DayClaim> claims;
    std::vector<int> places;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const WeekBlock& block = blocks[i];
        if (block.never == PlanFault::None) {
            claims.push_back({block.row, block.from, block.to});
            places.push_back(static_cast<int>(i));
        }
    }
    DayLanes lanes = dayPieces(claims, leftOut);
    for (std::vector<DayPiece>& lane : lanes) {
        for (DayPiece& piece : lane) {
            if (piece.claim >= 0) {
                piece.claim = places[static_cast<std::size_t>(piece.claim)];
            }
        }
    }
    return lanes;
}

TaskWeek::TaskWeek(const PlayTask& task, const std::map<int, ProgramIten>& catalogue)
{
    const std::vector<PlanClaim> claims =
        planClaims(task.plans, catalogue, [&catalogue](int progIndex) {
            const auto found = catalogue.find(progIndex);
            return found != catalogue.end() && !hasOwnLength(found->second);
        });
    const std::vector<bool> colliding = collidingClaims(claims);
    for (std::size_t row = 0; row < claims.size(); ++row) {
        WeekBlock block = blockOf(task.plans[row], claims[row], catalogue);
        block.row = static_cast<int>(row);
        block.collides = colliding[row];
        addToDays(block, claims[row].weeks);
    }
    for (Day& day : m_days) {
        std::sort(day.blocks.begin(), day.blocks.end(), isEarlier);
    }
}

TaskWeek::~TaskWeek() = default;

void TaskWeek::addToDays(const WeekBlock& block, const std::string& weeks)
{
    std::vector<int> numbers;
    const bool isEveryDay = parseWeeks(weeks, numbers);
    for (int day = Monday; day <= Sunday; ++day) {
        if (isEveryDay || std::find(numbers.begin(), numbers.end(), day) != numbers.end()) {
            m_days[static_cast<std::size_t>(day)].blocks.push_back(block);
        }
    }
}

const DayLanes& TaskWeek::lanesOn(int weekday) const
{
    const Day& day = dayOf(weekday);
    std::call_once(day.isLaidOut, [&day] { day.lanes = lanesOf(day.blocks); });
    return day.lanes;
}

} // namespace trel::desktop::week
