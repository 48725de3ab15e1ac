#pragma once

#include "Command.h"

#include <vector>

namespace trel::console {

/// The commands, each in a file of its own, which has its name, its help and what it does.

Command importCommand();
Command programsCommand();
Command removeProgramCommand();
Command whereUsedCommand();
Command mediaFolderCommand();
Command showCommand();
Command checkCommand();
Command nowCommand();
Command timelineCommand();
Command whyCommand();
Command effectCommand();
Command startCommand();
Command stopCommand();
Command insertCommand();
Command cancelInsertionCommand();
Command runCommand();
Command screensCommand();
Command asRunCommand();
Command versionsCommand();
Command nameVersionCommand();
Command diffCommand();
Command restoreCommand();
Command exportCommand();
Command importScheduleCommand();
Command checkLanguageCommand();
Command serverSetupCommand();

/// Every command, in the order of the general help.
const std::vector<Command>& allCommands();

} // namespace trel::console
