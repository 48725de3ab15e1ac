#pragma once

#include <QVariant>
#include <QtGlobal>

#include <initializer_list>

namespace trel::mediadispatch {

/// Puts rows into a table, as quickly as the engine can: each by itself, or many with one
/// statement. StoreConnection::inserts() makes it; it must be gone before the connection. Members
/// throw StoreError where the database refuses.
class StoreInserts
{
public:
    using Row = std::initializer_list<QVariant>;

    StoreInserts() = default;
    virtual ~StoreInserts() = default;
    Q_DISABLE_COPY(StoreInserts)

    /// Takes a row, with its values in the order of the columns: numbers, and texts as their bytes,
    /// which need not outlive the call.
    virtual void put(Row row) = 0;
    /// All rows that were taken are in the table then. Those of which that was not asked may be
    /// missing.
    virtual void finish() = 0;
};

} // namespace trel::mediadispatch
