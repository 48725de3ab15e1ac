#pragma once

#include "Command.h"

ExitStatus runNow(const Invocation& invocation, Console& console);
ExitStatus runTimeline(const Invocation& invocation, Console& console);
ExitStatus runWhy(const Invocation& invocation, Console& console);
/// Runs until the program is told to end.
ExitStatus runSchedule(const Invocation& invocation, Console& console);
