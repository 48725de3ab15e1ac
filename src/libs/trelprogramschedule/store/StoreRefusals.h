#pragma once

#include "StoreResult.h"

class QSqlError;

namespace trel::mediadispatch {

/// A refusal, with the cause that is most usual where none is given.
StoreResult refusal(StoreProblem problem, const QString& path, const Fault& cause = {});

/// The refusal that an error of the database amounts to. The number is what the system said of the
/// last call of the database that failed, as errno; 0 for nothing.
StoreResult refusal(const QSqlError& error, const QString& path, int systemError = 0);

/// The refusal of a file that the system did not let be made, by its errno.
StoreResult refusalOfSystem(int systemError, const QString& path);

/// The refusal for a finding of the database's check of itself.
StoreResult refusalOfFinding(const QString& finding, const QString& path);

} // namespace trel::mediadispatch
