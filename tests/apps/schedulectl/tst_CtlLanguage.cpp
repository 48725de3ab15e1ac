#include "CtlFixture.h"
#include "support/TestProgram.h"
#include "support/TextKeys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QtTest>

#include <map>

namespace {

/// A translator's file, by key. It begins with nothing wrong in it.
class Translation
{
public:
    Translation()
    {
        for (const QString& key : textKeys()) {
            m_texts[key] = key.left(3) + QString::number(m_texts.size());
        }
        m_texts[QStringLiteral("zhToStr")] = QStringLiteral("a");
        m_texts[QStringLiteral("zhPlanTimeStr")] = QStringLiteral("N ");
    }

    QString& operator[](const char* key) { return m_texts[QString::fromLatin1(key)]; }
    void drop(const char* key) { m_texts.erase(QString::fromLatin1(key)); }
    /// Adds a message as it stands, behind the others.
    void addRaw(const QString& message) { m_raw += message; }

    QByteArray source() const
    {
        QString ts = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                                    "<TS version=\"2.1\" language=\"eo_EO\">\n<context>\n"
                                    "<name>SheduleWidgets</name>\n");
        for (const auto& [key, text] : m_texts) {
            ts += message(key, text);
        }
        return (ts + m_raw + QStringLiteral("</context>\n</TS>\n")).toUtf8();
    }

    static QString message(const QString& key, const QString& text, const QString& type = QString())
    {
        return QStringLiteral("<message><source>%1</source><comment>Widget</comment>"
                              "<translation%2>%3</translation></message>\n")
            .arg(key, type, text.toHtmlEscaped());
    }

private:
    std::map<QString, QString> m_texts;
    QString m_raw;
};

const QString kSource = QStringLiteral("eo_EO.ts");
const QString kCompiled = QStringLiteral("eo_EO.qm");

CtlResult check(const CtlFixture& fixture, const QString& file, bool json = false)
{
    QStringList arguments = {QStringLiteral("check-language"), file};
    if (json) {
        arguments.append(QStringLiteral("--json"));
    }
    return fixture.run(arguments);
}

CtlResult check(const Translation& translation)
{
    const CtlFixture fixture;
    fixture.writeFile(kSource, translation.source());
    return check(fixture, kSource);
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

void compile(const CtlFixture& fixture, const QStringList& options = {})
{
    QProcess process;
    process.start(QStringLiteral(LRELEASE),
                  options + QStringList{QStringLiteral("-silent"), fixture.path(kSource),
                                        QStringLiteral("-qm"), fixture.path(kCompiled)});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
}

} // namespace

class tst_CtlLanguage : public QObject
{
    Q_OBJECT

private slots:
    void theProjectsOwnLanguagesAreClean_data();
    void theProjectsOwnLanguagesAreClean();
    void aCleanFileEndsWithZero();
    void findingsAreListed_data();
    void findingsAreListed();
    void findingsStandInOrder();
    void whatTheLinguistKeepsOfFormerVersionsIsPassedOver();
    void otherContextsAreUnknown();
    void elementsMayBeNestedToAnyDepth();
    void compiledFilesAreRead();
    void compressedFilesAreRead();
    void filesThatDoNotNameTheirTextsAreRefused();
    void jsonHoldsTheFindings();
    void jsonOfACleanFile();
    void otherFilesAreRefused_data();
    void otherFilesAreRefused();
};

void tst_CtlLanguage::theProjectsOwnLanguagesAreClean_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder(QStringLiteral(LANGUAGE_SOURCE_DIR));
    const QStringList names = folder.entryList({QStringLiteral("*.ts")});
    QCOMPARE(names.size(), 10);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
}

void tst_CtlLanguage::theProjectsOwnLanguagesAreClean()
{
    QFETCH(QString, file);
    const CtlResult result = check(CtlFixture(), file);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.text(),
             QStringLiteral("%1 has all 56 texts, and nothing to put right.\n").arg(file));
    QCOMPARE(result.status, 0);
}

void tst_CtlLanguage::aCleanFileEndsWithZero()
{
    const CtlResult result = check(Translation());
    QCOMPARE(result.text(),
             QStringLiteral("eo_EO.ts has all 56 texts, and nothing to put right.\n"));
    QCOMPARE(result.status, 0);
    const CtlFixture fixture;
    const QString odd = QStringLiteral("50%2.ts");
    fixture.writeFile(odd, Translation().source());
    QCOMPARE(check(fixture, odd).text(),
             odd + QStringLiteral(" has all 56 texts, and nothing to put right.\n"));
}

