#include "PostgresConnection.h"

#include "PostgresInserts.h"
#include "PostgresOpening.h"
#include "PostgresPatience.h"
#include "PostgresRefusals.h"
#include "PostgresRows.h"
#include "PostgresWords.h"
#include "store/StoreDeadline.h"
#include "store/StoreDriver.h"
#include "store/StoreElements.h"
#include "store/StoreRefusals.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QStringList>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <new>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// What the client library makes sure of: a server that does not answer, or has gone from the
/// network, is given up after seconds and not after minutes.
const QString kOptions =
    QStringLiteral("connect_timeout=5;keepalives_idle=5;keepalives_interval=2;keepalives_count=3;"
                   "tcp_user_timeout=10000;application_name=trel-schedule");

/// In front of the name of a schedule, so that its schema meets no other.
const QString kSchemaPrefix = QStringLiteral("trel_schedule_");

/// What says whose a schema is, and which version of it. The id is that of the schedule: another
/// one that is set up in its place has another.
const QString kMakeSeal =
    QStringLiteral("CREATE TABLE seal (one INTEGER PRIMARY KEY CHECK (one = 1),"
                   " application INTEGER NOT NULL, version INTEGER NOT NULL,"
                   " id uuid NOT NULL DEFAULT gen_random_uuid())");

/// What tells of each change of the last day that it was done, by a token that it alone has. The
/// numbers that the server gives to transactions would not do: one that a crash has undone is given
/// out anew.
const QString kMakeWritten =
    QStringLiteral("CREATE TABLE written (token uuid PRIMARY KEY,"
                   " moment timestamp with time zone NOT NULL DEFAULT now())");

/// What desks tell each other of what they have open for editing: of each program a row, which it
/// tells anew as long as it runs.
const QString kMakeNotes =
    QStringLiteral("CREATE TABLE desk_note (program uuid PRIMARY KEY, desk bytea NOT NULL,"
                   " since INTEGER NOT NULL, changed INTEGER NOT NULL, tasks bytea NOT NULL,"
                   " heard timestamp with time zone NOT NULL DEFAULT now())");

/// More than any schema has, so that one that has more shows.
constexpr int kMostElements = 1000;

/// All that a schema can hold which has to do with reading and writing its tables. The number of
/// the schema is put in for the place. Names of the schema itself are taken out of definitions.
constexpr char kElements[] =
    "WITH home AS (SELECT oid, nspname FROM pg_catalog.pg_namespace WHERE oid = %1),"
    " own AS (SELECT c.* FROM pg_catalog.pg_class c JOIN home ON home.oid = c.relnamespace)"
    " SELECT 'table', relname::text, relname::text, relkind::text ||"
    "  CASE WHEN relpersistence = 'u' THEN ' unlogged' ELSE '' END ||"
    "  CASE WHEN relrowsecurity THEN ' secured' ELSE '' END ||"
    "  (SELECT coalesce(string_agg(' ' || attname || ' ' || format_type(atttypid, atttypmod) ||"
    "    CASE WHEN attnotnull THEN ' NOT NULL' ELSE '' END ||"
    "    coalesce(' DEFAULT ' || (SELECT pg_get_expr(adbin, adrelid)"
    "     FROM pg_catalog.pg_attrdef WHERE adrelid = attrelid AND adnum = attnum), ''), ','"
    "    ORDER BY attnum), '')"
    "   FROM pg_catalog.pg_attribute WHERE attrelid = own.oid AND attnum > 0 AND NOT attisdropped)"
    "  FROM own WHERE relkind <> 'i'"
    " UNION ALL SELECT 'index', own.relname::text, indrelid::regclass::text,"
    "  replace(replace(pg_get_indexdef(own.oid), quote_ident(home.nspname) || '.', ''),"
    "   'pg_temp.', '')"
    "  FROM own JOIN pg_catalog.pg_index ON indexrelid = own.oid, home"
    " UNION ALL SELECT 'constraint', own.relname || ' ' || conname, own.relname::text,"
    "  pg_get_constraintdef(k.oid) || CASE WHEN convalidated THEN '' ELSE ' unchecked' END"
    "  FROM pg_catalog.pg_constraint k JOIN own ON own.oid = conrelid"
    " UNION ALL SELECT 'trigger', own.relname || ' ' || tgname, own.relname::text, ''"
    "  FROM pg_catalog.pg_trigger t JOIN own ON own.oid = tgrelid WHERE NOT tgisinternal"
    " UNION ALL SELECT 'rule', own.relname || ' ' || rulename, own.relname::text, ''"
    "  FROM pg_catalog.pg_rewrite JOIN own ON own.oid = ev_class"
    " UNION ALL SELECT 'policy', own.relname || ' ' || polname, own.relname::text, ''"
    "  FROM pg_catalog.pg_policy JOIN own ON own.oid = polrelid"
    " UNION ALL SELECT 'child', inhrelid::regclass::text, own.relname::text, ''"
    "  FROM pg_catalog.pg_inherits JOIN own ON own.oid = inhparent"
    " UNION ALL SELECT 'function', p.oid::regprocedure::text, '', ''"
    "  FROM pg_catalog.pg_proc p JOIN home ON home.oid = pronamespace"
    " LIMIT %2";

