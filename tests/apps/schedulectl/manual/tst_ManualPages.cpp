#include "Commands.h"
#include "manual/ConsolePage.h"
#include "manual/HelpPage.h"
#include "support/TestProgram.h"

#include <QCommandLineParser>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using namespace trel::console;

namespace {

const ManualPage::Package kPackage{QStringLiteral("1.2.3"), QStringLiteral("2024-03-31")};

ExitStatus doNothing(const Invocation& /*invocation*/, Console& /*console*/)
{
    return Done;
}

/// As the toolkit words it.
QString toolkitHelp()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Does what it's told.\n\nAnd ends."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("name-of-an-option-that-is-long"),
                      QStringLiteral("A meaning that does not stand in one line, since it has more "
                                     "words than fit into the column of the terminal."),
                      QStringLiteral("VALUE")});
    parser.addPositionalArgument(QStringLiteral("FILES"), QStringLiteral("What to do it with."),
                                 QStringLiteral("[FILES...]"));
    return parser.helpText();
}

} // namespace

class tst_ManualPages : public QObject
{
    Q_OBJECT

private slots:
    void textsAreEscaped();
    void paragraphsAndLists();
    void aCommandIsToldWhole();
    void everyCommandOfTheTable();
    void aPageOfTheToolkitsHelp();
    void anotherFormOfHelpIsRefused();
    void theFormatterHasNothingToSay_data();
    void theFormatterHasNothingToSay();

private:
    /// What stands behind the section of the name.
    static QString body(const ManualPage& page)
    {
        return page.page().section(QLatin1Char('\n'), 3);
    }
    static ManualPage emptyPage()
    {
        return ManualPage(QStringLiteral("do-it"), QStringLiteral("do it"), kPackage);
    }
};

void tst_ManualPages::textsAreEscaped()
{
    ManualPage page = emptyPage();
    QCOMPARE(page.page(),
             QStringLiteral(".TH DO-IT 1 2024-03-31 \"do-it 1.2.3\" \"User Commands\"\n"
                            ".SH NAME\ndo\\-it \\- do it\n"));
    page.text(QStringLiteral(".TH is no request here,\n'nor here: \\n \"--x\" ~ ^ `"));
    QCOMPARE(body(page),
             QStringLiteral("\\&.TH is no request here,\n"
                            "\\(aqnor here: \\(rsn \\(dq\\-\\-x\\(dq \\(ti \\(ha \\(ga\n"));
}

void tst_ManualPages::paragraphsAndLists()
{
    ManualPage page = emptyPage();
    page.text(
        QStringLiteral("One\nparagraph\n  - with an item\n    of two lines,\n  - and another\n"
                       "and its end.\n\nThe next."));
    QCOMPARE(body(page), QStringLiteral("One\nparagraph\n.IP \\(bu 2\nwith an item\nof two lines,\n"
                                        ".IP \\(bu 2\nand another\n.PP\nand its end.\n.PP\n"
                                        "The next.\n"));
}

void tst_ManualPages::aCommandIsToldWhole()
{
    const QString page =
        consolePage({{"take-in",
                      "PATH...",
                      1,
                      Command::kAnyNumber,
                      true,
                      "Take it in",
                      "All of it.",
                      doNothing,
                      true,
                      {{"--at", "MOMENT", "When.", true}, {"--loud", "", "With\nnoise."}}}},
                    kPackage);
    QVERIFY2(page.contains(QStringLiteral(
                 ".SS \\fBtake\\-in \\-\\-at \\fIMOMENT\\fB \\fR[\\fB\\-\\-loud\\fR]\\fB "
                 "\\fIPATH\\fB\\fR...\\fB\\fR\nTake it in.\n.PP\nAll of it.\n"
                 ".TP\n\\fB\\-\\-at \\fIMOMENT\\fB\\fR\nWhen.\n"
                 ".TP\n\\fB\\-\\-loud\\fR\nWith noise.\n"
                 ".PP\nHas the option \\-\\-json.\n")),
             qPrintable(page));
}

void tst_ManualPages::everyCommandOfTheTable()
{
    const QString page = consolePage(allCommands(), kPackage).remove(QLatin1Char('\\'));
    for (const Command& command : allCommands()) {
        QVERIFY2(page.contains(QStringLiteral(".SS fB") + QLatin1String(command.name.data())),
                 command.name.data());
        for (const CommandOption& option : command.options) {
            QVERIFY2(page.contains(
                         QStringLiteral(".TPnfB").replace(QLatin1Char('n'), QLatin1Char('\n')) +
                         QLatin1String(option.name.data())),
                     option.name.data());
        }
    }
    QVERIFY(page.contains(QStringLiteral("schedule.db")));
    // The folder of the one who builds is not that of the reader.
    QVERIFY(!page.contains(QDir::homePath() + QLatin1Char('/')));
}

void tst_ManualPages::aPageOfTheToolkitsHelp()
{
    const QString page = helpPage(QStringLiteral("do-it"), QStringLiteral("do it"), toolkitHelp(),
                                  QStringLiteral(".SH REST\nas it is\n"), kPackage);
    QVERIFY2(page.contains(QStringLiteral(
                 ".SH SYNOPSIS\n\\fBdo\\-it \\fR[\\fB\\fIOPTION\\fB\\fR...\\fB\\fR]\\fB ")),
             qPrintable(page));
    QVERIFY(page.contains(
        QStringLiteral(".SH DESCRIPTION\nDoes what it\\(aqs told.\n.PP\nAnd ends.\n")));
    QVERIFY(page.contains(
        QStringLiteral(".TP\n\\fB\\-\\-name\\-of\\-an\\-option\\-that\\-is\\-long "
                       "\\fIVALUE\\fB\\fR\nA meaning that does not stand in one line, since it has "
                       "more words than fit into the column of the terminal.\n")));
    QVERIFY(page.contains(QStringLiteral(".TP\n\\fB\\fIFILES\\fB\\fR\nWhat to do it with.\n")));
    QVERIFY(page.endsWith(QStringLiteral(".SH REST\nas it is\n")));
}

void tst_ManualPages::anotherFormOfHelpIsRefused()
{
    for (const char* help : {"", "do-it, a program", "Usage: do-it [options]\nNo options."}) {
        QCOMPARE(helpPage(QStringLiteral("do-it"), {}, QString::fromLatin1(help), {}, kPackage),
                 QString());
    }
}

void tst_ManualPages::theFormatterHasNothingToSay_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("console") << consolePage(allCommands(), kPackage);
    QTest::newRow("help") << helpPage(QStringLiteral("do-it"), QStringLiteral("do it"),
                                      toolkitHelp(), {}, kPackage);
}

void tst_ManualPages::theFormatterHasNothingToSay()
{
    QFETCH(QString, page);
    if (QStandardPaths::findExecutable(QStringLiteral("groff")).isEmpty()) {
        QSKIP("The formatter is not installed.");
    }
    QProcess formatter;
    formatter.start(QStringLiteral("groff"),
                    {QStringLiteral("-man"), QStringLiteral("-Kutf8"), QStringLiteral("-Tutf8"),
                     QStringLiteral("-ww"), QStringLiteral("-z"), QStringLiteral("-")});
    formatter.write(page.toUtf8());
    formatter.closeWriteChannel();
    QVERIFY(formatter.waitForFinished());
    QCOMPARE(QString::fromUtf8(formatter.readAllStandardError()), QString());
    QCOMPARE(formatter.exitCode(), 0);
}

TREL_TEST(tst_ManualPages, QCoreApplication)
#include "tst_ManualPages.moc"
