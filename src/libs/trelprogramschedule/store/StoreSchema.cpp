#include "StoreSchema.h"

#include "StoreConnection.h"
#include "StoreRefusals.h"

#include <QVariant>

#include <map>
#include <mutex>
#include <typeindex>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// The first version that has tables for what is in effect.
constexpr int kEffectVersion = 2;
/// The first version that has tables for former states of what is saved.
constexpr int kHistoryVersion = 3;
/// The first version that has a table for what the files of programs hold.
constexpr int kContentVersion = 4;

/// Tables for the plans of what another table holds under the name of its key.
QStringList planStatements(const QString& prefix, const QString& owner)
{
    // Rows are found by their place, as those of the saved tasks are.
    const QStringList statements = {
        QStringLiteral("CREATE TABLE %1_plan ("
                       " task_id INTEGER NOT NULL REFERENCES %2 ON DELETE CASCADE,"
                       " position INTEGER NOT NULL,"
                       " id INTEGER NOT NULL,"
                       " mode INTEGER NOT NULL,"
                       " start_time TEXT NOT NULL,"
                       " end_time TEXT NOT NULL,"
                       " times INTEGER NOT NULL,"
                       " service_count INTEGER NOT NULL,"
                       " end_action INTEGER NOT NULL,"
                       " is_conflict INTEGER NOT NULL,"
                       " weeks TEXT NOT NULL,"
                       " service_time TEXT NOT NULL,"
                       " has_no_duration INTEGER NOT NULL,"
                       " service_flag_a INTEGER NOT NULL,"
                       " service_flag_b INTEGER NOT NULL,"
                       " PRIMARY KEY (task_id, position)) STRICT, WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE %1_plan_value ("
                       " task_id INTEGER NOT NULL,"
                       " plan_position INTEGER NOT NULL,"
                       " position INTEGER NOT NULL,"
                       " value INTEGER NOT NULL,"
                       " PRIMARY KEY (task_id, plan_position, position),"
                       " FOREIGN KEY (task_id, plan_position) REFERENCES %1_plan"
                       " ON DELETE CASCADE) STRICT, WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE %1_entry ("
                       " task_id INTEGER NOT NULL,"
                       " plan_position INTEGER NOT NULL,"
                       " position INTEGER NOT NULL,"
                       " prog_index INTEGER NOT NULL,"
                       " is_invalid INTEGER NOT NULL,"
                       " name TEXT NOT NULL,"
                       " play_count INTEGER NOT NULL,"
                       " PRIMARY KEY (task_id, plan_position, position),"
                       " FOREIGN KEY (task_id, plan_position) REFERENCES %1_plan"
                       " ON DELETE CASCADE) STRICT, WITHOUT ROWID")};
    QStringList filled;
    for (const QString& statement : statements) {
        filled.append(statement.contains(QLatin1String("%2")) ? statement.arg(prefix, owner)
                                                              : statement.arg(prefix));
    }
    return filled;
}

/// What is in effect, beside what is saved.
QStringList effectStatements()
{
    QStringList statements = {
        QStringLiteral("ALTER TABLE store"
                       " ADD COLUMN effect_revision INTEGER NOT NULL DEFAULT 0"),
        // Writes the row in its new form, which a log is compared with.
        QStringLiteral("UPDATE store SET effect_revision = 0"),
        // No row while nothing is in effect.
        QStringLiteral("CREATE TABLE effect ("
                       " one INTEGER PRIMARY KEY CHECK (one = 1),"
                       " since_ms INTEGER NOT NULL,"
                       " schedule_revision INTEGER NOT NULL,"
                       " started_by TEXT NOT NULL) STRICT"),
        QStringLiteral("CREATE TABLE effect_task ("
                       " id INTEGER PRIMARY KEY,"
                       " start_date TEXT NOT NULL,"
                       " end_date TEXT NOT NULL) STRICT")};
    statements += planStatements(QStringLiteral("effect"), QStringLiteral("effect_task"));
    // Its plans: at 0 what it plays, at 1 the list as the operator saw it before.
    statements += QStringLiteral("CREATE TABLE insertion ("
                                 " number INTEGER PRIMARY KEY,"
                                 " requested_ms INTEGER NOT NULL,"
                                 " begins_ms INTEGER NOT NULL,"
                                 " ends_ms INTEGER NOT NULL,"
                                 " task_id INTEGER NOT NULL,"
                                 " plan_id INTEGER NOT NULL,"
                                 " asked_by TEXT NOT NULL) STRICT");
    statements += planStatements(QStringLiteral("insertion"), QStringLiteral("insertion"));
    return statements;
}

