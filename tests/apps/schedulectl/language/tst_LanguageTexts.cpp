#include "language/LanguageTexts.h"
#include "support/TestProgram.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace trel::console;

namespace {

/// The messages of a source file with this content, each as "group/context/key=form|form".
QStringList read(const QByteArray& xml, QString* error = nullptr)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("texts.ts"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size()) {
        return {QStringLiteral("cannot be written")};
    }
    file.close();
    const LanguageTexts texts = readLanguageTexts(path);
    if (error != nullptr) {
        *error = texts.error;
    }
    QStringList lines;
    for (const LanguageText& text : texts.texts) {
        lines.append(QStringLiteral("%1/%2/%3=%4%5%6")
                         .arg(text.group, text.context, text.key, text.forms.join(QLatin1Char('|')),
                              QLatin1String(text.isPlural ? " plural" : ""),
                              QLatin1String(text.isFinished ? "" : " unfinished")));
    }
    return lines;
}

QByteArray message(const char* inside, const char* attributes = "")
{
    return QByteArrayLiteral("<TS language='nl_NL'><context><name>G</name><message") + attributes +
           '>' + inside + "</message></context></TS>";
}

} // namespace

/// Source files of translators, as the Linguist writes them and as others do.
class tst_LanguageTexts : public QObject
{
    Q_OBJECT

private slots:
    void messages_data();
    void messages();
    void whatBelongsToOthersIsPassedOver();
    void damageIsTold_data();
    void damageIsTold();
    void filesThatAreNone();
};

void tst_LanguageTexts::messages_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const QByteArray& xml, const char* line) {
        QTest::newRow(name) << xml << QString::fromUtf8(line);
    };
    row("plain", message("<source>K</source><comment>C</comment><translation>T</translation>"),
        "G/C/K=T");
    row("no context", message("<source>K</source><translation>T</translation>"), "G//K=T");
    row("unfinished", message("<source>K</source><translation type='unfinished'>T</translation>"),
        "G//K=T unfinished");
    row("nothing", message("<source>K</source><translation/>"), "G//K=");
    row("forms",
        message("<source>K</source><translation><numerusform>one</numerusform>"
                "<numerusform>many</numerusform></translation>",
                " numerus='yes'"),
        "G//K=one|many plural");
    row("a plural that is none", message("<source>K</source>", " numerus='no'"), "G//K=");
    row("entities and comments",
        message("<source>K</source><translation>a&amp;b<!-- not this -->c&#100;</translation>"),
        "G//K=a&bcd");
    row("other elements in a message",
        message("<location line='7'/><source>K</source><extra>no<b>ne</b></extra>"
                "<translation>T</translation>"),
        "G//K=T");
    row("elements within a form",
        message("<source>K</source><translation><numerusform>a<x>b<y>c</y>d</x>e</numerusform>"
                "<numerusform>f<!-- no -->g</numerusform></translation>"),
        "G//K=abcde|fg");
}

void tst_LanguageTexts::messages()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, line);
    QString error;
    QCOMPARE(read(xml, &error), QStringList(line));
    QCOMPARE(error, QString());
}

void tst_LanguageTexts::whatBelongsToOthersIsPassedOver()
{
    const QByteArray texts =
        "<TS><dependencies><name>no</name></dependencies><context><name>G</name>"
        "<context>no</context><message><source>A</source><translation type='vanished'>no"
        "</translation></message><message><source>B</source><translation>b</translation></message>"
        "<message><source>C</source><translation type='obsolete'>no</translation></message>"
        "</context><context><name>H</name><message><source>D</source><translation>d</translation>"
        "</message></context></TS>";
    QString error;
    QCOMPARE(read(texts, &error),
             QStringList({QStringLiteral("G//B=b"), QStringLiteral("H//D=d")}));
    QCOMPARE(error, QString());
}

void tst_LanguageTexts::damageIsTold_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("error");
    const auto row = [](const char* name, const char* xml, const char* error) {
        QTest::newRow(name) << QByteArray(xml) << QString::fromUtf8(error);
    };
    row("nothing", "", "is not a language file");
    row("no XML", "key=text", "is not a language file");
    row("other XML", "<html/>", "is not a language file");
    row("ends in a translation", "<TS>\n<context><message><translation>a",
        "is damaged in line 2: ");
    row("ends in a form", "<TS>\n\n<context><message><translation><numerusform>a<b>c",
        "is damaged in line 3: ");
    row("ends in a message", "<TS><context><message>", "is damaged in line 1: ");
    row("crossed elements", "<TS><context><message><translation><a><b></a></b>",
        "is damaged in line 1: ");
}

void tst_LanguageTexts::damageIsTold()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, error);
    QString told;
    read(xml, &told);
    QVERIFY2(told.startsWith(error), qPrintable(told));
}

void tst_LanguageTexts::filesThatAreNone()
{
    const QTemporaryDir folder;
    QCOMPARE(readLanguageTexts(folder.filePath(QStringLiteral("none.ts"))).error,
             QStringLiteral("does not exist"));
    QCOMPARE(readLanguageTexts(folder.path()).error, QStringLiteral("is not a language file"));
    QCOMPARE(readLanguageTexts(QStringLiteral("/dev/null")).error,
             QStringLiteral("is not a language file"));
}

TREL_TEST(tst_LanguageTexts, trel::tests::NoApplication)
#include "tst_LanguageTexts.moc"
