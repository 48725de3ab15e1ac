#pragma once

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <map>
#include <string_view>
#include <vector>

namespace trel::console {

class Console;

/// How a command ended, as scripts see it.
enum ExitStatus {
    Done = 0,
    Refused = 1, ///< Understood, but not all of it could be done.
    Misused = 2, ///< Not understood; nothing was done.
};

/// What the command line asks a command to do.
struct Invocation
{
    QString database;      ///< As given; empty for the user's own.
    bool json = false;     ///< Results as JSON instead of text.
    QStringList arguments; ///< As many as the command takes.
    /// The options of the command's own that were given, by name; a switch has an empty value.
    std::map<QString, QString> options;

    bool has(const char* option) const { return options.count(QLatin1String(option)) > 0; }
    /// Empty when the option was not given.
    QString value(const char* option) const
    {
        const auto found = options.find(QLatin1String(option));
        return found == options.end() ? QString() : found->second;
    }
};

/// What stands for the standard input or output in the place of a file.
inline const QLatin1String kStandardStream("-");

/// An option that only some commands have.
struct CommandOption
{
    std::string_view name;    ///< With its two dashes.
    std::string_view value;   ///< What stands behind it in the usage line; empty for a switch.
    std::string_view meaning; ///< For the help, in lines of up to 57 columns.
    bool isRequired = false;
};

/// One command: what it is called, what it takes and who does it.
struct Command
{
    static constexpr int kAnyNumber = -1;

    std::string_view name;
    std::string_view arguments; ///< As they stand in the usage line.
    int leastArguments;
    int mostArguments; ///< kAnyNumber for no bound.
    bool hasJson;
    std::string_view summary; ///< One line for the list of commands.
    std::string_view help;    ///< What a person should know, in lines of up to 78 columns.
    ExitStatus (*run)(const Invocation& invocation, Console& console);
    bool hasDatabase = true; ///< Works on a database.
    std::vector<CommandOption> options = {};
};

} // namespace trel::console