/// The states that saves have made, and what they were made of.
QStringList historyStatements()
{
    return {
        QStringLiteral("ALTER TABLE store"
                       " ADD COLUMN version_revision INTEGER NOT NULL DEFAULT 0"),
        // Writes the row in its new form, which a log is compared with.
        QStringLiteral("UPDATE store SET version_revision = 0"),
        // The newest is what is saved. Its number is the revision of the schedule.
        QStringLiteral("CREATE TABLE version ("
                       " number INTEGER PRIMARY KEY,"
                       " saved_ms INTEGER NOT NULL,"
                       " saved_by TEXT NOT NULL,"
                       " added INTEGER NOT NULL,"
                       " changed INTEGER NOT NULL,"
                       " removed INTEGER NOT NULL,"
                       " task_ids TEXT NOT NULL,"
                       " restored INTEGER NOT NULL,"
                       " name TEXT NOT NULL,"
                       " note TEXT NOT NULL) STRICT"),
        // What of the tasks is another one in the next version. A value has a size that it may
        // have, so that it comes in parts.
        QStringLiteral("CREATE TABLE version_part ("
                       " version INTEGER NOT NULL REFERENCES version ON DELETE CASCADE,"
                       " part INTEGER NOT NULL,"
                       " content BLOB NOT NULL,"
                       " PRIMARY KEY (version, part)) STRICT, WITHOUT ROWID"),
        QStringLiteral("INSERT INTO version SELECT schedule_revision, 0, '', 0, 0, 0, '', -1, '',"
                       " '' FROM store")};
}

/// What the files of programs held when they were read.
QStringList contentStatements()
{
    // No row where it is not known, as of all programs at first.
    return {QStringLiteral("CREATE TABLE program_content ("
                           " prog_index INTEGER PRIMARY KEY REFERENCES program,"
                           " size_bytes INTEGER NOT NULL,"
                           " modified_ns INTEGER NOT NULL,"
                           " sha256 TEXT NOT NULL) STRICT")};
}

} // namespace

const std::vector<StoreSchema::Step>& StoreSchema::steps()
{
    // A step that operators have is never changed: a new version adds a step at the end.
    static const std::vector<Step> steps = {
        {1,
         {QStringLiteral("CREATE TABLE store ("
                         " one INTEGER PRIMARY KEY CHECK (one = 1),"
                         " schedule_revision INTEGER NOT NULL,"
                         " catalogue_revision INTEGER NOT NULL,"
                         " next_prog_index INTEGER NOT NULL) STRICT"),
          QStringLiteral("INSERT INTO store VALUES (1, 0, 0, 1)"),
          // A program that is taken out stays as a row, so that its name is still known.
          QStringLiteral("CREATE TABLE program ("
                         " prog_index INTEGER PRIMARY KEY,"
                         " name TEXT NOT NULL,"
                         " media_path TEXT NOT NULL,"
                         " duration_ms REAL NOT NULL,"
                         " kind INTEGER NOT NULL,"
                         " removed INTEGER NOT NULL DEFAULT 0) STRICT"),
          QStringLiteral("CREATE UNIQUE INDEX program_path ON program (media_path)"
                         " WHERE removed = 0"),
          QStringLiteral("CREATE TABLE task ("
                         " id INTEGER PRIMARY KEY,"
                         " start_date TEXT NOT NULL,"
                         " end_date TEXT NOT NULL) STRICT"),
          // Rows are found by their place: two plans of a task may have the same id.
          QStringLiteral("CREATE TABLE plan ("
                         " task_id INTEGER NOT NULL REFERENCES task ON DELETE CASCADE,"
                         " position INTEGER NOT NULL,"
                         " id INTEGER NOT NULL,"
                         " mode INTEGER NOT NULL,"
                         " start_time TEXT NOT NULL,"
                         " end_time TEXT NOT NULL,"
                         " times INTEGER NOT NULL,"
                         " service_count INTEGER NOT NULL,"
                         " end_action INTEGER NOT NULL,"
                         " is_conflict INTEGER NOT NULL,"
                         " weeks TEXT NOT NULL,"
                         " service_time TEXT NOT NULL,"
                         " has_no_duration INTEGER NOT NULL,"
                         " service_flag_a INTEGER NOT NULL,"
                         " service_flag_b INTEGER NOT NULL,"
                         " PRIMARY KEY (task_id, position)) STRICT, WITHOUT ROWID"),
          QStringLiteral("CREATE TABLE plan_value ("
                         " task_id INTEGER NOT NULL,"
                         " plan_position INTEGER NOT NULL,"
                         " position INTEGER NOT NULL,"
                         " value INTEGER NOT NULL,"
                         " PRIMARY KEY (task_id, plan_position, position),"
                         " FOREIGN KEY (task_id, plan_position) REFERENCES plan"
                         " ON DELETE CASCADE) STRICT, WITHOUT ROWID"),
          QStringLiteral("CREATE TABLE entry ("
                         " task_id INTEGER NOT NULL,"
                         " plan_position INTEGER NOT NULL,"
                         " position INTEGER NOT NULL,"
                         " prog_index INTEGER NOT NULL,"
                         " is_invalid INTEGER NOT NULL,"
                         " name TEXT NOT NULL,"
                         " play_count INTEGER NOT NULL,"
                         " PRIMARY KEY (task_id, plan_position, position),"
                         " FOREIGN KEY (task_id, plan_position) REFERENCES plan"
                         " ON DELETE CASCADE) STRICT, WITHOUT ROWID")}},
        {kEffectVersion, effectStatements()},
        {kHistoryVersion, historyStatements()},
        {kContentVersion, contentStatements()},
    };
    return steps;
}

