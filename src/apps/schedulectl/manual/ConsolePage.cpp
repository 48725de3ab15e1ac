#include "ConsolePage.h"

#include "CommandLine.h"
#include "CompletionParts.h"
#include "text/SharedOptions.h"

namespace trel::console {

namespace {

const char* const kDatabase = "~/.local/share/trel/schedule/schedule.db";

QString term(const CommandOption& option)
{
    const QString name = latin(option.name);
    if (option.name == helpOption().name) {
        return QStringLiteral("-h, ") + name;
    }
    return option.value.empty() ? name : name + QLatin1Char(' ') + latin(option.value);
}

void addOption(ManualPage& page, const CommandOption& option)
{
    QString meaning = latin(option.meaning);
    if (option.name == databaseOption().name) {
        meaning += QStringLiteral(" %1.").arg(QLatin1String(kDatabase));
    }
    page.item(term(option), meaning);
}

void addCommand(ManualPage& page, const Command& command)
{
    QString usage = latin(command.name);
    for (const CommandOption& own : command.options) {
        usage +=
            QLatin1Char(' ') + (own.isRequired ? term(own) : QStringLiteral("[%1]").arg(term(own)));
    }
    if (!command.arguments.empty()) {
        usage += QLatin1Char(' ') + latin(command.arguments);
    }
    page.subsection(usage);
    page.text(latin(command.summary) + QStringLiteral(".\n\n") + latin(command.help));
    for (const CommandOption& own : command.options) {
        addOption(page, own);
    }
    if (command.hasJson) {
        page.text(QStringLiteral("\nHas the option %1.").arg(latin(jsonOption().name)));
    }
}

} // namespace

QString consolePage(const std::vector<Command>& commands, const ManualPage::Package& package)
{
    ManualPage page(QStringLiteral("schedulectl"),
                    QStringLiteral("manage the play schedule of media screens"), package);
    page.section(QStringLiteral("SYNOPSIS"));
    page.usage(QStringLiteral("schedulectl [OPTION...] COMMAND [ARGUMENT...]"));
    page.raw(QStringLiteral(".br\n"));
    page.usage(QStringLiteral("schedulectl %1 [COMMAND]").arg(kHelpWord));
    page.section(QStringLiteral("DESCRIPTION"));
    page.text(QStringLiteral("Looks after a schedule database from a terminal or a script: it "
                             "fills the catalog of programs, shows and checks the schedule, puts "
                             "it into effect, and tells what is on screen.\n\n"
                             "Options may come before or after the command."));
    page.section(QStringLiteral("COMMANDS"));
    for (const Command& command : commands) {
        addCommand(page, command);
    }
    page.section(QStringLiteral("OPTIONS"));
    for (const CommandOption& option : generalOptions()) {
        addOption(page, option);
    }
    page.section(QStringLiteral("EXIT STATUS"));
    page.item(QStringLiteral("0"), QStringLiteral("Done."));
    page.item(QStringLiteral("1"),
              QStringLiteral("Refused: understood, but not all of it could be done."));
    page.item(QStringLiteral("2"), QStringLiteral("Misused: the command line was not understood, "
                                                  "and nothing was done."));
    page.section(QStringLiteral("FILES"));
    page.item(QLatin1String(kDatabase), QStringLiteral("The user's own schedule, in "
                                                       "$XDG_DATA_HOME where that is set."));
    page.item(QLatin1String(kDatabase) + QStringLiteral("-as-run"),
              QStringLiteral("What was on the screens of this schedule, beside each database."));
    page.section(QStringLiteral("SEE ALSO"));
    page.raw(QStringLiteral(".BR schedule\\-editor (1),\n.BR schedule\\-player (1)\n"));
    return page.page();
}

} // namespace trel::console
