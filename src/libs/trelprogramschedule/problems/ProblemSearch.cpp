#include "trelprogramschedule/problems/ProblemSearch.h"

#include "service/DateText.h"
#include "trelprogramschedule/problems/TaskOverlaps.h"
#include "trelprogramschedule/problems/TaskProblems.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <unordered_set>
#include <utility>

namespace trel::mediadispatch {

namespace {

using Programs = std::map<int, ProgramIten>;
using Problems = std::vector<ScheduleProblem>;

constexpr int kYearsOfClocks = 2;

/// Whether a program counts for plans as another one does.
bool countsAlike(const ProgramIten& a, const ProgramIten& b)
{
    // Two lengths that are no number are none.
    const bool isLengthSame =
        a.durationMs == b.durationMs || (std::isnan(a.durationMs) && std::isnan(b.durationMs));
    return isLengthSame && a.kind == b.kind && a.isNull == b.isNull && a.progName == b.progName;
}

/// The programs that count otherwise in one catalogue than in another, or stand in one alone.
std::unordered_set<int> otherPrograms(const Programs& former, const Programs& now)
{
    std::unordered_set<int> others;
    auto a = former.begin();
    auto b = now.begin();
    while (a != former.end() || b != now.end()) {
        if (b == now.end() || (a != former.end() && a->first < b->first)) {
            others.insert((a++)->first);
        } else if (a == former.end() || b->first < a->first) {
            others.insert((b++)->first);
        } else {
            if (!countsAlike(a->second, b->second)) {
                others.insert(a->first);
            }
            ++a;
            ++b;
        }
    }
    return others;
}

bool usesAnyOf(const PlayTask& task, const std::unordered_set<int>& programs)
{
    return std::any_of(task.plans.begin(), task.plans.end(), [&](const PlayPlan& plan) {
        return std::any_of(
            plan.programs.begin(), plan.programs.end(),
            [&](const struProgInfo& entry) { return programs.count(entry.progIndex) > 0; });
    });
}

} // namespace

class ProblemSearch::Private
{
public:
    struct Task
    {
        std::shared_ptr<const PlayTask> record;
        Problems own; ///< By itself.
    };

    void lookAtAll()
    {
        for (const auto& [id, task] : tasks) {
            due.insert(due.end(), id);
        }
    }

    /// Of a task with everything that is wrong with it.
    List listOf(int taskId) const
    {
        const auto task = tasks.find(taskId);
        if (task == tasks.end()) {
            return nullptr;
        }
        const std::optional<ScheduleProblem> overlap = overlapOf(taskId);
        if (task->second.own.empty() && !overlap) {
            return nullptr;
        }
        auto list = std::make_shared<Problems>(task->second.own);
        if (overlap) {
            const auto place = std::upper_bound(list->begin(), list->end(), *overlap, comesBefore);
            list->insert(place, *overlap);
        }
        return list;
    }

