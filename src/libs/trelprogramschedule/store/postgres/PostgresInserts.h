#pragma once

#include "store/StoreInserts.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace trel::mediadispatch {

/// Many rows with one statement, since each one goes to the server and back. The driver has nothing
/// for that: what it does with many values at once is one statement for each.
class PostgresInserts final : public StoreInserts
{
public:
    /// Runs a statement that is in the words of the server already.
    using Run = std::function<void(const QString& statement)>;

    /// The other rows, if there are any, outlive these, and are in their table before.
    PostgresInserts(Run run, const QString& statement, StoreInserts* before);

    void put(Row row) override;
    void finish() override;

private:
    Run m_run;
    QString m_start; ///< Of the statement, up to the first row.
    StoreInserts* m_before;
    QByteArray m_rows; ///< As they stand in a statement.
};

} // namespace trel::mediadispatch
