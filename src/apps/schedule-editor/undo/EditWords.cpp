#include "undo/EditWords.h"

#include "common/ListText.h"
#include "service/WeekDays.h"
#include "undo/EditedField.h"

#include <QStringList>

#include <algorithm>
#include <set>
#include <vector>

using namespace trel::mediadispatch;

namespace trel::desktop::undo {

namespace {

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

QString span(const PlayPlan& plan)
{
    return QStringLiteral("%1 – %2").arg(text(plan.startTime), text(plan.endTime));
}

std::set<int> tasksOf(const TaskEdits& edits)
{
    std::set<int> tasks;
    for (const TaskEdit& edit : edits) {
        tasks.insert(edit.taskId);
    }
    return tasks;
}

/// The plan of the field where the task has it; else an empty one.
PlayPlan planOf(const follow::SharedTask& task, int row)
{
    const bool isThere = task && row >= 0 && row < static_cast<int>(task->plans.size());
    return isThere ? task->plans[static_cast<std::size_t>(row)] : PlayPlan();
}

} // namespace

QString EditWords::name(const EditedField& field, const TaskEdits& edits, const QLocale& locale)
{
    const TaskEdit& edit = edits.front();
    const QString task = QString::number(field.taskId);
    switch (field.kind) {
    case EditKind::ReadAgain:
        return tr("Back to what is saved");
    case EditKind::SavedElsewhere:
        return tr("Saved by another program: tasks %1").arg(ids(tasksOf(edits)));
    case EditKind::Tasks:
        return tr("%n tasks edited", nullptr, static_cast<int>(edits.size()));
    case EditKind::TaskAdded:
        return tr("Task %1 added").arg(task);
    case EditKind::TaskDeleted:
        return tr("Task %1 deleted").arg(task);
    case EditKind::Task:
        return tr("Task %1 edited").arg(task);
    case EditKind::FirstDay:
        return tr("Task %1: first day %2 → %3")
            .arg(task, text(edit.before->startDate), text(edit.after->startDate));
    case EditKind::LastDay:
        return tr("Task %1: last day %2 → %3")
            .arg(task, text(edit.before->endDate), text(edit.after->endDate));
    default:
        return planName(field, edit, locale);
    }
}

QString EditWords::ids(const std::set<int>& tasks)
{
    constexpr int most = 8;
    QStringList words;
    for (const int id : tasks) {
        if (words.size() == most) {
            words.append(QStringLiteral("…"));
            break;
        }
        words.append(QString::number(id));
    }
    return hosts::ListText::joined(words);
}

QString EditWords::takingBackOfOther(const std::set<int>& tasks)
{
    return tr("This takes back what another program has saved as well (tasks %1). Nothing is "
              "overwritten before you save, and what was saved there stays among the versions.")
        .arg(ids(tasks));
}

QString EditWords::takeBack()
{
    return tr("Take it back");
}

QString EditWords::leave()
{
    return tr("Leave it");
}

QString EditWords::planName(const EditedField& field, const TaskEdit& edit, const QLocale& locale)
{
    const PlayPlan before = planOf(edit.before, field.planRow);
    const PlayPlan after = planOf(edit.after, field.planRow);
    const QString task = QString::number(field.taskId);
    const bool isDeleted = field.kind == EditKind::PlanDeleted;
    const QString plan = QString::number(isDeleted ? before.id : after.id);
    const auto change = [&](const QString& form, const QString& from, const QString& to) {
        return form.arg(task, plan, from, to);
    };
    switch (field.kind) {
    case EditKind::PlanAdded:
        return tr("Task %1, plan %2 added").arg(task, plan);
    case EditKind::PlanDeleted:
        return tr("Task %1, plan %2 deleted").arg(task, plan);
    case EditKind::Programs:
        return tr("Task %1, plan %2: other programs").arg(task, plan);
    case EditKind::Mode:
        return (after.mode == TimeMode ? tr("Task %1, plan %2: ends at a set time")
                                       : tr("Task %1, plan %2: ends after a number of runs"))
            .arg(task, plan);
    case EditKind::Start:
        return change(tr("Task %1, plan %2: start %3 → %4"), text(before.startTime),
                      text(after.startTime));
    case EditKind::Days:
        return change(tr("Task %1, plan %2: days %3 → %4"), days(before.weeks, locale),
                      days(after.weeks, locale));
    case EditKind::Runs:
        return change(tr("Task %1, plan %2: runs %3 → %4"), QString::number(before.times),
                      QString::number(after.times));
    case EditKind::EndAction:
        return (after.endAction == BlackScreen ? tr("Task %1, plan %2: a black screen at the end")
                                               : tr("Task %1, plan %2: the last frame at the end"))
            .arg(task, plan);
    case EditKind::End:
        return change(tr("Task %1, plan %2: end %3 → %4"), text(before.endTime),
                      text(after.endTime));
    case EditKind::Moved:
        return change(tr("Task %1, plan %2: %3 → %4"), span(before), span(after));
    default:
        return tr("Task %1, plan %2 edited").arg(task, plan);
    }
}

QString EditWords::days(const std::string& weeks, const QLocale& locale)
{
    std::vector<int> numbers;
    if (parseWeeks(weeks, numbers)) {
        return tr("every day");
    }
    std::sort(numbers.begin(), numbers.end());
    QStringList names;
    for (const int number : numbers) {
        // Numbered as in the language's own week, from Monday.
        names.append(locale.dayName(number, QLocale::ShortFormat));
    }
    return hosts::ListText::joined(names);
}

} // namespace trel::desktop::undo
