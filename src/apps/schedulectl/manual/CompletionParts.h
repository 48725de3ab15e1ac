#pragma once

#include "Command.h"

#include <QString>

#include <vector>

namespace trel::console {

/// As a Latin-1 text of the table of commands.
QString latin(std::string_view text);

/// The names of options, with blanks between them.
QString optionNames(const std::vector<CommandOption>& options);

/// Every option of a general or an own kind that takes a value, each name once.
std::vector<CommandOption> optionsWithValues(const std::vector<Command>& commands);

/// The first sentence of an option, in one line.
QString shortMeaning(const CommandOption& option);

} // namespace trel::console