void tst_CtlLanguage::findingsAreListed_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("finding");
    const auto row = [](const char* name, const Translation& translation, const char* finding) {
        QTest::newRow(name) << translation.source() << QString::fromUtf8(finding);
    };
    const auto raw = [](const QString& message) {
        Translation translation;
        translation.addRaw(message);
        return translation;
    };
    const auto with = [](const char* key, const char* text) {
        Translation translation;
        translation[key] = QString::fromUtf8(text);
        return translation;
    };
    Translation lacking;
    lacking.drop("zhCloseAct");
    row("missing", lacking, "missing zhCloseAct");
    row("unknown", raw(Translation::message(QStringLiteral("zhColour"), QStringLiteral("x"))),
        "unknown zhColour");
    row("empty", with("zhEnable", ""), "empty zhEnable");
    row("blank", with("zhEnable", "  "), "empty zhEnable");
    row("repeated", raw(Translation::message(QStringLiteral("zhEnable"), QStringLiteral("x"))),
        "repeated zhEnable 2 times");
    Translation unsure;
    unsure.drop("zhEnable");
    unsure.addRaw(Translation::message(QStringLiteral("zhEnable"), QStringLiteral("x"),
                                       QStringLiteral(" type=\"unfinished\"")));
    row("unfinished", unsure, "unfinished zhEnable");
    Translation days;
    days["szMondayStr"] = QStringLiteral("Ma");
    days["szTuesdayStr"] = QStringLiteral("Ma");
    row("same days", days, "same szTuesdayStr \"Ma\", as szMondayStr; the days have to differ");
    Translation menu;
    menu["zhCutCurrentProg"] = QStringLiteral("Up");
    menu["zhProgMoveUp"] = QStringLiteral("Up");
    row("same menu texts", menu,
        "same zhProgMoveUp \"Up\", as zhCutCurrentProg; the entries of the chooser's menu have to "
        "differ");
    row("comma", with("szMondayStr", "M,o"),
        "bad character szMondayStr a comma divides the list that it stands in");
    row("ampersand", with("zhCancelAct", "&Stop"),
        "bad character zhCancelAct a button would swallow the \"&\"");
    row("caption", with("zhToStr", "until"), "too long zhToStr \"until\" takes 26 px of 18");
    row("row title", with("zhPlanTimeStr", "Tasks "),
        "too long zhPlanTimeStr \" Tasks 99:\" takes 60 px of 54");
    row("choice", with("zhFreezeCurrentFrame", "保持显示当前画面"),
        "too long zhFreezeCurrentFrame \"保持显示当前画面\" takes 96 px of 93");
}

void tst_CtlLanguage::findingsAreListed()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, finding);
    const CtlFixture fixture;
    fixture.writeFile(kSource, source);
    const CtlResult result = check(fixture, kSource);
    QCOMPARE(findings(result), QStringList{finding});
    QCOMPARE(result.lines().first().simplified(), QStringLiteral("Finding Key"));
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 1);
    QCOMPARE(fixture.files(), QStringList{kSource});
}

void tst_CtlLanguage::findingsStandInOrder()
{
    Translation translation;
    translation["zhToStr"] = QStringLiteral("until");
    translation["zhEnable"] = QString();
    translation.drop("zhCloseAct");
    translation.drop("zhSchedulePlayStr");
    QCOMPARE(findings(check(translation)),
             (QStringList{QStringLiteral("missing zhSchedulePlayStr"),
                          QStringLiteral("missing zhCloseAct"), QStringLiteral("empty zhEnable"),
                          QStringLiteral("too long zhToStr \"until\" takes 26 px of 18")}));
}

void tst_CtlLanguage::whatTheLinguistKeepsOfFormerVersionsIsPassedOver()
{
    Translation translation;
    for (const char* type : {"obsolete", "vanished"}) {
        translation.addRaw(
            Translation::message(QStringLiteral("zhFormer"), QStringLiteral("x"),
                                 QStringLiteral(" type=\"%1\"").arg(QLatin1String(type))));
    }
    QCOMPARE(check(translation).status, 0);
}

void tst_CtlLanguage::otherContextsAreUnknown()
{
    Translation translation;
    translation.addRaw(
        QStringLiteral("<message><source>zhEnable</source>"
                       "<comment>Dialog</comment><translation>x</translation></message>"));
    QCOMPARE(findings(check(translation)),
             QStringList{QStringLiteral("unknown zhEnable in context \"SheduleWidgets\" with "
                                        "disambiguation \"Dialog\"")});
}

void tst_CtlLanguage::elementsMayBeNestedToAnyDepth()
{
    constexpr int depth = 200000;
    QString form = QStringLiteral("<message><source>deep</source><comment>Widget</comment>"
                                  "<translation><numerusform>a");
    form += QStringLiteral("<b>").repeated(depth) + QLatin1Char('c') +
            QStringLiteral("</b>").repeated(depth);
    form += QStringLiteral("d</numerusform></translation></message>\n");
    Translation translation;
    translation.addRaw(form);
    const CtlResult result = check(translation);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.text().contains(QStringLiteral("deep")),
             qPrintable(result.text() + result.err));
}

