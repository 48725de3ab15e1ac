#include "CtlFixture.h"
#include "support/TestProgram.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// How the program is called: help, misuse, and which database it works on.
class tst_CtlUse : public QObject
{
    Q_OBJECT

private slots:
    void generalHelpNamesEveryCommand();
    void commandHelp_data();
    void commandHelp();
    void versionIsOneLine();
    void misuseIsAnsweredWithAHint_data();
    void misuseIsAnsweredWithAHint();
    void readingNeverMakesADatabase_data();
    void readingNeverMakesADatabase();
    void otherFilesAreLeftAlone_data();
    void otherFilesAreLeftAlone();
    void usersOwnDatabaseIsTheDefault();
    void lostOutputIsNoticed_data();
    void lostOutputIsNoticed();
    void aLimitOfFileSizesIsToldLikeAFullDisk();
    void needsNoDesktop();

private:
    static void verifyRefused(const CtlResult& result, const QStringList& arguments,
                              const char* code);
};

namespace {

const QStringList& commandNames()
{
    static const QStringList names = {QStringLiteral("import"),
                                      QStringLiteral("programs"),
                                      QStringLiteral("show"),
                                      QStringLiteral("remove-program"),
                                      QStringLiteral("check"),
                                      QStringLiteral("export"),
                                      QStringLiteral("import-schedule"),
                                      QStringLiteral("check-language"),
                                      QStringLiteral("now"),
                                      QStringLiteral("timeline"),
                                      QStringLiteral("why"),
                                      QStringLiteral("where-used"),
                                      QStringLiteral("media-folder"),
                                      QStringLiteral("run")};
    return names;
}

QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The commands that want a database that exists, with what they need besides.
void addReadingCommands()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* command :
         {"programs", "programs --json", "show", "show --json", "check", "check --json",
          "export out.json", "export -", "remove-program 1", "now", "now --json",
          "timeline --from 08:00 --to 09:00", "why 1", "where-used 1", "run"}) {
        QTest::newRow(command) << words(command);
    }
}

} // namespace

void tst_CtlUse::generalHelpNamesEveryCommand()
{
    const CtlFixture fixture;
    const CtlResult help = fixture.run({QStringLiteral("--help")});
    QCOMPARE(help.status, 0);
    QCOMPARE(help.err, QString());
    for (const QString& name : commandNames()) {
        QVERIFY2(help.text().contains(QStringLiteral("\n  %1 ").arg(name)), qPrintable(name));
    }
    QVERIFY(help.text().contains(fixture.path(QStringLiteral("data/trel/schedule/schedule.db"))));
    QVERIFY(help.text().contains(QStringLiteral("Exit status:\n  0  done\n")));
    QCOMPARE(fixture.run({QStringLiteral("-h")}).out, help.out);
    QCOMPARE(fixture.files(), QStringList());
}

void tst_CtlUse::commandHelp_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : commandNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_CtlUse::commandHelp()
{
    QFETCH(QString, name);
    const CtlFixture fixture;
    const CtlResult help = fixture.run({name, QStringLiteral("--help")});
    QCOMPARE(help.status, 0);
    QCOMPARE(help.err, QString());
    QVERIFY(help.text().startsWith(QStringLiteral("Usage: schedulectl %1 [OPTION...]").arg(name)));
    QCOMPARE(help.text().contains(QStringLiteral("--database FILE")),
             name != QLatin1String("check-language"));
    for (const QString& line : help.lines()) {
        // The path of the default database is as long as it is.
        QVERIFY2(line.size() <= 80 || line.contains(QStringLiteral("schedule.db")),
                 qPrintable(line));
    }
    QCOMPARE(fixture.run({QStringLiteral("--help"), name}).out, help.out);
    QCOMPARE(fixture.files(), QStringList());
}

void tst_CtlUse::versionIsOneLine()
{
    const CtlResult version = CtlFixture().run({QStringLiteral("--version")});
    QCOMPARE(version.status, 0);
    const QRegularExpression expected(
        QStringLiteral("^schedulectl \\d+\\.\\d+\\.\\d+ "
                       "\\((commit [0-9a-f]{12}\\+?, )?Qt 5\\.\\d+\\.\\d+\\)\n$"));
    QVERIFY2(expected.match(version.text()).hasMatch(), version.out.constData());
}

