#pragma once

#include <QString>
#include <QStringList>

#include <string_view>

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
};
