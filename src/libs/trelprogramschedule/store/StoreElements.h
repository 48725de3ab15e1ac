#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <utility>

namespace trel::mediadispatch {

class StoreConnection;

/// What a database defines: its tables, its indices and whatever else one can hold.
class StoreElements
{
public:
    static StoreElements of(const StoreConnection& connection);
    /// What statements make of an empty database. The database writes definitions in its own way,
    /// so that a fresh one is asked.
    static StoreElements made(const QStringList& statements);

    /// Throws StoreError unless these are exactly the expected ones, to the letter.
    void check(const StoreElements& expected, const QString& path) const;

private:
    /// Kind and name.
    using Name = std::pair<QString, QString>;

    /// With the table that they belong to and their definition.
    std::map<Name, std::pair<QString, QString>> m_elements;
};

} // namespace trel::mediadispatch
