#pragma once

#include "store/StoreEngine.h"
#include "store/StorePlace.h"

#include <chrono>
#include <memory>

namespace trel::mediadispatch {

class PostgresConnection;

/// A store on a server; see decision 13. It is never made by opening it, nor brought up to a newer
/// schema: PostgresSetup does both.
class PostgresStore final : public StoreEngine
{
public:
    /// For a place on a server, without a flaw.
    PostgresStore(StorePlace place, StoreOpenMode mode, Look look,
                  std::chrono::milliseconds patience);
    ~PostgresStore() override;
    Q_DISABLE_COPY(PostgresStore)

    QString path() const override { return m_place.text(); }
    QString id() const override;
    StoreResult open() override;
    /// The same as open: what is at a place on a server is found there whenever it is asked for.
    StoreResult reopen() override;
    const StoreConnection* connection() const override;
    /// Asks the server. A schedule that was set up anew or restored is another one.
    bool isInPlace() const override;
    /// False: the server tells of no change before it can be read.
    bool isBeingWritten() const override { return false; }
    StoreResult judgeChange() const override;
    StoreResult read(const Reading& reading) override;

private:
    void expectFit(const PostgresConnection& connection) const;

    StorePlace m_place;
    StoreOpenMode m_mode;
    Look m_look;
    std::chrono::milliseconds m_patience;
    std::unique_ptr<PostgresConnection> m_connection;
};

} // namespace trel::mediadispatch