void tst_CtlUse::misuseIsAnsweredWithAHint_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("helpOf");

    const auto row = [](const char* arguments, const char* sentence, const char* helpOf) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(sentence)
                                 << QString::fromUtf8(helpOf);
    };
    row("", "A command is missing.", "");
    row("--json", "A command is missing.", "");
    row("porgrams", "There is no command \"porgrams\". Did you mean \"programs\"?", "");
    row("--recursive", "There is no option \"--recursive\".", "");
    row("import", "The command \"import\" needs PATH....", "import ");
    row("import --recursive a", "There is no option \"--recursive\".", "import ");
    row("import a --database", "The option \"--database\" needs the name of a file.", "import ");
    row("programs all", "The command \"programs\" does not know what to do with \"all\".",
        "programs ");
    row("programs --database a --database b", "The option \"--database\" can be given only once.",
        "programs ");
    row("show 1", "The command \"show\" does not know what to do with \"1\".", "show ");
    row("check 1", "The command \"check\" does not know what to do with \"1\".", "check ");
    row("export", "The command \"export\" needs FILE.", "export ");
    row("export a b", "The command \"export\" does not know what to do with \"b\".", "export ");
    row("export --json a", "The command \"export\" has no option \"--json\".", "export ");
    row("import-schedule", "The command \"import-schedule\" needs FILE.", "import-schedule ");
    row("import-schedule a b",
        "The command \"import-schedule\" does not know what to do with \"b\".", "import-schedule ");
    row("export --media a b", "The command \"export\" has no option \"--media\".", "export ");
    row("check-language", "The command \"check-language\" needs FILE.", "check-language ");
    row("check-language a b", "The command \"check-language\" does not know what to do with \"b\".",
        "check-language ");
    row("check-language a --database b",
        "The command \"check-language\" has no option \"--database\".", "check-language ");
    row("timeline --from 08:00", "The command \"timeline\" needs the option \"--to MOMENT\".",
        "timeline ");
    row("now --at", "The option \"--at\" needs MOMENT.", "now ");
    row("show --at 08:00", "The command \"show\" has no option \"--at\".", "show ");
    row("why", "The command \"why\" needs PROGRAM.", "why ");
    row("remove-program", "The command \"remove-program\" needs INDEX....", "remove-program ");
    row("remove-program -1", "There is no option \"-1\".", "remove-program ");
    row("remove-program --json 1", "The command \"remove-program\" has no option \"--json\".",
        "remove-program ");
}

void tst_CtlUse::misuseIsAnsweredWithAHint()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, sentence);
    QFETCH(QString, helpOf);

    const CtlFixture fixture;
    const CtlResult result = fixture.run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(
        result.err,
        QStringLiteral("schedulectl: %1\nTry \"schedulectl %2--help\".\n").arg(sentence, helpOf));
    QCOMPARE(fixture.files(), QStringList());
}

/// There is no result, but a code for machines where they ask for one.
void tst_CtlUse::verifyRefused(const CtlResult& result, const QStringList& arguments,
                               const char* code)
{
    if (!arguments.contains(QStringLiteral("--json"))) {
        QCOMPARE(result.out, QByteArray());
        return;
    }
    const QJsonObject json = result.json();
    QCOMPARE(json.keys(), QStringList{QStringLiteral("error")});
    QCOMPARE(json[QStringLiteral("error")].toObject()[QStringLiteral("code")].toString(),
             QString::fromLatin1(code));
}

void tst_CtlUse::readingNeverMakesADatabase_data()
{
    addReadingCommands();
}

void tst_CtlUse::readingNeverMakesADatabase()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    const CtlResult missing = fixture.onDatabase(arguments);
    QCOMPARE(missing.status, 1);
    verifyRefused(missing, arguments, "fileMissing");
    QCOMPARE(missing.err, QStringLiteral("schedulectl: %1 does not exist. \"schedulectl import\" "
                                         "makes a database.\n")
                              .arg(fixture.database()));
    // The folder of the user's own database is not there either.
    const CtlResult own = fixture.run(arguments);
    QCOMPARE(own.status, 1);
    QVERIFY(own.err.contains(fixture.path(QStringLiteral("data/trel/schedule/schedule.db"))));
    QCOMPARE(fixture.files(), QStringList());
    QVERIFY(!QFileInfo::exists(fixture.path(QStringLiteral("data"))));
}