/// Longer than the client library waits for one address of the server.
constexpr std::chrono::milliseconds kPatienceToOpen{12000};

QSqlDatabase closedConnectionTo(const StorePlace& place)
{
    QSqlDatabase connection = unlistedConnection(QStringLiteral("QPSQL"));
    connection.setHostName(place.host());
    connection.setPort(place.port());
    connection.setUserName(place.user());
    connection.setDatabaseName(place.database());
    connection.setConnectOptions(kOptions);
    return connection;
}

} // namespace

PostgresConnection::PostgresConnection(const StorePlace& place, Access access,
                                       std::chrono::milliseconds patience)
    : StoreConnection(place.text(), unlistedConnection(QStringLiteral("QPSQL")))
    , m_place(place)
    , m_access(access)
    , m_longestWait(patience)
    , m_patience(std::make_unique<PostgresPatience>(patience))
{
    connect();
    m_isUntold = !isAlive();
}

PostgresConnection::~PostgresConnection()
{
    // Queries that have not gone yet keep the driver.
    QObject::disconnect(m_hearing);
}

QString PostgresConnection::schemaName() const
{
    return kSchemaPrefix + m_place.schedule();
}

void PostgresConnection::connect() const
{
    QObject::disconnect(m_hearing);
    m_former = database();
    m_former.close();
    m_patience->leave();
    m_failure = QSqlError();
    QSqlDatabase connection = closedConnectionTo(m_place);
    const PostgresOpening::Outcome outcome =
        PostgresOpening::open(connection, std::min(m_longestWait, kPatienceToOpen));
    m_isGivenUp = outcome == PostgresOpening::Outcome::GivenUp;
    if (!m_isGivenUp) {
        replaceDatabase(connection);
    }
    if (outcome != PostgresOpening::Outcome::Open) {
        return;
    }
    m_patience->watch(*connection.driver());
    const QStringList settings = {
        QStringLiteral("SET search_path = %1, pg_temp").arg(postgresName(schemaName())),
        // The server itself ends what takes it long, before the wait for it is ended here.
        QStringLiteral("SET statement_timeout = %1").arg((m_longestWait * 3 / 4).count()),
        QStringLiteral("SET lock_timeout = '2s'"),
        QStringLiteral("SET idle_in_transaction_session_timeout = '60s'"),
        // A change is on the disk of the server before it is told to be done.
        QStringLiteral("SET synchronous_commit = on"),
        QStringLiteral("SET standard_conforming_strings = on"),
        QStringLiteral("SET bytea_output = hex"),
        // Rows that somebody hides are an error, not a smaller schedule.
        QStringLiteral("SET row_security = off"),
    };
    QSqlQuery query(connection);
    m_patience->begin();
    for (const QString& setting : settings) {
        if (!query.exec(setting)) {
            // Closing forgets it.
            m_failure = query.lastError();
            connection.close();
            break;
        }
    }
    m_patience->end();
    if (m_hear && connection.isOpen()) {
        subscribe();
    }
}

void PostgresConnection::subscribe() const
{
    QSqlDriver* const driver = database().driver();
    m_hearing = QObject::connect(
        driver,
        QOverload<const QString&, QSqlDriver::NotificationSource, const QVariant&>::of(
            &QSqlDriver::notification),
        driver, [hear = m_hear] { hear(); });
    beginAsking();
    const bool isDone = driver->subscribeToNotification(postgresChannel(schemaName()));
    endAsking();
    if (!isDone) {
        m_failure = driver->lastError();
        QSqlDatabase(database()).close();
    }
}

