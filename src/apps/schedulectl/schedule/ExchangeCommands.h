#pragma once

#include "Command.h"

/// The commands that carry the schedule out of the database and into it.

ExitStatus runExport(const Invocation& invocation, Console& console);
ExitStatus runImportSchedule(const Invocation& invocation, Console& console);
