#pragma once

#include "trelprogramschedule_export.h"

namespace trel::mediadispatch {

/// Has a function called where the database gets no memory; it ends the program and never returns.
/// Otherwise the toolkit's driver may crash, as it dereferences what the database could not give.
/// It is for all databases of the process, and so for a program of which no part is to go on then.
/// To be called once, before anything uses a database; does nothing afterwards.
TRELPROGRAMSCHEDULE_EXPORT void endWithoutDatabaseMemory(void (*end)());

} // namespace trel::mediadispatch
