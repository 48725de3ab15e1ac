#include "StoreProgramContents.h"

#include "StoreConnection.h"
#include "StoreInserts.h"
#include "StoreSchema.h"

#include <QSqlQuery>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace trel::mediadispatch {

namespace {

/// Rows that are taken out with one statement.
constexpr int kMostAtOnce = 200;

} // namespace

StoreProgramContents::StoreProgramContents(const StoreConnection& connection)
    : m_connection(connection)
{}

ProgramContents StoreProgramContents::read() const
{
    ProgramContents contents;
    if (!StoreSchema::hasContents(m_connection)) {
        return contents;
    }
    QSqlQuery row = m_connection.query(
        QStringLiteral("SELECT prog_index, size_bytes, modified_ns, sha256 FROM program_content"
                       " WHERE prog_index IN (SELECT prog_index FROM program WHERE removed = 0)"
                       " ORDER BY prog_index"));
    while (m_connection.next(row)) {
        ProgramContent content;
        content.size = row.value(1).toLongLong();
        content.modifiedNs = row.value(2).toLongLong();
        content.sha256 = row.value(3).toByteArray();
        if (content.isKnown()) {
            contents.emplace_hint(contents.end(), row.value(0).toInt(), std::move(content));
        }
    }
    return contents;
}

void StoreProgramContents::put(const ProgramContents& contents) const
{
    remove(contents);
    const std::unique_ptr<StoreInserts> inserts = m_connection.inserts(
        QStringLiteral("INSERT INTO program_content (prog_index, size_bytes, modified_ns, sha256)"
                       " VALUES (?, ?, ?, CAST(? AS TEXT))"));
    for (const auto& [index, content] : contents) {
        if (content.isKnown()) {
            inserts->put({index, content.size, content.modifiedNs, content.sha256});
        }
    }
    inserts->finish();
}

void StoreProgramContents::remove(const ProgramContents& contents) const
{
    QStringList numbers;
    const auto removeThese = [&] {
        m_connection.run(QStringLiteral("DELETE FROM program_content WHERE prog_index IN (%1)")
                             .arg(numbers.join(QLatin1Char(','))));
        numbers.clear();
    };
    for (const auto& [index, content] : contents) {
        numbers.append(QString::number(index));
        if (numbers.size() == kMostAtOnce) {
            removeThese();
        }
    }
    if (!numbers.isEmpty()) {
        removeThese();
    }
}

} // namespace trel::mediadispatch
