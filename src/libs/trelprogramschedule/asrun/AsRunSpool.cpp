#include "AsRunSpool.h"

#include "AsRunContents.h"
#include "AsRunSchedule.h"
#include "AsRunSpoolRecord.h"
#include "store/StoreElements.h"
#include "store/StoreRefusals.h"
#include "store/StoreStatement.h"
#include "store/sqlite/SqliteConnection.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <QVariant>

#include <cerrno>
#include <fcntl.h>
#include <new>
#include <unistd.h>

namespace trel::mediadispatch {

namespace {

/// Says in the head of the file whose it is: the letters "TrlW".
constexpr qint64 kApplicationId = 0x54726c57;
constexpr int kVersion = 1;
constexpr int kOwnerOnly = 0600;

/// Beside the tables themselves. The two for schedules are those that AsRunContents works with.
QStringList statements()
{
    return {
        QStringLiteral("CREATE TABLE spool ("
                       " one INTEGER PRIMARY KEY CHECK (one = 1),"
                       " source BLOB NOT NULL,"
                       " next_sequence INTEGER NOT NULL,"
                       " last BLOB NOT NULL,"
                       " on_screen BLOB NOT NULL) STRICT"),
        // The hash of the schedule that a record takes, empty for all others.
        QStringLiteral("CREATE TABLE record ("
                       " sequence INTEGER PRIMARY KEY,"
                       " takes BLOB NOT NULL,"
                       " bytes BLOB NOT NULL) STRICT"),
        QStringLiteral("CREATE INDEX record_takes ON record (takes) WHERE takes != x''"),
        QStringLiteral("CREATE TABLE schedule ("
                       " id INTEGER PRIMARY KEY,"
                       " hash BLOB NOT NULL UNIQUE,"
                       " size INTEGER NOT NULL) STRICT"),
        QStringLiteral("CREATE TABLE schedule_part ("
                       " schedule_id INTEGER NOT NULL REFERENCES schedule ON DELETE CASCADE,"
                       " part INTEGER NOT NULL,"
                       " bytes BLOB NOT NULL,"
                       " PRIMARY KEY (schedule_id, part)) STRICT"),
    };
}

void make(const SqliteConnection& connection)
{
    StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
    for (const QString& statement : statements()) {
        connection.run(statement);
    }
    StoreStatement row(connection, QString(), "INSERT INTO spool VALUES (1, ?, 1, x'', x'')");
    row.bindBytes(1, QUuid::createUuid().toRfc4122());
    row.run();
    connection.seal(kApplicationId, kVersion);
    transaction.commit();
}

void check(const SqliteConnection& connection, const QString& path)
{
    if (connection.applicationId() != kApplicationId) {
        throw StoreError{refusal(StoreProblem::Foreign, path)};
    }
    if (connection.schemaVersion() > kVersion) {
        throw StoreError{refusal(StoreProblem::NewerSchema, path)};
    }
    static const StoreElements expected = SqliteConnection::elementsOf(statements());
    connection.elements().check(expected, path);
    connection.expectSound(path);
}

bool isNew(const SqliteConnection& connection)
{
    return connection.value(QStringLiteral("SELECT count(*) FROM sqlite_schema")).toInt() == 0;
}

StoreResult damaged(const QString& path)
{
    return refusal(StoreProblem::Damaged, path, {FaultCode::RowMissing, {}});
}

/// A file that only its owner may read, before the database would make one. Nothing that leads
/// elsewhere is followed.
StoreResult makeFile(const QString& path)
{
    const int file = ::open(QFile::encodeName(path).constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, kOwnerOnly);
    if (file < 0) {
        return refusalOfSystem(errno, path);
    }
    ::close(file);
    return QFileInfo(path).isFile() ? StoreResult() : refusal(StoreProblem::NotADatabase, path);
}

template <typename Action>
StoreResult attempt(const QString& path, const Action& action)
{
    try {
        action();
        return {};
    } catch (const StoreError& error) {
        return error.result;
    } catch (const std::bad_alloc&) {
        return {StoreProblem::Other, path, {FaultCode::NoMemory, {}}};
    }
}

} // namespace

class AsRunSpool::Private
{
public:
    Private(const QString& path, SqliteConnection::Access access);

    std::optional<AsRunRecord> recordOf(const QByteArray& bytes) const;
    void forget(const QByteArray& schedule) const;

