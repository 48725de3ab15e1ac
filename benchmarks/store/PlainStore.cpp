#include "PlainStore.h"

#include "Comparison.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace bench {

namespace {

struct Close
{
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using Database = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

void expect(bool isDone, sqlite3* database)
{
    if (!isDone) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

Database open(const std::string& path)
{
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    Database opened(database);
    expect(result == SQLITE_OK, database);
    return opened;
}

void execute(sqlite3* database, const char* sql)
{
    expect(sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK, database);
}

Statement prepare(sqlite3* database, const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    expect(sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK,
           database);
    return Statement(statement);
}

} // namespace

PlainStore::PlainStore(const std::string& path)
{
    // In the order in which the tables were made, which is that of their references.
    const Database database = open(path);
    for (const char* name : {"task", "plan", "plan_value", "entry"}) {
        read(database.get(), name);
    }
}

PlainStore::~PlainStore()
{
    for (const Table& table : m_tables) {
        for (const auto& row : table.rows) {
            for (sqlite3_value* value : row) {
                sqlite3_value_free(value);
            }
        }
    }
}

void PlainStore::read(sqlite3* database, const std::string& name)
{
    const Statement query = prepare(database, "SELECT * FROM " + name);
    Table table;
    const int columns = sqlite3_column_count(query.get());
    table.insertion = "INSERT INTO " + name + " VALUES (?";
    for (int column = 1; column < columns; ++column) {
        table.insertion += ", ?";
    }
    table.insertion += ')';
    while (sqlite3_step(query.get()) == SQLITE_ROW) {
        std::vector<sqlite3_value*>& row = table.rows.emplace_back();
        for (int column = 0; column < columns; ++column) {
            row.push_back(sqlite3_value_dup(sqlite3_column_value(query.get(), column)));
        }
    }
    m_tables.push_back(std::move(table));
}

double PlainStore::insertInto(const std::string& path) const
{
    const Database database = open(path);
    execute(database.get(), "PRAGMA foreign_keys = ON");
    execute(database.get(), "PRAGMA synchronous = FULL");
    execute(database.get(), "PRAGMA journal_mode = WAL");
    return wallSeconds([&] {
        execute(database.get(), "BEGIN IMMEDIATE");
        for (const Table& table : m_tables) {
            insert(database.get(), table);
        }
        execute(database.get(), "COMMIT");
    });
}

void PlainStore::insert(sqlite3* database, const Table& table)
{
    const Statement statement = prepare(database, table.insertion);
    for (const auto& row : table.rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            sqlite3_bind_value(statement.get(), static_cast<int>(column) + 1, row[column]);
        }
        expect(sqlite3_step(statement.get()) == SQLITE_DONE, database);
        sqlite3_reset(statement.get());
    }
}

} // namespace bench
