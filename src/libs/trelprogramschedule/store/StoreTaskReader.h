#pragma once

#include "TaskSets.h"
#include "faults/Fault.h"

#include <QSqlQuery>
#include <QVariant>

#include <cstddef>

namespace trel::mediadispatch {

class StoreConnection;

/// Puts the tasks together from their tables. Each is read in the order of its key, so that the
/// record that a row belongs to is the one in hand or the next. Members throw StoreError.
class StoreTaskReader
{
public:
    /// Of the tables that tasks are saved in, or of others of the same form, whose names begin with
    /// a prefix.
    StoreTaskReader(const StoreConnection& connection, QString path, QString prefix = {});

    TaskMap read();
    /// Reads the plans of owners that were read already, filed by the numbers that their plans
    /// have as those of their task.
    TaskMap readPlansOf(TaskMap owners);

    /// How many plans have an entry of one of these programs that has not gone bad.
    static int countPlansWith(const StoreConnection& connection,
                              const std::vector<int>& progIndexes);

private:
    void readTasks();
    void readPlans();
    void readValues();
    void readEntries();

    PlayTask& task(const QVariant& id);
    /// The plan that a row belongs to by its first two columns.
    PlayPlan& plan(const QSqlQuery& row);
    /// Lists come without gaps: a row that is not the next of its list is damage.
    void expectPlace(const QVariant& position, std::size_t expected) const;
    /// For one more than there are.
    void expectRoom(std::size_t count, std::size_t most, FaultCode excess) const;
    [[noreturn]] void refuse() const;

    QString table(const char* name) const;

    const StoreConnection& m_connection;
    QString m_path;
    QString m_prefix;
    TaskMap m_tasks;
    TaskMap::iterator m_current;
};

} // namespace trel::mediadispatch
