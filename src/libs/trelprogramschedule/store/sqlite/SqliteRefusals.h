#pragma once

#include "store/StoreResult.h"

class QSqlError;

namespace trel::mediadispatch {

/// The refusal that an error of the database amounts to. The number is what the system said of the
/// last call of the database that failed, as errno; 0 for nothing.
StoreResult refusal(const QSqlError& error, const QString& path, int systemError = 0);

/// The refusal for a finding of the database's check of itself.
StoreResult refusalOfFinding(const QString& finding, const QString& path);

} // namespace trel::mediadispatch
