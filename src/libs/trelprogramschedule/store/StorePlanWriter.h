#pragma once

#include "StoreInserts.h"
#include "service/ScheduleRecords.h"

#include <QString>

#include <memory>
#include <vector>

namespace trel::mediadispatch {

class StoreConnection;

/// Writes plans with their lists, row after row. Members throw StoreError.
class StorePlanWriter
{
public:
    /// Into the tables that saved plans are in, or into others of the same form, whose names begin
    /// with a prefix. What has the plans may be on its way into its table, and outlives the writer
    /// then.
    explicit StorePlanWriter(const StoreConnection& connection, const QString& prefix = {},
                             StoreInserts* owners = nullptr);

    /// Puts in the plans of a task, or of whatever else has plans, that has none so far.
    void insert(qint64 owner, const std::vector<PlayPlan>& plans);
    /// To be called behind the last of them: all are in their tables then.
    void finish();

private:
    void insertPlan(qint64 owner, int position, const PlayPlan& plan);

    std::unique_ptr<StoreInserts> m_plans;
    std::unique_ptr<StoreInserts> m_values;
    std::unique_ptr<StoreInserts> m_entries;
};

} // namespace trel::mediadispatch