int StoreSchema::newestVersion()
{
    return steps().back().version;
}

bool StoreSchema::isNewest(const StoreConnection& connection)
{
    return connection.schemaVersion() == newestVersion();
}

bool StoreSchema::hasEffect(const StoreConnection& connection)
{
    return connection.schemaVersion() >= kEffectVersion;
}

bool StoreSchema::hasHistory(const StoreConnection& connection)
{
    return connection.schemaVersion() >= kHistoryVersion;
}

bool StoreSchema::hasContents(const StoreConnection& connection)
{
    return connection.schemaVersion() >= kContentVersion;
}

const StoreElements& StoreSchema::expectedElements(const StoreConnection& connection)
{
    const int version = connection.schemaVersion();
    const std::pair engineAndVersion(std::type_index(typeid(connection)), version);
    // Stores are opened in more than one thread. What has been put in stays where it is.
    static std::mutex mutex;
    static std::map<std::pair<std::type_index, int>, StoreElements> known;
    {
        const std::lock_guard lock(mutex);
        if (const auto place = known.find(engineAndVersion); place != known.end()) {
            return place->second;
        }
    }
    QStringList statements;
    for (const Step& step : steps()) {
        statements += step.version <= version ? step.statements : QStringList();
    }
    // Kept when it is whole: with what a lack of memory has cut short, every store would be
    // refused. A server can take its time for it, for which nobody else waits.
    StoreElements made = connection.elementsMadeBy(statements);
    const std::lock_guard lock(mutex);
    return known.emplace(engineAndVersion, std::move(made)).first->second;
}

void StoreSchema::checkElements(const StoreConnection& connection, const QString& path)
{
    connection.elements().check(expectedElements(connection), path);
}

void StoreSchema::migrate(const StoreConnection& connection)
{
    for (const Step& step : steps()) {
        if (connection.schemaVersion() >= step.version) {
            continue;
        }
        StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
        if (connection.schemaVersion() >= step.version) {
            continue; // Another program has taken the step meanwhile.
        }
        for (const QString& statement : step.statements) {
            connection.run(statement);
        }
        connection.seal(kApplicationId, step.version);
        transaction.commit();
    }
}

void StoreSchema::check(const StoreConnection& connection, const QString& path)
{
    if (connection.applicationId() != kApplicationId) {
        throw StoreError{refusal(StoreProblem::Foreign, path)};
    }
    if (connection.schemaVersion() > newestVersion()) {
        throw StoreError{refusal(StoreProblem::NewerSchema, path)};
    }
    checkElements(connection, path);
    connection.expectSound(path);
    if (connection.value(QStringLiteral("SELECT count(*) FROM store")).toInt() != 1) {
        throw StoreError{refusal(StoreProblem::Damaged, path, {FaultCode::StateMissing, {}})};
    }
}

} // namespace trel::mediadispatch
