#pragma once

#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_value;

namespace bench {

/// The rows of a schedule, ready to be written into another store by the database's own interface,
/// without records in between.
class PlainStore
{
public:
    /// Takes the rows of all tasks out of a store that is not open elsewhere.
    explicit PlainStore(const std::string& path);
    ~PlainStore();
    PlainStore(const PlainStore&) = delete;
    PlainStore& operator=(const PlainStore&) = delete;

    /// Writes them into the empty store of another file, in one transaction, and returns the
    /// seconds that it took.
    double insertInto(const std::string& path) const;

private:
    struct Table
    {
        std::string insertion;
        std::vector<std::vector<sqlite3_value*>> rows;
    };

    void read(sqlite3* database, const std::string& name);
    static void insert(sqlite3* database, const Table& table);

    std::vector<Table> m_tables;
};

} // namespace bench