void tst_CtlLanguage::compiledFilesAreRead()
{
    const CtlFixture fixture;
    Translation translation;
    translation["szMondayStr"] = QStringLiteral("ĵaŭ");
    translation["szTuesdayStr"] = QStringLiteral("ĵaŭ");
    translation.drop("zhCloseAct");
    translation.addRaw(Translation::message(QStringLiteral("zhColour"), QStringLiteral("x")));
    fixture.writeFile(kSource, translation.source());
    compile(fixture);
    const CtlResult result = check(fixture, kCompiled);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, check(fixture, kSource).out);
    QCOMPARE(findings(result).size(), 3);
}

void tst_CtlLanguage::compressedFilesAreRead()
{
    const CtlFixture fixture;
    fixture.writeFile(kSource, Translation().source());
    compile(fixture, {QStringLiteral("-compress")});
    const CtlResult result = check(fixture, kCompiled);
    QCOMPARE(result.text(),
             QStringLiteral("eo_EO.qm has all 56 texts, and nothing to put right.\n"));
    QCOMPARE(result.status, 0);
}

void tst_CtlLanguage::filesThatDoNotNameTheirTextsAreRefused()
{
    const CtlFixture fixture;
    // One text, found by a hash alone.
    fixture.writeFile(kCompiled, QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd"
                                                     "42"
                                                     "00000008"
                                                     "00000001"
                                                     "00000000"
                                                     "69"
                                                     "00000008"
                                                     "03"
                                                     "00000002"
                                                     "0041"
                                                     "01"));
    const CtlResult result = check(fixture, kCompiled);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QByteArray());
    QCOMPARE(result.err, QStringLiteral("schedulectl: eo_EO.qm does not name all of its texts; its "
                                        "source file (.ts) does.\n"));
}

void tst_CtlLanguage::jsonHoldsTheFindings()
{
    const CtlFixture fixture;
    Translation translation;
    translation["zhToStr"] = QStringLiteral("until");
    translation.drop("zhCloseAct");
    fixture.writeFile(kSource, translation.source());
    const CtlResult result = check(fixture, kSource, true);
    QCOMPARE(result.status, 1);
    const QJsonArray expected = {
        QJsonObject{{QStringLiteral("kind"), QStringLiteral("missing")},
                    {QStringLiteral("key"), QStringLiteral("zhCloseAct")},
                    {QStringLiteral("text"), QString()}},
        QJsonObject{{QStringLiteral("kind"), QStringLiteral("tooLong")},
                    {QStringLiteral("key"), QStringLiteral("zhToStr")},
                    {QStringLiteral("text"), QStringLiteral("\"until\" takes 26 px of 18")}}};
    QCOMPARE(result.json(), (QJsonObject{{QStringLiteral("file"), fixture.path(kSource)},
                                         {QStringLiteral("findings"), expected}}));
}

void tst_CtlLanguage::jsonOfACleanFile()
{
    const CtlFixture fixture;
    fixture.writeFile(kSource, Translation().source());
    const CtlResult result = check(fixture, kSource, true);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.json()[QStringLiteral("findings")].toArray(), QJsonArray());
}

void tst_CtlLanguage::otherFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("notes") << QByteArray("Monday: lundo\n")
                           << QStringLiteral("not a language file");
    QTest::newRow("empty") << QByteArray() << QStringLiteral("not a language file");
    QTest::newRow("other XML") << QByteArray("<html></html>")
                               << QStringLiteral("not a language file");
    QTest::newRow("cut source") << Translation().source().left(900)
                                << QStringLiteral("damaged in line ");
    QTest::newRow("cut compiled file")
        << QByteArray("\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd\x42")
        << QStringLiteral("damaged, and the editor would not load it");
}

void tst_CtlLanguage::otherFilesAreRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const CtlFixture fixture;
    fixture.writeFile(kSource, content);
    const CtlResult result = check(fixture, kSource, true);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QByteArray());
    QVERIFY2(result.err.startsWith(QStringLiteral("schedulectl: eo_EO.ts is ")),
             qPrintable(result.err));
    QVERIFY2(result.err.contains(reason), qPrintable(result.err));

    const CtlResult missing = check(fixture, kCompiled);
    QCOMPARE(missing.status, 1);
    QCOMPARE(missing.err, QStringLiteral("schedulectl: eo_EO.qm does not exist.\n"));
    const CtlResult folder = check(fixture, QStringLiteral("."));
    QCOMPARE(folder.status, 1);
    QCOMPARE(folder.err, QStringLiteral("schedulectl: . is not a language file.\n"));
}

TREL_TEST(tst_CtlLanguage, QCoreApplication)
#include "tst_CtlLanguage.moc"
