#include "QmBytes.h"
#include "support/TextKeys.h"
#include "tstranslate/LanguageFile.h"
#include "tstranslate/Translator.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using tessark::trans::Translator;

namespace {

const QString kGroup = QStringLiteral("G");
const QString kContext = QStringLiteral("C");

QString textOf(const Translator& translator, const char* key)
{
    return translate(translator, kGroup, kContext, QString::fromLatin1(key));
}

QmBytes chinese()
{
    return QmBytes()
        .language(QByteArrayLiteral("zh_CN"))
        .text(QByteArrayLiteral("ok"), QStringLiteral("确定"))
        .text(QByteArrayLiteral("cancel"), QStringLiteral("取消"))
        .text(QByteArrayLiteral("delete"), QStringLiteral("删除"));
}

QmBytes english()
{
    return QmBytes()
        .language(QByteArrayLiteral("en_US"))
        .text(QByteArrayLiteral("ok"), QStringLiteral("OK"))
        .text(QByteArrayLiteral("delete"), QString());
}

} // namespace

class TestTranslator : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsInChinese();
    void showsTheKeyWithNoLanguage();
    void looksUpInTheSelectedLanguage();
    void fallsBackToChinese_data();
    void fallsBackToChinese();
    void keepsGroupsAndContextsApart();
    void takesANameBeforeItsFile();
    void laterFileReplacesALanguage();
    void namesALanguageAfterItsFile();
    void readsWhatTheCompilerWrites_data();
    void readsWhatTheCompilerWrites();
    void namesAllTextsOfAFile();
    void readsTheFormsOfAPlural();
    void saysWhichTextsHaveNoKey();
    void readsTextsInAllScripts();
    void refuses_data();
    void refuses();
    void refusesWhatIsNoFile();
    void refusesTheTextsOfAnotherProgram();
    void survivesItsFile();
    void refusesFilesCutShort_data();
    void refusesFilesCutShort();
    void survivesFlippedBytes_data();
    void survivesFlippedBytes();

private:
    QString write(const QByteArray& bytes, const QString& name = QStringLiteral("language.qm"));
    /// The key-and-text lines of a real language file.
    QStringList textsOf(const Translator& translator) const;

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestTranslator::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

QString TestTranslator::write(const QByteArray& bytes, const QString& name)
{
    QFile file(m_dir->filePath(name));
    // Some file systems flush a file to the disk that is emptied and written again.
    file.remove();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    return file.fileName();
}

QStringList TestTranslator::textsOf(const Translator& translator) const
{
    QStringList texts;
    for (const QString& key : textKeys()) {
        texts.append(
            translate(translator, QStringLiteral("SheduleWidgets"), QStringLiteral("Widget"), key));
    }
    return texts;
}

void TestTranslator::startsInChinese()
{
    const Translator translator;
    QCOMPARE(translator.language(), QStringLiteral("zh_CN"));
}

void TestTranslator::showsTheKeyWithNoLanguage()
{
    const Translator translator;
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("ok"));
    QCOMPARE(translate(translator, kGroup, kContext, QString()), QString());
}

void TestTranslator::looksUpInTheSelectedLanguage()
{
    Translator translator;
    QVERIFY(translator.load(write(chinese().bytes())));
    QVERIFY(translator.load(write(english().bytes())));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("确定"));
    translator.switchLanguage(QStringLiteral("en_US"));
    QCOMPARE(translator.language(), QStringLiteral("en_US"));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("OK"));
    translator.switchLanguage(QStringLiteral("zh_CN"));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("确定"));
}

void TestTranslator::fallsBackToChinese_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("text");
    const QString english = QStringLiteral("en_US");
    QTest::newRow("missing") << english << QByteArrayLiteral("cancel") << QStringLiteral("取消");
    QTest::newRow("empty") << english << QByteArrayLiteral("delete") << QStringLiteral("删除");
    QTest::newRow("in neither") << english << QByteArrayLiteral("other") << QStringLiteral("other");
    QTest::newRow("language not loaded")
        << QStringLiteral("fr_FR") << QByteArrayLiteral("ok") << QStringLiteral("确定");
    QTest::newRow("no language") << QString() << QByteArrayLiteral("ok") << QStringLiteral("确定");
}

void TestTranslator::fallsBackToChinese()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, key);
    QFETCH(QString, text);
    Translator translator;
    QVERIFY(translator.load(write(english().bytes())));
    QVERIFY(translator.load(write(chinese().bytes())));
    translator.switchLanguage(language);
    QCOMPARE(textOf(translator, key.constData()), text);
}

