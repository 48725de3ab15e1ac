#include "ScheduleDatabaseTasks.h"

#include "StoreConnection.h"
#include "StoreMessages.h"
#include "StoreValues.h"

#include <utility>

namespace trel::mediadispatch {

ScheduleDatabase::TaskReader::TaskReader(const StoreConnection& connection, const QString& path)
    : m_connection(connection)
    , m_path(path)
    , m_current(m_tasks.end())
{}

TaskMap ScheduleDatabase::TaskReader::read()
{
    readTasks();
    readPlans();
    readValues();
    readEntries();
    return std::move(m_tasks);
}

void ScheduleDatabase::TaskReader::readTasks()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT id, CAST(start_date AS BLOB), CAST(end_date AS BLOB)"
                       " FROM task ORDER BY id"));
    while (m_connection.next(row)) {
        PlayTask read;
        read.id = row.value(0).toInt();
        read.startDate = utf8(row, 1);
        read.endDate = utf8(row, 2);
        m_tasks.emplace_hint(m_tasks.end(), read.id, std::move(read));
    }
}

void ScheduleDatabase::TaskReader::readPlans()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT task_id, position, id, mode, CAST(start_time AS BLOB), "
                       "CAST(end_time AS BLOB), times,"
                       " service_count,"
                       " end_action, is_conflict, CAST(weeks AS BLOB), CAST(service_time AS BLOB), "
                       "has_no_duration,"
                       " service_flag_a, service_flag_b FROM plan ORDER BY task_id, position"));
    while (m_connection.next(row)) {
        std::vector<PlayPlan>& plans = task(row.value(0)).plans;
        expectPlace(row.value(1), plans.size());
        PlayPlan& read = plans.emplace_back();
        read.id = row.value(2).toInt();
        read.mode = row.value(3).toInt();
        read.startTime = utf8(row, 4);
        read.endTime = utf8(row, 5);
        read.times = row.value(6).toInt();
        read.serviceCount = row.value(7).toInt();
        read.endAction = row.value(8).toInt();
        read.isConflict = row.value(9).toBool();
        read.weeks = utf8(row, 10);
        read.serviceTime = utf8(row, 11);
        read.hasNoDuration = row.value(12).toBool();
        read.serviceFlagA = row.value(13).toBool();
        read.serviceFlagB = row.value(14).toBool();
    }
}

void ScheduleDatabase::TaskReader::readValues()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT task_id, plan_position, position, value FROM plan_value"
                       " ORDER BY task_id, plan_position, position"));
    while (m_connection.next(row)) {
        std::vector<std::int64_t>& values = plan(row).serviceList;
        expectPlace(row.value(2), values.size());
        values.push_back(row.value(3).toLongLong());
    }
}

void ScheduleDatabase::TaskReader::readEntries()
{
    QSqlQuery row = m_connection.query(QStringLiteral(
        "SELECT task_id, plan_position, position, prog_index, is_invalid, CAST(name AS BLOB),"
        " play_count FROM entry ORDER BY task_id, plan_position, position"));
    while (m_connection.next(row)) {
        std::vector<struProgInfo>& entries = plan(row).programs;
        expectPlace(row.value(2), entries.size());
        struProgInfo& read = entries.emplace_back();
        read.progIndex = row.value(3).toInt();
        read.isInvalid = row.value(4).toBool();
        read.progName = utf8(row, 5);
        read.playCount = row.value(6).toInt();
    }
}

PlayTask& ScheduleDatabase::TaskReader::task(const QVariant& id)
{
    if (m_current == m_tasks.end() || m_current->first != id.toInt()) {
        m_current = m_tasks.find(id.toInt());
    }
    if (m_current == m_tasks.end()) {
        refuse();
    }
    return m_current->second;
}

PlayPlan& ScheduleDatabase::TaskReader::plan(const QSqlQuery& row)
{
    std::vector<PlayPlan>& plans = task(row.value(0)).plans;
    const qulonglong position = row.value(1).toULongLong();
    if (position >= plans.size()) {
        refuse();
    }
    return plans[position];
}

void ScheduleDatabase::TaskReader::expectPlace(const QVariant& position, std::size_t expected) const
{
    if (position.toULongLong() != expected) {
        refuse();
    }
}

void ScheduleDatabase::TaskReader::refuse() const
{
    throw StoreError{
        refusal(StoreProblem::Damaged, m_path, QStringLiteral("its plans do not fit together"))};
}

