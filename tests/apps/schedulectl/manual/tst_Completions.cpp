#include "Commands.h"
#include "manual/Completions.h"
#include "support/TestProgram.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using namespace trel::console;

namespace {

ExitStatus doNothing(const Invocation& /*invocation*/, Console& /*console*/)
{
    return Done;
}

/// Every kind of place that there is to complete.
const std::vector<Command>& commands()
{
    static const std::vector<Command> all = {
        {"take-in", "FILE|FOLDER...", 1, Command::kAnyNumber, true, "It's [in]: a file", "",
         doNothing},
        {"turn", "left|right", 1, 1, false, "Turn", "", doNothing, false},
        {"watch",
         "NAME",
         0,
         1,
         true,
         "Watch",
         "",
         doNothing,
         true,
         {{"--at", "MOMENT", "When; it's [now]: now. More."},
          {"--form", "day|week", "How."},
          {"--picture", "IMAGE", "What."},
          {"--loud", "", "Loudly."}}},
    };
    return all;
}

} // namespace

/// What the shells complete, as they carry it out.
class tst_Completions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void bash_data();
    void bash();
    void everyCommandOfTheTable_data();
    void everyCommandOfTheTable();
    void isUnderstood_data();
    void isUnderstood();
    void eachShellIsToldOfEveryOption();

private:
    QString file(const QString& name, const QString& contents) const;
    /// What a shell writes; the words are those of the command line, of which the last is
    /// completed.
    QStringList completed(const QString& script, const QStringList& words) const;

    QTemporaryDir m_folder;
};

void tst_Completions::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("here/films")));
    QVERIFY(!file(QStringLiteral("here/a film.mp4"), {}).isEmpty());
}

QString tst_Completions::file(const QString& name, const QString& contents) const
{
    QFile file(m_folder.filePath(name));
    const QByteArray bytes = contents.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

QStringList tst_Completions::completed(const QString& script, const QStringList& words) const
{
    const QString completion = file(QStringLiteral("completion"), script);
    QProcess shell;
    shell.setWorkingDirectory(m_folder.filePath(QStringLiteral("here")));
    shell.start(QStringLiteral("bash"),
                QStringList{QStringLiteral("--norc"), QStringLiteral("-uc"),
                            QStringLiteral("source \"$1\"; shift; COMP_WORDS=(schedulectl \"$@\"); "
                                           "COMP_CWORD=$#; _schedulectl; "
                                           "printf '%s\\n' \"${COMPREPLY[@]}\""),
                            QStringLiteral("bash"), completion} +
                    words);
    if (!shell.waitForFinished() || shell.exitCode() != 0) {
        return {QStringLiteral("failed: ") + QString::fromUtf8(shell.readAllStandardError())};
    }
    QStringList found = QString::fromUtf8(shell.readAllStandardOutput())
                            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    found.sort();
    return found;
}

void tst_Completions::bash_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("completed");

    const auto row = [](const char* words, const char* completed) {
        QTest::newRow(words) << QString::fromLatin1(words).split(QLatin1Char(' '))
                             << QString::fromLatin1(completed).split(QLatin1Char('|'),
                                                                     Qt::SkipEmptyParts);
    };
    row("", "help|take-in|turn|watch");
    row("t", "take-in|turn");
    row("w", "watch");
    row("x", "");
    row("--", "--|--database|--help|--json|--version");
    row("--json t", "take-in|turn");
    row("--database turn t", "take-in|turn");
    row("--database = turn t", "take-in|turn");
    row("help w", "watch");
    row("take-in ", "a film.mp4|films");
    row("take-in x a", "a film.mp4");
    row("take-in --", "--database|--help|--json");
    row("take-in -- -", "");
    row("-- t", "take-in|turn");
    row("turn ", "left|right");
    row("turn --", "--help");
    row("watch ", "");
    row("watch --l", "--loud");
    row("watch --at ", "");
    row("watch --form ", "day|week");
    row("watch --form =", "day|week");
    row("watch --form = w", "week");
    row("watch --picture a", "a film.mp4");
    row("--database ", "a film.mp4|films");
    row("--database =", "a film.mp4|films");
    row("watch --loud --f", "--form");
    row("watch -- --form ", "");
}

