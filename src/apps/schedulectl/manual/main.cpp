#include "Commands.h"
#include "Completions.h"
#include "ConsolePage.h"
#include "HelpPage.h"

#include <QFile>
#include <QTextStream>

#include <cstdio>
#include <optional>

using namespace trel::console;

namespace {

const ManualPage::Package kPackage{QStringLiteral(TREL_VERSION), QStringLiteral(TREL_RELEASE_DATE)};

std::optional<QString> contents(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    return QString::fromUtf8(file.readAll());
}

/// What is asked for; empty where that is not understood.
QString made(const QStringList& arguments)
{
    const QString what = arguments.value(0);
    if (what == QLatin1String("bash")) {
        return bashCompletion(allCommands());
    }
    if (what == QLatin1String("zsh")) {
        return zshCompletion(allCommands());
    }
    if (what == QLatin1String("fish")) {
        return fishCompletion(allCommands());
    }
    if (what == QLatin1String("console-page")) {
        return consolePage(allCommands(), kPackage);
    }
    if (what == QLatin1String("help-page") && arguments.size() == 5) {
        const auto help = contents(arguments[3]);
        const auto rest = contents(arguments[4]);
        return help && rest ? helpPage(arguments[1], arguments[2], *help, *rest, kPackage)
                            : QString();
    }
    return {};
}

} // namespace

/// Writes a manual page or a completion to the standard output, for the build.
int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const QByteArray text = made(arguments).toUtf8();
    QFile out;
    if (text.isEmpty() || !out.open(stdout, QIODevice::WriteOnly) ||
        out.write(text) != text.size() || !out.flush()) {
        QTextStream(stderr) << "Usage: schedule-manual bash|zsh|fish|console-page\n"
                               "       schedule-manual help-page NAME PURPOSE HELP-FILE REST-FILE"
                            << Qt::endl;
        return 1;
    }
    return 0;
}
