#pragma once

#include "Command.h"

#include <QStringList>

#include <vector>

namespace trel::console {

/// In the place of a command it asks for help, on the command behind it where there is one.
inline const QLatin1String kHelpWord("help");

/// What a command line says. Reading it does nothing else.
struct CommandLine
{
    enum class Wish { RunCommand, ShowHelp, ShowVersion, Misuse };

    Wish wish = Wish::Misuse;
    const Command* command =
        nullptr; ///< None for the general help and for misuse before a command.
    Invocation invocation;
    QString misuse; ///< What was not understood, as a sentence.

    /// Reads the arguments behind the program's name. Options may stand before and behind the
    /// command; "--" ends them, and "-" is an argument.
    static CommandLine read(const QStringList& arguments, const std::vector<Command>& commands);
};

} // namespace trel::console