void tst_CtlUse::otherFilesAreLeftAlone_data()
{
    addReadingCommands();
    QTest::newRow("import") << words("import clip.wav");
    QTest::newRow("import-schedule") << words("import-schedule schedule.json");
    QTest::newRow("import-schedule --json") << words("import-schedule schedule.json --json");
}

void tst_CtlUse::otherFilesAreLeftAlone()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    fixture.writeClip(QStringLiteral("clip.wav"), 100);
    fixture.writeFile(QStringLiteral("schedule.json"),
                      R"({ "format": "trel-schedule", "version": 1, "tasks": [] })");
    const QByteArray notes(5000, 'n');
    fixture.writeFile(QStringLiteral("test.db"), notes);
    const QStringList before = fixture.files();

    const CtlResult result = fixture.onDatabase(arguments);
    QCOMPARE(result.status, 1);
    verifyRefused(result, arguments, "notADatabase");
    QVERIFY2(result.err.startsWith(QStringLiteral("schedulectl: ") + fixture.database()),
             qPrintable(result.err));
    QCOMPARE(fixture.fileContent(QStringLiteral("test.db")), notes);
    QCOMPARE(fixture.files(), before);
}

void tst_CtlUse::usersOwnDatabaseIsTheDefault()
{
    const CtlFixture fixture;
    fixture.writeClip(QStringLiteral("clip.wav"), 100);
    QCOMPARE(fixture.run(words("import clip.wav")).status, 0);
    const QString own = QStringLiteral("data/trel/schedule/schedule.db");
    QVERIFY(fixture.files().contains(own));
    const CtlResult listed = fixture.run(words("programs --json"));
    QCOMPARE(listed.status, 0);
    QCOMPARE(listed.json()[QStringLiteral("database")].toString(), fixture.path(own));
    QCOMPARE(fixture.run(words("programs --json --database=") + QStringList()).status, 2);
    QCOMPARE(fixture
                 .run({QStringLiteral("programs"), QStringLiteral("--json"),
                       QStringLiteral("--database"), own})
                 .out,
             listed.out);
}

void tst_CtlUse::lostOutputIsNoticed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("programs") << words("programs");
    QTest::newRow("show") << words("show --json");
    QTest::newRow("check") << words("check");
    QTest::newRow("now") << words("now");
    QTest::newRow("timeline") << words("timeline --from 2024-01-01 --to 2024-12-31 --plays");
    QTest::newRow("run") << words("run");
    QTest::newRow("export") << words("export -");
    QTest::newRow("help") << words("--help");
}

void tst_CtlUse::lostOutputIsNoticed()
{
    QFETCH(QStringList, arguments);
    const CtlFixture fixture;
    fixture.store({});
    const CtlResult result =
        fixture.runInto(QStringLiteral("/dev/full"),
                        arguments + QStringList{QStringLiteral("--database"), fixture.database()});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.err, QStringLiteral("schedulectl: The results could not all be written: No "
                                        "space left on device.\n"));
}

void tst_CtlUse::aLimitOfFileSizesIsToldLikeAFullDisk()
{
    const CtlFixture fixture;
    fixture.store({});
    QProcess process;
    process.start(QStringLiteral("sh"),
                  {QStringLiteral("-c"), QStringLiteral("ulimit -f 0; exec \"$0\" \"$@\""),
                   QStringLiteral(SCHEDULECTL), QStringLiteral("export"),
                   fixture.path(QStringLiteral("out.json")), QStringLiteral("--database"),
                   fixture.database()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().startsWith("schedulectl: "));
    QVERIFY(!QFile::exists(fixture.path(QStringLiteral("out.json"))));
}

void tst_CtlUse::needsNoDesktop()
{
    QProcess process;
    process.start(QStringLiteral("ldd"), {QStringLiteral(SCHEDULECTL)});
    QVERIFY(process.waitForFinished());
    const QString libraries = QString::fromLocal8Bit(process.readAllStandardOutput());
    QVERIFY(libraries.contains(QStringLiteral("libQt5Core")));
    QVERIFY(!libraries.contains(QStringLiteral("libQt5Gui")));
    QVERIFY(!libraries.contains(QStringLiteral("libQt5Widgets")));
}

TREL_TEST(tst_CtlUse, QCoreApplication)
#include "tst_CtlUse.moc"
