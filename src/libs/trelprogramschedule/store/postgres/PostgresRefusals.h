#pragma once

#include "store/StoreResult.h"

class QSqlError;

namespace trel::mediadispatch {

/// The refusal that an error of the server, or of the way to it, amounts to.
StoreResult refusalOfServer(const QSqlError& error, const QString& place);

} // namespace trel::mediadispatch
