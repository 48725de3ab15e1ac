#include "CommandLine.h"
#include "CompletionParts.h"
#include "Completions.h"
#include "PlaceHolder.h"
#include "text/SharedOptions.h"

#include <QStringList>

namespace trel::console {

namespace {

QString quoted(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    text.replace(QLatin1Char('\''), QLatin1String("\\'"));
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}

QString line(const QString& condition, const QString& rest)
{
    return QStringLiteral("complete -c schedulectl -n %1 %2\n").arg(quoted(condition), rest);
}

/// What a place takes: names of files, some words, or anything.
QString taken(const PlaceHolder& place)
{
    if (place.namesFiles()) {
        return QStringLiteral("-F");
    }
    const QStringList words = place.words();
    return words.isEmpty() ? QString()
                           : QStringLiteral("-a ") + quoted(words.join(QLatin1Char(' ')));
}

QString optionLine(const QString& condition, const CommandOption& option)
{
    const QString meaning = QStringLiteral(" -d ") + quoted(shortMeaning(option));
    const QString name = QStringLiteral("-l ") + latin(option.name).mid(2);
    if (option.name == helpOption().name) {
        return line(condition, QStringLiteral("-s h ") + name + meaning);
    }
    if (option.value.empty()) {
        return line(condition, name + meaning);
    }
    const QString values = taken(PlaceHolder(option.value));
    return line(condition, name + QStringLiteral(" -r ") + values + meaning);
}

QString optionLines(const QString& condition, const std::vector<CommandOption>& options)
{
    QString lines;
    for (const CommandOption& option : options) {
        if (option.name != endOfOptions().name) {
            lines += optionLine(condition, option);
        }
    }
    return lines;
}

} // namespace

QString fishCompletion(const std::vector<Command>& commands)
{
    const QString first = QStringLiteral("__fish_use_subcommand");
    QString script = QStringLiteral("# fish completion of schedulectl\n"
                                    "# Made from the table of commands.\n\n"
                                    "complete -c schedulectl -f\n") +
                     optionLines(first, generalOptions());
    QStringList names;
    for (const Command& command : commands) {
        const QString name = latin(command.name);
        names.append(name);
        script +=
            QLatin1Char('\n') +
            line(first, QStringLiteral("-a %1 -d %2").arg(name, quoted(latin(command.summary))));
        const QString condition = QStringLiteral("__fish_seen_subcommand_from ") + name;
        const QString values = taken(PlaceHolder(command.arguments));
        if (!values.isEmpty()) {
            script += line(condition, values);
        }
        script += optionLines(condition, optionsOf(command));
    }
    script +=
        QLatin1Char('\n') +
        line(first,
             QStringLiteral("-a %1 -d 'Show help, on a command or in general'").arg(kHelpWord)) +
        line(QStringLiteral("__fish_seen_subcommand_from ") + kHelpWord,
             QStringLiteral("-a ") + quoted(names.join(QLatin1Char(' '))));
    return script;
}

} // namespace trel::console
