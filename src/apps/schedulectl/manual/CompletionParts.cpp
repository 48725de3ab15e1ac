#include "CompletionParts.h"

#include "text/SharedOptions.h"

#include <QStringList>

#include <algorithm>

namespace trel::console {

QString latin(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

QString optionNames(const std::vector<CommandOption>& options)
{
    QStringList names;
    for (const CommandOption& option : options) {
        names.append(latin(option.name));
    }
    return names.join(QLatin1Char(' '));
}

std::vector<CommandOption> optionsWithValues(const std::vector<Command>& commands)
{
    std::vector<CommandOption> found;
    const auto take = [&found](const std::vector<CommandOption>& options) {
        for (const CommandOption& option : options) {
            const bool isKnown =
                std::any_of(found.begin(), found.end(), [&option](const CommandOption& known) {
                    return known.name == option.name;
                });
            if (!option.value.empty() && !isKnown) {
                found.push_back(option);
            }
        }
    };
    take(generalOptions());
    for (const Command& command : commands) {
        take(command.options);
    }
    return found;
}

QString shortMeaning(const CommandOption& option)
{
    QString text = latin(option.meaning).simplified();
    const int end = text.indexOf(QLatin1String(". "));
    text = text.left(end < 0 ? text.size() : end);
    while (text.endsWith(QLatin1Char('.')) || text.endsWith(QLatin1Char(':'))) {
        text.chop(1);
    }
    return text;
}

} // namespace trel::console
