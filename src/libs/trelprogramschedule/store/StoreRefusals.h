#pragma once

#include "StoreResult.h"

namespace trel::mediadispatch {

/// A refusal, with the cause that is most usual where none is given.
StoreResult refusal(StoreProblem problem, const QString& path, const Fault& cause = {});

/// The refusal of a file that the system did not let be made, by its errno.
StoreResult refusalOfSystem(int systemError, const QString& path);

/// Neither the disk nor what a user or a program may take of it has room.
bool isLackOfSpace(int systemError);

/// What lack of space it is.
FaultCode lackOf(int systemError);

} // namespace trel::mediadispatch
