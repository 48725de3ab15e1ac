#include "StorePlanWriter.h"

#include "StoreConnection.h"
#include "StoreValues.h"

namespace trel::mediadispatch {

StorePlanWriter::StorePlanWriter(const StoreConnection& connection, const QString& prefix,
                                 StoreInserts* owners)
    : m_plans(connection.inserts(
          QStringLiteral("INSERT INTO %1plan (task_id, position, id, mode, start_time, end_time,"
                         " times, service_count, end_action, is_conflict, weeks, service_time,"
                         " has_no_duration, service_flag_a, service_flag_b)"
                         " VALUES (?, ?, ?, ?, CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?, ?,"
                         " CAST(? AS TEXT), CAST(? AS TEXT), ?, ?, ?)")
              .arg(prefix),
          owners))
    , m_values(connection.inserts(
          QStringLiteral("INSERT INTO %1plan_value (task_id, plan_position, position, value)"
                         " VALUES (?, ?, ?, ?)")
              .arg(prefix),
          m_plans.get()))
    , m_entries(connection.inserts(
          QStringLiteral("INSERT INTO %1entry (task_id, plan_position, position, prog_index,"
                         " is_invalid, name, play_count)"
                         " VALUES (?, ?, ?, ?, ?, CAST(? AS TEXT), ?)")
              .arg(prefix),
          m_plans.get()))
{}

void StorePlanWriter::insert(qint64 owner, const std::vector<PlayPlan>& plans)
{
    int position = 0;
    for (const PlayPlan& plan : plans) {
        insertPlan(owner, position, plan);
        int place = 0;
        for (const std::int64_t value : plan.serviceList) {
            m_values->put({owner, position, place++, static_cast<qlonglong>(value)});
        }
        place = 0;
        for (const struProgInfo& entry : plan.programs) {
            m_entries->put({owner, position, place++, entry.progIndex, number(entry.isInvalid),
                            bytes(entry.progName), entry.playCount});
        }
        ++position;
    }
}

void StorePlanWriter::insertPlan(qint64 owner, int position, const PlayPlan& plan)
{
    m_plans->put({owner, position, plan.id, plan.mode, bytes(plan.startTime), bytes(plan.endTime),
                  plan.times, plan.serviceCount, plan.endAction, number(plan.isConflict),
                  bytes(plan.weeks), bytes(plan.serviceTime), number(plan.hasNoDuration),
                  number(plan.serviceFlagA), number(plan.serviceFlagB)});
}

void StorePlanWriter::finish()
{
    m_plans->finish();
    m_values->finish();
    m_entries->finish();
}

} // namespace trel::mediadispatch
