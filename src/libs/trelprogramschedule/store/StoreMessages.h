#pragma once

#include "StoreResult.h"

class QSqlError;

namespace trel::mediadispatch {

/// A refusal with its sentence. The detail goes into the sentence of Damaged and Other.
StoreResult refusal(StoreProblem problem, const QString& path, const QString& detail = {});

/// The refusal that an error of the database amounts to.
StoreResult refusal(const QSqlError& error, const QString& path);

} // namespace trel::mediadispatch
