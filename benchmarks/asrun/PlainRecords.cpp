#include "PlainRecords.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QtEndian>

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace bench {

namespace {

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
struct Close
{
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

Statement prepared(sqlite3* database, const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, sql, -1, &statement, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
    return Statement(statement);
}

QByteArray blob(sqlite3_stmt* row, int column)
{
    const int size = sqlite3_column_bytes(row, column);
    return {static_cast<const char*>(sqlite3_column_blob(row, column)), size};
}

void put(QByteArray& bytes, qint64 number)
{
    char out[sizeof number];
    qToBigEndian(number, out);
    bytes.append(out, sizeof number);
}

} // namespace

std::int64_t hashPlainly(const std::string& path)
{
    sqlite3* handle = nullptr;
    if (sqlite3_open_v2(path.c_str(), &handle, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        throw std::runtime_error("The database cannot be opened.");
    }
    const std::unique_ptr<sqlite3, Close> database(handle);
    std::vector<QByteArray> words(1);
    for (const Statement word = prepared(handle, "SELECT bytes FROM word ORDER BY id");
         sqlite3_step(word.get()) == SQLITE_ROW;) {
        words.push_back(blob(word.get(), 0));
    }
    const Statement row = prepared(handle, "SELECT * FROM record ORDER BY screen_id, number");
    const int hashColumn = sqlite3_column_count(row.get()) - 1;
    // Those of the table that are numbers of texts.
    const auto isWord = [](int column) {
        return column == 4 || column == 14 || column == 21 || column == 25;
    };
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray bytes;
    QByteArray before(32, '\0');
    std::int64_t hashed = 0;
    while (sqlite3_step(row.get()) == SQLITE_ROW) {
        bytes.resize(0);
        for (int column = 1; column < hashColumn; ++column) {
            const qint64 value = sqlite3_column_int64(row.get(), column);
            if (isWord(column)) {
                const QByteArray& word = words.at(static_cast<std::size_t>(value));
                put(bytes, word.size());
                bytes.append(word);
            } else {
                put(bytes, value);
            }
        }
        hash.reset();
        hash.addData(before);
        hash.addData(bytes);
        before = hash.result();
        hashed += bytes.size() + before.size();
        if (blob(row.get(), hashColumn).size() != before.size()) {
            throw std::runtime_error("A record has no hash.");
        }
    }
    return hashed;
}

} // namespace bench
