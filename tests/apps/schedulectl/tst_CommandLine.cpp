#include "CommandLine.h"
#include "support/TestProgram.h"

#include <QtTest>

using namespace trel::console;

namespace {

ExitStatus doNothing(const Invocation& /*invocation*/, Console& /*console*/)
{
    return Done;
}

const std::vector<Command>& commands()
{
    static const std::vector<Command> all = {
        {"list", "", 0, 0, true, "", "", doNothing},
        {"take", "FILE", 1, 1, false, "", "", doNothing},
        {"gather", "PATH...", 1, Command::kAnyNumber, true, "", "", doNothing},
        {"watch",
         "",
         0,
         1,
         true,
         "",
         "",
         doNothing,
         true,
         {{"--at", "MOMENT", ""}, {"--loud", "", ""}}},
        {"span", "", 0, 0, true, "", "", doNothing, true, {{"--at", "MOMENT", "", true}}},
    };
    return all;
}

/// What was understood, as one line.
QString line(const CommandLine& read)
{
    QStringList parts;
    switch (read.wish) {
    case CommandLine::Wish::RunCommand:
        parts.append(QStringLiteral("run"));
        break;
    case CommandLine::Wish::ShowHelp:
        parts.append(QStringLiteral("help"));
        break;
    case CommandLine::Wish::ShowVersion:
        return QStringLiteral("version");
    case CommandLine::Wish::Misuse:
        return QStringLiteral("misuse: ") + read.misuse;
    }
    if (read.command != nullptr) {
        parts.append(QString::fromLatin1(read.command->name.data()));
    }
    if (!read.invocation.database.isEmpty()) {
        parts.append(QStringLiteral("database=") + read.invocation.database);
    }
    if (read.invocation.json) {
        parts.append(QStringLiteral("json"));
    }
    for (const QString& argument : read.invocation.arguments) {
        parts.append(QStringLiteral("<%1>").arg(argument));
    }
    for (const auto& [option, value] : read.invocation.options) {
        parts.append(value.isEmpty() ? option : QStringLiteral("%1=%2").arg(option, value));
    }
    return parts.join(QLatin1Char(' '));
}

} // namespace

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void read_data();
    void read();
};

