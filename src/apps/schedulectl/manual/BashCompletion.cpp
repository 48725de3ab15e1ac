#include "CommandLine.h"
#include "CompletionParts.h"
#include "Completions.h"
#include "PlaceHolder.h"
#include "text/SharedOptions.h"

#include <QStringList>

namespace trel::console {

namespace {

/// The shell takes "--option=value" apart at the sign.
const char* const kScript =
    R"(# bash completion of schedulectl                                   -*- shell-script -*-
# Made from the table of commands.

_schedulectl()
{
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    if [[ $current == '=' ]]; then
        current=
    elif [[ $before == '=' ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    COMPREPLY=()

    # The command is the first word that is neither an option nor its value.
    local command= arguments= word at
    for ((at = 1; at < COMP_CWORD; at++)); do
        word=${COMP_WORDS[at]}
        if [[ -z $arguments && $word == -- ]]; then
            arguments=yes
        elif [[ -z $arguments && $word == -* ]]; then
            case $word in
                %VALUES%)
                    ((at++))
                    [[ ${COMP_WORDS[at]} == '=' ]] && ((at++))
                    ;;
            esac
        elif [[ -z $command ]]; then
            command=$word
        fi
    done

    if [[ -z $arguments ]]; then
        case $before in
%OPTIONS%        esac
    fi

    local options= words= files=
    case $command in
%COMMANDS%    esac
    if [[ -z $arguments && $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    elif [[ -n $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}

complete -F _schedulectl schedulectl
)";

QString fileCompletion()
{
    return QStringLiteral("                compopt -o filenames 2>/dev/null\n"
                          "                mapfile -t COMPREPLY < <(compgen -f -- \"$current\")\n");
}

/// What stands behind an option that takes a value.
QString valueBranch(const CommandOption& option)
{
    const PlaceHolder value(option.value);
    QString branch = QStringLiteral("            %1)\n").arg(latin(option.name));
    if (value.namesFiles()) {
        branch += fileCompletion();
    } else if (const QStringList words = value.words(); !words.isEmpty()) {
        branch += QStringLiteral("                mapfile -t COMPREPLY < <(compgen -W '%1' -- "
                                 "\"$current\")\n")
                      .arg(words.join(QLatin1Char(' ')));
    }
    return branch + QStringLiteral("                return\n                ;;\n");
}

QString branch(const QString& command, const QString& settings)
{
    return QStringLiteral("        %1)\n%2            ;;\n").arg(command, settings);
}

QString setting(const char* name, const QString& value)
{
    return QStringLiteral("            %1='%2'\n").arg(QLatin1String(name), value);
}

QString commandBranch(const Command& command)
{
    const PlaceHolder arguments(command.arguments);
    QString settings = setting("options", optionNames(optionsOf(command)));
    if (arguments.namesFiles()) {
        settings += setting("files", QStringLiteral("yes"));
    } else if (const QStringList words = arguments.words(); !words.isEmpty()) {
        settings += setting("words", words.join(QLatin1Char(' ')));
    }
    return branch(latin(command.name), settings);
}

} // namespace

QString bashCompletion(const std::vector<Command>& commands)
{
    QStringList names;
    QString commandBranches;
    for (const Command& command : commands) {
        names.append(latin(command.name));
        commandBranches += commandBranch(command);
    }
    commandBranches += branch(kHelpWord, setting("words", names.join(QLatin1Char(' '))));
    names.append(kHelpWord);
    const QString first =
        branch(QStringLiteral("''"), setting("options", optionNames(generalOptions())) +
                                         setting("words", names.join(QLatin1Char(' '))));
    QStringList valued;
    QString valueBranches;
    for (const CommandOption& option : optionsWithValues(commands)) {
        valued.append(latin(option.name));
        valueBranches += valueBranch(option);
    }
    QString script = QString::fromLatin1(kScript);
    script.replace(QLatin1String("%VALUES%"), valued.join(QLatin1String(" | ")));
    script.replace(QLatin1String("%OPTIONS%"), valueBranches);
    return script.replace(QLatin1String("%COMMANDS%"), first + commandBranches);
}

} // namespace trel::console