void PostgresConnection::listen(std::function<void()> hear) const
{
    m_hear = std::move(hear);
    if (isAlive()) {
        subscribe();
    }
    if (!isAlive()) {
        expectOpen();
    }
}

bool PostgresConnection::isConnected() const
{
    if (!isAlive()) {
        // What waits for notices at its socket would go on with whatever has the number next.
        QSqlDatabase(database()).close();
    }
    return isAlive();
}

void PostgresConnection::beginAsking() const
{
    m_patience->begin();
}

void PostgresConnection::endAsking() const
{
    if (!m_isInUse) {
        m_patience->end();
    }
}

void PostgresConnection::leave() const
{
    m_isInUse = false;
    endAsking();
}

bool PostgresConnection::isAlive() const
{
    return database().isOpen();
}

void PostgresConnection::expectOpen() const
{
    if (!database().isValid()) {
        throw StoreError{refusal(
            StoreProblem::Other, path(),
            faultOf(FaultCode::Database, 0, QStringLiteral("the driver QPSQL is not installed")))};
    }
    if (!isAlive()) {
        m_isUntold = false;
        throw m_isGivenUp
            ? StoreError{refusal(StoreProblem::Other, path(), {FaultCode::ServerSilent, {}})}
            : errorOf(m_failure.isValid() ? m_failure : database().lastError());
    }
    expectTime();
}

void PostgresConnection::expectTime() const
{
    if (m_deadline != nullptr) {
        m_deadline->expectTime(path());
    }
}

StoreError PostgresConnection::errorOf(const QSqlError& error) const
{
    // After an error the server takes no more of a transaction, not even that a statement is
    // forgotten, which the driver asks for when a query goes.
    rollBack();
    return {m_patience->hasCut()
                ? refusal(StoreProblem::Other, path(), {FaultCode::ServerSilent, {}})
                : refusalOfServer(error, path())};
}

void PostgresConnection::setDeadline(StoreDeadline* deadline) const
{
    m_deadline = deadline;
}

QString PostgresConnection::worded(const QString& statement) const
{
    return postgresWords(statement);
}

QSqlQuery PostgresConnection::query(const QString& statement) const
{
    return sent(worded(statement));
}

std::unique_ptr<StoreInserts> PostgresConnection::inserts(const QString& statement,
                                                          StoreInserts* before) const
{
    return std::make_unique<PostgresInserts>([this](const QString& words) { sent(words); },
                                             worded(statement), before);
}

QSqlQuery PostgresConnection::sent(const QString& words) const
{
    expectOpen();
    QSqlQuery query(database());
    beginAsking();
    const bool isDone = query.exec(words);
    endAsking();
    if (!isDone) {
        refuse(query);
    }
    return query;
}

std::unique_ptr<StoreRows> PostgresConnection::rows(const QString& path, const char* sql) const
{
    Q_UNUSED(path)
    return std::make_unique<PostgresRows>(*this, QString::fromLatin1(sql));
}

void PostgresConnection::begin(StorePurpose purpose) const
{
    m_isInUse = true;
    try {
        beginAlive(purpose);
        if (m_isWriting && m_access == Access::ReadWrite) {
            expectSameSchedule();
        }
    } catch (const StoreError&) {
        leave();
        throw;
    }
}

void PostgresConnection::beginAlive(StorePurpose purpose) const
{
    if (!isAlive()) {
        if (m_isUntold) {
            // Whoever has just waited for nothing does not wait twice.
            expectOpen();
        }
        reconnect();
        beginOnce(purpose);
        return;
    }
    try {
        beginOnce(purpose);
    } catch (const StoreError&) {
        // That a connection has gone shows with the next statement.
        if (isAlive()) {
            throw;
        }
        reconnect();
        beginOnce(purpose);
    }
}

