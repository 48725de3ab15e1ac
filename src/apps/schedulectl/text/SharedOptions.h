#pragma once

#include "Command.h"

#include <vector>

namespace trel::console {

/// The options that commands share. What reads a command line knows them too.

/// Its meaning ends with a colon, behind which the path of the default database stands.
CommandOption databaseOption();
CommandOption jsonOption();
/// That of the commands with a table of names.
CommandOption wideOption();
/// How wide a table of a command may be; 0 for as wide as it likes.
int tableColumns(const Invocation& invocation);
/// Also "-h".
CommandOption helpOption();
CommandOption versionOption();
/// What ends the options.
CommandOption endOfOptions();

/// All options of a command: its own, then those that it shares.
std::vector<CommandOption> optionsOf(const Command& command);

/// The options that may stand before a command.
std::vector<CommandOption> generalOptions();

} // namespace trel::console
