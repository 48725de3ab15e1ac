#include "StoreRevisions.h"

#include "StoreConnection.h"
#include "StoreEffect.h"
#include "StoreSchema.h"

#include <QSqlQuery>
#include <QVariant>

namespace trel::mediadispatch {

StoreRevision revisionOf(const StoreConnection& connection)
{
    // Asked with every save and each look at the store.
    const bool isNewest = StoreSchema::isNewest(connection);
    QSqlQuery row = connection.query(
        isNewest ? QStringLiteral("SELECT schedule_revision, catalogue_revision, effect_revision,"
                                  " version_revision FROM store")
                 : QStringLiteral("SELECT schedule_revision, catalogue_revision FROM store"));
    StoreRevision revision;
    if (connection.next(row)) {
        revision.schedule = row.value(0).toLongLong();
        revision.catalogue = row.value(1).toLongLong();
        revision.effect = isNewest ? row.value(2).toLongLong() : 0;
        revision.names = isNewest ? row.value(3).toLongLong() : 0;
    }
    if (!isNewest && StoreSchema::hasEffect(connection)) {
        revision.effect = StoreEffect::revision(connection);
    }
    if (!isNewest && StoreSchema::hasHistory(connection)) {
        revision.names =
            connection.value(QStringLiteral("SELECT version_revision FROM store")).toLongLong();
    }
    return revision;
}

} // namespace trel::mediadispatch
