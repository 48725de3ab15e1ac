#include "PostgresInserts.h"

#include <utility>

namespace trel::mediadispatch {

namespace {

/// Of a statement: enough for what it costs to go to the server to be of no account, and no burden
/// for either side.
constexpr int kFullBytes = 1 << 17;

/// All digits that a number needs to be read as the same one.
constexpr int kDigits = 17;

/// Digits alone, and bytes in hexadecimal ones, so that nothing can be taken for a part of the
/// statement.
QByteArray literal(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QByteArray:
        return "'\\x" + value.toByteArray().toHex() + "'::bytea";
    case QMetaType::Double:
        return QByteArray::number(value.toDouble(), 'g', kDigits);
    default:
        return QByteArray::number(value.toLongLong());
    }
}

/// Up to the values, of which there are as many rows as it takes.
QString startOf(const QString& statement)
{
    const QLatin1String values(" VALUES ");
    return statement.left(statement.indexOf(values)) + values;
}

} // namespace

PostgresInserts::PostgresInserts(Run run, const QString& statement, StoreInserts* before)
    : m_run(std::move(run))
    , m_start(startOf(statement))
    , m_before(before)
{}

void PostgresInserts::put(Row row)
{
    char separator = '(';
    if (!m_rows.isEmpty()) {
        m_rows += ',';
    }
    for (const QVariant& value : row) {
        m_rows += separator;
        m_rows += literal(value);
        separator = ',';
    }
    m_rows += ')';
    if (m_rows.size() >= kFullBytes) {
        finish();
    }
}

void PostgresInserts::finish()
{
    if (m_before != nullptr) {
        m_before->finish();
    }
    if (!m_rows.isEmpty()) {
        m_run(m_start + QString::fromLatin1(m_rows));
        m_rows.clear();
    }
}

} // namespace trel::mediadispatch
