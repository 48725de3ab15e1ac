#include "ScheduleDatabase.h"

#include "ProgramImporter.h"
#include "StoreConnection.h"
#include "StoreMessages.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <cmath>

namespace trel::mediadispatch {

namespace {

/// Says in the head of the file whose it is: the letters "TrlS".
constexpr qint64 kApplicationId = 0x54726c53;

/// Indexes stay below this, so that the last one that can be given out is far enough from those
/// that refer to nothing.
constexpr int kIndexLimit = 65535;

/// One step of the schema; its statements run in one transaction with the new version number.
struct SchemaStep
{
    int version;
    QStringList statements;
};

/// All steps from an empty database on. A step that operators have is never changed: a new version
/// adds a step at the end.
const std::vector<SchemaStep>& schemaSteps()
{
    static const std::vector<SchemaStep> steps = {
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
    };
    return steps;
}

int newestSchema()
{
    return schemaSteps().back().version;
}

void migrate(const StoreConnection& connection)
{
    const int version = connection.value(QStringLiteral("PRAGMA user_version")).toInt();
    for (const SchemaStep& step : schemaSteps()) {
        if (step.version <= version) {
            continue;
        }
        StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
        for (const QString& statement : step.statements) {
            connection.run(statement);
        }
        connection.run(QStringLiteral("PRAGMA user_version = %1").arg(step.version));
        connection.run(QStringLiteral("PRAGMA application_id = %1").arg(kApplicationId));
        transaction.commit();
    }
}

/// Turns the errors of the database within an action into its result.
template <typename Action>
StoreResult attempt(const Action& action)
{
    try {
        action();
        return {};
    } catch (const StoreError& error) {
        return error.result;
    }
}

/// Binds values to the places of a query, from the first on.
template <typename... Values>
void bind(QSqlQuery& query, const Values&... values)
{
    int place = 0;
    (query.bindValue(place++, values), ...);
}

QString text(const std::string& utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

std::string utf8(const QSqlQuery& row, int column)
{
    return row.value(column).toString().toStdString();
}

StoreRevision revisionOf(const StoreConnection& connection)
{
    QSqlQuery row =
        connection.query(QStringLiteral("SELECT schedule_revision, catalogue_revision FROM store"));
    StoreRevision revision;
    if (connection.next(row)) {
        revision.schedule = row.value(0).toLongLong();
        revision.catalogue = row.value(1).toLongLong();
    }
    return revision;
}

/// Puts the tasks together from their tables. Each is read in the order of its key, so that the
/// record that a row belongs to is the one in hand or the next.
class TaskReader
{
public:
    TaskReader(const StoreConnection& connection, const QString& path)
        : m_connection(connection)
        , m_path(path)
    {}

    TaskMap read()
    {
        readTasks();
        readPlans();
        readValues();
        readEntries();
        return std::move(m_tasks);
    }

private:
    void readTasks();
    void readPlans();
    void readValues();
    void readEntries();

    PlayTask& task(const QVariant& id);
    /// The plan that a row belongs to by its first two columns.
    PlayPlan& plan(const QSqlQuery& row);
    /// Lists must come without gaps; a row that is not the next of its list is damage.
    void expectPlace(const QVariant& position, std::size_t expected) const;
    [[noreturn]] void refuse() const;

    const StoreConnection& m_connection;
    const QString& m_path;
    TaskMap m_tasks;
    TaskMap::iterator m_current = m_tasks.end();
};

void TaskReader::readTasks()
{
    QSqlQuery row =
        m_connection.query(QStringLiteral("SELECT id, start_date, end_date FROM task ORDER BY id"));
    while (m_connection.next(row)) {
        PlayTask read;
        read.id = row.value(0).toInt();
        read.startDate = utf8(row, 1);
        read.endDate = utf8(row, 2);
        m_tasks.emplace_hint(m_tasks.end(), read.id, std::move(read));
    }
}

void TaskReader::readPlans()
{
    QSqlQuery row = m_connection.query(QStringLiteral(
        "SELECT task_id, position, id, mode, start_time, end_time, times, service_count,"
        " end_action, is_conflict, weeks, service_time, has_no_duration, service_flag_a,"
        " service_flag_b FROM plan ORDER BY task_id, position"));
    while (m_connection.next(row)) {
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

void TaskReader::readValues()
{
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT task_id, plan_position, position, value FROM plan_value"
                       " ORDER BY task_id, plan_position, position"));
    while (m_connection.next(row)) {
        std::vector<std::int64_t>& values = plan(row).serviceList;
        expectPlace(row.value(2), values.size());
        values.push_back(row.value(3).toLongLong());
    }
}

void TaskReader::readEntries()
{
    QSqlQuery row = m_connection.query(QStringLiteral(
        "SELECT task_id, plan_position, position, prog_index, is_invalid, name, play_count"
        " FROM entry ORDER BY task_id, plan_position, position"));
    while (m_connection.next(row)) {
        std::vector<struProgInfo>& entries = plan(row).programs;
        expectPlace(row.value(2), entries.size());
        struProgInfo& read = entries.emplace_back();
        read.progIndex = row.value(3).toInt();
        read.isInvalid = row.value(4).toBool();
        read.progName = utf8(row, 5);
        read.playCount = row.value(6).toInt();
    }
}

PlayTask& TaskReader::task(const QVariant& id)
{
    if (m_current == m_tasks.end() || m_current->first != id.toInt()) {
        m_current = m_tasks.find(id.toInt());
    }
    if (m_current == m_tasks.end()) {
        refuse();
    }
    return m_current->second;
}

PlayPlan& TaskReader::plan(const QSqlQuery& row)
{
    std::vector<PlayPlan>& plans = task(row.value(0)).plans;
    const qulonglong position = row.value(1).toULongLong();
    if (position >= plans.size()) {
        refuse();
    }
    return plans[position];
}

void TaskReader::expectPlace(const QVariant& position, std::size_t expected) const
{
    if (position.toULongLong() != expected) {
        refuse();
    }
}

void TaskReader::refuse() const
{
    throw StoreError{
        refusal(StoreProblem::Damaged, m_path, QStringLiteral("its plans do not fit together"))};
}

/// Writes tasks row by row, with each statement prepared once.
class TaskWriter
{
public:
    explicit TaskWriter(const StoreConnection& connection);

    void remove(int taskId);
    void write(const PlayTask& task);

private:
    void writePlan(int taskId, int position, const PlayPlan& plan);

    const StoreConnection& m_connection;
    QSqlQuery m_remove;
    QSqlQuery m_task;
    QSqlQuery m_plan;
    QSqlQuery m_value;
    QSqlQuery m_entry;
};

TaskWriter::TaskWriter(const StoreConnection& connection)
    : m_connection(connection)
    , m_remove(connection.prepare(QStringLiteral("DELETE FROM task WHERE id = ?")))
    , m_task(connection.prepare(
          QStringLiteral("INSERT INTO task (id, start_date, end_date) VALUES (?, ?, ?)")))
    , m_plan(connection.prepare(QStringLiteral(
          "INSERT INTO plan (task_id, position, id, mode, start_time, end_time, times,"
          " service_count, end_action, is_conflict, weeks, service_time, has_no_duration,"
          " service_flag_a, service_flag_b)"
          " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")))
    , m_value(connection.prepare(
          QStringLiteral("INSERT INTO plan_value (task_id, plan_position, position, value)"
                         " VALUES (?, ?, ?, ?)")))
    , m_entry(connection.prepare(QStringLiteral(
          "INSERT INTO entry (task_id, plan_position, position, prog_index, is_invalid, name,"
          " play_count) VALUES (?, ?, ?, ?, ?, ?, ?)")))
{}

void TaskWriter::remove(int taskId)
{
    bind(m_remove, taskId);
    m_connection.exec(m_remove);
}

void TaskWriter::write(const PlayTask& task)
{
    bind(m_task, task.id, text(task.startDate), text(task.endDate));
    m_connection.exec(m_task);
    int position = 0;
    for (const PlayPlan& plan : task.plans) {
        writePlan(task.id, position++, plan);
    }
}

void TaskWriter::writePlan(int taskId, int position, const PlayPlan& plan)
{
    bind(m_plan, taskId, position, plan.id, plan.mode, text(plan.startTime), text(plan.endTime),
         plan.times, plan.serviceCount, plan.endAction, plan.isConflict, text(plan.weeks),
         text(plan.serviceTime), plan.hasNoDuration, plan.serviceFlagA, plan.serviceFlagB);
    m_connection.exec(m_plan);
    int place = 0;
    for (const std::int64_t value : plan.serviceList) {
        bind(m_value, taskId, position, place++, static_cast<qlonglong>(value));
        m_connection.exec(m_value);
    }
    place = 0;
    for (const struProgInfo& entry : plan.programs) {
        bind(m_entry, taskId, position, place++, entry.progIndex, entry.isInvalid,
             text(entry.progName), entry.playCount);
        m_connection.exec(m_entry);
    }
}

/// A length as it can be stored: what is no number is not known.
double storedDuration(double durationMs)
{
    return std::isfinite(durationMs) ? durationMs : -1.0;
}

ProgramKind kindOf(const QVariant& number)
{
    const int kind = number.toInt();
    return kind >= 0 && kind <= static_cast<int>(ProgramKind::Other)
               ? static_cast<ProgramKind>(kind)
               : ProgramKind::Other;
}

void readCatalogue(const StoreConnection& connection, StoreContents& contents)
{
    QSqlQuery row = connection.query(
        QStringLiteral("SELECT prog_index, name, media_path, duration_ms, kind, removed"
                       " FROM program ORDER BY prog_index"));
    while (connection.next(row)) {
        const int index = row.value(0).toInt();
        if (row.value(5).toBool()) {
            contents.removedNames.emplace_hint(contents.removedNames.end(), index, utf8(row, 1));
            continue;
        }
        ProgramIten program;
        program.progIndex = index;
        program.progName = utf8(row, 1);
        program.mediaPath = utf8(row, 2);
        program.durationMs = row.value(3).toDouble();
        program.kind = kindOf(row.value(4));
        contents.programs.emplace_hint(contents.programs.end(), index, std::move(program));
    }
}

/// Puts sources into the catalogue one after the other.
class CatalogueWriter
{
public:
    CatalogueWriter(const StoreConnection& connection, const QString& path);

    void put(const MediaSource& source, ImportResult& result);
    /// Keeps how far the indexes have been given out.
    void finish();

private:
    int giveOutIndex();

    const StoreConnection& m_connection;
    const QString& m_path;
    int m_nextIndex;
    QSqlQuery m_find;
    QSqlQuery m_update;
    QSqlQuery m_insert;
};

CatalogueWriter::CatalogueWriter(const StoreConnection& connection, const QString& path)
    : m_connection(connection)
    , m_path(path)
    , m_nextIndex(connection.value(QStringLiteral("SELECT next_prog_index FROM store")).toInt())
    , m_find(connection.prepare(
          QStringLiteral("SELECT prog_index FROM program WHERE media_path = ? AND removed = 0")))
    , m_update(connection.prepare(QStringLiteral(
          "UPDATE program SET name = ?, duration_ms = ?, kind = ? WHERE prog_index = ?")))
    , m_insert(connection.prepare(
          QStringLiteral("INSERT INTO program (prog_index, name, media_path, duration_ms, kind)"
                         " VALUES (?, ?, ?, ?, ?)")))
{}

void CatalogueWriter::put(const MediaSource& source, ImportResult& result)
{
    const int kind = static_cast<int>(source.kind);
    const double duration = storedDuration(source.durationMs);
    bind(m_find, source.path);
    m_connection.exec(m_find);
    if (m_connection.next(m_find)) {
        const int index = m_find.value(0).toInt();
        m_find.finish();
        bind(m_update, source.name, duration, kind, index);
        m_connection.exec(m_update);
        result.updated.push_back(index);
        return;
    }
    const int index = giveOutIndex();
    bind(m_insert, index, source.name, source.path, duration, kind);
    m_connection.exec(m_insert);
    result.added.push_back(index);
}

int CatalogueWriter::giveOutIndex()
{
    if (m_nextIndex >= kIndexLimit) {
        throw StoreError{refusal(StoreProblem::Full, m_path,
                                 QStringLiteral("all %1 numbers for programs have been given out")
                                     .arg(kIndexLimit - 1))};
    }
    return m_nextIndex++;
}

void CatalogueWriter::finish()
{
    m_connection.run(QStringLiteral("UPDATE store SET catalogue_revision = catalogue_revision + 1,"
                                    " next_prog_index = %1")
                         .arg(m_nextIndex));
}

/// Finds out, without writing, whether a store can be worked with.
void check(const StoreConnection& connection, const QString& path)
{
    if (connection.value(QStringLiteral("PRAGMA application_id")).toLongLong() != kApplicationId) {
        throw StoreError{refusal(StoreProblem::Foreign, path)};
    }
    if (connection.value(QStringLiteral("PRAGMA user_version")).toInt() > newestSchema()) {
        throw StoreError{refusal(StoreProblem::NewerSchema, path)};
    }
    const QString finding =
        connection.value(QStringLiteral("PRAGMA quick_check(1)")).toString().simplified();
    if (finding != QLatin1String("ok")) {
        throw StoreError{refusal(StoreProblem::Damaged, path, finding)};
    }
    const int rows = connection.value(QStringLiteral("SELECT count(*) FROM store")).toInt();
    if (rows != 1) {
        throw StoreError{refusal(StoreProblem::Damaged, path,
                                 QStringLiteral("it does not say which state it is in"))};
    }
}

} // namespace

ScheduleDatabase::ScheduleDatabase() = default;
ScheduleDatabase::~ScheduleDatabase() = default;

StoreResult ScheduleDatabase::open(const QString& path, ScheduleHost::OpenMode mode)
{
    close();
    m_file = StoreFile(path);
    StoreResult result = m_file.judge(mode, kApplicationId, newestSchema());
    if (result && m_file.isVacant()) {
        result = create();
    }
    if (result) {
        result = probe();
    }
    if (result) {
        result = connect();
    }
    return result;
}

StoreResult ScheduleDatabase::create() const
{
    // Made beside its place and moved there whole, so that nobody ever meets half a store.
    const QString draft =
        QStringLiteral("%1.new-%2").arg(m_file.path()).arg(QCoreApplication::applicationPid());
    QFile::remove(draft);
    StoreResult result = attempt([&draft] {
        const StoreConnection connection(draft, StoreConnection::Access::Create);
        migrate(connection);
        connection.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    });
    if (result && !m_file.fillFrom(draft) && m_file.isVacant()) {
        result =
            refusal(StoreProblem::Other, m_file.path(), QStringLiteral("no file can be put there"));
    }
    for (const char* suffix : {"", "-journal", "-wal", "-shm"}) {
        QFile::remove(draft + QLatin1String(suffix));
    }
    return result;
}

StoreResult ScheduleDatabase::probe() const
{
    const bool isShared = m_file.hasSidecars();
    const bool hadLogIndex = m_file.hasLogIndex();
    StoreResult result = attempt([this, isShared] {
        check(StoreConnection(m_file.path(), isShared ? StoreConnection::Access::ReadOnly
                                                      : StoreConnection::Access::Untouched),
              m_file.path());
    });
    if (!result && !isShared && m_file.hasSidecars()) {
        // Another program has opened the store meanwhile, and wrote while it was looked at.
        return probe();
    }
    if (!result && isShared && !hadLogIndex) {
        // A log without an index has nobody who works with it.
        m_file.removeLogIndex();
    }
    return result;
}

StoreResult ScheduleDatabase::connect()
{
    StoreResult result = attempt([this] {
        auto connection =
            std::make_unique<StoreConnection>(m_file.path(), StoreConnection::Access::ReadWrite);
        connection->run(QStringLiteral("PRAGMA foreign_keys = ON"));
        connection->run(QStringLiteral("PRAGMA synchronous = FULL"));
        {
            // An editor is of no use on a file that somebody else keeps to himself.
            const StoreTransaction trial(*connection, StoreTransaction::Purpose::Write);
        }
        connection->run(QStringLiteral("PRAGMA journal_mode = WAL"));
        migrate(*connection);
        m_connection = std::move(connection);
    });
    m_identity = m_file.identity();
    return result;
}

void ScheduleDatabase::close()
{
    m_connection.reset();
}

StoreResult ScheduleDatabase::judgeInPlace() const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    if (m_file.identity() != m_identity) {
        // The database would go on writing into a file that nobody will find again.
        return refusal(StoreProblem::Other, m_file.path(),
                       QStringLiteral("it was removed or replaced since it was opened"));
    }
    return m_file.judgeWritable();
}

StoreResult ScheduleDatabase::readRevision(StoreRevision& revision) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt([&] { revision = revisionOf(*m_connection); });
}

