#include "AsRunSchema.h"

#include "store/StoreConnection.h"
#include "store/StoreElements.h"

#include <QStringList>

namespace trel::mediadispatch {

namespace {

/// Beside the tables themselves.
QStringList statements()
{
    return {
        // The anchor is the last record that was removed because of its age.
        QStringLiteral("CREATE TABLE screen ("
                       " id INTEGER PRIMARY KEY,"
                       " name TEXT NOT NULL UNIQUE,"
                       " last_number INTEGER NOT NULL,"
                       " last_hash BLOB NOT NULL,"
                       " anchor_number INTEGER NOT NULL,"
                       " anchor_hash BLOB NOT NULL,"
                       " anchor_schedule INTEGER NOT NULL) STRICT"),
        // How far each player has handed in what it has.
        QStringLiteral("CREATE TABLE source ("
                       " name BLOB NOT NULL,"
                       " screen_id INTEGER NOT NULL REFERENCES screen,"
                       " sequence INTEGER NOT NULL,"
                       " PRIMARY KEY (name, screen_id)) STRICT, WITHOUT ROWID"),
        // What repeats from record to record stands here once, and there as a number; 0 for
        // nothing.
        QStringLiteral("CREATE TABLE word ("
                       " id INTEGER PRIMARY KEY,"
                       " bytes BLOB NOT NULL UNIQUE) STRICT"),
        QStringLiteral("CREATE TABLE schedule ("
                       " id INTEGER PRIMARY KEY,"
                       " hash BLOB NOT NULL UNIQUE,"
                       " size INTEGER NOT NULL) STRICT"),
        QStringLiteral("CREATE TABLE schedule_part ("
                       " schedule_id INTEGER NOT NULL REFERENCES schedule ON DELETE CASCADE,"
                       " part INTEGER NOT NULL,"
                       " bytes BLOB NOT NULL,"
                       " PRIMARY KEY (schedule_id, part)) STRICT"),
        QStringLiteral("CREATE TABLE record ("
                       " screen_id INTEGER NOT NULL REFERENCES screen,"
                       " number INTEGER NOT NULL,"
                       " kind INTEGER NOT NULL,"
                       " revision INTEGER NOT NULL,"
                       " schedule INTEGER NOT NULL,"
                       " picture INTEGER NOT NULL,"
                       " task_id INTEGER NOT NULL,"
                       " plan_id INTEGER NOT NULL,"
                       " plan_row INTEGER NOT NULL,"
                       " entry INTEGER NOT NULL,"
                       " play INTEGER NOT NULL,"
                       " run INTEGER NOT NULL,"
                       " insertion INTEGER NOT NULL,"
                       " prog_index INTEGER NOT NULL,"
                       " program INTEGER NOT NULL,"
                       " planned_begin INTEGER NOT NULL,"
                       " planned_end INTEGER NOT NULL,"
                       " begins INTEGER NOT NULL,"
                       " ends INTEGER NOT NULL,"
                       " steady_begin INTEGER NOT NULL,"
                       " steady_end INTEGER NOT NULL,"
                       " boot INTEGER NOT NULL,"
                       " shown INTEGER NOT NULL,"
                       " outcome INTEGER NOT NULL,"
                       " late INTEGER NOT NULL,"
                       " why INTEGER NOT NULL,"
                       " hash BLOB NOT NULL,"
                       " PRIMARY KEY (screen_id, number)) STRICT, WITHOUT ROWID"),
        QStringLiteral("CREATE INDEX record_time ON record (screen_id, begins)"),
        QStringLiteral("CREATE INDEX record_taken ON record (schedule) WHERE kind = 3"),
    };
}

} // namespace

void AsRunSchema::make(const StoreConnection& connection)
{
    StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
    for (const QString& statement : statements()) {
        connection.run(statement);
    }
    connection.seal(kApplicationId, kVersion);
    transaction.commit();
}

void AsRunSchema::check(const StoreConnection& connection, const QString& path)
{
    static const StoreElements expected = connection.elementsMadeBy(statements());
    connection.elements().check(expected, path);
}

} // namespace trel::mediadispatch
