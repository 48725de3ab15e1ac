#include "SharedOptions.h"

#include "Console.h"

namespace trel::console {

CommandOption databaseOption()
{
    return {"--database", "FILE", "The database to work on; defaults to the editor's own:"};
}

CommandOption jsonOption()
{
    return {"--json", "", "Write the result as JSON."};
}

CommandOption wideOption()
{
    return {"--wide", "", "Show names whole where the terminal is too narrow."};
}

int tableColumns(const Invocation& invocation)
{
    return invocation.has("--wide") ? 0 : Console::tableColumns();
}

CommandOption helpOption()
{
    return {"--help", "", "Show this help."};
}

CommandOption versionOption()
{
    return {"--version", "", "Show the version."};
}

CommandOption endOfOptions()
{
    return {"--", "", "Take everything that follows as an argument."};
}

std::vector<CommandOption> optionsOf(const Command& command)
{
    std::vector<CommandOption> options = command.options;
    if (command.hasDatabase) {
        options.push_back(databaseOption());
    }
    if (command.hasJson) {
        options.push_back(jsonOption());
    }
    options.push_back(helpOption());
    return options;
}

std::vector<CommandOption> generalOptions()
{
    CommandOption json = jsonOption();
    json.meaning = "Write the result as JSON, where a command has one.";
    return {databaseOption(), json, helpOption(), versionOption(), endOfOptions()};
}

} // namespace trel::console