void TestTranslator::keepsGroupsAndContextsApart()
{
    const QByteArray key = QByteArrayLiteral("k");
    Translator translator;
    QVERIFY(translator.load(write(
        QmBytes()
            .language(QByteArrayLiteral("zh_CN"))
            .text(key, QStringLiteral("one"), QByteArrayLiteral("G"), QByteArrayLiteral("C"))
            .text(key, QStringLiteral("two"), QByteArrayLiteral("H"), QByteArrayLiteral("C"))
            .text(key, QStringLiteral("three"), QByteArrayLiteral("G"), QByteArrayLiteral("D"))
            .bytes())));
    const auto look = [&](const char* group, const char* context) {
        return translate(translator, QString::fromLatin1(group), QString::fromLatin1(context),
                         QStringLiteral("k"));
    };
    QCOMPARE(look("G", "C"), QStringLiteral("one"));
    QCOMPARE(look("H", "C"), QStringLiteral("two"));
    QCOMPARE(look("G", "D"), QStringLiteral("three"));
    QCOMPARE(look("H", "D"), QStringLiteral("k"));
    QCOMPARE(look("I", "C"), QStringLiteral("k"));
}

void TestTranslator::takesANameBeforeItsFile()
{
    Translator translator;
    translator.switchLanguage(QStringLiteral("en_US"));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("ok"));
    QVERIFY(translator.load(write(english().bytes())));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("OK"));
}

void TestTranslator::laterFileReplacesALanguage()
{
    Translator translator;
    QVERIFY(translator.load(write(chinese().bytes())));
    QVERIFY(translator.load(write(QmBytes()
                                      .language(QByteArrayLiteral("zh_CN"))
                                      .text(QByteArrayLiteral("ok"), QStringLiteral("好"))
                                      .bytes())));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("好"));
    QCOMPARE(textOf(translator, "cancel"), QStringLiteral("cancel"));
}

void TestTranslator::namesALanguageAfterItsFile()
{
    Translator translator;
    QVERIFY(translator.load(
        write(QmBytes().text(QByteArrayLiteral("ok"), QStringLiteral("In Ordnung")).bytes(),
              QStringLiteral("de_DE.qm"))));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("ok"));
    translator.switchLanguage(QStringLiteral("de_DE"));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("In Ordnung"));
}

void TestTranslator::readsWhatTheCompilerWrites_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("as it is") << QStringLiteral(PLAIN_LANGUAGE_FILE);
    QTest::newRow("compressed") << QStringLiteral(COMPRESSED_LANGUAGE_FILE);
}

void TestTranslator::readsWhatTheCompilerWrites()
{
    QFETCH(QString, file);
    Translator translator;
    QVERIFY(translator.load(file));
    translator.switchLanguage(QStringLiteral("nl_NL"));
    const auto look = [&](const char* group, const char* context, const char* key) {
        return translate(translator, QString::fromLatin1(group), QString::fromLatin1(context),
                         QString::fromLatin1(key));
    };
    QCOMPARE(look("SheduleWidgets", "Widget", "zhFixAct"), QStringLiteral("Goed"));
    QCOMPARE(look("SheduleWidgets", "Widget", "zhCancelAct"), QStringLiteral("Afbreken"));
    QCOMPARE(look("SheduleWidgets", "Title", "zhCancelAct"), QStringLiteral("Sluiten"));
    QCOMPARE(look("Other", "Widget", "zhCancelAct"), QStringLiteral("Weg ermee"));
    QCOMPARE(look("SheduleWidgets", "Widget", "untranslated"), QStringLiteral("untranslated"));
}

void TestTranslator::namesAllTextsOfAFile()
{
    const QByteArray bytes = chinese().text(QByteArrayLiteral("new"), QString(), "H", "").bytes();
    const auto file = tessark::trans::readLanguageFile(write(bytes));
    QVERIFY(file);
    QCOMPARE(file->bytes, bytes);
    QVERIFY(tessark::trans::isLanguageFile(bytes.left(tessark::trans::kLanguageFileMagicSize)));
    QVERIFY(!tessark::trans::isLanguageFile(bytes.mid(1)));
    QCOMPARE(file->language, QStringLiteral("zh_CN"));
    QStringList texts;
    for (const tessark::trans::LanguageMessage& message : file->messages) {
        QVERIFY(message.hasKey);
        texts.append(QStringList{message.group, message.context, message.key,
                                 message.forms.join(QLatin1Char('|'))}
                         .join(QLatin1Char(' ')));
    }
    QCOMPARE(texts, QStringList({QStringLiteral("G C ok 确定"), QStringLiteral("G C cancel 取消"),
                                 QStringLiteral("G C delete 删除"), QStringLiteral("H  new ")}));
}

