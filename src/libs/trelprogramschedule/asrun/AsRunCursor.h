#pragma once

#include "trelprogramschedule/asrun/AsRunDatabase.h"
#include "trelprogramschedule_export.h"

#include <QString>

#include <vector>

namespace trel::mediadispatch {

/// Reads records one by one, for those who read something else beside them. The database has to
/// live on.
class TRELPROGRAMSCHEDULE_EXPORT AsRunCursor
{
public:
    AsRunCursor(AsRunDatabase& database, const QString& screen, const AsRunNumbers& numbers);

    /// The next record, valid until the next call; null behind the last, or where it cannot be
    /// read.
    const AsRunRecord* next();
    /// Why it could not be read, if it could not.
    const StoreResult& result() const { return m_result; }

private:
    AsRunDatabase& m_database;
    QString m_screen;
    AsRunNumbers m_rest;
    std::vector<AsRunRecord> m_records;
    std::size_t m_at = 0;
    StoreResult m_result;
};

} // namespace trel::mediadispatch