StoreResult ScheduleDatabase::read(StorePart part, StoreContents& contents) const
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
        contents.revision = revisionOf(*m_connection);
        if (part != StorePart::Catalogue) {
            contents.tasks = TaskReader(*m_connection, m_file.path()).read();
        }
        if (part != StorePart::Schedule) {
            readCatalogue(*m_connection, contents);
        }
        transaction.commit();
    });
}

StoreResult ScheduleDatabase::writeTasks(const TaskEdits& edits, qint64& revision)
{
    if (const StoreResult place = judgeInPlace(); !place) {
        return place;
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, edits.isEmpty()
                                                        ? StoreTransaction::Purpose::Read
                                                        : StoreTransaction::Purpose::Write);
        if (revisionOf(*m_connection).schedule != revision) {
            throw StoreError{refusal(StoreProblem::MovedOn, m_file.path())};
        }
        if (edits.isEmpty()) {
            return;
        }
        TaskWriter writer(*m_connection);
        for (const int taskId : edits.removed) {
            writer.remove(taskId);
        }
        for (const PlayTask* task : edits.written) {
            writer.write(*task);
        }
        m_connection->run(
            QStringLiteral("UPDATE store SET schedule_revision = schedule_revision + 1"));
        transaction.commit();
        ++revision;
    });
}

ImportResult ScheduleDatabase::addPrograms(const std::vector<MediaSource>& sources)
{
    ImportResult result;
    if (StoreResult place = judgeInPlace(); !place) {
        result.store = std::move(place);
        return result;
    }
    StoreResult outcome = attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        CatalogueWriter writer(*m_connection, m_file.path());
        for (const MediaSource& source : sources) {
            writer.put(source, result);
        }
        writer.finish();
        transaction.commit();
    });
    if (!outcome) {
        result = ImportResult();
        result.store = std::move(outcome);
    }
    return result;
}

StoreResult ScheduleDatabase::removeProgram(int progIndex)
{
    if (const StoreResult place = judgeInPlace(); !place) {
        return place;
    }
    return attempt([&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
        QSqlQuery remove = m_connection->prepare(
            QStringLiteral("UPDATE program SET removed = 1 WHERE prog_index = ? AND removed = 0"));
        bind(remove, progIndex);
        m_connection->exec(remove);
        if (remove.numRowsAffected() > 0) {
            m_connection->run(
                QStringLiteral("UPDATE store SET catalogue_revision = catalogue_revision + 1"));
        }
        transaction.commit();
    });
}

} // namespace trel::mediadispatch
