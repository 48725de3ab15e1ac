#include "StoreTaskWriter.h"

#include "StoreConnection.h"
#include "StoreValues.h"

namespace trel::mediadispatch {

StoreTaskWriter::StoreTaskWriter(const StoreConnection& connection)
    : m_connection(connection)
    , m_removeEntries(connection.prepare(QStringLiteral("DELETE FROM entry WHERE task_id = ?")))
    , m_removeValues(connection.prepare(QStringLiteral("DELETE FROM plan_value WHERE task_id = ?")))
    , m_removePlans(connection.prepare(QStringLiteral("DELETE FROM plan WHERE task_id = ?")))
    , m_removeTask(connection.prepare(QStringLiteral("DELETE FROM task WHERE id = ?")))
    , m_dates(connection.prepare(
          QStringLiteral("UPDATE task SET start_date = CAST(? AS TEXT), end_date = CAST(? AS TEXT)"
                         " WHERE id = ?")))
    , m_planFields(connection.prepare(QStringLiteral(
          "UPDATE plan SET id = ?, mode = ?, start_time = CAST(? AS TEXT),"
          " end_time = CAST(? AS TEXT), times = ?, service_count = ?, end_action = ?,"
          " is_conflict = ?, weeks = CAST(? AS TEXT), service_time = CAST(? AS TEXT),"
          " has_no_duration = ?, service_flag_a = ?, service_flag_b = ?"
          " WHERE task_id = ? AND position = ?")))
    , m_tasks(connection.inserts(QStringLiteral("INSERT INTO task (id, start_date, end_date)"
                                                " VALUES (?, CAST(? AS TEXT), CAST(? AS TEXT))")))
    , m_plans(connection, QString(), m_tasks.get())
{}

void StoreTaskWriter::write(const TaskEdits& edits)
{
    if (edits.removesAll) {
        removeAll();
    } else {
        for (const int taskId : edits.removed) {
            remove(taskId);
        }
    }
    insert(edits.written);
    for (const PlayTask* task : edits.dated) {
        updateDates(*task);
    }
    for (const PlanEdit& edit : edits.plans) {
        updatePlan(edit);
    }
}

void StoreTaskWriter::removeAll() const
{
    // From the leaves on, which is far quicker than to let each task take its own along.
    for (const char* table : {"entry", "plan_value", "plan", "task"}) {
        m_connection.run(QLatin1String("DELETE FROM ") + QLatin1String(table));
    }
}

void StoreTaskWriter::remove(int taskId)
{
    for (QSqlQuery* query : {&m_removeEntries, &m_removeValues, &m_removePlans, &m_removeTask}) {
        bindFrom(0, *query, taskId);
        m_connection.exec(*query);
    }
}

void StoreTaskWriter::insert(const std::vector<const PlayTask*>& tasks)
{
    for (const PlayTask* task : tasks) {
        m_tasks->put({task->id, bytes(task->startDate), bytes(task->endDate)});
        m_plans.insert(task->id, task->plans);
    }
    m_tasks->finish();
    m_plans.finish();
}

void StoreTaskWriter::updateDates(const PlayTask& task)
{
    bindFrom(0, m_dates, bytes(task.startDate), bytes(task.endDate), task.id);
    m_connection.exec(m_dates);
}

void StoreTaskWriter::updatePlan(const PlanEdit& edit)
{
    const PlayPlan& plan = *edit.plan;
    bindFrom(0, m_planFields, plan.id, plan.mode, bytes(plan.startTime), bytes(plan.endTime),
             plan.times, plan.serviceCount, plan.endAction, number(plan.isConflict),
             bytes(plan.weeks), bytes(plan.serviceTime), number(plan.hasNoDuration),
             number(plan.serviceFlagA), number(plan.serviceFlagB), edit.taskId, edit.position);
    m_connection.exec(m_planFields);
}

} // namespace trel::mediadispatch
