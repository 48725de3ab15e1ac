#pragma once

#include "asrun/AsRunNumbers.h"
#include "asrun/AsRunRecord.h"
#include "asrun/AsRunWords.h"
#include "store/StoreStatement.h"

#include <vector>

namespace trel::mediadispatch {

/// The rows of records. All within transactions of the caller.
class AsRunRows
{
public:
    AsRunRows(const StoreConnection& connection, const QString& path);

    void add(qint64 screenId, const AsRunRecord& record);
    /// Reads records with these numbers into the place of others, as many as there are and no more
    /// than the most.
    void read(qint64 screenId, const AsRunNumbers& numbers, std::size_t most,
              std::vector<AsRunRecord>& records);
    AsRunNumbers numbersIn(qint64 screenId, Instant from, Instant to);

    AsRunWords& words() { return m_words; }
    qint64 rowsRead() const { return m_rowsRead; }

private:
    void take(AsRunRecord& record);
    AsRunNumbers numbersBegun(qint64 screenId, Instant from, Instant to);

    AsRunWords m_words;
    StoreStatement m_add;
    StoreStatement m_read;
    StoreStatement m_begun;
    StoreStatement m_before;
    qint64 m_rowsRead = 0;
};

} // namespace trel::mediadispatch