void TestTranslator::readsTheFormsOfAPlural()
{
    const QByteArray forms = QmBytes::field(3, QByteArray::fromHex("0041")) +
                             QmBytes::field(3, QByteArray::fromHex("00420043"));
    const QmBytes plural = QmBytes().record("n", "", forms + QmBytes::field(6, "n") + '\x01');
    const auto file = tessark::trans::readLanguageFile(write(plural.bytes()));
    QVERIFY(file);
    QCOMPARE(file->messages.front().forms,
             QStringList({QStringLiteral("A"), QStringLiteral("BC")}));
}

void TestTranslator::saysWhichTextsHaveNoKey()
{
    const QByteArray form = QmBytes::field(3, QByteArray::fromHex("0041"));
    const QmBytes nameless = QmBytes().record("n", "", form + '\x01');
    const auto file = tessark::trans::readLanguageFile(write(nameless.bytes()));
    QVERIFY(file);
    QCOMPARE(file->messages.front().hasKey, false);
    QCOMPARE(file->language, QString());
}

void TestTranslator::readsTextsInAllScripts()
{
    const QString text = QStringLiteral("é ß 播放 \U0001F3AC %1 & <b>");
    Translator translator;
    QVERIFY(translator.load(write(QmBytes()
                                      .language(QByteArrayLiteral("zh_CN"))
                                      .text(QByteArrayLiteral("schl\xc3\xbcssel"), text)
                                      .bytes())));
    QCOMPARE(translate(translator, kGroup, kContext, QStringLiteral("schlüssel")), text);
}

void TestTranslator::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray one = QByteArrayLiteral("\x01");
    const auto withRecord = [](const QByteArray& record) {
        return QmBytes()
            .language(QByteArrayLiteral("en_US"))
            .record(QByteArrayLiteral("ok"), QByteArrayLiteral("C"), record)
            .bytes();
    };
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no language file") << QByteArrayLiteral("<?xml version=\"1.0\"?><TS/>");
    QTest::newRow("magic number only") << QmBytes::magic();
    QTest::newRow("no texts") << QmBytes().language(QByteArrayLiteral("en_US")).bytes();
    QTest::newRow("refers to other files")
        << english().section('\x96', QByteArrayLiteral("\0\0\0\2\0x")).bytes();
    QTest::newRow("unknown section") << english().section('\x11', one).bytes();
    QTest::newRow("section twice") << english().section('\xa7', QByteArrayLiteral("fr_FR")).bytes();
    QTest::newRow("bytes at the end") << english().bytes() + one;
    QTest::newRow("odd text") << withRecord(QmBytes::field(3, one) + one);
    QTest::newRow("no text in a record")
        << withRecord(QmBytes::field(6, QByteArrayLiteral("ok")) + one);
    QTest::newRow("record without an end") << withRecord(QmBytes::field(3, QByteArray()));
    QTest::newRow("text longer than the file")
        << withRecord(QByteArrayLiteral("\x03\x7f\xff\xff\xf0\x01"));
    QTest::newRow("unknown field in a record")
        << withRecord(QmBytes::field(3, QByteArray()) + QmBytes::field(4, one) + one);
    QTest::newRow("table leads elsewhere")
        << QmBytes::magic() + QmBytes::field('\x42', QByteArrayLiteral("\0\0\0\1\0\0\0\x63")) +
               QmBytes::field('\x69', QmBytes::field(3, QByteArray()) + one);
    QTest::newRow("text under another one's hash")
        << QmBytes()
               .record(QByteArrayLiteral("cancel"), QByteArrayLiteral("C"),
                       QmBytes::field(3, QByteArray()) + QmBytes::field(8, QByteArrayLiteral("C")) +
                           QmBytes::field(6, QByteArrayLiteral("ok")) + one)
               .bytes();
    const QByteArray record = QmBytes::field(3, QByteArray()) + one;
    QTest::newRow("table out of order")
        << QmBytes::magic() +
               QmBytes::field('\x42', QByteArrayLiteral("\0\0\0\2\0\0\0\0\0\0\0\1\0\0\0\6")) +
               QmBytes::field('\x69', record + record);
    QTest::newRow("table too short")
        << QmBytes::magic() + QmBytes::field('\x42', QByteArrayLiteral("\0\0\0\1\0\0\0\0")) +
               QmBytes::field('\x69', record + record);
    QTest::newRow("contexts lead elsewhere")
        << english().section('\x2f', QByteArrayLiteral("\0\1\x7f\xff")).bytes();
    QTest::newRow("no chain of contexts")
        << english().section('\x2f', QByteArrayLiteral("\0\0")).bytes();
    QTest::newRow("wrong plural rules")
        << english().section('\x88', QByteArrayLiteral("\x77\x77\x77")).bytes();
}

