#include "SqliteStore.h"

#include "SqliteConnection.h"
#include "StoreLog.h"
#include "store/StoreAttempt.h"
#include "store/StoreDeadline.h"
#include "store/StoreRefusals.h"
#include "store/StoreRevisions.h"
#include "store/StoreSchema.h"

#include <QVariant>

#include <cerrno>
#include <chrono>
#include <utility>

namespace trel::mediadispatch {

namespace {

/// How long reading may take, which is a hundred times what it takes for the largest schedule: a
/// file that needs longer was made to.
constexpr std::chrono::seconds kReadingTime{30};

/// How often the file is looked at without its taking notice while others open and close it.
constexpr int kMostLooks = 5;

} // namespace

SqliteStore::SqliteStore(const QString& path, StoreOpenMode mode, Look look)
    : m_file(path)
    , m_mode(mode)
    , m_look(std::move(look))
{}

SqliteStore::~SqliteStore() = default;

const StoreConnection* SqliteStore::connection() const
{
    return m_connection.get();
}

StoreResult SqliteStore::open()
{
    StoreResult result = judge();
    if (result && m_file.isVacant()) {
        result = create();
    }
    if (result) {
        result = judgeLog();
    }
    if (result) {
        result = look();
    }
    if (result && m_mode != StoreOpenMode::ReadOnly) {
        result = connect();
    }
    if (result && m_mode != StoreOpenMode::ReadOnly) {
        m_file.removeLeftDrafts();
    }
    return result;
}

StoreResult SqliteStore::judge() const
{
    return m_file.judge(m_mode, StoreSchema::kApplicationId, StoreSchema::newestVersion());
}

StoreResult SqliteStore::create() const
{
    // Made beside its place and moved there whole, so that no other program ever meets half a
    // store.
    if (!m_file.makeDraft()) {
        return refusalOfSystem(errno, m_file.path());
    }
    StoreResult result = attempt(m_file.path(), [this] {
        const SqliteConnection connection(m_file.draftPath(), SqliteConnection::Access::Create);
        StoreSchema::migrate(connection);
        connection.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    });
    if (result && !m_file.fillFromDraft() && m_file.isVacant()) {
        result = refusal(StoreProblem::Other, m_file.path(), {FaultCode::NoPlaceForFile, {}});
    }
    m_file.removeDraft();
    if (result.problem == StoreProblem::Unclear) {
        // What has become of the draft is certain: it has not taken its place.
        result = refusal(StoreProblem::Other, m_file.path(), {FaultCode::DiskError, {}});
    }
    // The draft was not asked for.
    if (!result) {
        result.path = m_file.path();
    }
    return result;
}

/// Whether the log, if there is one that a program has left, is of this file and not of another
/// copy of it. A file of which that cannot be told is left to the look at it.
StoreResult SqliteStore::judgeLog() const
{
    const auto isForeign = [this] {
        const SqliteConnection file(m_file.path(), SqliteConnection::Access::Untouched);
        StoreSchema::checkElements(file, m_file.path());
        const quint32 page = file.value(QStringLiteral("SELECT rootpage FROM sqlite_schema"
                                                       " WHERE name = 'store'"))
                                 .toUInt();
        return !StoreLog(m_file.logPath()).follows(revisionOf(file), page);
    };
    bool isRefused = false;
    if (m_file.stamp().logSize > 0 && !m_file.isLogInUse()) {
        StoreResult result = attempt(m_file.path(), [&] { isRefused = isForeign(); });
        if (result.cause.code == FaultCode::NoMemory) {
            return result;
        }
    }
    // Another program may have begun to work with it while it was read.
    return isRefused && !m_file.isLogInUse()
               ? refusal(StoreProblem::Damaged, m_file.path(),
                         faultOf(FaultCode::ForeignLog, m_file.logPath()))
               : StoreResult();
}

/// Reads the store without leaving a trace. A store that is only read goes on to be read in that
/// way.
StoreResult SqliteStore::look()
{
    for (int looks = 1;; ++looks) {
        m_stamp = m_file.stamp();
        const bool isShared = m_stamp.logSize > 0 || looks > kMostLooks;
        const bool hadLogIndex = m_file.hasLogIndex();
        auto connection = std::make_unique<SqliteConnection>(
            m_file.path(),
            isShared ? SqliteConnection::Access::ReadOnly : SqliteConnection::Access::Untouched);
        StoreResult result = lookOnce(*connection);
        if (!isShared && !(m_file.stamp() == m_stamp)) {
            // Another program has opened the store meanwhile, and wrote while it was looked at.
            continue;
        }
        if (result && m_mode == StoreOpenMode::ReadOnly) {
            m_connection = std::move(connection);
            m_isUnnoticed = !isShared;
            m_identity = m_file.identity();
        }
        connection.reset();
        if (!result && isShared && !hadLogIndex) {
            // A log without an index is in use by no program.
            m_file.removeLogIndex();
            return m_file.canHaveLogIndex() ? result
                                            : refusal(StoreProblem::Other, m_file.path(),
                                                      {FaultCode::LogWithoutIndex, {}});
        }
        return result;
    }
}

StoreResult SqliteStore::lookOnce(const SqliteConnection& connection) const
{
    return attempt(m_file.path(), [&] {
        const StoreDeadline deadline(connection, kReadingTime);
        StoreSchema::check(connection, m_file.path());
        // All that is asked for later, also of a former version: once that is taken over, a
        // refusal would come too late to leave the file as it was.
        StoreTransaction transaction(connection, StoreTransaction::Purpose::Read);
        m_look(connection);
        transaction.commit();
    });
}

StoreResult SqliteStore::connect()
{
    StoreResult result = attempt(m_file.path(), [this] {
        auto connection =
            std::make_unique<SqliteConnection>(m_file.path(), SqliteConnection::Access::ReadWrite);
        connection->run(QStringLiteral("PRAGMA foreign_keys = ON"));
        connection->run(QStringLiteral("PRAGMA synchronous = FULL"));
        {
            // An editor is of no use on a file that another program keeps to itself. Now that no
            // other program writes, it must still be what it was when it was looked at.
            const StoreTransaction trial(*connection, StoreTransaction::Purpose::Write);
            StoreSchema::checkElements(*connection, m_file.path());
        }
        connection->run(QStringLiteral("PRAGMA journal_mode = WAL"));
        StoreSchema::migrate(*connection);
        m_connection = std::move(connection);
    });
    m_identity = m_file.identity();
    m_logIdentity = m_file.logIdentity();
    return result;
}

bool SqliteStore::isInPlace() const
{
    return m_connection != nullptr && m_file.identity() == m_identity;
}

StoreResult SqliteStore::reopen()
{
    if (!m_file.isThere()) {
        return refusal(StoreProblem::FileMissing, m_file.path());
    }
    StoreResult result = judge();
    if (result && m_mode == StoreOpenMode::ReadOnly) {
        return look();
    }
    if (result && m_connection != nullptr) {
        result = leave();
    }
    if (result) {
        result = judgeLog();
    }
    if (result) {
        result = look();
    }
    return result ? connect() : result;
}

StoreResult SqliteStore::leave()
{
    // The former file may have been moved elsewhere: what its log holds goes along. Left here, the
    // log would be replayed into the file that has taken its place.
    StoreResult result = attempt(m_file.path(), [this] {
        const SqliteHaste haste(*m_connection);
        if (m_connection->value(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")).toInt() != 0) {
            throw StoreError{refusal(StoreProblem::Locked, m_file.path())};
        }
    });
    if (result) {
        m_connection.reset();
        m_file.removeLog(m_logIdentity);
    }
    return result;
}

bool SqliteStore::isBeingWritten() const
{
    if (m_connection == nullptr || m_mode == StoreOpenMode::ReadOnly) {
        return false;
    }
    const StoreResult trial = attempt(m_file.path(), [this] {
        const SqliteHaste haste(*m_connection);
        const StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Write);
    });
    return trial.problem == StoreProblem::Locked;
}

StoreResult SqliteStore::judgeChange() const
{
    if (m_mode == StoreOpenMode::ReadOnly) {
        return refusal(StoreProblem::ReadOnly, m_file.path(), {FaultCode::OpenedForReading, {}});
    }
    if (!isInPlace()) {
        // The database would go on writing into a file that has no name any more.
        return refusal(StoreProblem::Other, m_file.path(), {FaultCode::FileReplaced, {}});
    }
    return m_file.judgeWritable();
}

/// A file that is read without its taking notice is looked at once more where it has changed
/// before, or meanwhile.
StoreResult SqliteStore::read(const Reading& reading)
{
    for (;;) {
        if (m_isUnnoticed && !(m_file.stamp() == m_stamp)) {
            if (StoreResult result = look(); !result) {
                return result;
            }
        }
        StoreResult result = attempt(m_file.path(), [&] {
            const StoreDeadline deadline(*m_connection, kReadingTime);
            StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
            reading();
            transaction.commit();
        });
        if (!m_isUnnoticed || m_file.stamp() == m_stamp) {
            return result;
        }
    }
}

} // namespace trel::mediadispatch
