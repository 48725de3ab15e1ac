#pragma once

#include "trelprogramschedule/problems/ScheduleProblem.h"
#include "trelprogramschedule_export.h"

#include <QDate>
#include <QTimeZone>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace trel::mediadispatch {

/// Finds what is wrong with a schedule that is edited task by task. An edit costs the tasks that it
/// touches, and those that overlap one of which the dates change; another catalogue costs a look at
/// all programs, and the tasks that use those that are others now.
///
/// Changes of the clocks are looked at for two years from today.
class TRELPROGRAMSCHEDULE_EXPORT ProblemSearch
{
public:
    /// The problems of a task in the order of comesBefore(); null for none.
    using List = std::shared_ptr<const std::vector<ScheduleProblem>>;

    /// Without tasks, programs and changes of the clocks, and nothing left out as over.
    ProblemSearch();
    ~ProblemSearch();
    /// Moves; the source may only be assigned to or destroyed.
    ProblemSearch(ProblemSearch&&) noexcept;
    /// Moves; the source may only be assigned to or destroyed.
    ProblemSearch& operator=(ProblemSearch&&) noexcept;

    /// From which day on the plans are looked at, an invalid one for all of them; and today, with
    /// the zone, for the changes of the clocks. Where one of them is another than before, all tasks
    /// are looked at anew. Tasks that overlap are told whatever day it is, as no save is taken.
    void setDays(const QDate& from, const QDate& today, const QTimeZone& zone);
    /// Puts a task in the place of the one of its id; takes it out where it is null.
    void setTask(int taskId, std::shared_ptr<const PlayTask> task);
    /// Never null.
    void setCatalogue(std::shared_ptr<const std::map<int, ProgramIten>> catalogue);

    /// Looks at what is new. The lists that are others than before, by the ids of their tasks; null
    /// for one that is none any more. Asks goesOn before each task; once that is false, it returns
    /// what it has, and the next call goes on from there.
    std::map<int, List> next(const std::function<bool()>& goesOn = {});

    /// How many tasks have been looked at by themselves since it was made.
    std::size_t lookedAt() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

/// All problems of a schedule, in the order of comesBefore().
TRELPROGRAMSCHEDULE_EXPORT std::vector<ScheduleProblem>
scheduleProblems(const std::map<int, PlayTask>& tasks, const std::map<int, ProgramIten>& catalogue,
                 const QDate& from, const QDate& today, const QTimeZone& zone);

} // namespace trel::mediadispatch
