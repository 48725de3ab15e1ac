#include "CtlFixture.h"
#include "language/HostTexts.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QtTest>

using namespace trel::console;

namespace {

const QString kSource = QStringLiteral("host.ts");
/// Stands before its translation, which another text has too.
const QString kBlackScreen = QStringLiteral("<source>Black screen</source>\n        ");
const QString kCompiled = QStringLiteral("host.qm");

/// The project's own German file, which has nothing wrong in it.
QString german()
{
    QFile file(QStringLiteral(LANGUAGE_SOURCE_DIR "/host/schedule-editor_de_DE.ts"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(file.fileName()));
    }
    return QString::fromUtf8(file.readAll());
}

/// The same with something in it put differently.
QString changed(const QString& before, const QString& after)
{
    QString text = german();
    if (text.count(before) != 1) {
        qFatal("%d times: %s", text.count(before), qPrintable(before));
    }
    return text.replace(before, after);
}

QString translation(const char* text)
{
    return QStringLiteral("<translation>%1</translation>").arg(QString::fromUtf8(text));
}

CtlResult check(const CtlFixture& fixture, const QString& file)
{
    return fixture.run({QStringLiteral("check-language"), file});
}

/// The lines below the titles, with single blanks.
QStringList findings(const CtlResult& result)
{
    QStringList lines;
    const QStringList all = result.lines().mid(1);
    for (const QString& line : all) {
        lines.append(line.simplified());
    }
    return lines;
}

} // namespace

/// What the program finds in translations of the desktop host.
class tst_CtlHostLanguage : public QObject
{
    Q_OBJECT

private slots:
    void theProjectsOwnLanguagesAreClean_data();
    void theProjectsOwnLanguagesAreClean();
    void findingsAreListed_data();
    void findingsAreListed();
    void twoTextsOfOneNameAreNoRepetition();
    void formsOfOtherLanguagesAreLeftAlone();
    void compiledFilesAreRead();
    void jsonNamesTheKinds();
    void everyEntryStandsInOneMenu();
    void theEditorIsHeldToTheTermsToo();
};

void tst_CtlHostLanguage::theProjectsOwnLanguagesAreClean_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder(QStringLiteral(LANGUAGE_SOURCE_DIR "/host"));
    const QStringList names = folder.entryList({QStringLiteral("*.ts")});
    QCOMPARE(names.size(), 10);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
}

void tst_CtlHostLanguage::theProjectsOwnLanguagesAreClean()
{
    QFETCH(QString, file);
    const CtlResult result = check(CtlFixture(), file);
    QCOMPARE(result.err, QString());
    const QRegularExpression clean(
        QStringLiteral("^\\Q%1\\E has all (\\d+) texts, and nothing to put right\\.\n$").arg(file));
    const QRegularExpressionMatch match = clean.match(result.text());
    QVERIFY2(match.hasMatch(), result.out.constData());
    // English has the plurals alone.
    const bool isEnglish = file.contains(QLatin1String("en_US"));
    const QString mark = QStringLiteral("<message numerus=\"yes\">");
    QCOMPARE(match.captured(1).toInt(),
             german().count(isEnglish ? mark : QStringLiteral("<message")));
    QCOMPARE(result.status, 0);
}

void tst_CtlHostLanguage::findingsAreListed_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char* name, const QString& source, const char* finding) {
        QTest::newRow(name) << source << QString::fromUtf8(finding);
    };
    row("missing",
        changed(QStringLiteral("<message>\n        <source>Today</source>\n        "
                               "<translation>Heute</translation>\n    </message>"),
                QString()),
        "missing trel::desktop::week::WeekPanel: Today");
    row("unknown",
        changed(QStringLiteral("<name>HostPrompts</name>"),
                QStringLiteral("<name>HostPrompts</name><message><source>Yes</source>"
                               "<translation>Ja</translation></message>")),
        "unknown HostPrompts: Yes");
    row("repeated",
        changed(QStringLiteral("<name>HostPrompts</name>"),
                QStringLiteral("<name>HostPrompts</name><message><source>OK</source>"
                               "<translation>OK</translation></message>")),
        "repeated HostPrompts: OK");
    row("empty", changed(translation("Heute"), translation("")),
        "empty trel::desktop::week::WeekPanel: Today");
    row("unfinished",
        changed(translation("Heute"),
                QStringLiteral("<translation type=\"unfinished\">Heute</translation>")),
        "unfinished trel::desktop::week::WeekPanel: Today");
    row("lost place", changed(translation("noch %1"), translation("gleich")),
        "place mark trel::desktop::NowNextPanel: %1 left \"gleich\" has no mark for %1");
    row("invented place", changed(translation("Heute"), translation("Heute, %1")),
        "place mark trel::desktop::week::WeekPanel: Today \"Heute, %1\" has %1 for no mark");
    row("lost number",
        changed(QStringLiteral("%n weitere Pläne kommen nicht auf den Bildschirm."),
                QStringLiteral("Mehrere Pläne kommen nicht auf den Bildschirm.")),
        "place mark Week: %n more plans do not reach the screen. \"Mehrere Pläne kommen nicht auf "
        "den Bildschirm.\" has no mark for %n");
    row("lost form",
        changed(QStringLiteral(
                    "<numerusform>%n weiterer Plan kommt nicht auf den Bildschirm.</numerusform>"),
                QString()),
        "plural Week: %n more plans do not reach the screen. it has 1 of 2");
    row("no letter", changed(translation("&amp;Katalog"), translation("Katalog")),
        "letter trel::desktop::EditorWindow: Catal&og no letter chooses it");
    row("stray letter", changed(translation("Heute"), translation("&amp;Heute")),
        "letter trel::desktop::week::WeekPanel: Today an \"&\" stands where no menu is");
    row("clash", changed(translation("&amp;Katalog"), translation("Kata&amp;log")),
        "letter trel::desktop::undo::HistoryDock: &History \"L\", as trel::desktop::EditorWindow: "
        "Catal&og; in the menu \"View\" they have to differ");
    row("term",
        changed(kBlackScreen + translation("Schwarzbild"),
                kBlackScreen + translation("Schwarzer Bildschirm")),
        "term ScreenWords: Black screen \"Schwarzer Bildschirm\" for \"black screen\"; the word "
        "is "
        "\"Schwarzbild\"");
}

