#include "CommandLine.h"

#include "common/DisplayText.h"
#include "text/SharedOptions.h"
#include "trelprogramschedule/catalogue/ShownAddress.h"

#include <algorithm>

using namespace trel::hosts;

namespace trel::console {

using trel::mediadispatch::shownAddress;

namespace {

QString named(std::string_view name)
{
    return QString::fromLatin1(name.data(), static_cast<int>(name.size()));
}

/// How many letters have to be added, taken away or changed to get from one word to the other.
int editDistance(const QString& a, const QString& b)
{
    std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i] = static_cast<int>(i);
    }
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            const int changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[at];
            row[at] = std::min({changed, row[at] + 1, row[at - 1] + 1});
        }
    }
    return row.back();
}

/// Takes a command line apart, from the front to the back. The first thing that is not understood
/// is kept; help is given all the same when it was asked for.
class Reader
{
public:
    Reader(const QStringList& arguments, const std::vector<Command>& commands)
        : m_rest(arguments)
        , m_commands(commands)
    {}

    CommandLine read()
    {
        while (!m_rest.isEmpty()) {
            const QString word = m_rest.takeFirst();
            if (!m_optionsEnded && word.startsWith(QLatin1Char('-')) && word.size() > 1) {
                readOption(word);
            } else {
                readWord(word);
            }
        }
        m_line.wish = wish();
        return m_line;
    }

private:
    void readOption(const QString& word)
    {
        const int equals = word.indexOf(QLatin1Char('='));
        const QString name = word.left(equals);
        if (word == QLatin1String("--")) {
            m_optionsEnded = true;
        } else if (name == QLatin1String("--database")) {
            readDatabase(equals < 0 ? takeValue() : word.mid(equals + 1));
        } else if (word == QLatin1String("--json")) {
            m_line.invocation.json = true;
        } else if (const CommandOption* own = ownOption(name);
                   own != nullptr && !(own->value.empty() && equals >= 0)) {
            readOwnOption(*own, word, equals);
        } else if (word == QLatin1String("--help") || word == QLatin1String("-h")) {
            m_wantsHelp = true;
        } else if (word == QLatin1String("--version")) {
            m_wantsVersion = true;
        } else {
            misuse(QStringLiteral("There is no option %1.%2")
                       .arg(inQuotes(name), optionSuggestion(name)));
        }
    }

    /// Of the options that the command has where it is known, and otherwise of all. A short word is
    /// no slip of the fingers, and neither is a value behind an option that has none.
    QString optionSuggestion(const QString& name) const
    {
        std::vector<std::string_view> candidates;
        const auto add = [&candidates](const std::vector<CommandOption>& options) {
            for (const CommandOption& option : options) {
                candidates.push_back(option.name);
            }
        };
        if (m_line.command != nullptr) {
            add(optionsOf(*m_line.command));
        } else {
            add(generalOptions());
            for (const Command& command : m_commands) {
                add(command.options);
            }
        }
        const bool isKnown =
            std::any_of(candidates.begin(), candidates.end(),
                        [&name](std::string_view known) { return named(known) == name; });
        return name.startsWith(QLatin1String("--")) && !isKnown ? nearest(name, candidates)
                                                                : QString();
    }

    /// The option of this name that some command has. Which one is meant may not be known yet.
    const CommandOption* ownOption(const QString& name) const
    {
        for (const Command& command : m_commands) {
            const CommandOption* const option = optionOf(command, name);
            if (option != nullptr) {
                return option;
            }
        }
        return nullptr;
    }

    static const CommandOption* optionOf(const Command& command, const QString& name)
    {
        const auto found = std::find_if(
            command.options.begin(), command.options.end(),
            [&name](const CommandOption& option) { return named(option.name) == name; });
        return found == command.options.end() ? nullptr : &*found;
    }

    void readOwnOption(const CommandOption& option, const QString& word, int equals)
    {
        const QString name = named(option.name);
        QString value;
        if (!option.value.empty()) {
            value = equals < 0 ? takeValue() : word.mid(equals + 1);
            if (value.isEmpty()) {
                misuse(QStringLiteral("The option %1 needs %2.")
                           .arg(inQuotes(name), named(option.value)));
            }
        }
        if (!m_line.invocation.options.try_emplace(name, value).second) {
            misuse(QStringLiteral("The option %1 can be given only once.").arg(inQuotes(name)));
        }
    }

    /// The word behind an option; empty when there is none or it is an option itself.
    QString takeValue()
    {
        const bool isOption = !m_rest.isEmpty() && m_rest.first().startsWith(QLatin1String("--"));
        return m_rest.isEmpty() || isOption ? QString() : m_rest.takeFirst();
    }

