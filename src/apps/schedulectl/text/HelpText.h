#pragma once

#include "Command.h"

#include <vector>

namespace trel::console {

/// What the program is for and which commands it has.
QString generalHelp(const std::vector<Command>& commands);

/// How one command is used.
QString commandHelp(const Command& command);

/// Where to read on after a misuse: the help of the command, or the general one without a command.
QString helpHint(const Command* command);

} // namespace trel::console