ScheduleDatabase::TaskWriter::TaskWriter(const StoreConnection& connection)
    : m_connection(connection)
    , m_removeEntries(connection.prepare(QStringLiteral("DELETE FROM entry WHERE task_id = ?")))
    , m_removeValues(connection.prepare(QStringLiteral("DELETE FROM plan_value WHERE task_id = ?")))
    , m_removePlans(connection.prepare(QStringLiteral("DELETE FROM plan WHERE task_id = ?")))
    , m_removeTask(connection.prepare(QStringLiteral("DELETE FROM task WHERE id = ?")))
    , m_task(connection.prepare(QStringLiteral("INSERT INTO task (id, start_date, end_date)"
                                               " VALUES (?, CAST(? AS TEXT), CAST(? AS TEXT))")))
    , m_plan(connection.prepare(QStringLiteral(
          "INSERT INTO plan (task_id, position, id, mode, start_time, end_time, times,"
          " service_count, end_action, is_conflict, weeks, service_time, has_no_duration,"
          " service_flag_a, service_flag_b)"
          " VALUES (?, ?, ?, ?, CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?, ?, CAST(? AS TEXT),"
          " CAST(? AS TEXT), ?, ?, ?)")))
    , m_value(connection.prepare(
          QStringLiteral("INSERT INTO plan_value (task_id, plan_position, position, value)"
                         " VALUES (?, ?, ?, ?)")))
    , m_entry(connection.prepare(QStringLiteral(
          "INSERT INTO entry (task_id, plan_position, position, prog_index, is_invalid, name,"
          " play_count) VALUES (?, ?, ?, ?, ?, CAST(? AS TEXT), ?)")))
{}

void ScheduleDatabase::TaskWriter::write(const TaskEdits& edits)
{
    if (edits.removesAll) {
        removeAll();
    } else {
        for (const int taskId : edits.removed) {
            remove(taskId);
        }
    }
    for (const PlayTask* task : edits.written) {
        insert(*task);
    }
}

void ScheduleDatabase::TaskWriter::removeAll() const
{
    // From the leaves on, which is far quicker than to let each task take its own along.
    for (const char* table : {"entry", "plan_value", "plan", "task"}) {
        m_connection.run(QLatin1String("DELETE FROM ") + QLatin1String(table));
    }
}

void ScheduleDatabase::TaskWriter::remove(int taskId)
{
    for (QSqlQuery* query : {&m_removeEntries, &m_removeValues, &m_removePlans, &m_removeTask}) {
        bindFrom(0, *query, taskId);
        m_connection.exec(*query);
    }
}

void ScheduleDatabase::TaskWriter::insert(const PlayTask& task)
{
    bindFrom(0, m_task, task.id, bytes(task.startDate), bytes(task.endDate));
    m_connection.exec(m_task);
    int position = 0;
    for (const PlayPlan& plan : task.plans) {
        insertPlan(task.id, position, plan);
        insertValues(task.id, position, plan);
        insertEntries(task.id, position, plan);
        ++position;
    }
}

void ScheduleDatabase::TaskWriter::insertPlan(int taskId, int position, const PlayPlan& plan)
{
    bindFrom(0, m_plan, taskId, position, plan.id, plan.mode, bytes(plan.startTime),
             bytes(plan.endTime), plan.times, plan.serviceCount, plan.endAction, plan.isConflict,
             bytes(plan.weeks), bytes(plan.serviceTime), plan.hasNoDuration, plan.serviceFlagA,
             plan.serviceFlagB);
    m_connection.exec(m_plan);
}

void ScheduleDatabase::TaskWriter::insertValues(int taskId, int position, const PlayPlan& plan)
{
    bindFrom(0, m_value, taskId, position);
    int place = 0;
    for (const std::int64_t value : plan.serviceList) {
        bindFrom(2, m_value, place++, static_cast<qlonglong>(value));
        m_connection.exec(m_value);
    }
}

void ScheduleDatabase::TaskWriter::insertEntries(int taskId, int position, const PlayPlan& plan)
{
    bindFrom(0, m_entry, taskId, position);
    int place = 0;
    for (const struProgInfo& entry : plan.programs) {
        bindFrom(2, m_entry, place++, entry.progIndex, entry.isInvalid, bytes(entry.progName),
                 entry.playCount);
        m_connection.exec(m_entry);
    }
}

} // namespace trel::mediadispatch
