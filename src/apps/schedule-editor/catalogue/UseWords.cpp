#include "catalogue/UseWords.h"

#include "BidiText.h"
#include "common/ListText.h"
#include "service/WeekDays.h"
#include "trelprogramschedule/dispatch/MomentFormat.h"

#include <algorithm>
#include <iterator>
#include <set>

using namespace trel::mediadispatch;

namespace trel::desktop {

namespace {

/// More plans than these are told by their number alone, so that a prompt fits on a screen.
constexpr std::size_t kMostPlans = 8;

QString shown(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace

QString UseWords::validity(const PlayTask& task)
{
    return leftToRight(
        tr("%1 – %2", "from and to").arg(shown(task.startDate), shown(task.endDate)));
}

QString UseWords::span(const PlayPlan& plan)
{
    return leftToRight(
        tr("%1 – %2", "from and to").arg(shown(plan.startTime), shown(plan.endTime)));
}

QString UseWords::days(const PlayPlan& plan, const QLocale& locale)
{
    std::vector<int> numbers;
    const bool isEvery = parseWeeks(plan.weeks, numbers);
    const std::set<int> days(numbers.begin(), numbers.end());
    if (isEvery || days.size() == Sunday) {
        return tr("every day");
    }
    QStringList names;
    for (auto first = days.begin(); first != days.end();) {
        auto last = first;
        for (auto next = std::next(last); next != days.end() && *next == *last + 1; ++next) {
            last = next;
        }
        // Two days in a row read better one by one.
        if (*last - *first < 2) {
            last = first;
        }
        const QString from = locale.dayName(*first, QLocale::ShortFormat);
        names.append(first == last ? from
                                   : tr("%1–%2", "from day to day")
                                         .arg(from, locale.dayName(*last, QLocale::ShortFormat)));
        first = std::next(last);
    }
    return hosts::ListText::joined(names);
}

QString UseWords::plan(const ProgramUse& use, const PlayTask& task, const QLocale& locale)
{
    const PlayPlan& plan = task.plans[use.row];
    const QString where = tr("Task %1 (%2), plan %3, %4 %5", "with dates, days and times");
    return where.arg(QString::number(use.taskId), validity(task), QString::number(use.row + 1),
                     days(plan, locale), span(plan));
}

QString UseWords::next(const LookupAnswer& answer)
{
    if (!answer.next && answer.wasOnScreen) {
        return answer.isInEffect ? tr("Not on screen any more, as the schedule in effect has it.")
                                 : tr("Not on screen any more, as the schedule is edited.");
    }
    if (!answer.next) {
        return answer.isInEffect ? tr("Never on screen, as the schedule in effect has it.")
                                 : tr("Never on screen, as the schedule is edited.");
    }
    const ScreenState& state = *answer.next;
    if (state.since <= answer.moment) {
        return tr("On screen now: task %1, plan %2.")
            .arg(QString::number(state.taskId), QString::number(state.planRow + 1));
    }
    const MomentFormat local(answer.zone);
    const QString when = local.shownAt(state.since).toString(QStringLiteral("yyyy.MM.dd hh:mm:ss"));
    return tr("Next on screen: %1, task %2, plan %3.")
        .arg(leftToRight(when + local.offsetMark(state.since)), QString::number(state.taskId),
             QString::number(state.planRow + 1));
}

QStringList UseWords::removal(const LookupAnswer& answer, const QLocale& locale)
{
    if (answer.uses.empty()) {
        return {};
    }
    QStringList lines{
        tr("Entries become invalid in %n plans:", nullptr, static_cast<int>(answer.uses.size()))};
    const std::size_t told = std::min(kMostPlans, answer.uses.size());
    for (std::size_t i = 0; i < told; ++i) {
        const ProgramUse& use = answer.uses[i];
        const QString line = plan(use, answer.tasks.at(use.taskId), locale);
        lines.append(use.isAll ? tr("%1: nothing else is left of it").arg(line) : line);
    }
    if (told < answer.uses.size()) {
        lines.append(
            tr("… and %n more plans.", nullptr, static_cast<int>(answer.uses.size() - told)));
    }
    if (answer.next) {
        lines.append(next(answer));
    }
    return lines;
}

} // namespace trel::desktop
