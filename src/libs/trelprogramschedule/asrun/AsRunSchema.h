#pragma once

#include <QString>
#include <QtGlobal>

namespace trel::mediadispatch {

class StoreConnection;

/// The tables of an as-run database.
class AsRunSchema
{
public:
    /// Says in the head of the file whose it is: the letters "TrlA".
    static constexpr qint64 kApplicationId = 0x54726c41;
    static constexpr int kVersion = 1;

    /// Makes the tables in an empty database.
    static void make(const StoreConnection& connection);
    /// Throws StoreError unless the tables and indices are exactly these, to the letter.
    static void check(const StoreConnection& connection, const QString& path);
};

} // namespace trel::mediadispatch
