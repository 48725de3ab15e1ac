#include "PostgresStore.h"

#include "PostgresConnection.h"
#include "store/StoreAttempt.h"
#include "store/StoreRefusals.h"
#include "store/StoreSchema.h"

#include <utility>

namespace trel::mediadispatch {

PostgresStore::PostgresStore(StorePlace place, StoreOpenMode mode, Look look,
                             std::chrono::milliseconds patience)
    : m_place(std::move(place))
    , m_mode(mode)
    , m_look(std::move(look))
    , m_patience(patience)
{}

PostgresStore::~PostgresStore() = default;

StoreResult PostgresStore::open()
{
    return attempt(path(), [this] {
        auto connection = std::make_unique<PostgresConnection>(
            m_place,
            m_mode == StoreOpenMode::ReadOnly ? PostgresConnection::Access::ReadOnly
                                              : PostgresConnection::Access::ReadWrite,
            m_patience);
        StoreTransaction transaction(*connection, StoreTransaction::Purpose::Read);
        expectFit(*connection);
        connection->rememberSchedule();
        m_look(*connection);
        transaction.commit();
        if (m_mode != StoreOpenMode::ReadOnly) {
            // An editor is of no use where it may not write, or where somebody keeps others out.
            const StoreTransaction trial(*connection, StoreTransaction::Purpose::Write);
        }
        m_connection = std::move(connection);
    });
}

StoreResult PostgresStore::reopen()
{
    return open();
}

/// In the order in which one question can be asked after the other.
void PostgresStore::expectFit(const PostgresConnection& connection) const
{
    if (!connection.hasSchema()) {
        throw StoreError{refusal(StoreProblem::FileMissing, path())};
    }
    if (!connection.hasSeal()) {
        throw StoreError{refusal(StoreProblem::Foreign, path())};
    }
    StoreSchema::check(connection, path());
    if (!StoreSchema::isNewest(connection)) {
        throw StoreError{refusal(StoreProblem::Altered, path(), {FaultCode::SchemaOlder, {}})};
    }
}

const StoreConnection* PostgresStore::connection() const
{
    return m_connection.get();
}

QString PostgresStore::id() const
{
    return m_connection ? m_connection->scheduleId() : QString();
}

bool PostgresStore::isInPlace() const
{
    return m_connection != nullptr && m_connection->isSameSchedule();
}

StoreResult PostgresStore::judgeChange() const
{
    return m_mode == StoreOpenMode::ReadOnly
               ? refusal(StoreProblem::ReadOnly, path(), {FaultCode::OpenedForReading, {}})
               : StoreResult();
}

StoreResult PostgresStore::read(const Reading& reading)
{
    return attempt(path(), [&] {
        StoreTransaction transaction(*m_connection, StoreTransaction::Purpose::Read);
        reading();
        transaction.commit();
    });
}

} // namespace trel::mediadispatch
