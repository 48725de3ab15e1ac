#include "LanguageMessages.h"
#include "LanguageNames.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

/// A row of a table of terms.
struct Term
{
    QString thing;
    QStringList words;
    QStringList banned;
};

QString contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(path));
    }
    return QString::fromUtf8(file.readAll());
}

QStringList listed(const QString& cell)
{
    const QString text = cell.trimmed();
    return text.isEmpty() ? QStringList() : text.split(QStringLiteral(", "));
}

/// The table of a language, from the document that translators read.
QVector<Term> termsOf(const QString& language)
{
    QVector<Term> terms;
    bool isInside = false;
    const QStringList lines =
        contentOf(QStringLiteral(DOCUMENT_DIR "/terms.md")).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        if (line.startsWith(QLatin1String("## "))) {
            isInside = line.endsWith(QStringLiteral("(%1)").arg(language));
        }
        const QStringList cells = line.split(QLatin1Char('|'));
        const bool isRow = cells.size() == 5 && !line.startsWith(QLatin1String("|--")) &&
                           !line.startsWith(QLatin1String("| Thing"));
        if (isInside && isRow) {
            terms.append({cells[1].trimmed(), listed(cells[2]), listed(cells[3])});
        }
    }
    return terms;
}

bool hasWordBreaks(const QString& language)
{
    return !language.startsWith(QLatin1String("zh")) && !language.startsWith(QLatin1String("ja")) &&
           !language.startsWith(QLatin1String("ko"));
}

/// Finds a term as a word of its own, where the language divides words; a "*" is any ending.
QRegularExpression pattern(QString term, const QString& language)
{
    const bool hasAnyEnding = term.endsWith(QLatin1Char('*'));
    term.remove(QLatin1Char('*'));
    QString expression = QRegularExpression::escape(term);
    if (hasWordBreaks(language)) {
        expression.prepend(QStringLiteral("(?<!\\p{L})"));
        expression.append(hasAnyEnding ? QString() : QStringLiteral("(?!\\p{L})"));
    }
    return QRegularExpression(expression, QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::UseUnicodePropertiesOption);
}

void addTexts(const Messages& messages, QStringList& texts)
{
    for (const Message& message : messages) {
        for (QString form : message.forms) {
            texts.append(form.remove(QLatin1Char('&')));
        }
    }
}

/// What editor and host say; the host's English stands in its code.
QStringList textsOf(const QString& language)
{
    QStringList texts;
    addTexts(readEditorLanguage(language), texts);
    addTexts(readHostLanguage(language), texts);
    if (language == QLatin1String("en_US")) {
        const QStringList keys = messagesOfTheCode().keys();
        for (const QString& key : keys) {
            texts.append(key.section(QStringLiteral(": "), 1).remove(QLatin1Char('&')));
        }
    }
    return texts;
}

/// A document without what it quotes from programs.
QString proseOf(const char* document)
{
    QString text = contentOf(QStringLiteral(DOCUMENT_DIR "/%1").arg(QLatin1String(document)));
    text.remove(QRegularExpression(QStringLiteral("```.*?```"),
                                   QRegularExpression::DotMatchesEverythingOption));
    return text.remove(QRegularExpression(QStringLiteral("`[^`]*`")));
}

/// What the console says. Names in its output for programs are no words.
QStringList sentencesOfTheConsole()
{
    const QRegularExpression literal(
        QStringLiteral("R\"\\((.*?)\\)\"|\"((?:[^\"\\\\\n]|\\\\.)*)\""),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList sentences;
    QDirIterator files(QStringLiteral(CONSOLE_SOURCE_DIR), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        auto matches = literal.globalMatch(contentOf(files.next()));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const QString text = match.captured(1) + match.captured(2);
            if (text.contains(QLatin1Char(' '))) {
                sentences.append(text);
            }
        }
    }
    return sentences;
}

} // namespace

