#include "CommandLine.h"
#include "CompletionParts.h"
#include "Completions.h"
#include "PlaceHolder.h"
#include "text/SharedOptions.h"

#include <QStringList>

namespace trel::console {

namespace {

const char* const kScript = R"(#compdef schedulectl
# Made from the table of commands.

_schedulectl() {
  local curcontext=$curcontext state state_descr line
  typeset -A opt_args
  local -a commands=(
%NAMES%  )

  _arguments -C -s \
%GENERAL%    '1:command:->command' \
    '*::argument:->argument'

  case $state in
    (command)
      _describe -t commands command commands
      ;;
    (argument)
      curcontext=${curcontext%:*}-$words[1]:
      case $words[1] in
%COMMANDS%      esac
      ;;
  esac
}

_schedulectl "$@"
)";

/// In single quotes, as a part of what colons and brackets divide.
QString part(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char(':'), QLatin1String("\\:"));
    text.replace(QLatin1Char('['), QLatin1String("\\["));
    text.replace(QLatin1Char(']'), QLatin1String("\\]"));
    return text.replace(QLatin1Char('\''), QLatin1String("'\\''"));
}

/// How the value at a place is completed.
QString action(const PlaceHolder& place)
{
    if (place.namesFiles()) {
        return QStringLiteral("_files");
    }
    const QStringList words = place.words();
    return words.isEmpty() ? QStringLiteral(" ")
                           : QStringLiteral("(%1)").arg(words.join(QLatin1Char(' ')));
}

QString optionSpec(const CommandOption& option)
{
    const QString meaning = part(shortMeaning(option));
    if (option.name == helpOption().name) {
        return QStringLiteral("'(- *)'{-h,--help}'[%1]'").arg(meaning);
    }
    if (option.name == versionOption().name) {
        return QStringLiteral("'(- *)%1[%2]'").arg(latin(option.name), meaning);
    }
    if (option.value.empty()) {
        return QStringLiteral("'%1[%2]'").arg(latin(option.name), meaning);
    }
    const PlaceHolder value(option.value);
    return QStringLiteral("'%1=[%2]:%3:%4'")
        .arg(latin(option.name), meaning, part(value.text()), action(value));
}

QString specs(const std::vector<CommandOption>& options, const QString& indent)
{
    QString text;
    for (const CommandOption& option : options) {
        if (option.name != endOfOptions().name) {
            text += indent + optionSpec(option) + QStringLiteral(" \\\n");
        }
    }
    return text;
}

QString commandBranch(const Command& command)
{
    const QString indent(12, QLatin1Char(' '));
    QString branch = QStringLiteral("        (%1)\n          _arguments -s \\\n%2")
                         .arg(latin(command.name), specs(optionsOf(command), indent));
    const PlaceHolder arguments(command.arguments);
    const QString place = command.mostArguments == 1 ? QStringLiteral("1") : QStringLiteral("*");
    branch += indent + (command.arguments.empty()
                            ? QStringLiteral("&& return")
                            : QStringLiteral("'%1:%2:%3' && return")
                                  .arg(place, part(arguments.text()), action(arguments)));
    return branch + QStringLiteral("\n          ;;\n");
}

} // namespace

QString zshCompletion(const std::vector<Command>& commands)
{
    QString names;
    QString branches;
    const auto name = [&names](const QString& command, const QString& summary) {
        names += QStringLiteral("    '%1:%2'\n").arg(part(command), part(summary));
    };
    for (const Command& command : commands) {
        name(latin(command.name), latin(command.summary));
        branches += commandBranch(command);
    }
    name(kHelpWord, QStringLiteral("Show help, on a command or in general"));
    branches += QStringLiteral("        (%1)\n          _describe -t commands command commands\n"
                               "          ;;\n")
                    .arg(kHelpWord);
    QString script = QString::fromLatin1(kScript);
    script.replace(QLatin1String("%NAMES%"), names);
    script.replace(QLatin1String("%GENERAL%"), specs(generalOptions(), QStringLiteral("    ")));
    return script.replace(QLatin1String("%COMMANDS%"), branches);
}

} // namespace trel::console
