#include "StorePlanWriter.h"

#include "StoreConnection.h"
#include "StoreValues.h"

namespace trel::mediadispatch {

StorePlanWriter::StorePlanWriter(const StoreConnection& connection, const QString& prefix)
    : m_connection(connection)
    , m_plan(connection.prepare(
          QStringLiteral("INSERT INTO %1plan (task_id, position, id, mode, start_time, end_time,"
                         " times, service_count, end_action, is_conflict, weeks, service_time,"
                         " has_no_duration, service_flag_a, service_flag_b)"
                         " VALUES (?, ?, ?, ?, CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?, ?,"
                         " CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?)")
              .arg(prefix)))
    , m_value(connection.prepare(
          QStringLiteral("INSERT INTO %1plan_value (task_id, plan_position, position, value)"
                         " VALUES (?, ?, ?, ?)")
              .arg(prefix)))
    , m_entry(connection.prepare(
          QStringLiteral("INSERT INTO %1entry (task_id, plan_position, position, prog_index,"
                         " is_invalid, name, play_count)"
                         " VALUES (?, ?, ?, ?, ?, CAST(? AS TEXT), ?)")
              .arg(prefix)))
{}

void StorePlanWriter::insert(qint64 owner, const std::vector<PlayPlan>& plans)
{
    int position = 0;
    for (const PlayPlan& plan : plans) {
        for (QSqlQuery* query : {&m_plan, &m_value, &m_entry}) {
            bindFrom(0, *query, owner, position);
        }
        insertPlan(plan);
        insertValues(plan);
        insertEntries(plan);
        ++position;
    }
}

void StorePlanWriter::insertPlan(const PlayPlan& plan)
{
    bindFrom(2, m_plan, plan.id, plan.mode, bytes(plan.startTime), bytes(plan.endTime), plan.times,
             plan.serviceCount, plan.endAction, number(plan.isConflict), bytes(plan.weeks),
             bytes(plan.serviceTime), number(plan.hasNoDuration), number(plan.serviceFlagA),
             number(plan.serviceFlagB));
    m_connection.exec(m_plan);
}

void StorePlanWriter::insertValues(const PlayPlan& plan)
{
    int place = 0;
    for (const std::int64_t value : plan.serviceList) {
        bindFrom(2, m_value, place++, static_cast<qlonglong>(value));
        m_connection.exec(m_value);
    }
}

void StorePlanWriter::insertEntries(const PlayPlan& plan)
{
    int place = 0;
    for (const struProgInfo& entry : plan.programs) {
        bindFrom(2, m_entry, place++, entry.progIndex, number(entry.isInvalid),
                 bytes(entry.progName), entry.playCount);
        m_connection.exec(m_entry);
    }
}

} // namespace trel::mediadispatch
