#include "StoreTaskReader.h"

#include "ScheduleLimits.h"
#include "StoreConnection.h"
#include "StoreRefusals.h"
#include "StoreValues.h"

#include <QStringList>

#include <utility>

namespace trel::mediadispatch {

StoreTaskReader::StoreTaskReader(const StoreConnection& connection, QString path, QString prefix)
    : m_connection(connection)
    , m_path(std::move(path))
    , m_prefix(std::move(prefix))
    , m_current(m_tasks.end())
{}

TaskMap StoreTaskReader::read()
{
    readTasks();
    return readPlansOf(std::move(m_tasks));
}

TaskMap StoreTaskReader::readPlansOf(TaskMap owners)
{
    m_tasks = std::move(owners);
    m_current = m_tasks.end();
    readPlans();
    readValues();
    readEntries();
    return std::move(m_tasks);
}

int StoreTaskReader::countPlansWith(const StoreConnection& connection,
                                    const std::vector<int>& progIndexes)
{
    if (progIndexes.empty()) {
        return 0; // Not every engine knows an empty list.
    }
    QStringList indexes;
    indexes.reserve(static_cast<int>(progIndexes.size()));
    for (const int index : progIndexes) {
        indexes.append(QString::number(index));
    }
    return connection
        .value(QStringLiteral("SELECT count(*) FROM (SELECT DISTINCT task_id, plan_position"
                              " FROM entry WHERE is_invalid = 0 AND prog_index IN (%1)) AS plans")
                   .arg(indexes.join(QLatin1Char(','))))
        .toInt();
}

void StoreTaskReader::readTasks()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT id, CAST(start_date AS BLOB), CAST(end_date AS BLOB)"
                       " FROM %1 ORDER BY id")
            .arg(table("task")));
    while (m_connection.next(row)) {
        expectRoom(m_tasks.size(), kMostTasks, FaultCode::TooManyTasks);
        PlayTask read;
        read.id = row.value(0).toInt();
        read.startDate = utf8(row, 1);
        read.endDate = utf8(row, 2);
        m_tasks.emplace_hint(m_tasks.end(), read.id, std::move(read));
    }
}

void StoreTaskReader::readPlans()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT task_id, position, id, mode, CAST(start_time AS BLOB), "
                       "CAST(end_time AS BLOB), times,"
                       " service_count,"
                       " end_action, is_conflict, CAST(weeks AS BLOB), CAST(service_time AS BLOB), "
                       "has_no_duration,"
                       " service_flag_a, service_flag_b FROM %1 ORDER BY task_id, position")
            .arg(table("plan")));
    for (std::size_t count = 0; m_connection.next(row); ++count) {
        expectRoom(count, kMostPlans, FaultCode::TooManyPlans);
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

void StoreTaskReader::readValues()
{
    QSqlQuery row =
        m_connection.query(QStringLiteral("SELECT task_id, plan_position, position, value FROM %1"
                                          " ORDER BY task_id, plan_position, position")
                               .arg(table("plan_value")));
    for (std::size_t count = 0; m_connection.next(row); ++count) {
        expectRoom(count, kMostServiceValues, FaultCode::TooManyListNumbers);
        std::vector<std::int64_t>& values = plan(row).serviceList;
        expectPlace(row.value(2), values.size());
        values.push_back(row.value(3).toLongLong());
    }
}

void StoreTaskReader::readEntries()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT task_id, plan_position, position, prog_index, is_invalid,"
                       " CAST(name AS BLOB), play_count"
                       " FROM %1 ORDER BY task_id, plan_position, position")
            .arg(table("entry")));
    for (std::size_t count = 0; m_connection.next(row); ++count) {
        expectRoom(count, kMostEntries, FaultCode::TooManyEntries);
        std::vector<struProgInfo>& entries = plan(row).programs;
        expectPlace(row.value(2), entries.size());
        struProgInfo& read = entries.emplace_back();
        read.progIndex = row.value(3).toInt();
        read.isInvalid = row.value(4).toBool();
        read.progName = utf8(row, 5);
        read.playCount = row.value(6).toInt();
    }
}

QString StoreTaskReader::table(const char* name) const
{
    return m_prefix + QLatin1String(name);
}

PlayTask& StoreTaskReader::task(const QVariant& id)
{
    if (m_current == m_tasks.end() || m_current->first != id.toInt()) {
        m_current = m_tasks.find(id.toInt());
    }
    if (m_current == m_tasks.end()) {
        refuse();
    }
    return m_current->second;
}

PlayPlan& StoreTaskReader::plan(const QSqlQuery& row)
{
    std::vector<PlayPlan>& plans = task(row.value(0)).plans;
    const qulonglong position = row.value(1).toULongLong();
    if (position >= plans.size()) {
        refuse();
    }
    return plans[position];
}

void StoreTaskReader::expectPlace(const QVariant& position, std::size_t expected) const
{
    if (position.toULongLong() != expected) {
        refuse();
    }
}

void StoreTaskReader::expectRoom(std::size_t count, std::size_t most, FaultCode excess) const
{
    if (count >= most) {
        throw StoreError{refusal(StoreProblem::TooLarge, m_path, faultOf(excess, most))};
    }
}

void StoreTaskReader::refuse() const
{
    throw StoreError{refusal(StoreProblem::Damaged, m_path, {FaultCode::PlansUnfitting, {}})};
}

} // namespace trel::mediadispatch
