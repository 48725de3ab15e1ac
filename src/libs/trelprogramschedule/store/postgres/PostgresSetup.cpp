#include "PostgresSetup.h"

#include "PostgresConnection.h"
#include "PostgresWords.h"
#include "store/StoreAttempt.h"
#include "store/StorePlace.h"
#include "store/StoreRefusals.h"
#include "store/StoreSchema.h"

#include <QVariant>

namespace trel::mediadispatch {

namespace {

void makeSchema(const PostgresConnection& connection)
{
    StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
    if (!connection.hasSchema()) {
        connection.run(
            QStringLiteral("CREATE SCHEMA %1").arg(postgresName(connection.schemaName())));
    }
    transaction.commit();
}

void expectOwn(const PostgresConnection& connection, const QString& path)
{
    const bool isEmpty = connection.elements().isEmpty();
    if (isEmpty) {
        return;
    }
    if (!connection.hasSeal()) {
        throw StoreError{refusal(StoreProblem::Foreign, path)};
    }
    StoreSchema::check(connection, path);
}

/// A role is there once for all schedules of a server.
void makeRole(const PostgresConnection& connection, const QString& role)
{
    const QString known =
        QStringLiteral("SELECT count(*) FROM pg_catalog.pg_roles WHERE rolname = %1");
    if (connection.value(known.arg(postgresText(role))).toInt() == 0) {
        connection.run(QStringLiteral("CREATE ROLE %1 NOLOGIN").arg(role));
    }
}

void grant(const PostgresConnection& connection, const QString& role, const QString& rights)
{
    const QString schema = postgresName(connection.schemaName());
    makeRole(connection, role);
    connection.run(QStringLiteral("GRANT USAGE ON SCHEMA %1 TO %2").arg(schema, role));
    connection.run(
        QStringLiteral("REVOKE ALL ON ALL TABLES IN SCHEMA %1 FROM %2").arg(schema, role));
    connection.run(
        QStringLiteral("GRANT %1 ON ALL TABLES IN SCHEMA %2 TO %3").arg(rights, schema, role));
    // Whose a schema is, and which version it has, is for the setup alone to say.
    connection.run(
        QStringLiteral("REVOKE INSERT, UPDATE, DELETE, TRUNCATE ON seal FROM %1").arg(role));
}

void grantRights(const PostgresConnection& connection)
{
    StoreTransaction transaction(connection, StoreTransaction::Purpose::Write);
    grant(connection, PostgresSetup::deskRole(), QStringLiteral("SELECT, INSERT, UPDATE, DELETE"));
    grant(connection, PostgresSetup::screenRole(), QStringLiteral("SELECT"));
    transaction.commit();
}

} // namespace

QString PostgresSetup::deskRole()
{
    return QStringLiteral("schedule_desk");
}

QString PostgresSetup::screenRole()
{
    return QStringLiteral("schedule_screen");
}

StoreResult PostgresSetup::run(const StorePlace& place)
{
    return attempt(place.text(), [&place] {
        const PostgresConnection connection(place, PostgresConnection::Access::SetUp);
        makeSchema(connection);
        expectOwn(connection, place.text());
        StoreSchema::migrate(connection);
        grantRights(connection);
    });
}

} // namespace trel::mediadispatch