void PostgresConnection::reconnect() const
{
    connect();
    if (m_version == kNotAsked) {
        return;
    }
    const int known = std::exchange(m_version, kNotAsked);
    try {
        const int found = schemaVersion();
        m_version = known;
        if (found != known) {
            // Whatever is begun next has to be refused as well.
            QSqlDatabase(database()).close();
            throw otherVersion(found);
        }
    } catch (const StoreError&) {
        m_version = known;
        throw;
    }
}

void PostgresConnection::expectSameSchedule() const
{
    if (m_version == kNotAsked) {
        return;
    }
    try {
        const Seal found = readSeal();
        if (found.version != m_version) {
            throw otherVersion(found.version);
        }
        if (!m_identity.isEmpty() && found.identity != m_identity) {
            throw StoreError{refusal(StoreProblem::Other, path(), {FaultCode::FileReplaced, {}})};
        }
    } catch (const StoreError&) {
        rollBack();
        throw;
    }
}

/// What was read back from a copy has the id of the original, yet is another schema.
PostgresConnection::Seal PostgresConnection::readSeal() const
{
    QSqlQuery row = query(QStringLiteral("SELECT version, id::text, oid::text FROM seal,"
                                         " pg_catalog.pg_namespace WHERE nspname = %1")
                              .arg(postgresText(schemaName())));
    if (!next(row)) {
        throw StoreError{refusal(StoreProblem::Damaged, path(), {FaultCode::RowMissing, {}})};
    }
    const QString id = row.value(1).toString();
    return {row.value(0).toInt(), id, id + QLatin1Char(' ') + row.value(2).toString()};
}

void PostgresConnection::rememberSchedule() const
{
    const Seal seal = readSeal();
    m_identity = seal.identity;
    m_scheduleId = seal.id;
}

bool PostgresConnection::isSameSchedule() const
{
    try {
        return readSeal().identity == m_identity;
    } catch (const StoreError& error) {
        // Of a server that is away nothing is known. What is not there is no longer the same.
        return error.result.problem != StoreProblem::Damaged;
    }
}

StoreError PostgresConnection::otherVersion(int found) const
{
    return {found < m_version ? refusal(StoreProblem::Altered, path(), {FaultCode::SchemaOlder, {}})
                              : refusal(StoreProblem::NewerSchema, path())};
}

void PostgresConnection::beginOnce(StorePurpose purpose) const
{
    const bool isWriting = purpose == StorePurpose::Write && m_access != Access::ReadOnly;
    run(isWriting ? QStringLiteral("BEGIN ISOLATION LEVEL READ COMMITTED READ WRITE")
                  : QStringLiteral("BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY"));
    m_isInTransaction = true;
    m_isWriting = isWriting;
    // Who writes holds the one row that tells the state; who sets up, the name.
    if (isWriting && m_access == Access::SetUp) {
        run(QStringLiteral("SELECT pg_advisory_xact_lock(hashtext(%1))")
                .arg(postgresText(schemaName())));
    } else if (isWriting && m_access == Access::ReadWrite) {
        run(QStringLiteral("SELECT one FROM store FOR UPDATE"));
    }
}

void PostgresConnection::commit() const
{
    if (!m_isInTransaction) {
        // Whoever goes on behind an error must not take what is left for the whole.
        throw StoreError{refusal(
            StoreProblem::Other, path(),
            faultOf(FaultCode::Database, 0, QStringLiteral("the transaction has been undone")))};
    }
    // What is done is not given up for want of time.
    m_deadline = nullptr;
    const QString token = m_isWriting ? leaveToken() : QString();
    try {
        run(QStringLiteral("COMMIT"));
        m_isInTransaction = false;
    } catch (const StoreError&) {
        const Fate fate = isAlive() || !m_isWriting ? Fate::Undone : fateOf(token);
        if (fate == Fate::Undone) {
            throw;
        }
        if (fate == Fate::Unknown) {
            throw StoreError{refusal(StoreProblem::Unclear, path(), {FaultCode::AnswerLost, {}})};
        }
    }
}

/// Empty where there may be no place for it yet.
QString PostgresConnection::leaveToken() const
{
    if (m_access != Access::ReadWrite) {
        return {};
    }
    QString token = QUuid::createUuid().toString(QUuid::WithoutBraces);
    // Those who listen are told by the same statement, once the change is committed.
    run(QStringLiteral("WITH old AS"
                       " (DELETE FROM written WHERE moment < now() - interval '1 day'),"
                       " new AS (INSERT INTO written (token) VALUES ('%1'))"
                       " SELECT pg_notify('%2', '')")
            .arg(token, postgresChannel(schemaName())));
    return token;
}