void tst_CtlHostLanguage::findingsAreListed()
{
    QFETCH(QString, source);
    QFETCH(QString, finding);
    const CtlFixture fixture;
    fixture.writeFile(kSource, source.toUtf8());
    const CtlResult result = check(fixture, kSource);
    QCOMPARE(findings(result), QStringList{finding});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 1);
}

void tst_CtlHostLanguage::twoTextsOfOneNameAreNoRepetition()
{
    const CtlFixture fixture;
    fixture.writeFile(kSource,
                      changed(QStringLiteral("<name>HostPrompts</name>"),
                              QStringLiteral("<name>HostPrompts</name><message><source>OK</source>"
                                             "<comment>at the end</comment>"
                                             "<translation>OK</translation></message>"))
                          .toUtf8());
    QCOMPARE(check(fixture, kSource).status, 0);
}

void tst_CtlHostLanguage::formsOfOtherLanguagesAreLeftAlone()
{
    const CtlFixture fixture;
    QString source =
        changed(QStringLiteral("language=\"de_DE\""), QStringLiteral("language=\"cy_GB\""));
    source.replace(
        QStringLiteral("<numerusform>%n weiterer Plan"),
        QStringLiteral("<numerusform>%n Plan</numerusform><numerusform>%n weiterer Plan"));
    fixture.writeFile(kSource, source.toUtf8());
    // Nothing is known of its words either.
    QCOMPARE(findings(check(fixture, kSource)).filter(QStringLiteral("plural")), QStringList());
    QCOMPARE(findings(check(fixture, kSource)).filter(QStringLiteral("term")), QStringList());
}

void tst_CtlHostLanguage::compiledFilesAreRead()
{
    const CtlFixture fixture;
    fixture.writeFile(kSource,
                      changed(translation("&amp;Katalog"), translation("Kata&amp;log")).toUtf8());
    QProcess process;
    process.start(QStringLiteral(LRELEASE), {QStringLiteral("-silent"), fixture.path(kSource),
                                             QStringLiteral("-qm"), fixture.path(kCompiled)});
    QVERIFY(process.waitForFinished());
    const CtlResult result = check(fixture, kCompiled);
    QCOMPARE(findings(result).size(), 1);
    QCOMPARE(result.out, check(fixture, kSource).out);
}

void tst_CtlHostLanguage::jsonNamesTheKinds()
{
    const CtlFixture fixture;
    QString source = changed(translation("noch %1"), translation("gleich"));
    source.replace(QStringLiteral("<numerusform>%n weiterer Plan kommt nicht auf den "
                                  "Bildschirm.</numerusform>"),
                   QString());
    source.replace(translation("&amp;Katalog"), translation("Katalog"));
    source.replace(kBlackScreen + translation("Schwarzbild"),
                   kBlackScreen + translation("schwarzer Bildschirm"));
    fixture.writeFile(kSource, source.toUtf8());
    const QJsonArray list =
        fixture.run({QStringLiteral("check-language"), kSource, QStringLiteral("--json")})
            .json()[QStringLiteral("findings")]
            .toArray();
    QStringList kinds;
    for (const QJsonValue& finding : list) {
        kinds.append(finding.toObject()[QStringLiteral("kind")].toString());
    }
    QCOMPARE(kinds, (QStringList{QStringLiteral("placeMark"), QStringLiteral("plural"),
                                 QStringLiteral("letter"), QStringLiteral("term")}));
}

void tst_CtlHostLanguage::everyEntryStandsInOneMenu()
{
    QStringList entries;
    for (const HostMenu& menu : hostMenus()) {
        entries += menu.entries;
    }
    QStringList lettered;
    for (const LanguageText& text : hostTexts()) {
        if (text.key.contains(QLatin1Char('&'))) {
            lettered.append(hostTextName(text));
        }
    }
    entries.sort();
    lettered.sort();
    QCOMPARE(entries, lettered);
}

void tst_CtlHostLanguage::theEditorIsHeldToTheTermsToo()
{
    const CtlFixture fixture;
    QFile file(QStringLiteral(LANGUAGE_SOURCE_DIR "/de_DE.ts"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    fixture.writeFile(kSource, file.readAll().replace(">Schwarzbild<", ">schwarzer Bildschirm<"));
    const QStringList found = findings(check(fixture, kSource));
    QVERIFY2(
        found.contains(QStringLiteral("term zhBlackScreen \"schwarzer Bildschirm\" for \"black "
                                      "screen\"; the word is \"Schwarzbild\"")),
        qPrintable(found.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_CtlHostLanguage)
#include "tst_CtlHostLanguage.moc"
