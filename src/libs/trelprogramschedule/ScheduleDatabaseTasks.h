#pragma once

#include "ScheduleDatabase.h"

#include <QSqlQuery>
#include <QVariant>

#include <cstddef>

namespace trel::mediadispatch {

/// Puts the tasks together from their tables. Each is read in the order of its key, so that the
/// record that a row belongs to is the one in hand or the next. Members throw StoreError.
class ScheduleDatabase::TaskReader
{
public:
    TaskReader(const StoreConnection& connection, const QString& path);

    TaskMap read();

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
    [[noreturn]] void refuse() const;

    const StoreConnection& m_connection;
    const QString& m_path;
    TaskMap m_tasks;
    TaskMap::iterator m_current;
};

/// Writes tasks row by row, with each statement prepared once. Members throw StoreError.
class ScheduleDatabase::TaskWriter
{
public:
    explicit TaskWriter(const StoreConnection& connection);

    void write(const TaskEdits& edits);

private:
    void removeAll() const;
    void remove(int taskId);
    void insert(const PlayTask& task);
    void insertPlan(int taskId, int position, const PlayPlan& plan);
    void insertValues(int taskId, int position, const PlayPlan& plan);
    void insertEntries(int taskId, int position, const PlayPlan& plan);

    const StoreConnection& m_connection;
    QSqlQuery m_removeEntries;
    QSqlQuery m_removeValues;
    QSqlQuery m_removePlans;
    QSqlQuery m_removeTask;
    QSqlQuery m_task;
    QSqlQuery m_plan;
    QSqlQuery m_value;
    QSqlQuery m_entry;
};

} // namespace trel::mediadispatch