    ProblemScope scope;
    QDate today;
    QTimeZone zone;
    std::map<int, Task> tasks;
    std::shared_ptr<const Programs> catalogue = std::make_shared<const Programs>();
    TaskOverlaps overlaps;
    std::set<int> due;  ///< To be looked at by themselves.
    std::set<int> told; ///< Whose lists may be others than were told.
    std::map<int, List> known;
    std::size_t lookedAt = 0;

private:
    std::optional<ScheduleProblem> overlapOf(int taskId) const
    {
        const int other = overlaps.firstOf(taskId);
        if (other < 0) {
            return std::nullopt;
        }
        const Period& a = overlaps.periodOf(taskId);
        const Period& b = overlaps.periodOf(other);
        ScheduleProblem problem;
        problem.kind = ProblemKind::TasksOverlap;
        problem.taskId = taskId;
        problem.otherTaskId = other;
        problem.first = dateFromText(std::max(a.start, b.start));
        problem.last = dateFromText(std::min(a.end, b.end));
        return problem;
    }
};

ProblemSearch::ProblemSearch()
    : d(std::make_unique<Private>())
{}

ProblemSearch::~ProblemSearch() = default;
ProblemSearch::ProblemSearch(ProblemSearch&&) noexcept = default;
ProblemSearch& ProblemSearch::operator=(ProblemSearch&&) noexcept = default;

void ProblemSearch::setDays(const QDate& from, const QDate& today, const QTimeZone& zone)
{
    if (d->scope.from == from && d->today == today && d->zone == zone) {
        return;
    }
    d->scope.from = from;
    d->today = today;
    d->zone = zone;
    d->scope.changes = clockChanges(today, today.addYears(kYearsOfClocks), zone);
    d->lookAtAll();
}

void ProblemSearch::setTask(int taskId, std::shared_ptr<const PlayTask> task)
{
    d->told.insert(taskId);
    if (!task) {
        d->overlaps.setPeriod(taskId, std::nullopt);
        d->tasks.erase(taskId);
        d->due.erase(taskId);
        return;
    }
    d->overlaps.setPeriod(taskId, Period{task->startDate, task->endDate});
    d->tasks[taskId].record = std::move(task);
    d->due.insert(taskId);
}

void ProblemSearch::setCatalogue(std::shared_ptr<const std::map<int, ProgramIten>> catalogue)
{
    const auto former = std::exchange(d->catalogue, std::move(catalogue));
    if (former == d->catalogue) {
        return;
    }
    const std::unordered_set<int> others = otherPrograms(*former, *d->catalogue);
    if (others.empty()) {
        return;
    }
    for (const auto& [id, task] : d->tasks) {
        if (usesAnyOf(*task.record, others)) {
            d->due.insert(id);
        }
    }
}

std::map<int, ProblemSearch::List> ProblemSearch::next(const std::function<bool()>& goesOn)
{
    d->told.merge(d->overlaps.update());
    while (!d->due.empty() && (!goesOn || goesOn())) {
        const int id = *d->due.begin();
        Private::Task& task = d->tasks.at(id);
        task.own = taskProblems(*task.record, *d->catalogue, d->scope);
        d->due.erase(d->due.begin());
        d->told.insert(id);
        ++d->lookedAt;
    }
    std::map<int, List> lists;
    for (auto id = d->told.begin(); id != d->told.end();) {
        if (d->due.count(*id) > 0) {
            ++id;
            continue;
        }
        List list = d->listOf(*id);
        const auto known = d->known.find(*id);
        const List former = known == d->known.end() ? nullptr : known->second;
        const bool isSame = list && former ? *list == *former : !list && !former;
        if (!isSame) {
            lists.emplace(*id, list);
            if (list) {
                d->known[*id] = std::move(list);
            } else {
                d->known.erase(known);
            }
        }
        id = d->told.erase(id);
    }
    return lists;
}

std::size_t ProblemSearch::lookedAt() const
{
    return d->lookedAt;
}

std::vector<ScheduleProblem> scheduleProblems(const std::map<int, PlayTask>& tasks,
                                              const std::map<int, ProgramIten>& catalogue,
                                              const QDate& from, const QDate& today,
                                              const QTimeZone& zone)
{
    // The records outlive the search, which therefore need not own them.
    const std::shared_ptr<void> unowned;
    ProblemSearch search;
    search.setDays(from, today, zone);
    search.setCatalogue(std::shared_ptr<const Programs>(unowned, &catalogue));
    for (const auto& [id, task] : tasks) {
        search.setTask(id, std::shared_ptr<const PlayTask>(unowned, &task));
    }
    std::vector<ScheduleProblem> problems;
    for (const auto& [id, list] : search.next()) {
        problems.insert(problems.end(), list->begin(), list->end());
    }
    std::sort(problems.begin(), problems.end(), comesBefore);
    return problems;
}

} // namespace trel::mediadispatch