/// Asks the server, as soon as it is there again. What it was still at work with is waited for at
/// the row that it holds.
PostgresConnection::Fate PostgresConnection::fateOf(const QString& token) const
{
    if (token.isEmpty()) {
        return Fate::Unknown;
    }
    connect();
    try {
        beginOnce(StorePurpose::Write);
        const bool isDone =
            value(QStringLiteral("SELECT count(*) FROM written WHERE token = '%1'").arg(token))
                .toInt() != 0;
        rollBack();
        return isDone ? Fate::Committed : Fate::Undone;
    } catch (const StoreError&) {
        return Fate::Unknown;
    }
}

void PostgresConnection::rollBack() const
{
    if (std::exchange(m_isInTransaction, false) && isAlive()) {
        try {
            beginAsking();
            QSqlQuery(database()).exec(QStringLiteral("ROLLBACK"));
        } catch (const std::bad_alloc&) {
            // What is not undone now is undone with the connection.
            QSqlDatabase(database()).close();
        }
    }
}

bool PostgresConnection::hasSchema() const
{
    return value(QStringLiteral("SELECT count(*) FROM pg_catalog.pg_namespace WHERE nspname = %1")
                     .arg(postgresText(schemaName())))
               .toInt() == 1;
}

bool PostgresConnection::hasSeal() const
{
    return value(QStringLiteral("SELECT count(*) FROM pg_catalog.pg_class c"
                                " JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace"
                                " WHERE n.nspname = %1 AND c.relname = 'seal'"
                                " AND c.relkind = 'r'")
                     .arg(postgresText(schemaName())))
               .toInt() == 1;
}

qint64 PostgresConnection::applicationId() const
{
    return value(QStringLiteral("SELECT application FROM seal")).toLongLong();
}

int PostgresConnection::schemaVersion() const
{
    if (m_version == kNotAsked) {
        const int version = m_access == Access::SetUp && !hasSeal()
                                ? 0
                                : value(QStringLiteral("SELECT version FROM seal")).toInt();
        if (m_access == Access::SetUp) {
            return version;
        }
        m_version = version;
    }
    return m_version;
}

void PostgresConnection::makeOwnTables() const
{
    for (const QString& statement : {kMakeSeal, kMakeWritten, kMakeNotes}) {
        run(statement);
    }
}

void PostgresConnection::seal(qint64 applicationId, int schemaVersion) const
{
    if (!hasSeal()) {
        makeOwnTables();
    }
    run(QStringLiteral("INSERT INTO seal (one, application, version) VALUES (1, %1, %2)"
                       " ON CONFLICT (one) DO UPDATE SET application = %1, version = %2")
            .arg(applicationId)
            .arg(schemaVersion));
    m_version = kNotAsked;
}

StoreElements PostgresConnection::elements() const
{
    return elementsIn(value(QStringLiteral("SELECT oid::text FROM pg_catalog.pg_namespace"
                                           " WHERE nspname = %1")
                                .arg(postgresText(schemaName())))
                          .toString());
}

StoreElements PostgresConnection::elementsIn(const QString& schemaId) const
{
    QSqlQuery row = query(QString::fromLatin1(kElements).arg(schemaId).arg(kMostElements));
    StoreElements elements;
    while (next(row)) {
        elements.add(row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
                     row.value(3).toString());
    }
    return elements;
}

StoreElements PostgresConnection::elementsMadeBy(const QStringList& statements) const
{
    const PostgresConnection fresh(m_place, Access::Scratch, m_longestWait);
    StoreTransaction transaction(fresh, StorePurpose::Write);
    fresh.run(QStringLiteral("SET LOCAL search_path = pg_temp"));
    fresh.makeOwnTables();
    for (const QString& statement : statements) {
        fresh.run(statement);
    }
    // Never committed, so that nothing of it stays.
    return fresh.elementsIn(
        fresh.value(QStringLiteral("SELECT pg_my_temp_schema()::text")).toString());
}

void PostgresConnection::expectSound(const QString& path) const
{
    Q_UNUSED(path)
}

} // namespace trel::mediadispatch