void TestTranslator::refuses()
{
    QFETCH(QByteArray, bytes);
    Translator translator;
    QVERIFY(translator.load(write(chinese().bytes(), QStringLiteral("zh_CN.qm"))));
    QVERIFY(translator.load(write(english().bytes(), QStringLiteral("en_US.qm"))));
    QVERIFY(!translator.load(write(bytes)));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("确定"));
    translator.switchLanguage(QStringLiteral("en_US"));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("OK"));
}

void TestTranslator::refusesWhatIsNoFile()
{
    Translator translator;
    QVERIFY(!translator.load(QString()));
    QVERIFY(!translator.load(m_dir->filePath(QStringLiteral("missing.qm"))));
    QVERIFY(!translator.load(m_dir->path()));
    const QString pipe = m_dir->filePath(QStringLiteral("pipe.qm"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(!translator.load(pipe));
}

void TestTranslator::refusesTheTextsOfAnotherProgram()
{
    Translator translator;
    translator.acceptOnly(kGroup);
    QVERIFY(translator.load(write(chinese().bytes())));
    const QString other = write(
        QmBytes()
            .language(QByteArrayLiteral("zh_CN"))
            .text(QByteArrayLiteral("ok"), QStringLiteral("other"), QByteArrayLiteral("Another"))
            .bytes(),
        QStringLiteral("other.qm"));
    QVERIFY(!translator.load(other));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("确定"));
    // One text is enough, whatever else there is.
    const QString both =
        write(QmBytes()
                  .language(QByteArrayLiteral("zh_CN"))
                  .text(QByteArrayLiteral("x"), QStringLiteral("y"), QByteArrayLiteral("Another"))
                  .text(QByteArrayLiteral("ok"), QStringLiteral("好"))
                  .bytes(),
              QStringLiteral("both.qm"));
    QVERIFY(translator.load(both));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("好"));
    translator.acceptOnly(QString());
    QVERIFY(translator.load(other));
}

void TestTranslator::survivesItsFile()
{
    Translator translator;
    const QString file = write(chinese().bytes());
    QVERIFY(translator.load(file));
    QFile rewritten(file);
    QVERIFY(rewritten.open(QIODevice::ReadWrite));
    QCOMPARE(rewritten.write(QByteArray(int(rewritten.size()), '\xff')), rewritten.size());
    rewritten.close();
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("确定"));
    QVERIFY(QFile::resize(file, 0));
    QCOMPARE(textOf(translator, "cancel"), QStringLiteral("取消"));
    QVERIFY(QFile::remove(file));
    QCOMPARE(textOf(translator, "delete"), QStringLiteral("删除"));
    QVERIFY(!translator.load(file));
    QCOMPARE(textOf(translator, "ok"), QStringLiteral("确定"));
}

void TestTranslator::refusesFilesCutShort_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("as it is") << QStringLiteral(LANGUAGE_DIR "/en_US.qm");
    QTest::newRow("compressed") << QStringLiteral(COMPRESSED_LANGUAGE_FILE);
}

void TestTranslator::refusesFilesCutShort()
{
    QFETCH(QString, file);
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray whole = source.readAll();
    Translator translator;
    QVERIFY(translator.load(file));
    translator.switchLanguage(QStringLiteral("en_US"));
    const QStringList texts = textsOf(translator);
    for (int length = 0; length < whole.size(); ++length) {
        Translator cut;
        cut.switchLanguage(QStringLiteral("en_US"));
        // A cut between two sections may take away what no lookup needs, but never a text.
        if (cut.load(write(whole.left(length)))) {
            QCOMPARE(textsOf(cut), texts);
        }
    }
}

void TestTranslator::survivesFlippedBytes_data()
{
    readsWhatTheCompilerWrites_data();
}

void TestTranslator::survivesFlippedBytes()
{
    QFETCH(QString, file);
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray whole = source.readAll();
    Translator translator;
    QVERIFY(translator.load(QStringLiteral(LANGUAGE_DIR "/zh_CN.qm")));
    const QStringList chineseTexts = textsOf(translator);
    for (int i = 0; i < whole.size(); ++i) {
        for (const int mask : {0xff, 1 << (i % 8)}) {
            QByteArray damaged = whole;
            damaged[i] = char(damaged.at(i) ^ mask);
            if (translator.load(write(damaged))) {
                translator.switchLanguage(QStringLiteral("nl_NL"));
                QCOMPARE(textsOf(translator).size(), textKeys().size());
                translator.switchLanguage(QStringLiteral("zh_CN"));
            }
        }
    }
    QCOMPARE(textsOf(translator), chineseTexts);
}

QTEST_GUILESS_MAIN(TestTranslator)
#include "tst_Translator.moc"
