#include "week/WeekLayout.h"

#include "service/DateText.h"
#include "service/PlanConflicts.h"
#include "service/ProgramText.h"
#include "service/TimeText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/ScreenPlan.h"

#include <QTime>

#include <algorithm>
#include <array>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace week {

namespace {

/// No block is ever high enough for more names.
constexpr std::size_t kMostPrograms = 12;

using Plans = std::set<std::pair<int, int>>; // Task and row.

std::string nameOf(const std::map<int, ProgramIten>& catalogue, const struProgInfo& entry)
{
    const auto found = catalogue.find(entry.progIndex);
    return entry.isInvalid || found == catalogue.end() ? entry.progName : found->second.progName;
}

int secondOf(const QTime& time)
{
    return QTime(0, 0).secsTo(time);
}

/// The plans that have the screen somewhere in the spans and show nothing.
Plans plansWithNothing(const std::vector<ScreenState>& spans)
{
    Plans plans;
    for (const ScreenState& span : spans) {
        if (span.reason == ScreenReason::PlanHasNothing) {
            plans.emplace(span.taskId, span.planRow);
        }
    }
    return plans;
}

/// The blocks that a task has on each day of the week, 1 to 7.
class TaskBlocks
{
public:
    TaskBlocks(const PlayTask& task, const std::map<int, ProgramIten>& catalogue,
               const Plans& withNothing)
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
            block.hasNothing = withNothing.count({task.id, block.row}) > 0;
            addToDays(block, claims[row].weeks);
        }
        for (std::vector<WeekBlock>& blocks : m_days) {
            std::sort(blocks.begin(), blocks.end(), [](const WeekBlock& a, const WeekBlock& b) {
                return a.from != b.from ? a.from < b.from : a.row < b.row;
            });
        }
    }

    const std::vector<WeekBlock>& on(const QDate& day) const
    {
        return m_days[static_cast<std::size_t>(day.dayOfWeek())];
    }

private:
    static WeekBlock blockOf(const PlayPlan& plan, const PlanClaim& claim,
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
        }
        // One without a day of the week stands on no day.
        block.never = planFault(plan, claim.end);
        block.listOver = listOverAt(plan, claim.end, catalogue);
        setSpan(block, timeFromText(claim.start), timeFromText(claim.end));
        return block;
    }

    static void setSpan(WeekBlock& block, const QTime& start, const QTime& end)
    {
        if (start.isValid()) {
            block.from = secondOf(start);
            block.to = block.from;
        }
        if (block.never == PlanFault::None) {
            block.to = secondOf(end);
        }
    }

    void addToDays(const WeekBlock& block, const std::string& weeks)
    {
        std::vector<int> numbers;
        const bool isEveryDay = parseWeeks(weeks, numbers);
        for (int day = Monday; day <= Sunday; ++day) {
            if (isEveryDay || std::find(numbers.begin(), numbers.end(), day) != numbers.end()) {
                m_days[static_cast<std::size_t>(day)].push_back(block);
            }
        }
    }

    std::array<std::vector<WeekBlock>, WeekDayCount> m_days;
};

std::optional<int> taskOn(const QDate& day, const std::map<int, PlayTask>& tasks)
{
    for (const auto& [id, task] : tasks) {
        const QDate start = dateFromText(task.startDate);
        const QDate end = dateFromText(task.endDate);
        if (start.isValid() && end.isValid() && start <= day && day <= end) {
            return id;
        }
    }
    return std::nullopt;
}

DayLanes lanesOf(const WeekColumn& day)
{
    std::vector<LeftOutTime> leftOut;
    for (const ClockChange& change : day.changes) {
        if (change.isLeftOut()) {
            leftOut.push_back({change.begin, change.end});
        }
    }
    std::vector<DayClaim> claims;
    std::vector<int> blocks;
    for (std::size_t i = 0; i < day.blocks.size(); ++i) {
        const WeekBlock& block = day.blocks[i];
        if (block.never == PlanFault::None) {
            claims.push_back({block.row, block.from, block.to});
            blocks.push_back(static_cast<int>(i));
        }
    }
    DayLanes lanes = dayPieces(claims, leftOut);
    for (std::vector<DayPiece>& lane : lanes) {
        for (DayPiece& piece : lane) {
            if (piece.claim >= 0) {
                piece.claim = blocks[static_cast<std::size_t>(piece.claim)];
            }
        }
    }
    return lanes;
}

