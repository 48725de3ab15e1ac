#include "CommandLine.h"
#include "Commands.h"
#include "LackOfMemory.h"
#include "common/VersionText.h"
#include "text/Console.h"
#include "text/HelpText.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <csignal>

using namespace trel::console;

namespace {

ExitStatus obey(const CommandLine& line, Console& console)
{
    switch (line.wish) {
    case CommandLine::Wish::RunCommand:
        return line.command->run(line.invocation, console);
    case CommandLine::Wish::ShowHelp:
        console.write(line.command == nullptr ? generalHelp(allCommands())
                                              : commandHelp(*line.command));
        return Done;
    case CommandLine::Wish::ShowVersion:
        console.writeLine(trel::hosts::versionText("schedulectl"));
        return Done;
    case CommandLine::Wish::Misuse:
        break;
    }
    console.tell(line.misuse);
    console.tellLine(helpHint(line.command));
    return Misused;
}

/// Lets no exception out: where memory has run out, nothing is unwound.
ExitStatus run(int& argc, char** argv) noexcept
{
    // A file that may not grow is refused like a full disk, with a message.
    std::signal(SIGXFSZ, SIG_IGN);
    // Arguments, names of files and output are in UTF-8, so that a script gives the same names
    // under the poor locale of a cron job as in a terminal.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QCoreApplication application(argc, argv);

    Console console;
    const CommandLine line = CommandLine::read(QCoreApplication::arguments().mid(1), allCommands());
    const ExitStatus status = obey(line, console);
    const QString lost = console.finish();
    if (!lost.isEmpty()) {
        console.tell(lost);
        return status == Done ? Refused : status;
    }
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    endWhereMemoryRunsOut();
    // Which ends a program by itself where memory runs out, and is of no use to one without
    // windows.
    qputenv("QT_NO_GLIB", "1");
    return run(argc, argv);
}
