#pragma once

#include "StorePlanWriter.h"
#include "TaskSets.h"

#include <QSqlQuery>

namespace trel::mediadispatch {

class StoreConnection;

/// Writes tasks, with each statement prepared once, and new rows as the engine does it best.
/// Members throw StoreError.
class StoreTaskWriter
{
public:
    explicit StoreTaskWriter(const StoreConnection& connection);

    void write(const TaskEdits& edits);

private:
    void removeAll() const;
    void remove(int taskId);
    void insert(const std::vector<const PlayTask*>& tasks);
    void updateDates(const PlayTask& task);
    void updatePlan(const PlanEdit& edit);

    const StoreConnection& m_connection;
    QSqlQuery m_removeEntries;
    QSqlQuery m_removeValues;
    QSqlQuery m_removePlans;
    QSqlQuery m_removeTask;
    QSqlQuery m_dates;
    QSqlQuery m_planFields;
    std::unique_ptr<StoreInserts> m_tasks;
    StorePlanWriter m_plans;
};

} // namespace trel::mediadispatch
