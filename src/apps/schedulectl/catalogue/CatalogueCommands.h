#pragma once

#include "Command.h"

/// The commands that look after the catalogue of programs.

ExitStatus runImport(const Invocation& invocation, Console& console);
ExitStatus runPrograms(const Invocation& invocation, Console& console);
ExitStatus runRemoveProgram(const Invocation& invocation, Console& console);
