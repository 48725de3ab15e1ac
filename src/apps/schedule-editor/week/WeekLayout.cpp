#include "week/WeekLayout.h"

#include <QTime>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <utility>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

using Plans = std::set<std::pair<int, int>>; // Task and row.

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

std::vector<LeftOutTime> leftOutOn(const WeekColumn& day)
{
    std::vector<LeftOutTime> leftOut;
    for (const ClockChange& change : day.changes) {
        if (change.isLeftOut()) {
            leftOut.push_back({change.begin, change.end});
        }
    }
    return leftOut;
}

void addBlocks(WeekColumn& day, const TaskWeek& week, const Plans& withNothing)
{
    const int weekday = day.date.dayOfWeek();
    day.blocks = week.blocksOn(weekday);
    for (WeekBlock& block : day.blocks) {
        block.hasNothing = withNothing.count({*day.task, block.row}) > 0;
    }
    const std::vector<LeftOutTime> leftOut = leftOutOn(day);
    day.lanes = leftOut.empty() ? week.lanesOn(weekday) : lanesOf(day.blocks, leftOut);
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
        for (const LocalSpan& span : week.clock.spans(state.since, until)) {
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

const DayPiece* WeekColumn::periodAt(int lane, int second) const
{
    const std::vector<DayPiece>& pieces = lanes[static_cast<std::size_t>(lane)];
    const auto found =
        std::upper_bound(pieces.begin(), pieces.end(), second,
                         [](int moment, const DayPiece& piece) { return moment < piece.to; });
    return found == pieces.end() || found->from > second ? nullptr : &*found;
}

const WeekBlock* WeekColumn::holderAt(int second) const
{
    const DayPiece* piece = periodAt(0, second);
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
                    LocalDays(question.first, kDays, question.zone)};
    const Plans withNothing = plansWithNothing(question.spans);
    std::map<int, std::shared_ptr<const TaskWeek>> weeks;
    for (const ClockChange& change : week.clock.changes()) {
        const qint64 day = question.first.daysTo(change.date);
        week.days[static_cast<std::size_t>(day)].changes.push_back(change);
    }
    for (std::size_t i = 0; i < week.days.size(); ++i) {
        WeekColumn& day = week.days[i];
        day.date = question.first.addDays(static_cast<int>(i));
        day.lanes.resize(kLanes);
        day.task = question.tasks.inEffectOn(day.date);
        if (day.task) {
            std::shared_ptr<const TaskWeek>& ofTask = weeks[*day.task];
            if (!ofTask) {
                ofTask = question.tasks.weekOf(*day.task, question.catalogue);
            }
            addBlocks(day, *ofTask, withNothing);
        }
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

} // namespace trel::desktop::week
