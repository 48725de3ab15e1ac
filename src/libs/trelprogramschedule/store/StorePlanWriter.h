#pragma once

#include "service/ScheduleRecords.h"

#include <QSqlQuery>
#include <QString>

#include <vector>

namespace trel::mediadispatch {

class StoreConnection;

/// Writes plans with their lists row by row, with each statement prepared once. Members throw
/// StoreError.
class StorePlanWriter
{
public:
    /// Into the tables that saved plans are in, or into others of the same form, whose names begin
    /// with a prefix.
    explicit StorePlanWriter(const StoreConnection& connection, const QString& prefix = {});

    /// Puts in the plans of a task, or of whatever else has plans, that has none so far.
    void insert(qint64 owner, const std::vector<PlayPlan>& plans);

private:
    void insertPlan(const PlayPlan& plan);
    void insertValues(const PlayPlan& plan);
    void insertEntries(const PlayPlan& plan);

    const StoreConnection& m_connection;
    QSqlQuery m_plan;
    QSqlQuery m_value;
    QSqlQuery m_entry;
};

} // namespace trel::mediadispatch
