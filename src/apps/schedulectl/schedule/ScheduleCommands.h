#pragma once

#include "Command.h"

/// The commands that look at the saved schedule.

ExitStatus runShow(const Invocation& invocation, Console& console);
ExitStatus runCheck(const Invocation& invocation, Console& console);
