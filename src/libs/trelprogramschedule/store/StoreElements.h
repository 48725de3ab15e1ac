#pragma once

#include <QString>

#include <map>
#include <utility>

namespace trel::mediadispatch {

/// What a database defines: its tables, its indices and whatever else one can hold.
class StoreElements
{
public:
    /// Adds one by its kind and name, with the table that it belongs to and its definition as the
    /// database writes it.
    void add(const QString& kind, const QString& name, const QString& table,
             const QString& definition);

    bool isEmpty() const { return m_elements.empty(); }

    /// Throws StoreError unless these are exactly the expected ones, to the letter.
    void check(const StoreElements& expected, const QString& path) const;

private:
    /// Kind and name.
    using Name = std::pair<QString, QString>;

    /// With the table that they belong to and their definition.
    std::map<Name, std::pair<QString, QString>> m_elements;
};

} // namespace trel::mediadispatch