    void readDatabase(const QString& file)
    {
        if (file.isEmpty()) {
            misuse(QStringLiteral("The option \"--database\" needs the name of a file."));
        } else if (!m_line.invocation.database.isEmpty()) {
            misuse(QStringLiteral("The option \"--database\" can be given only once."));
        }
        m_line.invocation.database = file;
    }

    void readWord(const QString& word)
    {
        if (m_line.command != nullptr || m_isCommandUnknown) {
            m_line.invocation.arguments.append(word);
            return;
        }
        if (word == kHelpWord) {
            m_wantsHelp = true;
            return;
        }
        const auto found =
            std::find_if(m_commands.begin(), m_commands.end(),
                         [&word](const Command& command) { return named(command.name) == word; });
        if (found != m_commands.end()) {
            m_line.command = &*found;
            return;
        }
        m_isCommandUnknown = true;
        misuse(QStringLiteral("There is no command %1.%2")
                   .arg(inQuotes(shownAddress(word)), suggestion(word)));
    }

    QString suggestion(const QString& word) const
    {
        std::vector<std::string_view> candidates;
        for (const Command& command : m_commands) {
            candidates.push_back(command.name);
        }
        return nearest(word, candidates);
    }

    /// A question for the candidate that is nearest to a word; empty where none is near.
    static QString nearest(const QString& word, const std::vector<std::string_view>& candidates)
    {
        constexpr int tooFar = 3;
        int least = tooFar;
        QString best;
        for (const std::string_view candidate : candidates) {
            const int distance = editDistance(word, named(candidate));
            if (distance < least) {
                least = distance;
                best = QStringLiteral(" Did you mean \"%1\"?").arg(named(candidate));
            }
        }
        return best;
    }

    CommandLine::Wish wish()
    {
        if (m_wantsHelp && !m_isCommandUnknown) {
            return CommandLine::Wish::ShowHelp;
        }
        if (m_line.misuse.isEmpty() && m_wantsVersion) {
            return CommandLine::Wish::ShowVersion;
        }
        if (m_line.misuse.isEmpty()) {
            checkUse();
        }
        return m_line.misuse.isEmpty() ? CommandLine::Wish::RunCommand : CommandLine::Wish::Misuse;
    }

    void checkUse()
    {
        if (m_line.command == nullptr) {
            misuse(QStringLiteral("A command is missing."));
            return;
        }
        const Command& command = *m_line.command;
        const QString name = inQuotes(named(command.name));
        const QStringList& arguments = m_line.invocation.arguments;
        if (m_line.invocation.json && !command.hasJson) {
            misuse(QStringLiteral("The command %1 has no option \"--json\".").arg(name));
        } else if (!m_line.invocation.database.isEmpty() && !command.hasDatabase) {
            misuse(QStringLiteral("The command %1 has no option \"--database\".").arg(name));
        } else if (const QString foreign = foreignOption(command); !foreign.isEmpty()) {
            misuse(QStringLiteral("The command %1 has no option %2.").arg(name, inQuotes(foreign)));
        } else if (arguments.size() < command.leastArguments) {
            misuse(QStringLiteral("The command %1 needs %2.").arg(name, named(command.arguments)));
        } else if (command.mostArguments != Command::kAnyNumber &&
                   arguments.size() > command.mostArguments) {
            misuse(QStringLiteral("The command %1 does not know what to do with %2.")
                       .arg(name, inQuotes(shownAddress(arguments[command.mostArguments]))));
        } else if (arguments.contains(QString())) {
            misuse(QStringLiteral("An argument of the command %1 is empty.").arg(name));
        } else {
            checkRequiredOptions(command);
        }
    }

    /// The first option that was given and that belongs to other commands only.
    QString foreignOption(const Command& command) const
    {
        for (const auto& [option, value] : m_line.invocation.options) {
            if (optionOf(command, option) == nullptr) {
                return option;
            }
        }
        return {};
    }

    void checkRequiredOptions(const Command& command)
    {
        for (const CommandOption& option : command.options) {
            const QString name = named(option.name);
            if (option.isRequired && m_line.invocation.options.count(name) == 0) {
                misuse(QStringLiteral("The command %1 needs the option \"%2 %3\".")
                           .arg(inQuotes(named(command.name)), name, named(option.value)));
            }
        }
    }

    void misuse(const QString& sentence)
    {
        if (m_line.misuse.isEmpty()) {
            m_line.misuse = sentence;
        }
    }

    QStringList m_rest;
    const std::vector<Command>& m_commands;
    CommandLine m_line;
    bool m_optionsEnded = false;
    bool m_wantsHelp = false;
    bool m_wantsVersion = false;
    bool m_isCommandUnknown = false;
};

} // namespace

CommandLine CommandLine::read(const QStringList& arguments, const std::vector<Command>& commands)
{
    return Reader(arguments, commands).read();
}

} // namespace trel::console
