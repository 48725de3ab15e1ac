#include "StoreElements.h"

#include "StoreConnection.h"
#include "StoreRefusals.h"

#include <QSqlQuery>
#include <QVariant>

namespace trel::mediadispatch {

namespace {

/// More than any schema has, so that one that has more shows.
constexpr int kMostElements = 1000;
/// What a message shows of a name that somebody else has chosen.
constexpr int kLongestName = 60;

Fault partFault(FaultCode code, const std::pair<QString, QString>& element)
{
    return faultOf(code, element.second.left(kLongestName), element.first);
}

} // namespace

StoreElements StoreElements::of(const StoreConnection& connection)
{
    QSqlQuery row = connection.query(
        QStringLiteral("SELECT type, name, tbl_name, sql FROM sqlite_schema LIMIT %1")
            .arg(kMostElements));
    StoreElements elements;
    while (connection.next(row)) {
        elements.m_elements.insert({{row.value(0).toString(), row.value(1).toString()},
                                    {row.value(2).toString(), row.value(3).toString()}});
    }
    return elements;
}

StoreElements StoreElements::made(const QStringList& statements)
{
    const StoreConnection fresh(QString(), StoreConnection::Access::Memory);
    for (const QString& statement : statements) {
        fresh.run(statement);
    }
    return of(fresh);
}

void StoreElements::check(const StoreElements& expected, const QString& path) const
{
    for (const auto& [name, definition] : expected.m_elements) {
        if (m_elements.count(name) == 0) {
            throw StoreError{
                refusal(StoreProblem::Damaged, path, partFault(FaultCode::PartMissing, name))};
        }
    }
    for (const auto& [name, definition] : m_elements) {
        const auto own = expected.m_elements.find(name);
        if (own == expected.m_elements.end()) {
            throw StoreError{
                refusal(StoreProblem::Altered, path, partFault(FaultCode::PartUnknown, name))};
        }
        if (own->second != definition) {
            throw StoreError{
                refusal(StoreProblem::Altered, path, partFault(FaultCode::PartAltered, name))};
        }
    }
}

} // namespace trel::mediadispatch
