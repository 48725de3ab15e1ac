#pragma once

#include "Command.h"

/// The command that helps translators of the editor.

ExitStatus runCheckLanguage(const Invocation& invocation, Console& console);