std::optional<WeekStretch::Kind> kindOf(const ScreenState& state)
{
    if (state.isInserted()) {
        return WeekStretch::Inserted;
    }
    if (state.reason != ScreenReason::PlanEnded && state.reason != ScreenReason::NoPlanYet &&
        state.reason != ScreenReason::NothingInEffect) {
        return std::nullopt;
    }
    return state.picture == ScreenPicture::Frozen ? WeekStretch::Frozen : WeekStretch::Black;
}

void addStretches(WeekLayout& week, const WeekQuestion& question)
{
    for (const ScreenState& state : question.spans) {
        const std::optional<WeekStretch::Kind> kind = kindOf(state);
        if (!kind) {
            continue;
        }
        WeekStretch stretch;
        stretch.kind = *kind;
        stretch.row = state.planRow;
        const auto program = question.catalogue.find(state.progIndex);
        if (program != question.catalogue.end()) {
            stretch.program = QString::fromStdString(program->second.progName);
        }
        const Instant until = state.isInserted() ? state.spanUntil : state.until;
        for (const WallSpan& span : week.clock.spans(state.since, until)) {
            stretch.from = span.from;
            stretch.to = span.to;
            stretch.pass = span.pass;
            week.days[static_cast<std::size_t>(span.day)].stretches.push_back(stretch);
        }
    }
}

} // namespace

const WeekBlock* WeekColumn::blockOf(int row) const
{
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [row](const WeekBlock& block) { return block.row == row; });
    return found == blocks.end() ? nullptr : &*found;
}

const DayPiece* WeekColumn::pieceAt(int lane, int second) const
{
    const std::vector<DayPiece>& pieces = lanes[static_cast<std::size_t>(lane)];
    const auto found =
        std::upper_bound(pieces.begin(), pieces.end(), second,
                         [](int moment, const DayPiece& piece) { return moment < piece.to; });
    return found == pieces.end() || found->from > second ? nullptr : &*found;
}

const WeekBlock* WeekColumn::holderAt(int second) const
{
    const DayPiece* piece = pieceAt(0, second);
    return piece == nullptr || piece->state != DayPiece::OnScreen
               ? nullptr
               : &blocks[static_cast<std::size_t>(piece->claim)];
}

std::optional<int> WeekLayout::dayOf(const QDate& date) const
{
    const qint64 day = first().daysTo(date);
    return day >= 0 && day < kDays ? std::optional<int>(static_cast<int>(day)) : std::nullopt;
}

WeekLayout layoutWeek(const WeekQuestion& question)
{
    WeekLayout week{std::vector<WeekColumn>(kDays),
                    WallClock(question.first, kDays, question.zone)};
    const Plans withNothing = plansWithNothing(question.spans);
    std::map<int, TaskBlocks> blocksOfTask;
    for (const ClockChange& change : week.clock.changes()) {
        const qint64 day = question.first.daysTo(change.date);
        week.days[static_cast<std::size_t>(day)].changes.push_back(change);
    }
    for (std::size_t i = 0; i < week.days.size(); ++i) {
        WeekColumn& day = week.days[i];
        day.date = question.first.addDays(static_cast<int>(i));
        day.task = taskOn(day.date, question.tasks);
        if (day.task) {
            const auto blocks = blocksOfTask
                                    .try_emplace(*day.task, question.tasks.at(*day.task),
                                                 question.catalogue, withNothing)
                                    .first;
            day.blocks = blocks->second.on(day.date);
        }
        day.lanes = lanesOf(day);
    }
    addStretches(week, question);
    return week;
}

QDate weekOf(const QDate& day, Qt::DayOfWeek firstDayOfWeek)
{
    return day.addDays(-((day.dayOfWeek() - firstDayOfWeek + kDays) % kDays));
}

QString shortTime(int second)
{
    if (second >= kDaySeconds) {
        return QStringLiteral("24:00");
    }
    return QTime(0, 0).addSecs(second).toString(second % 60 == 0 ? QStringLiteral("hh:mm")
                                                                 : QStringLiteral("hh:mm:ss"));
}

} // namespace week
