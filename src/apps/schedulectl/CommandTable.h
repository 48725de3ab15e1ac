#pragma once

#include "Command.h"

#include <vector>

/// Every command, in the order of the general help.
const std::vector<Command>& allCommands();