    QString m_path;
    SqliteConnection m_connection;
    QByteArray m_source;
    qint64 m_next = 1;
    std::optional<AsRunRecord> m_last;
    std::optional<AsRunRecord> m_onScreen;
};

AsRunSpool::Private::Private(const QString& path, SqliteConnection::Access access)
    : m_path(path)
    , m_connection(path, access)
{
    if (access != SqliteConnection::Access::Memory) {
        // One process alone has it, and one write to the disk for each commit is enough then.
        m_connection.run(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
        m_connection.run(QStringLiteral("PRAGMA journal_mode = WAL"));
        m_connection.run(QStringLiteral("PRAGMA synchronous = FULL"));
    }
    m_connection.run(QStringLiteral("PRAGMA foreign_keys = ON"));
    if (isNew(m_connection)) {
        make(m_connection);
    }
    check(m_connection, path);
    StoreStatement row(m_connection, path,
                       "SELECT source, next_sequence, last, on_screen FROM spool");
    if (!row.next()) {
        throw StoreError{damaged(path)};
    }
    m_source = row.bytes(0);
    m_next = row.number(1);
    m_last = recordOf(row.bytes(2));
    m_onScreen = recordOf(row.bytes(3));
}

std::optional<AsRunRecord> AsRunSpool::Private::recordOf(const QByteArray& bytes) const
{
    if (bytes.isEmpty()) {
        return std::nullopt;
    }
    std::optional<AsRunRecord> record = asRunSpoolRecord(bytes);
    if (!record) {
        throw StoreError{damaged(m_path)};
    }
    return record;
}

/// Unless a record that waits takes it.
void AsRunSpool::Private::forget(const QByteArray& schedule) const
{
    StoreStatement remove(m_connection, m_path,
                          "DELETE FROM schedule WHERE hash = ?1 AND NOT EXISTS"
                          " (SELECT 1 FROM record WHERE takes = ?1 AND takes != x'')");
    remove.bindBytes(1, schedule);
    remove.run();
}

AsRunSpool::AsRunSpool() = default;
AsRunSpool::~AsRunSpool() = default;

StoreResult AsRunSpool::open(const QString& path)
{
    close();
    StoreResult result = makeFile(path);
    if (result) {
        result = attempt(path, [&] {
            m_d = std::make_unique<Private>(path, SqliteConnection::Access::ReadWrite);
        });
    }
    return result;
}

StoreResult AsRunSpool::openInMemory()
{
    close();
    return attempt(QString(), [&] {
        m_d = std::make_unique<Private>(QString(), SqliteConnection::Access::Memory);
    });
}

void AsRunSpool::close()
{
    m_d.reset();
}

QString AsRunSpool::setAside(const QString& path)
{
    const QString aside =
        QStringLiteral("%1.damaged-%2")
            .arg(path,
                 QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz")));
    // The log first: with a new file it would be taken for that one's.
    for (const char* const suffix : {"-wal", "-journal", "-shm"}) {
        QFile::rename(path + QLatin1String(suffix), aside + QLatin1String(suffix));
    }
    return QFile::rename(path, aside) ? aside : QString();
}

bool AsRunSpool::isSpoiled(const StoreResult& result)
{
    switch (result.problem) {
    case StoreProblem::NotADatabase:
    case StoreProblem::Foreign:
    case StoreProblem::NewerSchema:
    case StoreProblem::Damaged:
    case StoreProblem::Altered:
        return true;
    default:
        return false;
    }
}

QByteArray AsRunSpool::source() const
{
    return isOpen() ? m_d->m_source : QByteArray();
}

std::optional<AsRunRecord> AsRunSpool::onScreen() const
{
    return isOpen() ? m_d->m_onScreen : std::nullopt;
}

std::optional<AsRunRecord> AsRunSpool::last() const
{
    return isOpen() ? m_d->m_last : std::nullopt;
}

qint64 AsRunSpool::size() const
{
    qint64 bytes = 0;
    if (!isOpen()) {
        return bytes;
    }
    attempt(m_d->m_path, [&] {
        const auto number = [this](const char* pragma) {
            return m_d->m_connection.value(QLatin1String(pragma)).toLongLong();
        };
        bytes = (number("PRAGMA page_count") - number("PRAGMA freelist_count")) *
                number("PRAGMA page_size");
    });
    return bytes;
}

bool AsRunSpool::isEmpty() const
{
    bool isNone = true;
    if (!isOpen()) {
        return isNone;
    }
    attempt(m_d->m_path, [&] {
        StoreStatement row(m_d->m_connection, m_d->m_path, "SELECT 1 FROM record LIMIT 1");
        isNone = !row.next();
    });
    return isNone;
}

StoreResult AsRunSpool::write(const std::vector<AsRunRecord>& records,
                              const std::vector<QByteArray>& contents,
                              const std::optional<AsRunRecord>& onScreen)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    const std::optional<AsRunRecord> last =
        records.empty() ? m_d->m_last : std::optional(records.back());
    const qint64 next = m_d->m_next + static_cast<qint64>(records.size());
    StoreResult result = attempt(m_d->m_path, [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Write);
        for (const QByteArray& content : contents) {
            AsRunContents(m_d->m_connection, m_d->m_path).put(content);
        }
        // What a disk that failed has not confirmed may be there.
        StoreStatement add(m_d->m_connection, m_d->m_path,
                           "INSERT OR REPLACE INTO record VALUES (?, ?, ?)");
        qint64 sequence = m_d->m_next;
        for (const AsRunRecord& record : records) {
            add.bind(1, sequence++);
            add.bindBytes(2, record.kind == AsRunKind::ScheduleTaken ? record.schedule
                                                                     : QByteArray(""));
            add.bindBytes(3, asRunSpoolBytes(record));
            add.run();
        }
        StoreStatement put(m_d->m_connection, m_d->m_path,
                           "UPDATE spool SET next_sequence = ?, last = ?, on_screen = ?");
        put.bind(1, next);
        put.bindBytes(2, last ? asRunSpoolBytes(*last) : QByteArray(""));
        put.bindBytes(3, onScreen ? asRunSpoolBytes(*onScreen) : QByteArray(""));
        put.run();
        transaction.commit();
    });
    if (result) {
        m_d->m_next = next;
        m_d->m_last = last;
        m_d->m_onScreen = onScreen;
    }
    return result;
}

StoreResult AsRunSpool::read(int most, AsRunBatch& batch) const
{
    batch = {};
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(m_d->m_path, [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Read);
        const AsRunContents schedules(m_d->m_connection, m_d->m_path);
        StoreStatement row(m_d->m_connection, m_d->m_path,
                           "SELECT sequence, takes, bytes FROM record ORDER BY sequence LIMIT ?");
        row.bind(1, most);
        while (row.next()) {
            const std::optional<AsRunRecord> record = m_d->recordOf(row.bytes(2));
            if (!record) {
                throw StoreError{damaged(m_d->m_path)};
            }
            if (batch.records.empty()) {
                batch.firstSequence = row.number(0);
            } else if (row.number(0) !=
                       batch.firstSequence + static_cast<qint64>(batch.records.size())) {
                throw StoreError{damaged(m_d->m_path)};
            }
            batch.records.push_back(*record);
            const QByteArray takes = row.bytes(1);
            if (!takes.isEmpty()) {
                batch.contents.push_back(schedules.read(takes));
                if (batch.contents.back().isEmpty()) {
                    throw StoreError{damaged(m_d->m_path)};
                }
            }
        }
        transaction.commit();
    });
}

StoreResult AsRunSpool::remove(qint64 lastSequence)
{
    if (!isOpen()) {
        return refusal(StoreProblem::NotOpen, QString());
    }
    return attempt(m_d->m_path, [&] {
        StoreTransaction transaction(m_d->m_connection, StoreTransaction::Purpose::Write);
        std::vector<QByteArray> taken;
        StoreStatement takes(m_d->m_connection, m_d->m_path,
                             "SELECT DISTINCT takes FROM record"
                             " WHERE sequence <= ? AND takes != x''");
        takes.bind(1, lastSequence);
        while (takes.next()) {
            taken.push_back(takes.bytes(0));
        }
        StoreStatement remove(m_d->m_connection, m_d->m_path,
                              "DELETE FROM record WHERE sequence <= ?");
        remove.bind(1, lastSequence);
        remove.run();
        for (const QByteArray& schedule : taken) {
            m_d->forget(schedule);
        }
        transaction.commit();
    });
}

} // namespace trel::mediadispatch
