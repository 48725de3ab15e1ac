#include "Commands.h"

namespace trel::console {

const std::vector<Command>& allCommands()
{
    static const std::vector<Command> commands = {
        importCommand(),        programsCommand(),    removeProgramCommand(),
        whereUsedCommand(),     mediaFolderCommand(), showCommand(),
        checkCommand(),         nowCommand(),         timelineCommand(),
        whyCommand(),           effectCommand(),      startCommand(),
        stopCommand(),          insertCommand(),      cancelInsertionCommand(),
        runCommand(),           screensCommand(),     asRunCommand(),
        versionsCommand(),      nameVersionCommand(), diffCommand(),
        restoreCommand(),       exportCommand(),      importScheduleCommand(),
        checkLanguageCommand(), serverSetupCommand(),
    };
    return commands;
}

} // namespace trel::console