/// One word for one thing, as docs/terms.md has them.
class tst_Terms : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageNamesTheSameThings_data() { languageRows(); }
    void everyLanguageNamesTheSameThings();
    void wordsOfTheTableAreUsed_data() { languageRows(); }
    void wordsOfTheTableAreUsed();
    void bannedWordsAreNot_data() { languageRows(); }
    void bannedWordsAreNot();
    void consoleAndDocumentsSpeakTheSameEnglish();
    void textsNameWhatTheySpeakOf_data() { languageRows(); }
    void textsNameWhatTheySpeakOf();

private:
    static void languageRows()
    {
        QTest::addColumn<QString>("language");
        const QStringList names = languages();
        for (const QString& name : names) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
    static QStringList bannedIn(const QStringList& texts, const QString& language)
    {
        QStringList found;
        for (const Term& term : termsOf(language)) {
            for (const QString& word : term.banned) {
                for (const QString& text : texts.filter(pattern(word, language))) {
                    found.append(QStringLiteral("%1: %2").arg(word, text));
                }
            }
        }
        return found;
    }
};

void tst_Terms::everyLanguageNamesTheSameThings()
{
    QFETCH(QString, language);
    const auto things = [](const QString& name) {
        QStringList result;
        for (const Term& term : termsOf(name)) {
            // A row without a word is about one language alone.
            if (!term.words.isEmpty()) {
                result.append(term.thing);
            }
        }
        return result;
    };
    QVERIFY(things(language).size() > 10);
    QCOMPARE(things(language), things(QStringLiteral("en_US")));
}

void tst_Terms::wordsOfTheTableAreUsed()
{
    QFETCH(QString, language);
    const QStringList texts = textsOf(language);
    for (const Term& term : termsOf(language)) {
        for (const QString& word : term.words) {
            QVERIFY2(!texts.filter(pattern(word, language)).isEmpty(), qPrintable(word));
        }
    }
}

void tst_Terms::bannedWordsAreNot()
{
    QFETCH(QString, language);
    QCOMPARE(bannedIn(textsOf(language), language).join(QLatin1Char('\n')), QString());
}

void tst_Terms::consoleAndDocumentsSpeakTheSameEnglish()
{
    const QStringList sentences = sentencesOfTheConsole();
    QVERIFY(sentences.size() > 100);
    const QStringList texts =
        sentences + QStringList{proseOf("guide.md"), proseOf("schedulectl.md")};
    QStringList banned = bannedIn(texts, QStringLiteral("en_US"));
    for (QString& line : banned) {
        line.truncate(80);
    }
    QCOMPARE(banned.join(QLatin1Char('\n')), QString());
}

void tst_Terms::textsNameWhatTheySpeakOf()
{
    QFETCH(QString, language);
    const QString start = readEditorLanguage(language)
                              .value(QStringLiteral("SheduleWidgets: zhEnable"))
                              .forms.value(0);
    QVERIFY(!start.isEmpty());
    const bool isEnglish = language == QLatin1String("en_US");
    const Messages messages = readHostLanguage(language);
    const auto text = [&](const QString& context, const QString& source) {
        return isEnglish ? source
                         : messages.value(context + QStringLiteral(": ") + source).forms.value(0);
    };
    const QString reason = text(QStringLiteral("ScreenWords"),
                                QStringLiteral("Choose Start to put the saved schedule into "
                                               "effect."));
    QVERIFY2(reason.contains(start), qPrintable(reason));
    // The window has a button of its own for it, of the same name.
    QCOMPARE(text(QStringLiteral("trel::desktop::air::StartAction"), QStringLiteral("Start")),
             start);
    QString entry =
        text(QStringLiteral("trel::desktop::EditorMenus"), QStringLiteral("&Import files…"));
    entry.remove(QRegularExpression(QStringLiteral("\\(&.\\)|&|…")));
    const QString hint =
        text(QStringLiteral("trel::desktop::CataloguePanel"),
             QStringLiteral("No programs yet. Drop media files or folders here, or choose “Import "
                            "files”."));
    QVERIFY2(!entry.isEmpty() && hint.contains(entry), qPrintable(hint));
}

QTEST_GUILESS_MAIN(tst_Terms)
#include "tst_Terms.moc"
