#include "StoreRevisions.h"

#include "StoreConnection.h"
#include "StoreEffect.h"
#include "StoreSchema.h"

#include <QSqlQuery>
#include <QVariant>

namespace trel::mediadispatch {

StoreRevision revisionOf(const StoreConnection& connection)
{
    QSqlQuery row =
        connection.query(QStringLiteral("SELECT schedule_revision, catalogue_revision FROM store"));
    StoreRevision revision;
    if (connection.next(row)) {
        revision.schedule = row.value(0).toLongLong();
        revision.catalogue = row.value(1).toLongLong();
    }
    if (StoreSchema::hasEffect(connection)) {
        revision.effect = StoreEffect::revision(connection);
    }
    if (StoreSchema::hasHistory(connection)) {
        revision.names =
            connection.value(QStringLiteral("SELECT version_revision FROM store")).toLongLong();
    }
    return revision;
}

} // namespace trel::mediadispatch