void tst_CommandLine::read_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("understood");

    const auto row = [](const char* arguments, const char* understood) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments).split(QLatin1Char(' '))
                                 << QString::fromUtf8(understood);
    };
    row("list", "run list");
    row("list --json", "run list json");
    row("--json list", "run list json");
    row("list --database a.db", "run list database=a.db");
    row("--database a.db list", "run list database=a.db");
    row("list --database=a.db", "run list database=a.db");
    row("list --database=a=b.db", "run list database=a=b.db");
    row("list --database --json", "misuse: The option \"--database\" needs the name of a file.");
    row("list --database=--json", "run list database=--json");
    row("list --database=", "misuse: The option \"--database\" needs the name of a file.");
    row("list --database", "misuse: The option \"--database\" needs the name of a file.");
    row("list --database a --database b",
        "misuse: The option \"--database\" can be given only once.");
    row("take -", "run take <->");
    row("take x", "run take <x>");
    row("take", "misuse: The command \"take\" needs FILE.");
    row("take x y", "misuse: The command \"take\" does not know what to do with \"y\".");
    row("take --json x", "misuse: The command \"take\" has no option \"--json\".");
    row("take -- --json", "run take <--json>");
    row("take -- -- ", "misuse: The command \"take\" does not know what to do with \"\".");
    row("take --overwrite x", "misuse: There is no option \"--overwrite\".");
    row("take --overwrite=yes x", "misuse: There is no option \"--overwrite\".");
    row("take -x", "misuse: There is no option \"-x\".");
    row("take --json=yes x", "misuse: There is no option \"--json\".");
    // The same for options, of the command where it is known.
    row("take --jsno x", "misuse: There is no option \"--jsno\".");
    row("list --jsno", "misuse: There is no option \"--jsno\". Did you mean \"--json\"?");
    row("list --databas=a",
        "misuse: There is no option \"--databas\". Did you mean \"--database\"?");
    row("watch --luod", "misuse: There is no option \"--luod\". Did you mean \"--loud\"?");
    row("--luod watch", "misuse: There is no option \"--luod\". Did you mean \"--loud\"?");
    row("list --luod", "misuse: There is no option \"--luod\".");
    row("--verzion", "misuse: There is no option \"--verzion\". Did you mean \"--version\"?");
    row("list --j", "misuse: There is no option \"--j\".");
    row("list -json", "misuse: There is no option \"-json\".");
    row("gather", "misuse: The command \"gather\" needs PATH....");
    row("gather a b c", "run gather <a> <b> <c>");
    row("gather a --json b", "run gather json <a> <b>");
    row("gather list take", "run gather <list> <take>");
    row("list x", "misuse: The command \"list\" does not know what to do with \"x\".");
    row("lsit", "misuse: There is no command \"lsit\". Did you mean \"list\"?");
    row("gahter a", "misuse: There is no command \"gahter\". Did you mean \"gather\"?");
    // A letter more, less or other counts as one; three are too many.
    row("lists", "misuse: There is no command \"lists\". Did you mean \"list\"?");
    row("lisst", "misuse: There is no command \"lisst\". Did you mean \"list\"?");
    row("li", "misuse: There is no command \"li\". Did you mean \"list\"?");
    row("lxxt", "misuse: There is no command \"lxxt\". Did you mean \"list\"?");
    row("l", "misuse: There is no command \"l\".");
    row("listing", "misuse: There is no command \"listing\".");
    row("outlist", "misuse: There is no command \"outlist\".");
    row("lxxx", "misuse: There is no command \"lxxx\".");
    row("something else", "misuse: There is no command \"something\".");
    row("List", "misuse: There is no command \"List\". Did you mean \"list\"?");
    row("--help", "help");
    row("-h", "help");
    row("list --help", "help list");
    row("--help list", "help list");
    row("take --help", "help take");
    row("take --wrong --help", "help take");
    row("help", "help");
    row("help take", "help take");
    row("help take --wrong", "help take");
    row("help nothing", "misuse: There is no command \"nothing\".");
    row("take help", "run take <help>");
    row("-- help", "help");
    row("nothing --help", "misuse: There is no command \"nothing\".");
    row("--version", "version");
    row("list --version", "version");
    row("--version --wrong", "misuse: There is no option \"--wrong\".");
    row("--json", "misuse: A command is missing.");
    row("-- list", "run list");
    row("watch", "run watch");
    row("watch --at now", "run watch --at=now");
    row("watch --at=now", "run watch --at=now");
    row("--at now watch x", "run watch <x> --at=now");
    row("watch --at -x", "run watch --at=-x");
    row("watch --loud x --at now", "run watch <x> --at=now --loud");
    row("watch --at", "misuse: The option \"--at\" needs MOMENT.");
    row("watch --at --loud", "misuse: The option \"--at\" needs MOMENT.");
    row("watch --at=", "misuse: The option \"--at\" needs MOMENT.");
    row("watch --at a --at a", "misuse: The option \"--at\" can be given only once.");
    row("watch --loud --loud", "misuse: The option \"--loud\" can be given only once.");
    row("watch --loud=yes", "misuse: There is no option \"--loud\".");
    row("list --at now", "misuse: The command \"list\" has no option \"--at\".");
    row("--loud span --at now", "misuse: The command \"span\" has no option \"--loud\".");
    row("span", "misuse: The command \"span\" needs the option \"--at MOMENT\".");
    row("span --at now", "run span --at=now");
    row("watch -- --at", "run watch <--at>");

    QTest::newRow("nothing at all")
        << QStringList() << QStringLiteral("misuse: A command is missing.");
    QTest::newRow("empty argument")
        << QStringList{QStringLiteral("take"), QString()}
        << QStringLiteral("misuse: An argument of the command \"take\" is empty.");
    QTest::newRow("empty command")
        << QStringList{QString()} << QStringLiteral("misuse: There is no command \"\".");
    QTest::newRow("blanks and odd characters")
        << QStringList{QStringLiteral("gather"), QStringLiteral("a b"), QStringLiteral("\u65b0")}
        << QStringLiteral("run gather <a b> <\u65b0>");
    QTest::newRow("escapes in a message")
        << QStringList{QStringLiteral("\x1B[31m")}
        << QStringLiteral("misuse: There is no command \"\\x1b[31m\".");
}

void tst_CommandLine::read()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, understood);

    QCOMPARE(line(CommandLine::read(arguments, commands())), understood);
}

TREL_TEST(tst_CommandLine, trel::tests::NoApplication)
#include "tst_CommandLine.moc"
