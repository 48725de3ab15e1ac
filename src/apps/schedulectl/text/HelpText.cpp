#include "HelpText.h"

#include "SharedOptions.h"
#include "common/DefaultDatabase.h"

#include <algorithm>

namespace trel::console {

namespace {

QString text(std::string_view latin)
{
    return QString::fromLatin1(latin.data(), static_cast<int>(latin.size()));
}

/// Where the meaning of an option begins, behind the margin.
constexpr int kMeaningColumn = 19;

/// What comes behind a line break in a meaning stands below it.
QString hanging(QString meaning)
{
    return meaning.replace(QLatin1Char('\n'),
                           QLatin1Char('\n') + QString(kMeaningColumn + 2, QLatin1Char(' ')));
}

QString usageOf(const CommandOption& option)
{
    const QString name = text(option.name);
    if (option.name == helpOption().name) {
        return QStringLiteral("-h, ") + name;
    }
    return option.value.empty() ? name : name + QLatin1Char(' ') + text(option.value);
}

QString helpOn(const CommandOption& option)
{
    QString meaning = text(option.meaning);
    if (option.name == databaseOption().name) {
        meaning += QLatin1Char('\n') + hosts::defaultDatabasePath();
    }
    return QStringLiteral("  %1%2\n").arg(usageOf(option), -kMeaningColumn).arg(hanging(meaning));
}

const char* const kExitStatus = R"(Exit status:
  0  done
  1  refused: understood, but not all of it could be done
  2  misused: the command line was not understood, and nothing was done
)";

} // namespace

QString generalHelp(const std::vector<Command>& commands)
{
    constexpr int column = 17;
    QString help = QStringLiteral("Usage: schedulectl [OPTION...] COMMAND [ARGUMENT...]\n\n"
                                  "Manages the play schedule of media screens and its program "
                                  "catalog.\n\nCommands:\n");
    for (const Command& command : commands) {
        help +=
            QStringLiteral("  %1%2\n").arg(text(command.name), -column).arg(text(command.summary));
    }
    help +=
        QStringLiteral("\n\"schedulectl help COMMAND\" tells more about a command.\n\nOptions:\n");
    for (const CommandOption& option : generalOptions()) {
        help += helpOn(option);
    }
    return help + QLatin1Char('\n') + QString::fromLatin1(kExitStatus);
}

QString commandHelp(const Command& command)
{
    QString arguments =
        command.arguments.empty() ? QString() : QLatin1Char(' ') + text(command.arguments);
    for (const CommandOption& own : command.options) {
        arguments += own.isRequired ? QLatin1Char(' ') + usageOf(own) : QString();
    }
    QString help = QStringLiteral("Usage: schedulectl %1 [OPTION...]%2\n\n%3\n\nOptions:\n")
                       .arg(text(command.name), arguments, text(command.help));
    for (const CommandOption& option : optionsOf(command)) {
        help += helpOn(option);
    }
    return help + QLatin1Char('\n') + QString::fromLatin1(kExitStatus);
}

QString helpHint(const Command* command)
{
    return command == nullptr
               ? QStringLiteral("Try \"schedulectl --help\".")
               : QStringLiteral("Try \"schedulectl %1 --help\".").arg(text(command->name));
}

} // namespace trel::console
