#pragma once

#include "StoreFile.h"
#include "store/StoreEngine.h"

#include <memory>

namespace trel::mediadispatch {

class SqliteConnection;

/// A store in a file. See decision 2 for what is looked at, and in which order.
class SqliteStore final : public StoreEngine
{
public:
    /// The look reads what is to be read of a file that may have to be refused for its contents.
    SqliteStore(const QString& path, StoreOpenMode mode, Look look);
    ~SqliteStore() override;
    Q_DISABLE_COPY(SqliteStore)

    /// Behind any links.
    QString path() const override { return m_file.path(); }
    StoreResult open() override;
    StoreResult reopen() override;
    const StoreConnection* connection() const override;
    bool isInPlace() const override;
    bool isBeingWritten() const override;
    StoreResult judgeChange() const override;
    StoreResult read(const Reading& reading) override;

private:
    StoreResult judge() const;
    StoreResult create() const;
    StoreResult judgeLog() const;
    StoreResult look();
    StoreResult lookOnce(const SqliteConnection& connection) const;
    StoreResult connect();
    StoreResult leave();

    StoreFile m_file;
    StoreOpenMode m_mode;
    Look m_look;
    bool m_isUnnoticed = false; ///< The file is read as if no other program could write it.
    StoreFile::Stamp m_stamp;   ///< What the file was when it was last looked at.
    StoreFile::Identity m_identity;
    StoreFile::Identity m_logIdentity;
    std::unique_ptr<SqliteConnection> m_connection;
};

} // namespace trel::mediadispatch
