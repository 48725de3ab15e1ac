#pragma once

#include "follow/NewestWork.h"
#include "follow/ScheduleEdits.h"
#include "trelprogramschedule/problems/ProblemSearch.h"

#include <QDate>
#include <QTimeZone>

#include <map>
#include <mutex>
#include <optional>

namespace trel::desktop {

/// What turns the problems as a view has them into the problems as they are.
struct ProblemChanges
{
    int number = 0;       ///< To be told to ProblemWork::taken().
    bool isWhole = false; ///< There are no lists but these.
    /// By tasks; null for a list that is empty now.
    std::map<int, trel::mediadispatch::ProblemSearch::List> lists;
};

/// Finds the problems of a schedule that is edited task by task. What has been found is told until
/// it was taken, so that nothing is lost with an outcome that comes too late.
class ProblemWork
{
public:
    /// Takes note of what to look at next. Edits add up. Any thread.
    void order(const follow::ScheduleEdits& edits, const QTimeZone& zone, const QDate& today);
    /// These changes have been taken over. Any thread.
    void taken(int number);
    /// What has changed since the last ones that were taken. Nothing when it is cancelled. One
    /// thread at a time.
    std::optional<ProblemChanges> find(const follow::Cancellation& cancellation);

private:
    void takeOrder();

    std::mutex m_mutex; ///< Of the four below.
    follow::ScheduleEdits m_edits;
    QTimeZone m_zone;
    QDate m_today;
    int m_taken = 0;

    follow::SharedCatalogue m_catalogue;
    mediadispatch::ProblemSearch m_search;
    ProblemChanges m_pending; ///< Not taken yet, as far as is known.
};

} // namespace trel::desktop