void tst_Completions::bash()
{
    QFETCH(QStringList, words);
    QTEST(completed(bashCompletion(commands()), words), "completed");
}

void tst_Completions::everyCommandOfTheTable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("options");
    for (const Command& command : allCommands()) {
        QStringList options = {QStringLiteral("--help")};
        for (const CommandOption& option : command.options) {
            options.append(QString::fromLatin1(option.name.data()));
        }
        QTest::newRow(command.name.data()) << QString::fromLatin1(command.name.data()) << options;
    }
}

void tst_Completions::everyCommandOfTheTable()
{
    QFETCH(QString, name);
    QFETCH(QStringList, options);
    const QString script = bashCompletion(allCommands());
    QVERIFY(completed(script, {name.left(name.size() - 1)}).contains(name));
    const QStringList found = completed(script, {name, QStringLiteral("--")});
    for (const QString& option : qAsConst(options)) {
        QVERIFY2(found.contains(option), qPrintable(option));
    }
}

void tst_Completions::isUnderstood_data()
{
    QTest::addColumn<QString>("shell");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("script");
    for (const auto& [name, table] :
         {std::pair("own", &commands()), std::pair("all", &allCommands())}) {
        const QString which = QString::fromLatin1(name);
        QTest::newRow(qPrintable(QStringLiteral("zsh, ") + which))
            << QStringLiteral("zsh") << QStringList{QStringLiteral("-n")} << zshCompletion(*table);
        QTest::newRow(qPrintable(QStringLiteral("fish, ") + which))
            << QStringLiteral("fish") << QStringList{QStringLiteral("--no-execute")}
            << fishCompletion(*table);
    }
}

void tst_Completions::isUnderstood()
{
    QFETCH(QString, shell);
    QFETCH(QStringList, options);
    QFETCH(QString, script);
    if (QStandardPaths::findExecutable(shell).isEmpty()) {
        QSKIP("The shell is not installed.");
    }
    QProcess parser;
    parser.start(shell, options + QStringList{file(QStringLiteral("parsed"), script)});
    QVERIFY(parser.waitForFinished());
    QCOMPARE(QString::fromUtf8(parser.readAllStandardError()), QString());
    QCOMPARE(parser.exitCode(), 0);
}

void tst_Completions::eachShellIsToldOfEveryOption()
{
    const QString zsh = zshCompletion(commands());
    QVERIFY(zsh.startsWith(QStringLiteral("#compdef schedulectl\n")));
    QVERIFY2(zsh.contains(QStringLiteral("    'take-in:It'\\''s \\[in\\]\\: a file'\n")),
             qPrintable(zsh));
    QVERIFY(zsh.contains(QStringLiteral("'--at=[When; it'\\''s \\[now\\]\\: now]:MOMENT: '")));
    QVERIFY(zsh.contains(QStringLiteral("'--form=[How]:day|week:(day week)'")));
    QVERIFY(zsh.contains(QStringLiteral("'--picture=[What]:IMAGE:_files'")));
    QVERIFY(zsh.contains(QStringLiteral("'1:left|right:(left right)'")));
    QVERIFY(zsh.contains(QStringLiteral("'*:FILE|FOLDER:_files'")));

    const QString fish = fishCompletion(commands());
    const QString seen = QStringLiteral("complete -c schedulectl -n '__fish_seen_subcommand_from ");
    QVERIFY(fish.contains(seen + QStringLiteral("watch' -l form -r -a 'day week' -d 'How'\n")));
    QVERIFY(fish.contains(seen + QStringLiteral("watch' -l picture -r -F -d 'What'\n")));
    QVERIFY(fish.contains(seen + QStringLiteral("watch' -l loud -d 'Loudly'\n")));
    QVERIFY(fish.contains(seen + QStringLiteral("take-in' -F\n")));
    QVERIFY(fish.contains(QStringLiteral("-a take-in -d 'It\\'s [in]: a file'\n")));
    QVERIFY(!fish.contains(seen + QStringLiteral("turn' -l json")));
}

TREL_TEST(tst_Completions, QCoreApplication)
#include "tst_Completions.moc"
