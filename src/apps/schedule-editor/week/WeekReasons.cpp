#include "week/WeekReasons.h"

#include "BidiText.h"
#include "DateWords.h"
#include "common/ListText.h"
#include "common/PlanFaultText.h"
#include "screen/ScreenWords.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"
#include "week/WeekHit.h"
#include "week/WeekSchedule.h"
#include "week/WeekWords.h"

#include <QStringList>

using namespace trel::mediadispatch;

namespace trel::desktop::week {

namespace {

constexpr int kMostLetters = 60;

QString shortened(const QString& text)
{
    return text.size() <= kMostLetters ? text : text.left(kMostLetters - 1) + QChar(0x2026);
}

QString whatText(const WeekSchedule& schedule, const ScreenState& state)
{
    const QString program = shortened(schedule.program(state.progIndex));
    if (state.isPlaying()) {
        return Words::tr("On screen: %1, at %2").arg(program, ScreenWords::gone(state.position));
    }
    return Words::tr("On screen: %1").arg(ScreenWords::program(state.picture, program));
}

QString neverText(const WeekBlock& block)
{
    return hosts::PlanFaultText::sentence(block.never, block.planId, shortened(block.start),
                                          shortened(block.end));
}

/// "Wednesday, 2024.03.06, 08:00", with the offset on days that may have a time twice.
QString momentText(const WeekSchedule& schedule, const WeekLayout& layout, const WeekHit& hit,
                   const QLocale& locale)
{
    const QDate date = layout.days[static_cast<std::size_t>(hit.day)].date;
    const bool isLeftOut = hit.change != nullptr && hit.change->isLeftOut();
    const QString mark = isLeftOut
                             ? QString()
                             : MomentFormat(schedule.zone())
                                   .offsetMark(layout.clock.instant(hit.day, hit.second, hit.pass));
    return Words::tr("%1, %2", "day and time of day")
        .arg(weekdayText(date, locale), leftToRight(shortTime(hit.second) + mark));
}

QString changeText(const ClockChange& change)
{
    const QString from = shortTime(change.begin);
    const QString to = shortTime(change.end);
    return change.isLeftOut()
               ? Words::tr("%1 to %2 is skipped: the clocks go forward.").arg(from, to)
               : Words::tr("%1 to %2 occurs twice: the clocks go back.").arg(from, to);
}

void addBlock(QStringList& lines, const WeekColumn& column, const WeekHit& hit)
{
    if (hit.piece != nullptr && hit.piece->state == DayPiece::Several) {
        lines.append(
            Words::tr("%n more plans do not reach the screen.", nullptr, hit.piece->count));
    }
    if (hit.block == nullptr) {
        return;
    }
    lines.append(blockText(*hit.block));
    if (hit.block->listOver) {
        lines.append(Words::tr("Its list is over at %1, before the plan ends.")
                         .arg(shortTime(*hit.block->listOver)));
    }
    const WeekBlock* holder = column.holderAt(hit.second);
    if (holder != nullptr && holder != hit.block) {
        lines.append(Words::tr("Plan %1, above it, takes precedence.").arg(holder->planId));
    }
    if (hit.block->collides) {
        lines.append(Words::tr("It conflicts with a plan above it."));
    }
}

} // namespace

QString blockText(const WeekBlock& block)
{
    if (block.never != PlanFault::None) {
        return neverText(block);
    }
    QString text = Words::tr("Plan %1, %2 to %3")
                       .arg(block.planId)
                       .arg(shortTime(block.from), shortTime(block.to));
    if (!block.programs.isEmpty()) {
        text = Words::tr("%1: %2", "plan and its programs")
                   .arg(text, shortened(hosts::ListText::joined(block.programs)));
    }
    return text;
}

QString reasonText(const WeekSchedule& schedule, const WeekLayout& layout, const WeekHit& hit,
                   const QLocale& locale)
{
    const WeekColumn& column = layout.days[static_cast<std::size_t>(hit.day)];
    QStringList lines{momentText(schedule, layout, hit, locale)};
    if (hit.change != nullptr) {
        lines.append(changeText(*hit.change));
    }
    if (hit.change == nullptr || !hit.change->isLeftOut()) {
        const ScreenState state = schedule.at(layout.clock.instant(hit.day, hit.second, hit.pass));
        lines.append(whatText(schedule, state));
        lines.append(ScreenWords::reason(state, schedule.plan(state)));
    }
    if (!column.task) {
        lines.append(Words::tr("No task is valid on this day."));
    }
    addBlock(lines, column, hit);
    for (const WeekBlock* mark : hit.marks) {
        lines.append(neverText(*mark));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace trel::desktop::week
